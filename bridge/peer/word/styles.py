"""Styles of a document, as far as their fonts go."""

import uno

from binding import converted
from failures import Failure, TYPE_MISMATCH
from handles import Single
from word.binding import Collection, NO_MEMBER, VALUE_OUT_OF_RANGE, WordError, WordObject

# WdBuiltinStyle of the object model, and LibreOffice's own names.
BUILT_IN = {-1: "Standard"} | {-1 - level: f"Heading {level}" for level in range(1, 10)}
NORMAL = ("Normal", "Standard")  # The word processor's name and LibreOffice's.
BOLD = 150.0
# What a font is to the word processor, for each of the three kinds of script.
FACE = ("FontName", "FontFamily", "FontStyleName", "FontPitch", "FontCharSet", "Height", "Weight", "Posture")
FONT = [f"Char{name}{script}" for script in ("", "Asian", "Complex") for name in FACE]
FONT += [f"Char{name}" for name in ("Underline", "Strikeout", "Color", "CaseMap", "Hidden", "Kerning")]


class Font(WordObject):
    DEFAULT = "Name"

    def __init__(self, style):
        self.style = style  # LibreOffice's style that it is the font of.

    @property
    def Name(self):
        return self.style.CharFontName

    @Name.setter
    def Name(self, value: str):
        self.style.CharFontName = value

    @property
    def Size(self):
        return Single(self.style.CharHeight)

    @Size.setter
    def Size(self, value: float):
        if not 1 <= value <= 1638:
            raise WordError(VALUE_OUT_OF_RANGE)
        self.style.CharHeight = value

    @property
    def Bold(self):
        return -int(self.style.CharWeight >= BOLD)

    @Bold.setter
    def Bold(self, value: bool):
        self.style.CharWeight = BOLD if value else 100.0

    @property
    def Italic(self):
        return -int(self.style.CharPosture.value != "NONE")

    @Italic.setter
    def Italic(self, value: bool):
        self.style.CharPosture = uno.Enum("com.sun.star.awt.FontSlant", "ITALIC" if value else "NONE")


class Style(WordObject):
    DEFAULT = "NameLocal"

    def __init__(self, style):
        self._style = style

    @property
    def NameLocal(self):
        name = self._style.getName()
        return NORMAL[0] if name == NORMAL[1] else name

    @property
    def Font(self):
        return Font(self._style)

    @Font.setter
    def Font(self, value):
        if not isinstance(value, Font):
            raise Failure(TYPE_MISMATCH)
        for name in FONT:
            self._style.setPropertyValue(name, value.style.getPropertyValue(name))


class Styles(Collection):
    """The paragraph styles."""

    def __init__(self, model):
        self._styles = model.getStyleFamilies().getByName("ParagraphStyles")

    def all(self):
        return [Style(self._styles.getByName(name)) for name in self._styles.getElementNames()]

    def Item(self, Index):
        if isinstance(Index, str):
            name = NORMAL[1] if Index.lower() == NORMAL[0].lower() else Index
        else:
            number = converted(Index, int)
            name = BUILT_IN.get(number)
            if number > 0:
                return super().Item(number)
        if name is None or not self._styles.hasByName(name):
            raise WordError(NO_MEMBER)
        return Style(self._styles.getByName(name))
