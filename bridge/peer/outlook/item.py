"""What all kinds of items have in common."""

import datetime

from binding import Published
from outlook.attachments import Attachments
from outlook.model import (
    BAD_VALUE,
    MOVED_OR_DELETED,
    NO_DATE,
    NOT_IN_THE_STAND_IN,
    OutlookError,
    fields,
    write_file,
)
from outlook.store import Occurrence, Record

FORMATS = (0, 3)  # Of OlSaveAsType, text and .msg: what is written is a text in either case.


@fields(str, "", "Body Categories Subject")
@fields(datetime.datetime, NO_DATE, "CreationTime LastModificationTime", read_only=True)
@fields(int, 0, "MarkForDownload", within=range(5))
@fields(int, 1, "DownloadState", read_only=True)
@fields(bool, False, "IsConflict", read_only=True)
class Item(Published):
    """A view of a record: it keeps its changes to itself until it is saved."""

    DEFAULT = "Subject"
    Class = 0
    message_class = "IPM"
    home = 6  # The folder of a new item.

    def __init__(self, outlook, record):
        self.outlook = outlook
        self._record = record
        self._unsaved = {}
        self._is_gone = False

    @classmethod
    def new(cls, outlook, shelf=None):
        """Return a new item that nobody has saved yet."""
        return cls(outlook, Record(cls, shelf or outlook.store.shelf(cls.home), {}))

    def require(self):
        """Fail once this item, or its record, is gone."""
        if self._is_gone or self._record.is_removed:
            raise OutlookError(MOVED_OR_DELETED)

    @property
    def record(self):
        self.require()
        return self._record

    def value(self, name, initial=None):
        stored = self.record.values
        return self._unsaved[name] if name in self._unsaved else stored.get(name, initial)

    def values(self):
        return self.record.values | self._unsaved

    def change(self, name, value):
        self.require()
        self._unsaved[name] = value

    @property
    def files(self):
        return self.value("files", ())

    @property
    def Application(self):
        return self.outlook.application

    @property
    def Session(self):
        return self.outlook.application.Session

    @property
    def Parent(self):
        """The folder; of an occurrence, the series' appointment."""
        record = self.record
        if isinstance(record, Occurrence):
            return record.master.kind(self.outlook, record.master)
        return self.outlook.folder(record.shelf)

    @property
    def EntryID(self) -> str:
        return self.record.entry_id

    @property
    def MessageClass(self) -> str:
        return self.value("MessageClass", self.message_class)

    @MessageClass.setter
    def MessageClass(self, value: str):
        self.change("MessageClass", value)

    @property
    def Size(self) -> int:
        values = self.record.values
        files = sum(len(file.data) for file in values.get("files", ()))
        return files + sum(len(str(value)) for value in values.values())

    @property
    def Saved(self) -> bool:
        return bool(self.record.entry_id) and not self._unsaved

    def Save(self):
        unsaved, self._unsaved = self._unsaved, {}
        self.record.keep(unsaved)

    def Delete(self):
        self.record.discard()
        self._is_gone = True

    def Display(self, Modal: bool = False):
        self.require()
        self.outlook.show(self)

    def Close(self, SaveMode: int):
        if SaveMode not in (0, 1):  # olSave, olDiscard: there is nobody to ask.
            raise OutlookError(BAD_VALUE)
        self.outlook.hide(self)
        if SaveMode == 0:
            self.Save()
        else:
            self._unsaved = {}

    def SaveAs(self, Path: str, Type: int = 3):
        if Type not in FORMATS:
            raise OutlookError(NOT_IN_THE_STAND_IN)
        write_file(self.outlook.paths, Path, self.as_text().encode())

    def as_text(self):
        """Return what the item's file holds: every property that has a value, each on a line."""
        lines = ["Written by a stand-in for Outlook; this is a text, not a file in Outlook's own format."]
        for name in sorted(each for each in dir(type(self)) if each[0].isupper() and each != "DEFAULT"):
            member = type(self).published(name)
            value = member.fget(self) if isinstance(member, property) else member
            if isinstance(value, (str, int, datetime.datetime)) and value not in ("", NO_DATE):
                lines.append(f"{name}: {value}")
        lines += [f"Attachment: {file.name}, {len(file.data)} bytes" for file in self.files]
        return "\r\n".join(lines) + "\r\n"


@fields(str, "", "BillingInformation Companies Mileage")
@fields(int, 1, "Importance", within=range(3))
@fields(int, 0, "Sensitivity", within=range(4))
@fields(bool, False, "NoAging UnRead")
class FullItem(Item):
    """What every kind has but notes."""

    @property
    def Attachments(self):
        self.require()
        return Attachments(self)
