"""Moving the insertion point by the word processor's units."""

import contextlib

from word.binding import BAD_PARAMETER, NOT_AVAILABLE, WordError
from word.places import LONGEST_STEP, cell_of, text_cursor

# WdUnits of the object model.
CHARACTER, WORD, SENTENCE, PARAGRAPH, LINE, STORY, SECTION, CELL = 1, 2, 3, 4, 5, 6, 8, 12


class Movement:
    """Moves a document's view cursor, which goes into tables and out of them as no text cursor does."""

    def __init__(self, document, cursor):
        self._document = document
        self._model = document.model
        self._cursor = cursor

    def advance(self, unit, count):
        """Move the insertion point by units; the result is the signed number of units moved."""
        step = self._STEPS.get(unit)
        if step is None:
            raise WordError(BAD_PARAMETER)
        direction = 1 if count > 0 else -1
        moved = 0
        with self._document.laid_out() if unit == LINE else contextlib.nullcontext():
            while moved < abs(count):
                done = step(self, direction, abs(count) - moved)
                if not done:
                    break
                moved += done
        return direction * moved

    def _position(self):
        return self._document.story().position(self._cursor.getStart())

    def _step_characters(self, direction, most):
        go = self._cursor.goRight if direction > 0 else self._cursor.goLeft
        if go(min(most, LONGEST_STEP), False):
            return min(most, LONGEST_STEP)
        # Fewer were left than asked for: go on one by one, so that the count is right.
        return 1 if most > 1 and go(1, False) else 0

    def _step_by_cursor(self, direction, go_forward, go_back):
        cursor = text_cursor(self._cursor)
        if getattr(cursor, go_forward if direction > 0 else go_back)(False):
            self._cursor.gotoRange(cursor, False)
            return 1
        return self._step_characters(direction, 1)

    def _step_word(self, direction, _):
        return self._step_by_cursor(direction, "gotoNextWord", "gotoPreviousWord")

    def _step_sentence(self, direction, _):
        return self._step_by_cursor(direction, "gotoNextSentence", "gotoPreviousSentence")

    def _step_paragraph(self, direction, _):
        cursor = text_cursor(self._cursor)
        if direction > 0:
            inside = not cursor.isEndOfParagraph()
            cursor.gotoEndOfParagraph(False)
            self._cursor.gotoRange(cursor, False)
            return int(self._cursor.goRight(1, False) or inside)
        if cursor.isStartOfParagraph() and not self._cursor.goLeft(1, False):
            return 0
        cursor = text_cursor(self._cursor)
        cursor.gotoStartOfParagraph(False)
        self._cursor.gotoRange(cursor, False)
        return 1

    def _step_line(self, direction, _):
        return int(self._cursor.goDown(1, False) if direction > 0 else self._cursor.goUp(1, False))

    def _step_story(self, direction, _):
        before = self._position()
        self._cursor.gotoRange(self._document.story().end_of_text(at_end=direction > 0), False)
        return int(self._position() != before)

    def _step_section(self, direction, _):
        story, here = self._document.story(), self._position()
        targets = story.section_starts() + [len(story) - 1]
        targets = [each for each in targets if (each > here if direction > 0 else each < here)]
        if targets:
            self._cursor.gotoRange(story.place(min(targets) if direction > 0 else max(targets)), False)
        return int(bool(targets))

    def _step_cell(self, direction, _):
        table, name = cell_of(self._cursor) or (None, None)
        if not table:
            raise WordError(NOT_AVAILABLE)
        names = table.getCellNames()
        index = names.index(name) + direction
        if not 0 <= index < len(names):
            return 0
        self._cursor.gotoRange(table.getCellByName(names[index]).getStart(), False)
        return 1

    _STEPS = {
        CHARACTER: _step_characters,
        WORD: _step_word,
        SENTENCE: _step_sentence,
        PARAGRAPH: _step_paragraph,
        LINE: _step_line,
        STORY: _step_story,
        SECTION: _step_section,
        CELL: _step_cell,
    }

    def edge(self, unit, place, at_end):
        """Return where the unit that holds a place begins or ends."""
        cursor = text_cursor(place)
        if unit in (WORD, SENTENCE, PARAGRAPH):
            name = {WORD: "Word", SENTENCE: "Sentence", PARAGRAPH: "Paragraph"}[unit]
            getattr(cursor, ("gotoEndOf" if at_end else "gotoStartOf") + name)(False)
            return cursor
        if unit == CELL:
            if not cell_of(place):
                raise WordError(NOT_AVAILABLE)
            holder = place.getText()
        elif unit == STORY:
            return self._document.story().end_of_text(at_end)
        elif unit == LINE:
            self._cursor.gotoRange(place, False)
            with self._document.laid_out():
                (self._cursor.gotoEndOfLine if at_end else self._cursor.gotoStartOfLine)(False)
            return self._cursor.getStart()
        else:
            raise WordError(BAD_PARAMETER)
        return holder.getEnd() if at_end else holder.getStart()
