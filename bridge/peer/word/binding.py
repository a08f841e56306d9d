"""How a call by name reaches a member of the word processor's object model, and how that model fails."""

import binding
from binding import Published
from failures import Disposed, Failure, UnoException, text_of
from handles import Single
from word.places import units

# The numbers and texts of the word processor itself.
BAD_PARAMETER = (4120, "Bad parameter.")
COMMAND_FAILED = (4198, "Command failed.")
NO_DOCUMENT = (4248, "This command is not available because no document is open.")
NOT_AVAILABLE = (4605, "This method or property is not available.")
NO_SELECTION = (4605, f"{NOT_AVAILABLE[1][:-1]} because no text is selected.")
NO_CLIPBOARD = (4605, f"{NOT_AVAILABLE[1][:-1]} because the Clipboard is empty or not valid.")
VALUE_OUT_OF_RANGE = (4608, "Value out of range.")
NOT_A_FILE_NAME = (5152, "This is not a valid file name.")
NAME_IN_USE = (5153, "Word cannot give a document the same name as an open document.")
FILE_NOT_FOUND = (5174, "This file could not be found.")
PRINTER_ERROR = (5216, "There is a printer error.")
BAD_PATH = (5273, "The document name or path is not valid.")
CORRUPT_FILE = (5792, "The file appears to be corrupted.")
OBJECT_DELETED = (5825, "Object has been deleted.")
INCORRECT_VALUE = (5843, "One of the values passed to this method or property is incorrect.")
STRING_TOO_LONG = (5854, "String parameter too long.")
NO_MEMBER = (5941, "The requested member of the collection does not exist.")


class WordError(Failure):
    """A failure of the word processor: its number becomes 0x800A in the upper half."""

    def __init__(self, error, more=""):
        number, text = error
        super().__init__(0x800A0000 | number, f"{text} {more}".rstrip(), "Word")


class WordObject(Published):
    """Base of all objects of the word processor's model."""


class Collection(binding.Collection, WordObject):
    """A collection that takes numbers only."""

    def Item(self, Index: int):
        items = self.all()
        if not 1 <= Index <= len(items):
            raise WordError(NO_MEMBER)
        return items[Index - 1]


def kept(kind, initial, allowed=None, longest=None):
    """Return a property that is remembered in the object's _kept, and nothing else: a setting, or the state
    of a window that is not there."""
    key = object()

    def read(self):
        value = self._kept.get(key, initial)
        return Single(value) if kind is float else value

    def write(self, value: kind):
        if allowed and value not in allowed:
            raise WordError(INCORRECT_VALUE)
        if longest and units(value) > longest:
            raise WordError(STRING_TOO_LONG)
        self._kept[key] = value

    return property(read, write)


def guarded(body):
    """Run a call's body; what LibreOffice reports fails as the word processor would."""
    try:
        return body()
    except Disposed as error:
        raise WordError(OBJECT_DELETED) from error
    except UnoException as error:
        raise WordError(COMMAND_FAILED, text_of(error)) from error
