"""Search and replacement in one text, from a selection or a range."""

import bisect

from word import patterns
from word.binding import BAD_PARAMETER, COMMAND_FAILED, WordError, WordObject, kept
from word.flow import accepted
from word.places import units

LONGEST_TEXT = 255
NONE, ONE, ALL = 0, 1, 2  # WdReplace of the object model.
STOP, CONTINUE, ASK = 0, 1, 2  # WdFindWrap; nobody can be asked, so asking stops.


class Replacement(WordObject):
    def __init__(self):
        self._kept = {}

    Text = kept(str, "", longest=LONGEST_TEXT)

    def ClearFormatting(self):
        """Formatting is never replaced, so there is none to clear."""


class Find(WordObject):
    """The search that belongs to a selection or a range, its target."""

    def __init__(self, target):
        self._target = target
        self._kept = {}
        self._replacement = Replacement()
        self._found = False
        self._left = None  # The span at which the last search left its target.

    Text = kept(str, "", longest=LONGEST_TEXT)
    Forward = kept(bool, True)
    Wrap = kept(int, STOP, allowed=(STOP, CONTINUE, ASK))
    Format = kept(bool, False)
    MatchCase = kept(bool, False)
    MatchWholeWord = kept(bool, False)
    MatchWildcards = kept(bool, False)
    MatchSoundsLike = kept(bool, False)
    MatchAllWordForms = kept(bool, False)

    @property
    def Replacement(self):
        return self._replacement

    @property
    def Found(self):
        return self._found

    def ClearFormatting(self):
        """Formatting is never searched for, so there is none to clear."""

    def Execute(
        self,
        FindText: str = None,
        MatchCase: bool = None,
        MatchWholeWord: bool = None,
        MatchWildcards: bool = None,
        MatchSoundsLike: bool = None,
        MatchAllWordForms: bool = None,
        Forward: bool = None,
        Wrap: int = None,
        Format: bool = None,
        ReplaceWith: str = None,
        Replace: int = NONE,
        MatchKashida: bool = None,
        MatchDiacritics: bool = None,
        MatchAlefHamza: bool = None,
        MatchControl: bool = None,
    ):
        """Find, and replace if asked to; the result tells whether there was an occurrence. What is given
        stays set for the next time."""
        if Replace not in (NONE, ONE, ALL):
            raise WordError(BAD_PARAMETER)
        given = {
            "Text": FindText,
            "MatchCase": MatchCase,
            "MatchWholeWord": MatchWholeWord,
            "MatchWildcards": MatchWildcards,
            "MatchSoundsLike": MatchSoundsLike,
            "MatchAllWordForms": MatchAllWordForms,
            "Forward": Forward,
            "Wrap": Wrap,
            "Format": Format,
        }
        for name, value in given.items():
            if value is not None:
                setattr(self, name, value)
        if ReplaceWith is not None:
            self._replacement.Text = ReplaceWith
        self._found = False
        if self.MatchSoundsLike or self.MatchAllWordForms:
            raise WordError(COMMAND_FAILED, "LibreOffice finds neither similar sounds nor word forms.")
        self._target.flow.refresh()
        if self.Text:
            self._found = self._replace_all() if Replace == ALL else self._next(is_to_replace=Replace == ONE)
        return self._found

    def _next(self, is_to_replace):
        flow, occurrences, new_text = self._prepared()
        target = self._target.Start, self._target.End
        with patterns.bounded():
            regions = self._regions(occurrences, *target)
            found = (occurrences.nearest(*region, self.Forward) for region in regions)
            match = next((each for each in found if each), None)
        if match is None:
            return False
        start, end = occurrences.span(match)
        if is_to_replace:
            text = new_text(match)
            if not flow.replace_all([(start, end, text)]):
                return False
            end = start + units(accepted(text))
        self._target.go_to(start, end)
        self._left = (start, end)
        return True

    def _replace_all(self):
        flow, occurrences, new_text = self._prepared()
        length, start, end = occurrences.length, self._target.Start, self._target.End
        with patterns.bounded():
            if self.Wrap == CONTINUE:
                start, end = 0, length
            elif self._is_left_behind(occurrences, start, end):
                start, end = (start, length) if self.Forward else (0, end)
            matches = list(occurrences.within(start, end))
        done = flow.replace_all([(*occurrences.span(match), new_text(match)) for match in matches])
        self._target.adapt(done)
        return bool(done)

    def _prepared(self):
        """Return the text to search, the occurrences in it, and what makes a match's new text."""
        if self.MatchWildcards:
            expression = patterns.Wildcards(self.Text).expression
        else:
            expression = patterns.expression(self.Text, self.MatchCase, self.MatchWholeWord)
        new_text = patterns.replacement(self._replacement.Text, self.MatchWildcards)
        flow = self._target.flow
        return flow, Occurrences(flow.story(), expression), new_text

    def _regions(self, occurrences, start, end):
        """Return where to look, one after the other."""
        length = occurrences.length
        onward = (end, length) if self.Forward else (0, start)
        is_inside = not self._is_left_behind(occurrences, start, end)
        result = [(start, end)] if is_inside else [onward]
        if self.Wrap == CONTINUE:
            result += [onward, (0, length)] if is_inside else [(0, length)]
        return result

    def _is_left_behind(self, occurrences, start, end):
        """Tell whether a search goes on from the target. Otherwise it begins inside: with a selection that
        holds more than an occurrence, and not what the last search left."""
        return start == end or (start, end) == self._left or occurrences.is_one(start, end)


class Occurrences:
    """Where an expression matches in a story; regular expressions count characters, stories count units."""

    def __init__(self, story, expression):
        self._text = story.characters()
        self._expression = expression
        self.length = len(story)
        self._wide = []  # The characters that take two units.
        if self.length != len(self._text):
            self._wide = [index for index, character in enumerate(self._text) if character > "\uffff"]
        self._wide_units = [index + before for before, index in enumerate(self._wide)]

    def span(self, match):
        """Return the positions between which a match lies."""
        return tuple(index + bisect.bisect_left(self._wide, index) for index in match.span())

    def within(self, start, end):
        """Yield the matches between two positions."""
        end = self._index(end)
        for match in self._expression.finditer(self._text, self._index(start)):
            if match.start() >= end:
                return
            if match.start() < match.end() <= end:
                yield match

    def nearest(self, start, end, forward):
        """Return the first match between two positions, or the last one, or None."""
        matches = self.within(start, end)
        if forward:
            return next(matches, None)
        match = None
        for match in matches:
            pass
        return match

    def is_one(self, start, end):
        """Tell whether exactly what lies between two positions matches."""
        match = self._expression.match(self._text, self._index(start))
        return match is not None and match.end() == self._index(end)

    def _index(self, position):
        return position - bisect.bisect_left(self._wide_units, position)
