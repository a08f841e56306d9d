"""A text of a document as the word processor counts it: the main text, or that of a header or a footer.

One position is one UTF-16 unit, one paragraph mark, one end-of-cell or one end-of-row mark. A mark that ends
a section is a form feed, a manual line break a vertical tab. LibreOffice has no such count, so a text is read
once after every change and cut into blocks: a run of paragraphs, or the contents of a cell."""

import bisect
import collections
import itertools
import re

from word.places import UNIT, cell_at, cross, units


class Block:
    def __init__(self, start, length, text, anchor, cell):
        self.start = start  # The position of its first character.
        self.length = length  # Without the mark at the end, which no cursor can go behind.
        self.cell = cell  # The names of table and cell, or None.
        self._text = text
        self._anchor = anchor  # None for the beginning of the text.

    @property
    def end(self):
        return self.start + self.length

    @property
    def anchor(self):
        """Where LibreOffice has its first character."""
        if self._anchor is None:
            self._anchor = self._text.getStart()
        return self._anchor

    def cursor(self):
        """Return a text cursor at its first character."""
        return self._text.createTextCursorByRange(self.anchor)


class TableSpan:
    """Where a table lies. A row is the list of its cells' spans; a cell's span ends behind its mark."""

    def __init__(self, item, start, is_nested):
        self.item = item  # LibreOffice's table.
        self.start = start
        self.end = start
        self.is_nested = is_nested
        self.rows = []


class Story:
    """One reading of a text; out of date after the next change. Without a text it is the one paragraph mark
    of a header that LibreOffice has not switched on."""

    def __init__(self, text=None, count_of_tables=0):
        self._blocks = []
        self._blocks_of_cell = collections.defaultdict(list)
        self._pieces = []
        self._length = 0
        self.tables = {}  # By LibreOffice's name, in the order of the text.
        self._source = text
        self._as_read = text.getString() if text else ""
        self._count_of_tables = count_of_tables  # In the whole document, cells included.
        self._cells_are_plain = False
        if text is None:
            self._put("\r")
        elif count_of_tables:
            self._read(text, None)
        else:
            self._read_paragraphs(text)
        self._units = bytearray("".join(self._pieces).encode(UNIT, "surrogatepass"))
        self._starts = [block.start for block in self._blocks]

    def is_current(self):
        """Tell whether the fields in the text still read as they did: a layout changes page numbers."""
        return self._source is None or self._source.getString() == self._as_read

    def __len__(self):
        return len(self._units) // 2

    def text(self, start, end):
        """Return the text between two positions; the marks of cells and rows read as two characters."""
        return self.characters(start, end).replace("\a", "\r\a")

    def characters(self, start=0, end=None):
        """Return the text between two positions; every mark is one character."""
        return self._units[2 * start : None if end is None else 2 * end].decode(UNIT, "replace")

    def paragraphs(self, start, end):
        """Return the spans of the paragraphs that the range touches, each with its mark."""
        marks = re.compile("[\r\a\f]")
        text = self.characters()
        if len(text) != len(self):  # Characters of two units: count units, not characters.
            text = "".join("xx" if each > "\uffff" else each for each in text)
        ends = [mark.end() for mark in marks.finditer(text)]
        spans = list(zip([0] + ends[:-1], ends, strict=True))
        return [span for span in spans if span[0] <= start < span[1] or start < span[0] < end]

    def position(self, place):
        """Return the position at which a place of this text or of its tables begins."""
        text = place.getText()
        cursor = text.createTextCursorByRange(place)
        cursor.collapseToStart()
        cell = cell_at(cursor)
        blocks = self._blocks_of_cell.get(cell and (cell[0].getName(), cell[1]), ())
        # The last block that does not begin behind the place; the office says 1 for what begins before.
        compare = text.compareRegionStarts
        index = bisect.bisect(blocks, 0, lo=1, key=lambda block: -compare(block.anchor, cursor))
        block = blocks[index - 1]
        cursor.gotoRange(block.anchor, True)
        return block.start + min(units(cursor.getString()), block.length)

    def block(self, position):
        """Return the block that holds a position."""
        return self._blocks[max(bisect.bisect(self._starts, position) - 1, 0)]

    def place(self, position):
        """Return a text cursor at a position; a position behind a mark that LibreOffice cannot go behind is
        taken as the one before the mark."""
        block = self.block(position)
        cursor = block.cursor()
        cross(cursor, self.characters(block.start, min(position, block.end)))
        cursor.collapseToEnd()
        return cursor

    def end_of_text(self, at_end):
        """Return a text cursor before the first or behind the last character, in a table or not."""
        return self.place(len(self) - 1 if at_end else 0)

    def span(self, start, end):
        """Return text cursors for both ends of a range, and whether all between them can be selected: the
        mark at the end of a block cannot, nor anything behind it from before it."""
        last = min(end, self.block(start).end)
        return self.place(start), self.place(max(start, last)), last >= end

    def table_at(self, position):
        """Return the innermost table that holds a position, or None outside tables."""
        holding = [table for table in self.tables.values() if table.start <= position < table.end]
        return max(holding, key=lambda table: table.start, default=None)

    # Reading

    def _put(self, text):
        self._pieces.append(text)
        self._length += units(text)

    def _add(self, text, anchor, characters, cell):
        block = Block(self._length, units(characters) - 1, text, anchor, cell)
        self._blocks.append(block)
        self._blocks_of_cell[cell].append(block)
        self._put(characters)

    def _read_paragraphs(self, text):
        """Add a text that holds no table."""
        if "\n" in self._as_read:
            self._read(text, None)
        else:
            self._add(text, None, self._as_read + "\r", None)

    def _read(self, text, cell):
        """Add a text with its tables; cell is the names of the table and the cell that hold it."""
        items = list(enumerated(text))
        if cell is None:
            count = sum(hasattr(item, "getCellNames") for item in items)
            self._cells_are_plain = count == self._count_of_tables
        paragraphs, anchor = [], None
        for item in items:
            if hasattr(item, "getCellNames"):
                if paragraphs:
                    self._add(text, anchor, "\r".join(paragraphs) + "\r", cell)
                    paragraphs = []
                self._read_table(item, is_nested=cell is not None)
            else:
                anchor = anchor if paragraphs else item.getStart()
                paragraphs.append(item.getString().replace("\n", "\v"))
        self._add(text, anchor, "\r".join(paragraphs) + ("\a" if cell else "\r"), cell)

    def _read_table(self, item, is_nested):
        table = self.tables[item.getName()] = TableSpan(item, self._length, is_nested)
        for _, names in itertools.groupby(item.getCellNames(), lambda name: re.search(r"\d+$", name)[0]):
            row = []
            for name in names:
                start = self._length
                self._read_cell(item.getCellByName(name), (item.getName(), name))
                row.append((start, self._length))
            table.rows.append(row)
            self._put("\a")
        table.end = self._length

    def _read_cell(self, cell, names):
        text = cell.getString() if self._cells_are_plain else None
        if text is None or "\n" in text:  # A table inside, several paragraphs, or a line break.
            self._read(cell, names)
        else:
            self._add(cell, None, text + "\a", names)


def enumerated(container):
    enumeration = container.createEnumeration()
    while enumeration.hasMoreElements():
        yield enumeration.nextElement()
