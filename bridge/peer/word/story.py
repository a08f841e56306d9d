"""A document's main text as the word processor counts it.

One position is one UTF-16 unit, one paragraph mark, one end-of-cell or one end-of-row mark. A mark that ends
a section is a form feed, a manual line break a vertical tab. LibreOffice has no such count, so the text is
read once after every change and cut into blocks: a run of paragraphs, or the contents of a cell."""

import re

import uno

from failures import UnoException

UNIT = "utf-16-le"
LONGEST_STEP = 32767  # Cursors take their distance as a 16-bit number.


def units(text):
    """Return how many positions a text takes."""
    return len(text.encode(UNIT, "surrogatepass")) // 2


def text_cursor(place):
    """Return a text cursor of the place's own text that spans the place."""
    return place.getText().createTextCursorByRange(place)


def go_right(cursor, steps, extend):
    """Move a cursor by any number of characters; False when the text ends before."""
    while steps > 0:
        if not cursor.goRight(min(steps, LONGEST_STEP), extend):
            return False
        steps -= LONGEST_STEP
    return True


def distance(start, end):
    """Return the number of positions between two places of the same text."""
    cursor = text_cursor(start)
    cursor.collapseToStart()
    cursor.gotoRange(end, True)
    return units(cursor.getString())


def cell_of(place):
    """Return the table and the name of the cell that hold the place, or None outside tables."""
    cursor = text_cursor(place)
    cell = cursor.getPropertyValue("Cell")
    return (cursor.getPropertyValue("TextTable"), cell.CellName) if cell else None


class Block:
    def __init__(self, start, length, anchor, cell):
        self.start = start  # The position of its first character.
        self.length = length  # Without the mark at the end, which no cursor can go behind.
        self.anchor = anchor  # Where LibreOffice has that first character.
        self.cell = cell  # The names of table and cell, or None.


class Story:
    """One reading of the main text; out of date after the next change."""

    def __init__(self, model):
        self._model = model
        self._blocks = []
        self._text = ""
        body = model.getText()
        if model.getTextTables().getCount() == 0:
            self._add(body.getStart(), self._paragraphs_without_tables(body) + "\r", None)
        else:
            self._read(body, None)
        self._units = bytearray(self._text.encode(UNIT, "surrogatepass"))
        self.section_starts = self._mark_sections()

    def __len__(self):
        return len(self._units) // 2

    def text(self, start, end):
        """Return the text between two positions; the marks of cells and rows read as two characters."""
        return self._units[2 * start : 2 * end].decode(UNIT, "replace").replace("\a", "\r\a")

    def sections(self):
        """Return the first and the last position of every section."""
        return list(zip(self.section_starts, self.section_starts[1:] + [len(self)], strict=True))

    def paragraphs(self, start, end):
        """Return the spans of the paragraphs that the range touches, each with its mark."""
        marks = re.compile("[\r\a\f]")
        text = self._units.decode("utf-16-le", "replace")
        if len(text) != len(self):  # Characters of two units: count units, not characters.
            text = "".join("xx" if each > "\uffff" else each for each in text)
        ends = [mark.end() for mark in marks.finditer(text)]
        spans = list(zip([0] + ends[:-1], ends, strict=True))
        return [span for span in spans if span[0] <= start < span[1] or start < span[0] < end]

    def position(self, place):
        """Return the position at which a place of the main text or of its tables begins."""
        place = place.getStart()
        cell = cell_of(place)
        key = cell and (cell[0].getName(), cell[1])
        blocks = [block for block in self._blocks if block.cell == key]
        compare = place.getText().compareRegionStarts
        while len(blocks) > 1 and compare(blocks[-1].anchor, place) < 0:
            blocks.pop()
        return blocks[-1].start + min(distance(blocks[-1].anchor, place), blocks[-1].length)

    def place(self, position):
        """Return a text cursor at a position; a position behind a mark that LibreOffice cannot go behind is
        taken as the one before the mark."""
        block = self._block(position)
        offset = min(position - block.start, block.length)
        cursor = text_cursor(block.anchor)
        before = self._units[2 * block.start : 2 * (block.start + offset)].decode(UNIT, "replace")
        go_right(cursor, len(before), True)
        # A field is one step for a cursor, but as long as its text.
        while (reached := units(cursor.getString())) > offset and cursor.goLeft(1, True):
            pass
        while reached < offset and cursor.goRight(1, True):
            reached = units(cursor.getString())
        cursor.collapseToEnd()
        return cursor

    def span(self, start, end):
        """Return text cursors for both ends of a range, and whether all between them can be selected: the
        mark at the end of a block cannot, nor anything behind it from before it."""
        block = self._block(start)
        last = min(end, block.start + block.length)
        return self.place(start), self.place(max(start, last)), last >= end

    def _block(self, position):
        return next(block for block in reversed(self._blocks) if block.start <= position)

    def _add(self, anchor, text, cell):
        start = units(self._text)
        self._blocks.append(Block(start, units(text.rstrip("\a")) - (not text.endswith("\a")), anchor, cell))
        self._text += text

    def _paragraphs_without_tables(self, body):
        text = body.getString()
        if self._find(r"\n").getCount() == 0:
            return text.replace("\n", "\r")
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

    def _read(self, text, cell):
        """Add a text with its tables; cell is the names of the table and the cell that hold it."""
        paragraphs, anchor = [], None
        enumeration = text.createEnumeration()
        while enumeration.hasMoreElements():
            item = enumeration.nextElement()
            if hasattr(item, "getCellNames"):
                if paragraphs:
                    self._add(anchor, "\r".join(paragraphs) + "\r", cell)
                    paragraphs = []
                self._read_table(item)
            else:
                anchor = anchor if paragraphs else item.getStart()
                paragraphs.append(item.getString().replace("\n", "\v"))
        self._add(anchor, "\r".join(paragraphs) + ("\a" if cell else "\r"), cell)

    def _read_table(self, table):
        row = None
        for name in table.getCellNames():
            number = re.search(r"\d+$", name)[0]
            if row not in (None, number):
                self._text += "\a"
            row = number
            self._read(table.getCellByName(name), (table.getName(), name))
        self._text += "\a"

    def _mark_sections(self):
        """Return where sections begin: a paragraph that sets a page style of its own begins one."""
        attribute = uno.createUnoStruct("com.sun.star.beans.PropertyValue")
        attribute.Name, attribute.Value = "PageDescName", ""
        starts = {0}
        found = self._find("", (attribute,))
        for index in range(found.getCount()):
            try:
                place = found.getByIndex(index)
                if text_cursor(place).PageDescName:  # The search also finds the attribute without a value.
                    starts.add(self.position(place))
            except (UnoException, IndexError):
                pass  # In a header, a footer or a frame.
        for start in starts - {0}:
            if self._units[2 * start - 2 : 2 * start] == "\r".encode(UNIT):
                self._units[2 * start - 2 : 2 * start] = "\f".encode(UNIT)
        return sorted(starts)
