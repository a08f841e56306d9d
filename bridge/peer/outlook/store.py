"""What a mailbox holds: folders with records. Items, as clients see them, are views of a record."""

import datetime
import itertools
import uuid

from outlook.model import NOT_FOUND, OutlookError

# OlDefaultFolders of the object model: name, and the item type of what is created there.
FOLDERS = {
    3: ("Deleted Items", 0),
    4: ("Outbox", 0),
    5: ("Sent Items", 0),
    6: ("Inbox", 0),
    9: ("Calendar", 1),
    10: ("Contacts", 2),
    11: ("Journal", 4),
    12: ("Notes", 5),
    13: ("Tasks", 3),
    16: ("Drafts", 0),
}
DELETED_ITEMS = 3


class Record:
    """One item as it is stored. It is in no folder's list until it is kept for the first time."""

    def __init__(self, kind, shelf, values):
        self.kind = kind
        self.shelf = shelf
        self.values = values
        self.entry_id = ""
        self.is_removed = False
        self.changes = {}  # By an occurrence's original start: its own record, or None where it was deleted.

    def keep(self, values):
        """Store new values, for the first time or again."""
        store = self.shelf.store
        self.values.update(values)
        now = datetime.datetime.now().replace(microsecond=0)
        if not self.entry_id:
            self.entry_id = store.new_id()
            self.values.setdefault("CreationTime", now)
            store.by_id[self.entry_id] = self
            self.shelf.records.append(self)
        self.values["LastModificationTime"] = now
        self.shelf.version += 1

    def move(self, number):
        """Take the record into another folder of its store."""
        self.shelf.take_out(self)
        self.shelf = self.shelf.store.shelf(number)
        self.shelf.records.append(self)
        self.shelf.version += 1

    def discard(self):
        """Move the record to the deleted ones, or from there out of the store."""
        if not self.entry_id:
            self.is_removed = True
        elif self.shelf.number != DELETED_ITEMS:
            self.move(DELETED_ITEMS)
        else:
            self.is_removed = True
            self.shelf.take_out(self)
            del self.shelf.store.by_id[self.entry_id]


class Occurrence(Record):
    """One appointment of a series, stored with its series once it differs from it."""

    def __init__(self, master, original, values):
        super().__init__(master.kind, master.shelf, values)
        self.master = master
        self.original = original
        self.entry_id = master.entry_id

    @property
    def is_exception(self):
        return self.master.changes.get(self.original) is self

    def keep(self, values):
        self.values.update(values)
        self.master.changes[self.original] = self
        self.master.keep({})

    def discard(self):
        self.is_removed = True
        self.master.changes[self.original] = None
        self.master.keep({})


class Shelf:
    """The records of one folder; every change changes the version, so that views know when to look again."""

    def __init__(self, store, number):
        self.store = store
        self.number = number
        self.name, self.item_type = FOLDERS[number]
        self.records = []
        self.version = 0

    def take_out(self, record):
        self.records.remove(record)
        self.version += 1


class Store:
    """A whole mailbox."""

    def __init__(self):
        self.id = uuid.uuid4().hex.upper()
        self._numbers = itertools.count(1)
        self._shelves = {number: Shelf(self, number) for number in FOLDERS}
        self.by_id = {}

    def new_id(self):
        return f"00000000{self.id}{next(self._numbers):08X}"

    def shelf(self, number):
        return self._shelves[number]

    def find(self, entry_id):
        try:
            return self.by_id[entry_id.upper()]
        except KeyError:
            raise OutlookError(NOT_FOUND) from None
