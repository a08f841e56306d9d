"""What all objects of the stand-in share: failures, collections, and properties kept with an item."""

import datetime

import binding
from binding import converted
from failures import Failure

# The numbers and texts of Outlook's failures.
BAD_VALUE = (0x80070057, "Could not complete the operation. One or more parameter values are not valid.")
CANNOT_PARSE = (0x80020009, "Cannot parse condition. Error at")
DENIED = (0x80070005, "You don't have appropriate permission to perform this operation.")
END_BEFORE_START = (0x80020009, "The end date you entered occurs before the start date.")
FILE_NOT_FOUND = (0x80070002, "Cannot find this file. Verify the path and file name are correct.")
INSTANCE_GONE = (
    0x80020009,
    "You changed one of the recurrences of this item, and this instance no longer exists. "
    "Close any open items and try again.",
)
MOVED_OR_DELETED = (0x8004010A, "The item has been moved or deleted.")
NO_RECIPIENT = (0x80004005, "There must be at least one name or contact group in the To, Cc, or Bcc box.")
NOT_FOUND = (0x8004010F, "The attempted operation failed. An object could not be found.")
NOT_IN_THE_STAND_IN = (0x80004001, "The stand-in for Outlook does not do this.")
OUT_OF_BOUNDS = (0x80020009, "Array index out of bounds.")
PATH_NOT_FOUND = (0x80070003, "Path does not exist. Verify the path is correct.")
UNKNOWN_PROPERTY = (0x80020009, "The property is unknown.")

NO_DATE = datetime.datetime(4501, 1, 1)  # How the object model says that a date is not set.
LONG = range(-(2**31), 2**31)


class OutlookError(Failure):
    """A failure of the object model."""

    def __init__(self, error, more=""):
        number, text = error
        super().__init__(number, f"{text} {more}".rstrip(), "Outlook (stand-in)")


class Collection(binding.Collection):
    """A collection whose items are also found by the text of their default member."""

    def Item(self, Index):
        items = self.all()
        if isinstance(Index, str):
            for item in items:
                if item.published("").fget(item).lower() == Index.lower():
                    return item
            raise OutlookError(NOT_FOUND)
        index = converted(Index, int)
        if not 1 <= index <= len(items):
            raise OutlookError(OUT_OF_BOUNDS)
        return items[index - 1]


def fields(kind, initial, names, within=None, read_only=False):
    """Return a class decorator that publishes properties kept with the item: of one kind, with one initial
    value and, where they can be written, with the values that are taken."""

    def publish(cls):
        for name in names.split():
            setattr(cls, name, _field(name, kind, initial, within, read_only))
        return cls

    return publish


def _field(name, kind, initial, within, read_only):
    allowed = LONG if kind is int and within is None else within

    def read(self) -> kind:
        return self.value(name, initial)

    def write(self, value: kind):
        self.change(name, within_bounds(value, allowed))

    return property(read, None if read_only else write)


def within_bounds(value, allowed):
    """Return the value, which must be among those allowed; None allows all."""
    if allowed is not None and value not in allowed:
        raise OutlookError(BAD_VALUE)
    return value


def write_file(paths, path, data):
    """Write bytes to the file that a Windows path means."""
    file = paths.to_unix(path)
    try:
        if file is None:
            raise FileNotFoundError
        with open(file, "wb") as stream:
            stream.write(data)
    except (FileNotFoundError, NotADirectoryError) as error:
        raise OutlookError(PATH_NOT_FOUND) from error
    except OSError as error:
        raise OutlookError(DENIED) from error


def read_file(paths, path):
    """Return the bytes of the file that a Windows path means."""
    file = paths.to_unix(path)
    try:
        if file is None:
            raise FileNotFoundError
        with open(file, "rb") as stream:
            return stream.read()
    except OSError as error:
        raise OutlookError(FILE_NOT_FOUND) from error
