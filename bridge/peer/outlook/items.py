"""A folder's items: a view of its own with a position of its own each time that it is asked for."""

import datetime
import inspect

from binding import call, converted
from handles import NOTHING, NoSuchMember
from outlook.filters import Condition
from outlook.kinds import KINDS, of_message_class, of_type
from outlook.model import Collection, OutlookError, UNKNOWN_PROPERTY

# Properties that the object model does not sort by.
UNSORTED = "body htmlbody categories class companies entryid recurrencestate".split()


class Items(Collection):
    def __init__(self, outlook, shelf, conditions=()):
        self._outlook = outlook
        self._shelf = shelf
        self._conditions = conditions
        self._order = None
        self._position = 0
        self._seen = None
        self._records = []

    def records(self):
        """Return the records that the view shows, in its order."""
        if self._seen != self._shelf.version:
            self._seen = self._shelf.version
            self._records = list(self._shelf.records)
            for condition in self._conditions:
                self._records = [record for record in self._records if condition.holds(self._view(record))]
            if self._order:
                name, kind, descending = self._order
                self._records.sort(
                    key=lambda record: _rank(self._view(record), name, kind), reverse=descending
                )
        return self._records

    def _view(self, record):
        return record.kind(self._outlook, record)

    def all(self):
        return [self._view(record) for record in self.records()]

    @property
    def Count(self) -> int:
        return len(self.records())

    def Item(self, Index):
        if isinstance(Index, str) or not 1 <= converted(Index, int) <= self.Count:
            return super().Item(Index)
        return self._view(self.records()[converted(Index, int) - 1])

    def GetFirst(self):
        self._position = 0
        return self.GetNext()

    def GetNext(self):
        records = self.records()
        if self._position >= len(records):
            return NOTHING
        self._position += 1
        return self._view(records[self._position - 1])

    def Restrict(self, Filter: str):
        return Items(self._outlook, self._shelf, (*self._conditions, Condition(Filter, kind_of, value_of)))

    def Sort(self, Property: str, Descending: bool = False):
        name = Property.strip().removeprefix("[").removesuffix("]")
        kind = kind_of(name)
        if name.lower() in UNSORTED:
            raise OutlookError(UNKNOWN_PROPERTY, name)
        self._order = (name, kind, Descending)
        self._position = 0
        self._seen = None

    def Add(self, Type=None):
        """Type is an item type, a message class, or the folder's own type if left out."""
        if isinstance(Type, str):
            kind = of_message_class(Type)
        else:
            kind = of_type(self._shelf.item_type if Type is None else converted(Type, int))
        item = kind.new(self._outlook, self._shelf)
        if isinstance(Type, str):
            item.MessageClass = Type
        return item


def kind_of(name):
    """Return the kind of an item's property; it fails where no item has one that can be compared."""
    for kind in KINDS:
        try:
            member = kind.published(name)
        except NoSuchMember:
            continue
        is_property = isinstance(member, property)
        result = inspect.signature(member.fget).return_annotation if is_property else type(member)
        if result in (str, int, bool, datetime.datetime):
            return result
    raise OutlookError(UNKNOWN_PROPERTY, name)


def value_of(item, name):
    """Return an item's property, or None where this kind of item does not have it."""
    try:
        return call(item, name, [], {})
    except NoSuchMember:
        return None


def _rank(item, name, kind):
    value = value_of(item, name)
    if value is None:  # Items without the property come first.
        return (False,)
    return (True, value.lower() if kind is str else value)
