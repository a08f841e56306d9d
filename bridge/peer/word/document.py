"""A document of the word processor: saving, printing, closing, and the way to its text."""

import os

import uno

from binding import converted
from word import filters, first_pages
from word.binding import (
    BAD_PATH,
    COMMAND_FAILED,
    NAME_IN_USE,
    NOT_A_FILE_NAME,
    OBJECT_DELETED,
    PRINTER_ERROR,
    VALUE_OUT_OF_RANGE,
    WordError,
    WordObject,
)
from word.flow import MainFlow
from word.page_styles import PageStyle, SectionStyles
from word.ranges import Range
from word.sections import Sections
from word.selection import Selection
from word.styles import Styles
from word.tables import Tables
from word.templates import Template, normal

DO_NOT_SAVE, SAVE = 0, -1  # WdSaveOptions of the object model; -2 would ask somebody.


class Window(WordObject):
    def __init__(self, document):
        self._document = document

    @property
    def Selection(self):
        return self._document.selection()

    @property
    def Document(self):
        return self._document

    def Activate(self):
        self._document.Activate()


class LaidOut:
    """A class and not a generator: an exception of the office cannot be thrown into one."""

    def __init__(self, model):
        self._model = model
        self._is_outermost = model.hasControllersLocked()

    def __enter__(self):
        if self._is_outermost:
            self._model.unlockControllers()

    def __exit__(self, *_):
        if self._is_outermost:
            self._model.lockControllers()


class Document(WordObject):
    DEFAULT = "Name"

    def __init__(self, session, model, name):
        self.session = session
        self._model = model
        self._name = name  # While the document has no file.
        self.main = MainFlow(self)
        self._page_styles = {}
        self._tables = None
        self._section_styles = {}
        self._selection = None
        # Without a layout for every keystroke a text of any length is typed at once; what needs lines or
        # pages asks for them by laid_out().
        model.lockControllers()

    # For the other objects

    @property
    def model(self):
        """LibreOffice's document."""
        if self._model is None:
            raise WordError(OBJECT_DELETED)
        return self._model

    def story(self):
        """Return the main text as it is now."""
        return self.main.story()

    def selection(self):
        """Return the selection of the document's one window."""
        if self._selection is None:
            self._selection = Selection(self)
        return self._selection

    def touch(self):
        """Take note that any text may have changed."""
        self.main.touch()
        for style in self._page_styles.values():
            style.touch()

    def count_of_tables(self):
        """Return how many tables there are, in headers and in cells as well."""
        if self._tables is None:
            self._tables = self.model.getTextTables()
        return self._tables.getCount()

    def section_styles(self, name):
        """Return the page styles of a section that begins with the one of that name."""
        if name not in self._section_styles:
            first = self._page_style(name)
            rest = self._page_style(first.get("FollowStyle"))
            # Left and right pages follow each other: with them the first page is like the others.
            is_final = rest.get("FollowStyle") == rest.name
            self._section_styles[name] = SectionStyles(first, rest if is_final else first)
        return self._section_styles[name]

    def _page_style(self, name):
        if name not in self._page_styles:
            self._page_styles[name] = PageStyle(self, name)
        return self._page_styles[name]

    def laid_out(self):
        """Return a context in which LibreOffice keeps the document's layout up to date."""
        return LaidOut(self.model)

    def file(self):
        """Return the document's file, or None."""
        url = self.model.getURL()
        return uno.fileUrlToSystemPath(url) if url else None

    def discard(self):
        """Close without saving, whatever state the document is in."""
        model, self._model = self._model, None
        if model is not None:
            model.setModified(False)
            model.close(True)

    # Published

    @property
    def Name(self):
        return os.path.basename(self.file()) if self.file() else self._name

    @property
    def Path(self):
        return self.session.paths.to_windows(os.path.dirname(self.file())) if self.file() else ""

    @property
    def FullName(self):
        return self.session.paths.to_windows(self.file()) if self.file() else self._name

    @property
    def Saved(self):
        return not self.model.isModified()

    @Saved.setter
    def Saved(self, value: bool):
        self.model.setModified(not value)

    @property
    def ActiveWindow(self):
        return Window(self)

    @property
    def Sections(self):
        return Sections(self)

    @property
    def Styles(self):
        return Styles(self.model)

    @property
    def PageSetup(self):
        return self.Sections.PageSetup

    @property
    def Tables(self):
        return Tables(self.main)

    def Range(self, Start: int = None, End: int = None):
        return Range(self.main, 0 if Start is None else Start, len(self.story()) if End is None else End)

    def Activate(self):
        self.session.activate(self)

    def UpdateStyles(self):
        """Take over the styles of the attached template; without one there is nothing to take."""
        template = self.model.getDocumentProperties().TemplateURL
        if template:
            self.model.getStyleFamilies().loadStylesFromURL(
                template, (filters.property_value("OverwriteStyles", True),)
            )
            self.touch()

    @property
    def UpdateStylesOnOpen(self):
        return self._settings().UpdateFromTemplate

    @UpdateStylesOnOpen.setter
    def UpdateStylesOnOpen(self, value: bool):
        self._settings().UpdateFromTemplate = value

    @property
    def AttachedTemplate(self):
        url = self.model.getDocumentProperties().TemplateURL
        return Template(self.session, uno.fileUrlToSystemPath(url)) if url else normal(self.session)

    @AttachedTemplate.setter
    def AttachedTemplate(self, value):
        value = value.FullName if isinstance(value, Template) else converted(value, str)
        file = self.session.existing_file(value) if value else None
        properties = self.model.getDocumentProperties()
        properties.TemplateURL = uno.systemPathToFileUrl(file) if file else ""
        properties.TemplateName = os.path.basename(file) if file else ""

    def Save(self):
        if not self.file():
            raise WordError(COMMAND_FAILED, "The document has no name, and nobody can be asked for one.")
        self._prepare(os.path.splitext(self.file())[1])
        self.model.store()

    def SaveAs(self, FileName: str = "", FileFormat: int = None):
        if not FileName:
            return self.Save()
        file = self.session.file(FileName)
        if not os.path.basename(file) or os.path.isdir(file):
            raise WordError(BAD_PATH)
        if not os.path.splitext(file)[1]:
            file += ".docx"
        if not os.path.isdir(os.path.dirname(file)):
            raise WordError(NOT_A_FILE_NAME)
        if any(other is not self and other.file() == file for other in self.session.documents):
            raise WordError(NAME_IN_USE)
        self._prepare(filters.extension_for(file, FileFormat))
        self.model.storeAsURL(uno.systemPathToFileUrl(file), filters.for_saving(file, FileFormat))

    def PrintOut(
        self,
        Background: bool = True,
        Append: bool = False,
        Range: int = 0,
        OutputFileName: str = "",
        From: str = "",
        To: str = "",
        Item: int = 0,
        Copies: int = 1,
    ):
        """Write the document as PDF, which is what the bridge's one printer does; any other has no way out of
        an office without a display."""
        if self.session.root.ActivePrinter != self.session.surroundings["pdf_printer"]:
            raise WordError(PRINTER_ERROR, "Only the PDF printer can print here, and another one is active.")
        if not 1 <= Copies <= 32767:
            raise WordError(VALUE_OUT_OF_RANGE)
        if Append or Range or OutputFileName or From or To or Item:
            raise WordError(COMMAND_FAILED, "The PDF printer prints whole documents only.")
        os.makedirs(self.session.pdf_folder, exist_ok=True)
        file = os.path.join(self.session.pdf_folder, os.path.splitext(self.Name)[0] + ".pdf")
        with self.laid_out():
            self.model.storeToURL(uno.systemPathToFileUrl(file), filters.for_printing())

    def Close(self, SaveChanges: int = -2, OriginalFormat: int = 1, RouteDocument: bool = False):
        if SaveChanges == SAVE:
            if self.model.isModified():
                self.Save()
        elif SaveChanges != DO_NOT_SAVE and self.model.isModified():
            raise WordError(COMMAND_FAILED, "The document has changed, and nobody can be asked to save it.")
        self.model  # A closed document has no second end.
        self.session.documents.remove(self)
        self.discard()

    def _prepare(self, extension):
        """Change what LibreOffice would not write as it is."""
        if not extension.lower().startswith(".o"):
            first_pages.unite(self)

    def _settings(self):
        return self.model.createInstance("com.sun.star.document.Settings")
