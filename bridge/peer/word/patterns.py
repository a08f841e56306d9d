"""The word processor's find and replacement texts, as regular expressions over the text of a story."""

import contextlib
import re
import signal

from word.binding import COMMAND_FAILED, WordError

BAD_PATTERN = (5560, "The Find What text contains a Pattern Match expression which is not valid.")
BAD_GROUP = (5623, "The Replace With text contains a group number that is out of range.")
BAD_CHARACTER = (5692, "is not a valid special character for the {} box.")

LONGEST_SEARCH = 10  # Seconds; a pattern can be so intricate that it would not end before the day does.

# What follows a caret, as the characters of a story.
CHARACTERS = {
    "p": "\r",
    "t": "\t",
    "l": "\v",
    "m": "\f",
    "s": "\u00a0",
    "~": "\u2011",
    "-": "\u00ad",
    "=": "\u2013",
    "+": "\u2014",
    "^": "^",
}
# What follows a caret in a find text only, as expressions. Nothing goes from one cell into the next.
CLASSES = {"?": r"[^\a\r\v\f]", "#": r"\d", "$": r"[^\W\d_]", "w": r"[ \t\u00a0]+", "b": r"\f"}
# Straight quotation marks find the curly ones, and these the straight ones.
QUOTES = {quote: f"[{kind}]" for kind in ("'\u2018\u2019", '"\u201c\u201d') for quote in kind}
CARET = re.compile(r"\^(u\d{1,5}|\d{1,5}|[^u\d]|u)", re.DOTALL | re.IGNORECASE)


def expression(text, match_case, whole_word):
    """Return the expression that a find text without wildcards stands for."""
    result, end = "", 0
    for code in CARET.finditer(text):
        result += _literal(text[end : code.start()]) + _class_or_character(code[1], "")
        end = code.end()
    result += _literal(text[end:])
    if whole_word:
        result = (r"(?<!\w)" if _is_word(text[:1]) else "") + result
        result += r"(?!\w)" if _is_word(text[-1:]) else ""
    return re.compile(result, 0 if match_case else re.IGNORECASE)


def _literal(text):
    return "".join(QUOTES.get(character) or re.escape(character) for character in text)


def _is_word(character):
    return character.isalnum() or character == "_"


def _class_or_character(code, without):
    return CLASSES.get(code.lower()) or re.escape(_character(code, "Find What", without))


def _character(code, box, without=""):
    """Return the character that stands behind a caret; a number is the character's own."""
    number = code.lower().removeprefix("u")
    if number.isdecimal():
        value = int(number)
        if code.isdecimal() and 128 <= value < 256:
            return bytes([value]).decode("cp1252", "replace")
        if 0 < value < 0xD800 or 0xE000 <= value < 0x10000:
            return {10: "\v", 11: "\v", 12: "\f"}.get(value, chr(value))
    elif code.lower() in CHARACTERS and code.lower() not in without:
        return CHARACTERS[code.lower()]
    number, text = BAD_CHARACTER
    raise WordError((number, f"^{code} {text.format(box)}"))


class Wildcards:
    """Reads a find text with wildcards, from the left to the right."""

    ANY = r"[^\a]"
    TOKEN = re.compile(
        r"\\(?P<escaped>.)|\^(?P<caret>u\d{1,5}|\d{1,5}|.)|\[(?P<set>!?(?:\\.|[^\]\\])+)\]"
        r"|\{(?P<count>\d{1,3}(?:,\d{0,3})?)\}|(?P<plain>.)",
        re.DOTALL,
    )
    SIGNS = {"?": ANY, "*": ANY + "*?", "@": "+?", "<": r"\b(?=\w)", ">": r"\b(?<=\w)", "(": "(", ")": ")"}

    def __init__(self, text):
        result = "".join(self._translated(token) for token in self.TOKEN.finditer(text))
        try:
            self.expression = re.compile(result)
        except (re.error, OverflowError):
            raise WordError(BAD_PATTERN) from None

    def _translated(self, token):
        kind, value = token.lastgroup, token[token.lastgroup]
        if kind == "escaped":
            return f"(?:\\{value})" if value in "123456789" else re.escape(value)
        if kind == "caret":
            return _class_or_character(value, "p")
        if kind == "set":
            return self._set(value)
        if kind == "count":
            return f"{{{value}}}"
        if value in "[]{}":
            raise WordError(BAD_PATTERN)
        return self.SIGNS.get(value) or re.escape(value)

    @staticmethod
    def _set(value):
        is_negated = value[0] == "!"

        def member(found):
            if found[0] == "-":
                return "-"
            return re.escape(found[2] or _character(found[1], "Find What", "p"))

        members = re.sub(CARET.pattern + r"|\\?(.)", member, value[is_negated:], flags=CARET.flags)
        if not members:
            raise WordError(BAD_PATTERN)
        return f"[^\\a{members}]" if is_negated else f"[{members}]"


def replacement(text, wildcards):
    """Return a function that gives the new text for a match."""
    parts, end = [], 0
    code = re.compile(CARET.pattern + (r"|\\(.)" if wildcards else ""), CARET.flags)
    for each in code.finditer(text):
        parts.append(text[end : each.start()])
        parts.append(_part(each[0]))
        end = each.end()
    parts.append(text[end:])

    def new_text(match):
        try:
            return "".join(part if isinstance(part, str) else match[part[0]] or "" for part in parts)
        except IndexError:
            raise WordError(BAD_GROUP) from None

    return new_text


def _part(code):
    """Return a text, or the number of the group that stands there."""
    if code == "^&":
        return (0,)
    if code[0] == "^":
        return _character(code[1:], "Replace With")
    return (int(code[1:]),) if code[1:] in "123456789" else code[1:]


@contextlib.contextmanager
def bounded():
    """Return a context in which matching ends in a failure when it takes too long."""

    def give_up(*_):
        raise WordError(COMMAND_FAILED, "The find text is too complex.")

    before = signal.signal(signal.SIGALRM, give_up)
    signal.setitimer(signal.ITIMER_REAL, LONGEST_SEARCH)
    try:
        yield
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        signal.signal(signal.SIGALRM, before)
