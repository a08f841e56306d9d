"""The sections of a document, with their headers, footers and page setup."""

from word.binding import Collection, NO_MEMBER, OBJECT_DELETED, WordError, WordObject
from word.page_styles import EVEN, FIRST, FOOTER, HEADER, TEXTS
from word.places import cell_of, text_cursor
from word.ranges import Range

UNDEFINED = 9999999  # wdUndefined of the object model: the sections differ.


class HeaderFooter(WordObject):
    def __init__(self, section, kind, index):
        self._section = section
        self._kind = kind
        self._index = index

    @property
    def Exists(self):
        return self._section.styles().exists(self._index)

    @Exists.setter
    def Exists(self, value: bool):
        self._section.set_exists(self._index, value)

    @property
    def Index(self):
        return self._index

    @property
    def IsHeader(self):
        return self._kind == HEADER

    @property
    def LinkToPrevious(self):
        return self._section.shares_with_previous()

    @property
    def Range(self):
        flow = self._section.styles().flow(self._kind, self._index)
        return Range(flow, 0, len(flow.story()))


class HeadersFooters(Collection):
    def __init__(self, section, kind):
        self._section = section
        self._kind = kind

    def all(self):
        return [HeaderFooter(self._section, self._kind, index) for index in TEXTS]


class PageSetup(WordObject):
    """The page setup of sections."""

    def __init__(self, document, sections):
        self._document = document
        self._sections = sections

    def _get(self, index):
        values = {section.styles().exists(index) for section in self._sections}
        return UNDEFINED if len(values) > 1 else -int(values.pop())

    @property
    def DifferentFirstPageHeaderFooter(self):
        return self._get(FIRST)

    @DifferentFirstPageHeaderFooter.setter
    def DifferentFirstPageHeaderFooter(self, value: bool):
        for section in self._sections:
            section.set_exists(FIRST, value)

    @property
    def OddAndEvenPagesHeaderFooter(self):
        return self._get(EVEN)

    @OddAndEvenPagesHeaderFooter.setter
    def OddAndEvenPagesHeaderFooter(self, value: bool):
        # There is but one such setting in a document.
        for section in self._document.Sections.all():
            section.set_exists(EVEN, value)


class Section(WordObject):
    def __init__(self, document, index):
        self._document = document
        self._index = index

    def _span_and_style(self, index):
        story = self._document.story()
        if index >= story.count_of_sections():
            raise WordError(OBJECT_DELETED)
        return story.section(index)

    def styles(self):
        """Return the section's page styles."""
        return self._document.section_styles(self._span_and_style(self._index)[2])

    def set_exists(self, index, value):
        """Give the first page, or even pages, a header and a footer of their own, or no longer."""
        styles = self.styles()
        if index == FIRST and styles.are_two and not value:
            self.begin_with(styles.rest)
        else:
            styles.set_exists(index, value)

    def begin_with(self, style):
        """Set the page style that the section begins with."""
        place = self._document.story().place(self._span_and_style(self._index)[0])
        (cell_of(place) or (text_cursor(place),))[0].PageDescName = style.name
        self._document.touch()

    def shares_with_previous(self):
        """Tell whether headers and footers are those of the section before."""
        if self._index == 0:
            return False
        return self._span_and_style(self._index - 1)[2] == self._span_and_style(self._index)[2]

    @property
    def Index(self):
        return self._index + 1

    @property
    def Range(self):
        return Range(self._document.main, *self._span_and_style(self._index)[:2])

    @property
    def Headers(self):
        return HeadersFooters(self, HEADER)

    @property
    def Footers(self):
        return HeadersFooters(self, FOOTER)

    @property
    def PageSetup(self):
        return PageSetup(self._document, [self])


class Sections(Collection):
    def __init__(self, document):
        self._document = document

    def all(self):
        return [Section(self._document, index) for index in range(self.Count)]

    @property
    def Count(self):
        return self._document.story().count_of_sections()

    def Item(self, Index: int):
        if not 1 <= Index <= self.Count:
            raise WordError(NO_MEMBER)
        return Section(self._document, Index - 1)

    @property
    def PageSetup(self):
        return PageSetup(self._document, self.all())
