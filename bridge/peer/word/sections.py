"""The sections of a document."""

from word.binding import Collection
from word.ranges import Part


class Sections(Collection):
    def __init__(self, document):
        self._document = document

    def all(self):
        story = self._document.story()
        sections = (story.section(index) for index in range(story.count_of_sections()))
        return [Part(self._document.main, (start, end)) for start, end, _ in sections]
