"""How a call by name reaches a member of an object model that is written in Python."""

import datetime
import inspect

import dateutil.parser

from failures import BAD_PARAMETER_COUNT, Failure, PARAMETER_NOT_FOUND, PARAMETER_NOT_OPTIONAL, TYPE_MISMATCH
from handles import DAY_ZERO, MISSING, NoSuchMember


class Published:
    """Base of all objects of a model. What begins with a capital is published, in any case of its letters: a
    function, a property, or a constant number. DEFAULT names the member that stands for the object itself."""

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


class Collection(Published):
    """A collection whose items are counted from 1."""

    DEFAULT = "Item"

    def all(self):
        """Return all items."""
        raise NotImplementedError

    @property
    def Count(self) -> int:
        return len(self.all())


def parameters(item, name):
    """Return the names of a member's parameters, or None where the object has no such member."""
    try:
        member = type(item).published(name)
    except NoSuchMember:
        return None
    return list(inspect.signature(member).parameters)[1:] if inspect.isfunction(member) else []


def constant(item, name):
    """Return the value of a member that all objects of the class share for ever, None where it may differ."""
    member = type(item).published(name) if isinstance(item, Published) else None
    return member if isinstance(member, int) else None


def call(item, name, arguments, named):
    """Read a property or call a method. What follows a property in parentheses goes to the default member of
    its value."""
    member = type(item).published(name)
    if inspect.isfunction(member):
        return member(item, **_bound(member, arguments, named))
    value = member.fget(item) if isinstance(member, property) else member
    if not arguments and not named:
        return value
    if not isinstance(value, Published):
        raise Failure(BAD_PARAMETER_COUNT)
    return call(value, "", arguments, named)


def put(item, name, arguments):
    """Write a property."""
    member = type(item).published(name)
    if not isinstance(member, property) or member.fset is None or len(arguments) != 1:
        raise NoSuchMember
    annotation = list(inspect.signature(member.fset).parameters.values())[1].annotation
    member.fset(item, converted(arguments[0], annotation))


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
        if kind is datetime.datetime:
            return _date(value)
        if kind is str and (value is None or isinstance(value, (str, int, float))):
            return "" if value is None else str(value)
    except (TypeError, ValueError, KeyError, OverflowError):
        raise Failure(TYPE_MISMATCH) from None
    if kind is str:
        raise Failure(TYPE_MISMATCH)
    return value


def _date(value):
    """Return a date, a number of days or a date's text, month first, as a date and time in full seconds."""
    if isinstance(value, str):
        return dateutil.parser.parse(value).replace(tzinfo=None, microsecond=0)
    if not isinstance(value, datetime.datetime):
        value = DAY_ZERO + datetime.timedelta(days=float(value or 0))
    return (value + datetime.timedelta(milliseconds=500)).replace(microsecond=0)
