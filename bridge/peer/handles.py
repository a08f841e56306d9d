"""Which object of the peer a number of the COM server stands for, and values in both directions."""

import collections
import datetime
import itertools
import math

import uno

from failures import Failure, TYPE_MISMATCH, clean


DAY_ZERO = datetime.datetime(1899, 12, 30)  # Of automation's dates.


class NoSuchMember(Exception):
    """The object has no member of that name, or the member cannot be used in that way."""


class Missing:
    """An argument that the client left out."""


MISSING = Missing()


class Nothing:
    """An object result that holds no object, as against no result at all."""


NOTHING = Nothing()


class Single(float):
    """A number of single precision."""


class Short(int):
    """A 16-bit number."""


class Byte(int):
    """An unsigned 8-bit number."""


class Handles:
    """All objects that clients hold. A session ends when it quits, when its last object is released, or with
    its client's process."""

    def __init__(self):
        self._numbers = itertools.count(1)
        self._held = {}
        self._counts = collections.Counter()
        self._clients = {}

    def new_session(self, session, client):
        self._clients[session] = client
        return self.to_json(session.root, session)

    def find(self, number):
        """Return the object and its session."""
        try:
            return self._held[number]
        except KeyError:
            # Its client's process was taken for ended, or its session is over.
            raise Failure(0x80010108) from None

    def release(self, number):
        _, session = self._held.pop(number, (None, None))
        if session is None:
            return
        self._counts[session] -= 1
        if self._counts[session] == 0:
            self._end(session)

    def end_client(self, client):
        for session in [session for session, owner in self._clients.items() if owner and owner == client]:
            self._end(session)

    def end_all(self):
        for session in list(self._clients):
            self._end(session)

    def _end(self, session):
        self._clients.pop(session, None)
        self._counts.pop(session, None)
        self._held = {number: pair for number, pair in self._held.items() if pair[1] is not session}
        session.end()

    def arguments(self, request):
        """Return a request's positional and named arguments as Python values."""
        positional = [self._from_json(value) for value in request["arguments"]]
        return positional, {name: self._from_json(value) for name, value in request["named"].items()}

    def _from_json(self, value):
        if isinstance(value, str):
            return clean(value)
        if not isinstance(value, dict):
            return value
        if "array" in value:
            return tuple(self._from_json(item) for item in value["array"])
        if "object" in value:
            return self.find(value["object"])[0]
        if "missing" in value:
            return MISSING
        if "date" in value:
            try:
                return DAY_ZERO + datetime.timedelta(days=value["date"])
            except OverflowError:
                raise Failure(TYPE_MISMATCH) from None
        return None

    def to_json(self, value, session):
        """Return a result as JSON; an object gets a number, which the COM server releases one day."""
        if value is None or isinstance(value, bool):
            return value
        if isinstance(value, Single):
            return {"single": float(value)}
        if isinstance(value, Short):
            return {"short": int(value)}
        if isinstance(value, Byte):
            return {"byte": int(value)}
        if isinstance(value, float) and not math.isfinite(value):
            raise Failure(TYPE_MISMATCH)
        if isinstance(value, (int, float)):
            return value
        if isinstance(value, str):
            return clean(value)
        if isinstance(value, datetime.datetime):
            return {"date": (value - DAY_ZERO) / datetime.timedelta(days=1)}
        if isinstance(value, (tuple, list)):
            return {"array": [self.to_json(item, session) for item in value]}
        if isinstance(value, uno.ByteSequence):
            return {"array": [{"byte": byte} for byte in value.value]}
        if isinstance(value, (uno.Enum, uno.Char)):
            return str(value.value)
        if isinstance(value, uno.Type):
            return value.typeName
        if value is NOTHING:
            return {"nothing": True}
        number = next(self._numbers)
        self._held[number] = (value, session)
        self._counts[session] += 1
        return {"object": number, "class": session.class_name(value)}
