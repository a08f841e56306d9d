"""A document's main text with the sections that it is divided into."""

import uno

from failures import UnoException
from word.places import UNIT, distance, text_cursor
from word.story import Story

FIRST_PAGE_STYLE = "Standard"  # What a document begins with that names no other.


class MainStory(Story):
    """One reading of a document's main text; out of date after the next change."""

    def __init__(self, model):
        self._model = model
        super().__init__(model.getText())
        self._starts_of_sections, self._page_styles = self._mark_sections()

    def _read_all(self, text):
        if self._model.getTextTables().getCount() > 0:
            super()._read_all(text)
        else:
            self._add(text.getStart(), self._paragraphs_without_tables(text) + "\r", None)

    def count_of_sections(self):
        return len(self._page_styles)

    def section(self, index):
        """Return the span of a section, counted from 0, and the name of its page style."""
        ends = self._starts_of_sections[index + 1 : index + 2] or [len(self)]
        return self._starts_of_sections[index], ends[0], self._page_styles[index]

    def section_starts(self):
        return self._starts_of_sections

    def _paragraphs_without_tables(self, body):
        if self._find(r"\n").getCount() == 0:
            return self._as_read.replace("\n", "\r")
        # The text alone does not tell line breaks from paragraphs.
        cursor = body.createTextCursor()
        cursor.gotoStart(False)
        paragraphs = []
        while True:
            cursor.gotoEndOfParagraph(True)
            paragraphs.append(cursor.getString().replace("\n", "\v"))
            if not cursor.gotoNextParagraph(False):
                return "\r".join(paragraphs)

    def _find(self, expression, attributes=()):
        descriptor = self._model.createSearchDescriptor()
        descriptor.SearchRegularExpression = True
        descriptor.SearchString = expression
        if attributes:
            descriptor.ValueSearch = False
            descriptor.setSearchAttributes(attributes)
        return self._model.findAll(descriptor)

    def _mark_sections(self):
        """Return where sections begin, and their page styles: a paragraph or a table that sets a page style of
        its own begins one."""
        names = {0: FIRST_PAGE_STYLE}
        names |= {start: name for start, name in self._page_styles_of_paragraphs() if name}
        for table in self.tables.values():
            if not table.is_nested and table.item.PageDescName:
                names[table.start] = table.item.PageDescName
        for start in names.keys() - {0}:
            if self._units[2 * start - 2 : 2 * start] == "\r".encode(UNIT):
                self._units[2 * start - 2 : 2 * start] = "\f".encode(UNIT)
        starts = sorted(names)
        return starts, [names[start] for start in starts]

    def _page_styles_of_paragraphs(self):
        attribute = uno.createUnoStruct("com.sun.star.beans.PropertyValue")
        attribute.Name, attribute.Value = "PageDescName", ""
        found = self._find("", (attribute,))
        near = None  # The place found last and its position: counting from there is shorter.
        for index in range(found.getCount()):
            try:
                place = text_cursor(found.getByIndex(index)).getStart()
                # The search also finds the attribute without a value.
                if name := text_cursor(place).PageDescName:
                    near = (place, self._position_after(place, near))
                    yield near[1], name
            except (UnoException, IndexError):
                pass  # In a header, a footer or a frame.

    def _position_after(self, place, near):
        if near and place.getText().compareRegionStarts(near[0], place) >= 0:
            position = near[1] + distance(near[0], place)
            if position <= self.block(near[1]).end:
                return position
        return self.position(place)
