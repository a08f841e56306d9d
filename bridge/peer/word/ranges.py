"""Ranges of a document, and the collections of paragraphs and sections that lead to them."""

from word.binding import Collection, VALUE_OUT_OF_RANGE, WordError, WordObject


class Range(WordObject):
    """The text between two positions. It keeps its positions: later changes before it do not move it."""

    DEFAULT = "Text"

    def __init__(self, document, start, end):
        if not 0 <= start <= end <= len(document.story()):
            raise WordError(VALUE_OUT_OF_RANGE)
        self._document = document
        self._start = start
        self._end = end

    @property
    def Start(self):
        return self._start

    @property
    def End(self):
        return self._end

    @property
    def Text(self):
        return self._document.story().text(self._start, self._end)

    @Text.setter
    def Text(self, value: str):
        self._end = self._document.selection().replace(self._start, self._end, value)

    @property
    def Paragraphs(self):
        return Paragraphs(self._document, self._start, self._end)

    def Select(self):
        self._document.selection().select(self._start, self._end)


class Part(WordObject):
    """A paragraph or a section."""

    def __init__(self, document, span):
        self._document = document
        self._span = span

    @property
    def Range(self):
        return Range(self._document, *self._span)


class Paragraphs(Collection):
    def __init__(self, document, start, end):
        self._document = document
        self._ends = (start, end)

    def _all(self):
        return [Part(self._document, span) for span in self._document.story().paragraphs(*self._ends)]


class Sections(Collection):
    def __init__(self, document):
        self._document = document

    def _all(self):
        return [Part(self._document, span) for span in self._document.story().sections()]
