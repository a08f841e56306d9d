"""The bridge's peer: holds LibreOffice's objects and answers the COM server's calls, one JSON line each."""

import argparse
import json
import signal
import socket
import sys
import traceback

import office
from binding import constant
from handles import Handles, NoSuchMember
from failures import Disposed, Failure, SERVER_NOT_STARTED
from outlook.application import Outlook, OutlookSession
from paths import Paths
from suite import SuiteSession
from word.application import WordSession


class OfficeGone(Exception):
    """The office has ended: nothing that is held can be used any more."""


class Peer:
    """Answers requests; every created class is a session with objects of its own. Without an office's context
    there is only what needs none."""

    def __init__(self, context, paths, pdf_folder):
        self.context = context
        self.paths = paths
        self.pdf_folder = pdf_folder
        self.surroundings = {"printers": [], "pdf_printer": "", "screen": [0, 0], "dots_per_inch": 96}
        self.outlook = Outlook(paths)
        self.handles = Handles()

    def answer(self, line):
        """Return the answer to one request line, None for one that wants none; raises OfficeGone and nothing
        else."""
        try:
            request = json.loads(line)
            if request["do"] == "release":
                return self.release(request["objects"])
            return {"value": getattr(self, "do_" + request["do"])(request)}
        except Failure as failure:
            if isinstance(failure.__cause__, Disposed):  # One object has ended, or the whole office has.
                self.require_office()
            return {"failure": failure.as_json()}
        except NoSuchMember:
            return {"failure": Failure.member_not_found().as_json()}
        except Exception as error:  # A bad request, or a fault of the peer itself: the client hears of it.
            self.require_office()
            traceback.print_exc()
            return {"failure": Failure(0x8000FFFF, f"{type(error).__name__}: {error}", "bridge").as_json()}

    def require_office(self):
        """Raise OfficeGone when there is an office that no longer answers."""
        try:
            if self.context:
                self.context.getServiceManager()
        except Exception as error:
            raise OfficeGone from error

    def do_hello(self, request):
        self.surroundings.update({key: request[key] for key in self.surroundings})

    def do_create(self, request):
        if request["class"] == "outlook":
            session = OutlookSession(self.outlook)
        elif self.context:
            kind = {"word": WordSession, "suite": SuiteSession}[request["class"]]
            session = kind(self.context, self.paths, self.surroundings, self.pdf_folder)
        else:
            raise Failure(SERVER_NOT_STARTED)
        return self.handles.new_session(session, request["client"])

    def do_member(self, request):
        item, session = self.handles.find(request["object"])
        parameters = session.parameters(item, request["name"])
        if parameters is None:
            return None
        return {"parameters": parameters, "constant": constant(item, request["name"])}

    def do_call(self, request):
        item, session = self.handles.find(request["object"])
        arguments, named = self.handles.arguments(request)
        return self.handles.to_json(session.call(item, request["name"], arguments, named), session)

    def do_put(self, request):
        item, session = self.handles.find(request["object"])
        arguments, _ = self.handles.arguments(request)
        session.put(item, request["name"], arguments)

    def do_items(self, request):
        item, session = self.handles.find(request["object"])
        return self.handles.to_json(list(session.items(item)), session)

    def release(self, numbers):
        """Let go of objects; nobody waits to hear how that went."""
        try:
            for number in numbers:
                self.handles.release(number)
        except Exception:
            self.require_office()
            traceback.print_exc()

    def do_client_ended(self, request):
        self.handles.end_client(request["client"])


def serve(peer, listener):
    """Answer one COM server after the other, for ever."""
    while True:
        connection, _ = listener.accept()
        with connection, connection.makefile("rwb") as stream:
            connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            try:
                for line in stream:
                    answer = peer.answer(line)
                    if answer is not None:
                        stream.write(json.dumps(answer, allow_nan=False).encode() + b"\n")
                        stream.flush()
            except ConnectionError:
                pass
        # The COM server is gone, and with it every client that could still reach an object.
        peer.handles.end_all()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--office-pipe", help="name of the pipe at which the office accepts; none without")
    parser.add_argument("--prefix", required=True, help="the Wine prefix, for the drives of Windows paths")
    parser.add_argument("--pdf-folder", required=True, help="where printed documents go")
    parser.add_argument("--port-file", required=True, help="file that gets the port once the peer is ready")
    options = parser.parse_args()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(0))
    try:
        context = office.connect(options.office_pipe, 30) if options.office_pipe else None
    except ConnectionError as error:
        sys.exit(f"peer: {error}")
    peer = Peer(context, Paths(options.prefix), options.pdf_folder)
    with socket.create_server(("127.0.0.1", 0)) as listener:
        with open(options.port_file, "w", encoding="ascii") as port_file:
            port_file.write(f"{listener.getsockname()[1]}\n")
        try:
            serve(peer, listener)
        except OfficeGone:
            sys.exit("peer: the office has ended")
        finally:
            peer.handles.end_all()


main()
