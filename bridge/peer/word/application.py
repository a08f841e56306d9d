"""The word processor's application object and what hangs on it besides documents."""

import os

import uno

from binding import converted
from failures import UnoException
from handles import Single
from session import ModelSession
from word import filters, templates
from word.binding import (
    BAD_PATH,
    COMMAND_FAILED,
    CORRUPT_FILE,
    Collection,
    FILE_NOT_FOUND,
    INCORRECT_VALUE,
    NO_DOCUMENT,
    NO_MEMBER,
    PRINTER_ERROR,
    WordError,
    WordObject,
    guarded,
    kept,
)
from word.document import Document

# WdDefaultFilePath of the object model, and what LibreOffice has of it.
DEFAULT_PATHS = {
    0: "Work",
    1: "Graphic",
    2: "Template_writable",
    3: "Template_internal",
    4: "UserConfig",
    5: "Backup",
    8: "Addin",
    10: "Filter",
    12: "Linguistic",
    13: "Temp",
    14: "Work",
}
NUMBERED_LISTS = "/org.openoffice.Office.Writer/AutoFunction/Format/ByInput/ApplyNumbering"
LONGEST_PATH = 255  # What the word processor takes.


class WordSession(ModelSession):
    """One client's word processor: its documents are its own, LibreOffice is everybody's."""

    MODEL = "word"

    def __init__(self, context, paths, surroundings, pdf_folder):
        self._context = context
        self.paths = paths
        self.surroundings = surroundings
        self.pdf_folder = pdf_folder
        self.documents = []
        self.created = 0
        self._ended = False
        self.root = Application(self)

    def end(self):
        """Close everything unsaved; what a client still holds fails from now on as after a program's end."""
        self._ended = True
        for document in self.documents:
            try:
                document.discard()
            except UnoException:
                pass  # Already closed behind the session's back.
        self.documents = []

    def is_over(self):
        return self._ended

    def guarded(self, body):
        return guarded(body)

    def service(self, name):
        return self._context.getServiceManager().createInstanceWithContext(name, self._context)

    def setting(self, path, for_update=False):
        kind = "ConfigurationUpdateAccess" if for_update else "ConfigurationAccess"
        provider = self.service("com.sun.star.configuration.ConfigurationProvider")
        return provider.createInstanceWithArguments(
            f"com.sun.star.configuration.{kind}", (filters.property_value("nodepath", path),)
        )

    def default_path(self, name):
        url = getattr(self.service("com.sun.star.util.PathSettings"), name)
        return uno.fileUrlToSystemPath(url if isinstance(url, str) else url[-1])

    def file(self, name):
        """Return the file that a client's path means; a name without a drive lies in the documents folder."""
        if not name or len(name) > LONGEST_PATH or "\0" in name or name.startswith("\\\\"):
            raise WordError(BAD_PATH)
        if name[1:2] != ":":
            name = self.paths.to_windows(self.default_path("Work")) + "\\" + name
        file = self.paths.to_unix(name)
        if file is None:
            raise WordError(FILE_NOT_FOUND, f"({name})")
        return file

    def existing_file(self, name):
        file = self.file(name)
        if not os.path.isfile(file):
            raise WordError(FILE_NOT_FOUND, f"({name})")
        return file

    def activate(self, document):
        self.documents.remove(document)
        self.documents.append(document)

    def load(self, url, arguments):
        """Load a document as a new member of the session."""
        desktop = self.service("com.sun.star.frame.Desktop")
        try:
            model = desktop.loadComponentFromURL(url, "_blank", 0, arguments)
        except UnoException as error:
            raise WordError(CORRUPT_FILE) from error
        if model is None or not hasattr(model, "getText"):
            if model is not None:
                model.close(True)
            raise WordError(CORRUPT_FILE)
        self.created += 1
        document = Document(self, model, f"Document{self.created}")
        self.documents.append(document)
        return document


class Documents(Collection):
    def __init__(self, session):
        self._session = session

    def all(self):
        return list(self._session.documents)

    def Item(self, Index):
        for document in self._session.documents if isinstance(Index, str) else ():
            if Index.lower() in (document.Name.lower(), document.FullName.lower()):
                return document
        if isinstance(Index, str):
            raise WordError(NO_MEMBER)
        return super().Item(converted(Index, int))

    def Open(
        self,
        FileName: str,
        ConfirmConversions: bool = False,
        ReadOnly: bool = False,
        AddToRecentFiles: bool = False,
        PasswordDocument: str = "",
        PasswordTemplate: str = "",
        Revert: bool = False,
        WritePasswordDocument: str = "",
        WritePasswordTemplate: str = "",
        Format: int = 0,
        Encoding: int = 0,
        Visible: bool = True,
    ):
        """Open a file, or activate its document if it is open. Nothing is asked, shown or remembered,
        whatever is said of that."""
        if PasswordDocument or PasswordTemplate or WritePasswordDocument or WritePasswordTemplate:
            raise WordError(COMMAND_FAILED, "Files with passwords cannot be opened here.")
        file = self._session.existing_file(FileName)
        for document in self._session.documents:
            if document.file() == file:
                document.Activate()
                return document
        arguments = filters.for_loading(file, as_template=False, read_only=ReadOnly)
        return self._session.load(uno.systemPathToFileUrl(file), arguments)

    def Add(self, Template: str = ""):
        if not Template:
            return self._session.load("private:factory/swriter", filters.for_loading("", as_template=False))
        file = self._session.existing_file(Template)
        arguments = filters.for_loading(file, as_template=True)
        document = self._session.load(uno.systemPathToFileUrl(file), arguments)
        document.AttachedTemplate = self._session.paths.to_windows(file)
        document.Saved = True
        return document


class Options(WordObject):
    def __init__(self, session):
        self._session = session

    @property
    def AutoFormatAsYouTypeApplyNumberedLists(self):
        return self._session.setting(NUMBERED_LISTS).getPropertyValue("Enable")

    @AutoFormatAsYouTypeApplyNumberedLists.setter
    def AutoFormatAsYouTypeApplyNumberedLists(self, value: bool):
        settings = self._session.setting(NUMBERED_LISTS, for_update=True)
        settings.replaceByName("Enable", value)
        settings.commitChanges()

    def DefaultFilePath(self, Path: int):
        if Path not in DEFAULT_PATHS:
            raise WordError(INCORRECT_VALUE)
        return self._session.paths.to_windows(self._session.default_path(DEFAULT_PATHS[Path]))


class System(WordObject):
    def __init__(self, session):
        self._screen = session.surroundings["screen"]

    HorizontalResolution = property(lambda self: self._screen[0])
    VerticalResolution = property(lambda self: self._screen[1])


class Application(WordObject):
    def __init__(self, session):
        self._session = session
        self._printer = ""
        self._kept = {}

    @property
    def Documents(self):
        return Documents(self._session)

    @property
    def ActiveDocument(self):
        if not self._session.documents:
            raise WordError(NO_DOCUMENT)
        return self._session.documents[-1]

    @property
    def Selection(self):
        return self.ActiveDocument.selection()

    @property
    def NormalTemplate(self):
        return templates.normal(self._session)

    @property
    def Options(self):
        return Options(self._session)

    @property
    def System(self):
        return System(self._session)

    Version = property(lambda self: "16.0")
    # Printing and saving have ended when their calls return.
    BackgroundPrintingStatus = property(lambda self: 0)
    BackgroundSavingStatus = property(lambda self: 0)

    @property
    def ActivePrinter(self):
        return self._printer

    @ActivePrinter.setter
    def ActivePrinter(self, value: str):
        printers = {name.lower(): name for name in ["", *self._session.surroundings["printers"]]}
        if value.lower() not in printers:
            raise WordError(PRINTER_ERROR)
        self._printer = printers[value.lower()]

    WindowState = kept(int, 0, allowed=(0, 1, 2))  # WdWindowState of the object model.
    Left = kept(float, 0.0)
    Top = kept(float, 0.0)
    Width = kept(float, 640.0)
    Height = kept(float, 480.0)
    Visible = kept(bool, False)
    ScreenUpdating = kept(bool, True)

    def Resize(self, Width: float, Height: float):
        self.Width, self.Height = Width, Height

    def Activate(self):
        """There is no window to bring to the front."""

    def CentimetersToPoints(self, Centimeters: float):
        return Single(Centimeters * 72 / 2.54)

    def PixelsToPoints(self, Pixels: float, fVertical: bool = False):
        return Single(Pixels * 72 / self._session.surroundings["dots_per_inch"])

    def Quit(self, SaveChanges: int = 0, OriginalFormat: int = 1, RouteDocument: bool = False):
        self._session.end()
