"""Failures as COM clients see them."""

import uno

PEER_GONE = 0x800706BA
SERVER_NOT_STARTED = 0x80080005
EXCEPTION = 0x80020009
TYPE_MISMATCH = 0x80020005
MEMBER_NOT_FOUND = 0x80020003
PARAMETER_NOT_FOUND = 0x80020004
BAD_PARAMETER_COUNT = 0x8002000E
PARAMETER_NOT_OPTIONAL = 0x8002000F

Disposed = uno.getClass("com.sun.star.lang.DisposedException")
UnoException = uno.getClass("com.sun.star.uno.Exception")


class Failure(Exception):
    """A failed call: with a text the code is an exception's number, without it the call's result itself."""

    def __init__(self, code, text=None, source=""):
        super().__init__(text or f"0x{code:08X}")
        self.code = code
        self.text = text
        self.source = source

    @classmethod
    def member_not_found(cls):
        return cls(MEMBER_NOT_FOUND)

    def as_json(self):
        if self.text is None:
            return {"code": self.code}
        return {"code": self.code, "text": clean(self.text), "source": self.source}


def clean(text):
    """Return the text with every half of a surrogate pair replaced: neither side of the border takes one."""
    return text.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")


def text_of(error):
    """Return what a UNO exception says about itself."""
    return getattr(error, "Message", "") or str(error) or type(error).__name__
