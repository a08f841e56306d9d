"""Conditions of Items.Restrict: [Property] = 'text', the other comparisons, And, Or, Not and parentheses."""

import datetime
import operator
import re

from binding import converted
from failures import Failure
from outlook.model import CANNOT_PARSE, OutlookError

TOKEN = re.compile(
    r"""\s*(?:\[(?P<name>[^\]]+)\]|'(?P<single>(?:[^']|'')*)'|"(?P<double>(?:[^"]|"")*)\""""
    r"""|(?P<sign><>|<=|>=|[<>=()])|(?P<number>[+-]?\d+(?:\.\d+)?)|(?P<word>[A-Za-z]+))"""
)
COMPARISONS = {
    "=": operator.eq,
    "<>": operator.ne,
    "<": operator.lt,
    "<=": operator.le,
    ">": operator.gt,
    ">=": operator.ge,
}
FLAGS = {"true": True, "yes": True, "on": True, "false": False, "no": False, "off": False}


class Condition:
    """A condition, read as `or` of `and` of `not`. Its functions give a property's kind, or fail, and an item's
    value, or None."""

    def __init__(self, text, kind_of, read_of):
        self._text = text
        self._kind_of = kind_of
        self._read_of = read_of
        self._tokens = []
        position = 0
        while text[position:].strip():
            token = TOKEN.match(text, position)
            if not token:
                self._fail()
            self._tokens.append((token.lastgroup, token[token.lastgroup]))
            position = token.end()
        self.holds = self._alternatives()
        if self._tokens:
            self._fail()

    def _fail(self):
        rest = " ".join(value for _, value in self._tokens) or self._text
        raise OutlookError(CANNOT_PARSE, f'"{rest}".')

    def _accept(self, group, value):
        """Take the next token if it is the one named."""
        if self._tokens and self._tokens[0][0] == group and self._tokens[0][1].lower() == value:
            return self._tokens.pop(0)
        return None

    def _next(self, *groups):
        if not self._tokens or self._tokens[0][0] not in groups:
            self._fail()
        return self._tokens.pop(0)

    def _alternatives(self):
        parts = [self._conjunction()]
        while self._accept("word", "or"):
            parts.append(self._conjunction())
        return lambda item: any(part(item) for part in parts)

    def _conjunction(self):
        parts = [self._negation()]
        while self._accept("word", "and"):
            parts.append(self._negation())
        return lambda item: all(part(item) for part in parts)

    def _negation(self):
        if self._accept("word", "not"):
            inner = self._negation()
            return lambda item: not inner(item)
        if self._accept("sign", "("):
            inner = self._alternatives()
            if not self._accept("sign", ")"):
                self._fail()
            return inner
        return self._comparison()

    def _comparison(self):
        _, name = self._next("name")
        sign = self._next("sign")[1]
        if sign not in COMPARISONS:
            self._fail()
        kind = self._kind_of(name)
        group, text = self._next("single", "double", "number", "word")
        wanted = self._literal(group, text, kind)
        compare = COMPARISONS[sign]

        def holds(item):
            value = self._read_of(item, name)
            if value is None:
                return sign == "<>"
            return compare(value.lower() if kind is str else value, wanted)

        return holds

    def _literal(self, group, text, kind):
        if group in ("single", "double"):
            quote = "'" if group == "single" else '"'
            text = text.replace(quote * 2, quote)
        if kind is bool and text.lower() in FLAGS:
            return FLAGS[text.lower()]
        is_number = re.fullmatch(r"[+-]?\d+(\.\d+)?", text)
        if kind is int and is_number:
            return float(text)
        if kind is str and group != "word":
            return text.lower()
        if kind is datetime.datetime and group in ("single", "double"):
            try:
                return converted(text, kind)
            except Failure:
                pass  # Not a date.
        return self._fail()
