"""How a call by name reaches a member of the word processor's object model, and how that model fails."""

import inspect

from failures import (
    BAD_PARAMETER_COUNT,
    Disposed,
    Failure,
    PARAMETER_NOT_FOUND,
    PARAMETER_NOT_OPTIONAL,
    TYPE_MISMATCH,
    UnoException,
    text_of,
)
from handles import MISSING, NoSuchMember, Single
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


class WordObject:
    """Base of all objects of the model. What begins with a capital is published, in any case of its letters;
    DEFAULT names the member that stands for the object itself."""

    DEFAULT = None

    @classmethod
    def published(cls, name):
        """Return the class's member of that name: a property or a function; NoSuchMember if there is none."""
        if "_published" not in cls.__dict__:
            names = (each for each in dir(cls) if each[0].isupper() and each != "DEFAULT")
            cls._published = {each.lower(): each for each in names}
        try:
            return inspect.getattr_static(cls, cls._published[(name or cls.DEFAULT or "").lower()])
        except KeyError:
            raise NoSuchMember from None


class Collection(WordObject):
    """A collection whose items are counted from 1."""

    DEFAULT = "Item"

    def all(self):
        """Return all items."""
        raise NotImplementedError

    @property
    def Count(self):
        return len(self.all())

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


def parameters(item, name):
    """Return the names of a member's parameters, or None where the object has no such member."""
    try:
        member = type(item).published(name)
    except NoSuchMember:
        return None
    return [] if isinstance(member, property) else list(inspect.signature(member).parameters)[1:]


def call(item, name, arguments, named):
    """Read a property or call a method. What follows a property in parentheses goes to the default member of
    its value."""
    member = type(item).published(name)
    if not isinstance(member, property):
        return _guarded(lambda: member(item, **_bound(member, arguments, named)))
    value = _guarded(lambda: member.fget(item))
    if not arguments and not named:
        return value
    if not isinstance(value, WordObject):
        raise Failure(BAD_PARAMETER_COUNT)
    return call(value, "", arguments, named)


def put(item, name, arguments):
    """Write a property."""
    member = type(item).published(name)
    if not isinstance(member, property) or member.fset is None or len(arguments) != 1:
        raise NoSuchMember
    annotation = list(inspect.signature(member.fset).parameters.values())[1].annotation
    _guarded(lambda: member.fset(item, converted(arguments[0], annotation)))


def _bound(member, arguments, named):
    """Return a call's arguments by parameter name; what was left out takes its default."""
    known = list(inspect.signature(member).parameters.values())[1:]
    if len(arguments) > len(known):
        raise Failure(BAD_PARAMETER_COUNT)
    by_lower_name = {parameter.name.lower(): parameter for parameter in known}
    given = {parameter.name: value for parameter, value in zip(known, arguments, strict=False)}
    for name, value in named.items():
        if name.lower() not in by_lower_name:
            raise Failure(PARAMETER_NOT_FOUND)
        given[by_lower_name[name.lower()].name] = value
    bound = {}
    for parameter in known:
        value = given.get(parameter.name, MISSING)
        if value is not MISSING:
            bound[parameter.name] = converted(value, parameter.annotation)
        elif parameter.default is parameter.empty:
            raise Failure(PARAMETER_NOT_OPTIONAL)
    return bound


def converted(value, kind):
    """Return the value as the parameter's kind, by automation's rules of conversion."""
    try:
        if kind is int and isinstance(value, bool):
            return -1 if value else 0
        if kind is int:
            return round(float(value or 0))
        if kind is float:
            return float(value or 0)
        if kind is bool and isinstance(value, str):
            return {"true": True, "false": False}[value.lower()] if value.isalpha() else float(value) != 0
        if kind is bool:
            return bool(value)
        if kind is str and (value is None or isinstance(value, (str, int, float))):
            return "" if value is None else str(value)
    except (TypeError, ValueError, KeyError, OverflowError):
        raise Failure(TYPE_MISMATCH) from None
    if kind is str:
        raise Failure(TYPE_MISMATCH)
    return value


def _guarded(body):
    try:
        return body()
    except Disposed as error:
        raise WordError(OBJECT_DELETED) from error
    except UnoException as error:
        raise WordError(COMMAND_FAILED, text_of(error)) from error
