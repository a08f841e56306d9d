"""Ranges of a text, and the paragraphs that lead to them."""

from failures import Failure, TYPE_MISMATCH
from word import formatted
from word.binding import Collection, VALUE_OUT_OF_RANGE, WordError, WordObject
from word.find import Find
from word.flow import accepted
from word.places import units


class Range(WordObject):
    """The text between two positions. It keeps its positions: later changes before it do not move it."""

    DEFAULT = "Text"

    def __init__(self, flow, start, end):
        self.flow = flow
        self._find = None
        self.SetRange(start, end)

    def go_to(self, start, end):
        """Take another span of the same text."""
        self._start, self._end = start, end

    def adapt(self, replacements):
        """Keep to the same text after replacements, given as (start, end, new text)."""
        before, inside = 0, 0
        for start, end, text in replacements:
            growth = units(accepted(text)) - (end - start)
            before += growth if end <= self._start else 0
            inside += growth if self._start < end <= self._end else 0
        self.go_to(self._start + before, self._end + before + inside)

    @property
    def Start(self):
        return self._start

    @Start.setter
    def Start(self, value: int):
        self.SetRange(value, max(value, self._end))

    @property
    def End(self):
        return self._end

    @End.setter
    def End(self, value: int):
        self.SetRange(min(value, self._start), value)

    def SetRange(self, Start: int, End: int):
        if not 0 <= Start <= End <= len(self.flow.story()):
            raise WordError(VALUE_OUT_OF_RANGE)
        self.go_to(Start, End)

    @property
    def Text(self):
        return self.flow.story().text(self._start, self._end)

    @Text.setter
    def Text(self, value: str):
        self._end = self.flow.replace(self._start, self._end, value)

    @property
    def FormattedText(self):
        """The text with all that is in it, for another range to take over."""
        return Range(self.flow, self._start, self._end)

    @FormattedText.setter
    def FormattedText(self, value):
        if not isinstance(value, Range):
            raise Failure(TYPE_MISMATCH)
        before = len(self.flow.story())
        formatted.copy(value.flow, (value._start, value._end), self.flow, (self._start, self._end))
        self._end += len(self.flow.story()) - before

    @property
    def Paragraphs(self):
        return Paragraphs(self.flow, self._start, self._end)

    @property
    def Find(self):
        if self._find is None:
            self._find = Find(self)
        return self._find

    def Select(self):
        self.flow.select(self._start, self._end)


class Part(WordObject):
    """What has nothing to offer but its range: a paragraph, or a cell of a table."""

    def __init__(self, flow, span):
        self._flow = flow
        self._span = span

    @property
    def Range(self):
        return Range(self._flow, *self._span)


class Paragraphs(Collection):
    def __init__(self, flow, start, end):
        self._flow = flow
        self._ends = (start, end)

    def all(self):
        return [Part(self._flow, span) for span in self._flow.story().paragraphs(*self._ends)]
