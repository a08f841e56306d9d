"""Copying text with all that is in it, from one document to another or within one.

LibreOffice copies whole texts within a document, and inserts files. So the source's document is written to a
file; in what is read back from there the text becomes the main text; and that is written and inserted.
Copying from document to document at once would end the office where there is a table."""

import os
import tempfile

import uno

from word import filters
from word.binding import COMMAND_FAILED, WordError
from word.places import copy_text
from word.story import Story, enumerated


def copy(source, span, target, target_span):
    """Put what is between two positions of a flow in place of what is between two positions of another."""
    with tempfile.TemporaryDirectory(prefix="zorboffice-") as folder:
        file = os.path.join(folder, "text.odt")
        url = uno.systemPathToFileUrl(file)
        source.document.model.storeToURL(url, filters.for_saving(file))
        desktop = source.document.session.service("com.sun.star.frame.Desktop")
        scratch = desktop.loadComponentFromURL(url, "_blank", 0, filters.for_loading(file, as_template=False))
        try:
            _reduce(scratch, source, span)
            scratch.store()
        finally:
            scratch.close(True)
        target.prepare()
        cursor = _emptied(target, target_span)
        cursor.insertDocumentFromURL(url, ())
    target.touch()


def _reduce(scratch, source, span):
    """Leave nothing in the main text but the source's text between two positions."""
    body, text = scratch.getText(), source.text_in(scratch)
    if source is not source.document.main:
        _clear(body)
        if text is not None:
            copy_text(text, body)
    start, end = span
    length = len(source.story())
    if (start, end) != (0, length):
        story = Story(body, scratch.getTextTables().getCount())
        if story.tables or len(story) != length:
            raise WordError(COMMAND_FAILED, "A text with tables can only be copied whole.")
        for first, last in ((end, length - 1), (0, start)):
            cursor, behind, _ = story.span(first, max(first, last))
            cursor.gotoRange(behind, True)
            cursor.setString("")
    # Where it was, the text may have begun a page.
    first = body.createTextCursor()
    first.gotoStart(False)
    first.setPropertyToDefault("PageDescName")
    first.setPropertyToDefault("BreakType")


def _emptied(flow, span):
    """Return a cursor where the text between two positions was."""
    text = flow.text_in(flow.document.model)
    if span == (0, len(flow.story())):
        _clear(text)
        return text.createTextCursor()
    cursor, behind, is_whole = flow.story().span(*span)
    if not is_whole:
        raise WordError(COMMAND_FAILED, "A part of a table cannot be replaced by formatted text.")
    cursor.gotoRange(behind, True)
    cursor.setString("")
    return cursor


def _clear(text):
    for item in list(enumerated(text)):  # A table at the beginning would not be part of the text's string.
        if hasattr(item, "getCellNames"):
            item.dispose()
    text.setString("")
