"""The application object, the session with a mailbox, and its folders."""

import json

from binding import Published
from handles import NOTHING, NoSuchMember
from outlook.items import Items
from outlook.kinds import of_type
from outlook.mailbox import read_mailbox
from outlook.model import BAD_VALUE, Collection, OutlookError, read_file
from outlook.store import FOLDERS, Store
from session import ModelSession

NAME = "Stand-in for Outlook"


class Outlook:
    """The one program that all clients share. It holds a mailbox for as long as the peer runs."""

    def __init__(self, paths):
        self.paths = paths
        self.store = Store()
        self.shown = []
        self.application = Application(self)

    def quit(self):
        """End the program for all clients; the next one starts it anew, with the same mailbox."""
        self.shown = []
        self.application = Application(self)

    def log_on(self, profile):
        try:
            self.store = read_mailbox(self, read_file(self.paths, profile))
        except (ValueError, KeyError, TypeError, AttributeError, NoSuchMember, json.JSONDecodeError) as error:
            raise OutlookError(BAD_VALUE, f"({type(error).__name__}: {error})") from error

    def folder(self, shelf):
        return MAPIFolder(self, shelf)

    def show(self, item):
        if item not in self.shown:
            self.shown.append(item)

    def hide(self, item):
        self.shown = [each for each in self.shown if each is not item]


class OutlookSession(ModelSession):
    """What one client has created."""

    MODEL = "outlook"

    def __init__(self, outlook):
        self._outlook = outlook
        self.root = outlook.application

    def end(self):
        """What a client leaves behind is the program's own: nothing."""

    def is_over(self):
        return self.root is not self._outlook.application


class Application(Published):
    DEFAULT = "Name"

    def __init__(self, outlook):
        self._outlook = outlook

    @property
    def Name(self) -> str:
        return NAME

    @property
    def Version(self) -> str:
        return "0.0 (stand-in)"

    Class = 0

    @property
    def Session(self):
        return NameSpace(self._outlook)

    @property
    def Inspectors(self):
        return Inspectors(self._outlook)

    def ActiveInspector(self):
        shown = self._outlook.shown
        return Inspector(self._outlook, shown[-1]) if shown else NOTHING

    def GetNamespace(self, Type: str):
        if Type.upper() != "MAPI":
            raise OutlookError(BAD_VALUE)
        return self.Session

    def CreateItem(self, ItemType: int):
        return of_type(ItemType).new(self._outlook)

    def Quit(self):
        self._outlook.quit()


class NameSpace(Published):
    def __init__(self, outlook):
        self._outlook = outlook

    @property
    def Application(self):
        return self._outlook.application

    @property
    def Type(self) -> str:
        return "MAPI"

    def Logon(
        self, Profile: str = "", Password: str = "", ShowDialog: bool = False, NewSession: bool = False
    ):
        """A profile is the path of a mailbox file, which is read for a new session only."""
        if Profile and NewSession:
            self._outlook.log_on(Profile)

    def Logoff(self):
        """The mailbox stays: there is no other."""

    def GetDefaultFolder(self, FolderType: int):
        if FolderType not in FOLDERS:
            raise OutlookError(BAD_VALUE)
        return self._outlook.folder(self._outlook.store.shelf(FolderType))

    def GetItemFromID(self, EntryIDItem: str, EntryIDStore: str = ""):
        record = self._outlook.store.find(EntryIDItem)
        return record.kind(self._outlook, record)


class MAPIFolder(Published):
    DEFAULT = "Name"

    def __init__(self, outlook, shelf):
        self._outlook = outlook
        self._shelf = shelf

    @property
    def Name(self) -> str:
        return self._shelf.name

    Class = 2

    @property
    def DefaultItemType(self) -> int:
        return self._shelf.item_type

    @property
    def DefaultMessageClass(self) -> str:
        return of_type(self._shelf.item_type).message_class

    @property
    def EntryID(self) -> str:
        return f"00000000{self._shelf.store.id}F{self._shelf.number:07X}"

    @property
    def Items(self):
        return Items(self._outlook, self._shelf)


class Inspector(Published):
    """The window of an item that is shown; nobody sees it."""

    DEFAULT = "Caption"

    def __init__(self, outlook, item):
        self._outlook = outlook
        self._item = item

    @property
    def Caption(self) -> str:
        return self._item.Subject

    @property
    def CurrentItem(self):
        return self._item

    def Close(self, SaveMode: int):
        self._item.Close(SaveMode)


class Inspectors(Collection):
    def __init__(self, outlook):
        self._outlook = outlook

    def all(self):
        return [Inspector(self._outlook, item) for item in self._outlook.shown]
