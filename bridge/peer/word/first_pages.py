"""Keeps the headers of first pages when a document is written in a format of the word processor.

LibreOffice reads a first page of its own as a page style for one page, followed by another. Where a new
section comes before that other one has had a page, it writes a section of the first style only, and the
headers of the other are lost. With one style for both, as LibreOffice can have it as well, they are not."""

import collections

GEOMETRY = ("Width", "Height", "LeftMargin", "RightMargin")


def unite(document):
    """Give every section but the last one page style in place of two, where nothing else depends on them."""
    if document.main.story().count_of_sections() == 1:
        return
    sections = document.Sections.all()
    styles = [section.styles() for section in sections]
    uses = collections.Counter(style for each in styles for style in {each.first, each.rest})
    for section, each in zip(sections[:-1], styles, strict=False):
        is_alone = uses[each.first] == uses[each.rest] == 1
        is_same_page = all(each.first.get(name) == each.rest.get(name) for name in GEOMETRY)
        if each.are_two and is_alone and is_same_page:
            each.rest.take_first_page(each.first)
            section.begin_with(each.rest)
