"""The office program at the other end of a pipe: how to reach it, and how to have it end.

    python3 office.py PIPE      asks it to end
"""

import sys
import time

import uno

from failures import Disposed, UnoException


def connect(pipe_name, seconds):
    """Return the office's component context; ConnectionError when it does not answer within the seconds."""
    local = uno.getComponentContext()
    resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
    end = time.monotonic() + seconds
    while True:
        try:
            return resolver.resolve(f"uno:pipe,name={pipe_name};urp;StarOffice.ComponentContext")
        except uno.getClass("com.sun.star.connection.NoConnectException") as error:
            if time.monotonic() > end:
                raise ConnectionError(f"no office at the pipe {pipe_name}") from error
            time.sleep(0.1)


def end(context):
    """Close every document unsaved, so that none keeps its lock file, and let the office end; return whether
    it agrees."""
    desktop = context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)
    documents = desktop.getComponents().createEnumeration()
    while documents.hasMoreElements():
        close(documents.nextElement())
    try:
        return desktop.terminate()
    except Disposed:  # Gone before it could answer.
        return True


def close(document):
    """Close a document as it is. One that somebody keeps open closes when that one lets go."""
    try:
        document.close(True)
    except (UnoException, AttributeError, RuntimeError):
        pass


if __name__ == "__main__":
    try:
        sys.exit(None if end(connect(sys.argv[1], 5)) else "office: it does not agree to end")
    except ConnectionError as failure:
        sys.exit(f"office: {failure}")
