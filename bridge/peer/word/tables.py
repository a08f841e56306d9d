"""Tables of a text, with their rows and cells as LibreOffice has them."""

from word.binding import Collection, NO_MEMBER, WordError, WordObject
from word.ranges import Part, Range


class Cells(Collection):
    def __init__(self, flow, spans):
        self._flow = flow
        self._spans = spans

    def all(self):
        return [Part(self._flow, span) for span in self._spans]


class Row(WordObject):
    def __init__(self, flow, cells):
        self._flow = flow
        self._cells = cells

    @property
    def Cells(self):
        return Cells(self._flow, self._cells)

    @property
    def Range(self):
        return Range(self._flow, self._cells[0][0], self._cells[-1][1] + 1)


class Rows(Collection):
    """The rows of a table, or those that a range touches."""

    def __init__(self, flow, rows):
        self._flow = flow
        self._rows = rows

    def all(self):
        return [Row(self._flow, cells) for cells in self._rows]


def rows_between(flow, start, end):
    """Return the rows that a range touches in the table where it begins; none outside tables."""
    table = flow.story().table_at(start)
    rows = table.rows if table else []
    return Rows(flow, [row for row in rows if row[0][0] < max(end, start + 1) and start <= row[-1][1]])


class Table(WordObject):
    def __init__(self, flow, span):
        self._flow = flow
        self._span = span

    @property
    def Range(self):
        return Range(self._flow, self._span.start, self._span.end)

    @property
    def Rows(self):
        return Rows(self._flow, self._span.rows)

    def Cell(self, Row: int, Column: int):
        rows = self._span.rows
        if not 1 <= Row <= len(rows) or not 1 <= Column <= len(rows[Row - 1]):
            raise WordError(NO_MEMBER)
        return Part(self._flow, rows[Row - 1][Column - 1])


class Tables(Collection):
    def __init__(self, flow):
        self._flow = flow

    def all(self):
        tables = self._flow.story().tables.values()
        return [Table(self._flow, table) for table in tables if not table.is_nested]
