"""A text of a document that can be read and changed: the main text, or that of a header or a footer."""

import uno

from word.main_story import MainStory
from word.places import cross, text_cursor, units

# What LibreOffice's paragraphs can hold of the characters below the blank; one of the others makes it drop a
# whole insertion.
TYPED = {code: None for code in range(32)} | {9: "\t", 10: "\n", 12: "\f", 13: "\r"}


class Flow:
    """Base of the texts; they differ in how they are read, and in what a change puts out of date."""

    def __init__(self, document):
        self.document = document
        self._story = None

    def _read(self):
        raise NotImplementedError

    def story(self):
        """Return the text as it is now."""
        if self._story is None:
            self._story = self._read()
        return self._story

    def touch(self):
        """Take note that the text has changed."""
        self._story = None

    def refresh(self):
        """Take note of fields that read otherwise than they did, as a layout has changed them."""
        if self._story is not None and not self._story.is_current():
            self._story = None

    def prepare(self):
        """Make sure that there is a text that can be changed."""

    def text_in(self, model):
        """Return LibreOffice's text in the document, or in another made from its file."""
        raise NotImplementedError

    def replace(self, start, end, text):
        """Put text between two positions and return the position of its end."""
        self.prepare()
        first, last, _ = self.story().span(start, end)
        first.gotoRange(last, True)
        put(first, text)
        self.touch()
        return start + units(accepted(text))

    def replace_all(self, replacements):
        """Replace spans by texts, given as (start, end, text) in the order of the text, and return those that
        were replaced. Left alone is what cannot be replaced: a mark in front of a table, part of a field."""
        self.prepare()
        story, block, done = self.story(), None, []
        # From the end backwards: what is replaced moves nothing that is still to come.
        for start, end, text in reversed(replacements):
            if block is not story.block(start):
                block = story.block(start)
                reached = min(end, block.end)
                cursor = story.place(reached)
            end = min(end, block.end)
            cross(cursor, story.characters(end, reached), backward=True)
            cursor.collapseToStart()
            found = story.characters(start, end)
            cross(cursor, found, backward=True)
            if found and _is_same(cursor.getString(), found):
                put(cursor, text)
                done.append((start, end, text))
            cursor.collapseToStart()
            reached = start
        self.touch()
        return done


class MainFlow(Flow):
    def text_in(self, model):
        return model.getText()

    def _read(self):
        return MainStory(self.document.model, self.document.count_of_tables())

    def select(self, start, end):
        """Select the text between two positions."""
        self.document.selection().go_to(start, end)

    def touch(self):
        super().touch()
        self.document.selection().forget()


def accepted(text):
    """Return what of a text can stand in a document, with the marks of a story."""
    text = text.replace("\r\n", "\r").replace("\n", "\r").replace("\v", "\n").translate(TYPED)
    return text.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")


def put(cursor, text):
    """Put text in place of what a cursor spans, which then spans the text; it looks like what it replaces."""
    pieces = accepted(text).split("\f")
    cursor.setString(pieces[0])
    for piece in pieces[1:]:
        cursor.collapseToEnd()
        cursor.getText().insertString(cursor, "\r", False)
        text_cursor(cursor).BreakType = uno.Enum("com.sun.star.style.BreakType", "PAGE_BEFORE")
        cursor.getText().insertString(cursor, piece, False)
    if len(pieces) > 1:
        cross(cursor, accepted(text), backward=True)


def _is_same(text, of_story):
    """Tell whether a cursor's text is that of a story, which tells breaks and paragraphs apart."""
    return text == of_story.translate({11: "\n", 12: "\n", 13: "\n"})
