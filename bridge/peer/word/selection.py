"""The selection of a document's window: LibreOffice's view cursor with the word processor's rules."""

from word.binding import (
    BAD_PARAMETER,
    COMMAND_FAILED,
    NOT_AVAILABLE,
    NO_CLIPBOARD,
    NO_SELECTION,
    WordError,
    WordObject,
)
from word.find import Find
from word.flow import put
from word.movement import CELL, CHARACTER, LINE, Movement, PARAGRAPH, SENTENCE, STORY, WORD
from word.places import cell_of, distance, text_cursor
from word.ranges import Paragraphs, Range
from word.tables import rows_between

GO_TO_LINE = 3
GO_TO_ABSOLUTE, GO_TO_RELATIVE, GO_TO_PREVIOUS, GO_TO_LAST = 1, 2, 3, -1
WITHIN_TABLE = 12  # WdInformation of the object model.


class Selection(WordObject):
    DEFAULT = "Text"

    def __init__(self, document):
        self._document = document
        self._model = document.model
        self._cursor = self._model.getCurrentController().getViewCursor()
        self._movement = Movement(document, self._cursor)
        self._moves_start = False  # Which end an extension moves.
        self._exact = None  # The selected positions, where they hold a mark that no cursor can span.
        self._find = Find(self)

    # Text

    @property
    def Text(self):
        if self._exact:
            return self._document.story().text(*self._exact)
        if self._cursor.isCollapsed():  # An insertion point reads as the character behind it.
            following = text_cursor(self._cursor)
            if not following.isEndOfParagraph() and following.goRight(1, True):
                if (character := following.getString()) != "\n":
                    return character
            return self._document.story().text(self.Start, self.Start + 1)
        text = self._cursor.getString()
        return text if "\n" not in text else self._document.story().text(self.Start, self.End)

    @Text.setter
    def Text(self, value: str):
        start = self.Start
        self.go_to(start, self.flow.replace(start, self.End, value))

    @property
    def Start(self):
        return self._exact[0] if self._exact else self._document.story().position(self._cursor.getStart())

    @property
    def End(self):
        return self._exact[1] if self._exact else self._document.story().position(self._cursor.getEnd())

    @property
    def Range(self):
        return Range(self.flow, self.Start, self.End)

    @property
    def Paragraphs(self):
        return Paragraphs(self.flow, self.Start, self.End)

    @property
    def Find(self):
        return self._find

    @property
    def Rows(self):
        return rows_between(self.flow, self.Start, self.End)

    def SelectRow(self):
        rows = self.Rows.all()
        if not rows:
            raise WordError(NOT_AVAILABLE)
        self.go_to(rows[0].Range.Start, rows[-1].Range.End)

    def Information(self, Type: int):
        if Type != WITHIN_TABLE:
            raise WordError(BAD_PARAMETER)
        return cell_of(self._cursor) is not None

    def TypeText(self, Text: str):
        """Put text in place of the selection; the insertion point stands behind it afterwards."""
        self.flow.touch()
        cursor = text_cursor(self._cursor)
        put(cursor, Text)
        self._cursor.gotoRange(cursor.getEnd(), False)

    def Cut(self):
        if self._cursor.isCollapsed():
            raise WordError(NO_SELECTION)
        self._dispatch(".uno:Cut")

    def Paste(self):
        clipboard = self._document.session.service("com.sun.star.datatransfer.clipboard.SystemClipboard")
        if clipboard.getContents() is None:
            raise WordError(NO_CLIPBOARD)
        self._dispatch(".uno:Paste")

    # Movement

    def HomeKey(self, Unit: int = LINE, Extend: int = 0):
        return self._go_to_edge(Unit, Extend, at_end=False)

    def EndKey(self, Unit: int = LINE, Extend: int = 0):
        return self._go_to_edge(Unit, Extend, at_end=True)

    def Move(self, Unit: int = CHARACTER, Count: int = 1):
        self._collapse(at_end=Count > 0)
        return self._movement.advance(Unit, Count)

    def MoveRight(self, Unit: int = CHARACTER, Count: int = 1, Extend: int = 0):
        if Unit not in (CHARACTER, WORD, SENTENCE, CELL):
            raise WordError(BAD_PARAMETER)
        return abs(self._move(Unit, Count, Extend))

    def MoveLeft(self, Unit: int = CHARACTER, Count: int = 1, Extend: int = 0):
        if Unit not in (CHARACTER, WORD, SENTENCE, CELL):
            raise WordError(BAD_PARAMETER)
        return abs(self._move(Unit, -Count, Extend))

    def StartOf(self, Unit: int = WORD, Extend: int = 0):
        """Move to the beginning of a unit; the result is the number of characters moved, not above 0."""
        self.forget()
        target, end = self._movement.edge(Unit, self._cursor.getStart(), at_end=False), self._cursor.getEnd()
        moved = distance(target, self._cursor.getStart())
        self._cursor.gotoRange(target, False)
        if Extend:
            self._cursor.gotoRange(end, True)
        return -moved

    def EndOf(self, Unit: int = WORD, Extend: int = 0):
        """Move to the end of a unit, which for a paragraph lies behind its mark, but never out of a cell."""
        self.forget()
        start, end = self._cursor.getStart(), self._cursor.getEnd()
        target = self._movement.edge(Unit, end, at_end=True)
        moved = distance(end, target)
        self._cursor.gotoRange(target, False)
        if Unit == PARAGRAPH and not self._is_end_of_cell() and self._cursor.goRight(1, False):
            moved += 1
        if Extend:
            target = self._cursor.getStart()
            self._cursor.gotoRange(start, False)
            self._cursor.gotoRange(target, True)
        return moved

    def GoTo(self, What: int = -1, Which: int = GO_TO_ABSOLUTE, Count: int = 1, Name: str = ""):
        """Go to a line; other targets are not offered. A line beyond the last is the last."""
        if What != GO_TO_LINE or Name:
            raise WordError(BAD_PARAMETER)
        self.forget()
        if Which in (GO_TO_ABSOLUTE, GO_TO_LAST):
            body = self._model.getText()
            self._cursor.gotoRange(body.getEnd() if Which == GO_TO_LAST else body.getStart(), False)
            Count -= 1
        with self._document.laid_out():
            lines = {GO_TO_LAST: 0, GO_TO_PREVIOUS: -Count}.get(Which, Count)
            self._movement.advance(LINE, lines)
            self._cursor.gotoStartOfLine(False)
        return self.Range

    # For the other objects of the document

    @property
    def flow(self):
        """The text that is selected in, which is the main text."""
        return self._document.main

    def go_to(self, start, end):
        """Select the text between two positions."""
        first, last, is_whole = self._document.story().span(start, end)
        self._cursor.gotoRange(first, False)
        self._cursor.gotoRange(last, True)
        self._exact = None if is_whole or start == end else (start, end)

    def adapt(self, _):
        """Keep to the same text after replacements, which the office's own cursor does."""

    def forget(self):
        """Take note that what is selected is what the office's cursor spans, and no more."""
        self._exact = None

    # Helpers

    def _go_to_edge(self, unit, extend, at_end):
        """Go to the beginning or the end of the line or the text; the result is the number of positions."""
        if unit not in (LINE, STORY):
            raise WordError(BAD_PARAMETER)
        start, end = self.Start, self.End
        self.forget()
        place = self._cursor.getEnd() if at_end else self._cursor.getStart()
        target = self._movement.edge(unit, place, at_end)
        to = self._document.story().position(target)
        if extend:
            self.go_to(start if at_end else to, to if at_end else end)
        else:
            self._cursor.gotoRange(target, False)
        return abs(to - (end if at_end else start))

    def _dispatch(self, command):
        self.forget()
        helper = self._document.session.service("com.sun.star.frame.DispatchHelper")
        frame = self._model.getCurrentController().getFrame()
        done = helper.executeDispatch(frame, command, "", 0, ())
        self._document.touch()
        if done is None or done.State != 1:
            raise WordError(COMMAND_FAILED)

    def _collapse(self, at_end):
        """Go to an edge of the selection, which may lie behind marks that the office's cursor cannot span."""
        edge = self._cursor.getEnd() if at_end else self._cursor.getStart()
        if self._exact:
            edge = self._document.story().place(self._exact[at_end])
        self.forget()
        self._cursor.gotoRange(edge, False)

    def _is_end_of_cell(self):
        if not cell_of(self._cursor):
            return False
        cursor = text_cursor(self._cursor)
        return not cursor.goRight(1, False) or not cell_of(cursor)

    def _move(self, unit, count, extend):
        """Move by units, backward for a negative count; the result is the signed number of units."""
        if count == 0:
            return 0
        forward = count > 0
        if extend:
            self.forget()
            return self._extend(unit, count)
        # Leaving a selection at its edge is the first of the characters to move.
        left = not self._cursor.isCollapsed() or self._exact is not None
        self._collapse(at_end=forward)
        if not left or unit != CHARACTER:
            return self._movement.advance(unit, count)
        step = 1 if forward else -1
        return step + self._movement.advance(unit, count - step)

    def _extend(self, unit, count):
        if self._cursor.isCollapsed():
            self._moves_start = count < 0
        start, end = self._cursor.getStart(), self._cursor.getEnd()
        fixed, moving = (end, start) if self._moves_start else (start, end)
        self._cursor.gotoRange(moving, False)
        moved = self._movement.advance(unit, count)
        target = self._cursor.getStart()
        self._moves_start = fixed.getText().compareRegionStarts(target, fixed) > 0
        self._cursor.gotoRange(fixed, False)
        self._cursor.gotoRange(target, True)
        return moved
