"""Files that come with an item, and the people that a mail goes to."""

import dataclasses
import ntpath

from binding import Published
from outlook.model import Collection, NOT_FOUND, NOT_IN_THE_STAND_IN, OutlookError, read_file, write_file

BY_VALUE = 1  # Of OlAttachmentType.
TO, CC, BCC = 1, 2, 3  # OlMailRecipientType.


@dataclasses.dataclass(eq=False)
class File:
    """What is stored of an attachment."""

    name: str
    data: bytes
    display_name: str = ""
    position: int = 0


class Attachment(Published):
    DEFAULT = "DisplayName"

    def __init__(self, item, file):
        self._item = item
        self._file = file

    @property
    def FileName(self) -> str:
        return self._stored().name

    @property
    def DisplayName(self) -> str:
        return self._stored().display_name or self._file.name

    @DisplayName.setter
    def DisplayName(self, value: str):
        new = dataclasses.replace(self._stored(), display_name=value)
        self._item.change("files", tuple(new if file is self._file else file for file in self._item.files))
        self._file = new

    @property
    def Index(self) -> int:
        return self._item.files.index(self._stored()) + 1

    @property
    def Type(self) -> int:
        return BY_VALUE

    @property
    def BlockLevel(self) -> int:
        return 0  # olAttachmentBlockLevelNone: the stand-in blocks nothing.

    @property
    def Position(self) -> int:
        return self._stored().position

    @property
    def Size(self) -> int:
        return len(self._stored().data)

    def SaveAsFile(self, Path: str):
        write_file(self._item.outlook.paths, Path, self._stored().data)

    def Delete(self):
        self._stored()
        self._item.change("files", tuple(file for file in self._item.files if file is not self._file))

    def _stored(self):
        if self._file not in self._item.files:
            raise OutlookError(NOT_FOUND)
        return self._file


class Attachments(Collection):
    def __init__(self, item):
        self._item = item

    def all(self):
        return [Attachment(self._item, file) for file in self._item.files]

    def Add(self, Source: str, Type: int = BY_VALUE, Position: int = 0, DisplayName: str = ""):
        if Type != BY_VALUE:
            raise OutlookError(NOT_IN_THE_STAND_IN)
        data = read_file(self._item.outlook.paths, Source)
        file = File(ntpath.basename(Source), data, DisplayName, Position)
        self._item.change("files", (*self._item.files, file))
        return Attachment(self._item, file)


class Recipient(Published):
    DEFAULT = "Name"

    def __init__(self, name, kind):
        self._name = name
        self._kind = kind

    @property
    def Name(self) -> str:
        return self._name

    @property
    def Address(self) -> str:
        return self._name

    @property
    def Type(self) -> int:
        return self._kind


class Recipients(Collection):
    """Names are taken as they are written: there is no address book to find them in."""

    def __init__(self, item):
        self._item = item

    def all(self):
        return [Recipient(name, kind) for name, kind in self._item.recipients]

    def Add(self, Name: str):
        self._item.change("recipients", (*self._item.recipients, (Name, TO)))
        return Recipient(Name, TO)
