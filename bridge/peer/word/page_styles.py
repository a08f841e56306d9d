"""LibreOffice's page styles as what the word processor keeps with a section: headers, footers and the page
setup that tells which of them exist."""

from word.binding import NO_MEMBER, NOT_AVAILABLE, WordError
from word.flow import Flow
from word.places import copy_text
from word.story import Story

HEADER, FOOTER = "Header", "Footer"
PRIMARY, FIRST, EVEN = 1, 2, 3  # WdHeaderFooterIndex of the object model.
TEXTS = {PRIMARY: "Text", FIRST: "TextFirst", EVEN: "TextLeft"}

# In hundredths of a millimetre: how far from the edge of the page a new header stands, and its least height.
EDGE = 1250
LEAST_HEIGHT = 100


def _page_style_of(model, name):
    return model.getStyleFamilies().getByName("PageStyles").getByName(name)


class HeaderFlow(Flow):
    """The text of a header or a footer. While LibreOffice has it switched off it reads as an empty paragraph,
    and a change switches it on."""

    def __init__(self, document, style, kind, index):
        super().__init__(document)
        self._style = style
        self._kind = kind
        self._index = index

    def prepare(self):
        if not self._style.get(f"{self._kind}IsOn"):
            self._style.switch_on(self._kind)

    def select(self, start, end):
        raise WordError(NOT_AVAILABLE, "Headers and footers cannot be selected.")

    def text_in(self, model):
        """As for every text; None while the header or footer is switched off."""
        if not self._style.exists(self._index):
            raise WordError(NO_MEMBER)
        name = self._kind + TEXTS[self._index]
        if model is self.document.model:
            return self._style.get(name)
        return _page_style_of(model, self._style.name).getPropertyValue(name)

    def _read(self):
        return Story(self.text_in(self.document.model), self.document.count_of_tables())


class PageStyle:
    def __init__(self, document, name):
        self.name = name
        self._style = _page_style_of(document.model, name)
        indexes = [(kind, index) for kind in (HEADER, FOOTER) for index in TEXTS]
        self._flows = {(kind, index): HeaderFlow(document, self, kind, index) for kind, index in indexes}

    def flow(self, kind, index):
        """Return the text of a header or a footer, whether it exists or not."""
        return self._flows[kind, index]

    def get(self, name):
        """Return a property of the style; None for those of a header or footer that is switched off."""
        return self._style.getPropertyValue(name)

    def touch(self):
        """Take note that any of the texts may have changed."""
        for flow in self._flows.values():
            flow.touch()

    def exists(self, index):
        """Tell whether there is a header and a footer of that kind: always both or none of them."""
        if index == PRIMARY:
            return True
        names = ["FirstIsShared"] if index == FIRST else ["HeaderIsShared", "FooterIsShared"]
        return any(self.get(name) is False for name in names)

    def set_exists(self, index, value):
        """Give the first page, or even pages, an empty header and footer of their own, or take them away."""
        if index == PRIMARY or value == self.exists(index):
            return
        # The setting is kept with headers and footers that are switched on, and nowhere else.
        if not self._kinds_on():
            self.switch_on(HEADER)
        kinds = self._kinds_on()
        names = ["FirstIsShared"] if index == FIRST else [f"{kind}IsShared" for kind in kinds]
        for name in names:
            self._style.setPropertyValue(name, not value)
        if value:
            self._empty(kinds, index)
        self.touch()

    def take_first_page(self, other):
        """Take over the headers and footers of another style as those of the first page."""
        for kind in (HEADER, FOOTER):
            if other.get(f"{kind}IsOn") and not self.get(f"{kind}IsOn"):
                self.switch_on(kind)
        self.set_exists(FIRST, True)
        for kind in self._kinds_on():
            if (text := other.get(kind + TEXTS[PRIMARY])) is not None:
                copy_text(text, self.get(kind + TEXTS[FIRST]))
        self.touch()

    def switch_on(self, kind):
        """Switch on the headers or the footers; the text between them stays where it is."""
        even_differs = self.exists(EVEN)
        name = "TopMargin" if kind == HEADER else "BottomMargin"
        margin = self.get(name)
        edge = min(EDGE, margin // 2)
        height = max(margin - edge, LEAST_HEIGHT)
        properties = {
            f"{kind}IsOn": True,
            f"{kind}IsShared": not even_differs,
            f"{kind}IsDynamicHeight": True,
            f"{kind}DynamicSpacing": True,
            f"{kind}BodyDistance": height - LEAST_HEIGHT,
            f"{kind}Height": height,
            name: edge,
        }
        for property_name, value in properties.items():
            self._style.setPropertyValue(property_name, value)
        self.touch()

    def _kinds_on(self):
        return [kind for kind in (HEADER, FOOTER) if self.get(f"{kind}IsOn")]

    def _empty(self, kinds, index):
        # LibreOffice makes a copy of the primary one.
        for kind in kinds:
            self.get(kind + TEXTS[index]).setString("")


class SectionStyles:
    """The page styles of a section: one for all, or one for the first page and one for the others."""

    def __init__(self, first, rest):
        self.first = first
        self.rest = rest

    @property
    def are_two(self):
        return self.first is not self.rest

    def flow(self, kind, index):
        if self.are_two and index == FIRST:
            return self.first.flow(kind, PRIMARY)
        return self.rest.flow(kind, index)

    def exists(self, index):
        return self.are_two and index == FIRST or self.rest.exists(index)

    def set_exists(self, index, value):
        """As with one style; what two styles are for cannot be taken from them."""
        if not (self.are_two and index == FIRST):
            self.rest.set_exists(index, value)
