"""A document's main text with the sections that it is divided into."""

import uno

from failures import UnoException
from word.places import UNIT, units
from word.story import Story

FIRST_PAGE_STYLE = "Standard"  # What a document begins with that names no other.


class MainStory(Story):
    """One reading of a document's main text; out of date after the next change."""

    def __init__(self, model, count_of_tables):
        self._model = model
        super().__init__(model.getText(), count_of_tables)
        self._starts_of_sections, self._page_styles = self._mark_sections()

    def count_of_sections(self):
        return len(self._page_styles)

    def section(self, index):
        """Return the span of a section, counted from 0, and the name of its page style."""
        ends = self._starts_of_sections[index + 1 : index + 2] or [len(self)]
        return self._starts_of_sections[index], ends[0], self._page_styles[index]

    def section_starts(self):
        return self._starts_of_sections

    def _read_paragraphs(self, text):
        if self._find(r"\n").getCount() == 0:
            self._add(text, None, self._as_read.replace("\n", "\r") + "\r", None)
            return
        # The text alone does not tell line breaks from paragraphs.
        cursor = text.createTextCursor()
        cursor.gotoStart(False)
        paragraphs = []
        while not paragraphs or cursor.gotoNextParagraph(False):
            cursor.gotoEndOfParagraph(True)
            paragraphs.append(cursor.getString().replace("\n", "\v"))
        self._add(text, None, "\r".join(paragraphs) + "\r", None)

    def _find(self, expression, attributes=()):
        descriptor = self._model.createSearchDescriptor()
        descriptor.SearchRegularExpression = True
        descriptor.SearchString = expression
        if attributes:
            descriptor.ValueSearch = False
            descriptor.setSearchAttributes(attributes)
        return self._model.findAll(descriptor)

    def _mark_sections(self):
        """Return where sections begin, and their page styles: a paragraph or a table that sets a page style
        begins one."""
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
        place, before = self._source.createTextCursor(), self._source.createTextCursor()
        position = None
        for index in range(found.getCount()):
            try:
                place.gotoRange(found.getByIndex(index), False)
                place.collapseToStart()
                # The search also finds the attribute without a value.
                if name := place.PageDescName:
                    position = self._position_after(before, position, place)
                    before.gotoRange(place, False)
                    yield position, name
            except (UnoException, IndexError):
                pass  # In a header, a footer or a frame.

    def _position_after(self, before, position, place):
        """Return a place's position, counted from the one found before it if both lie in one block."""
        if position is not None and self._source.compareRegionStarts(before, place) >= 0:
            before.gotoRange(place, True)
            there = position + units(before.getString())
            if there <= self.block(position).end:
                return there
        return self.position(place)
