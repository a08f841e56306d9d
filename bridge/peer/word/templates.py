"""Templates as objects: the one attached to a document, and the one for everything else."""

import os

import uno

from word import filters
from word.binding import WordObject

NORMAL = "Normal.dotx"


def normal(session):
    """Return the normal template. LibreOffice has none, so its file is written as an empty document when it
    is asked for first, into the folder for the user's templates."""
    file = os.path.join(session.default_path("Template_writable"), NORMAL)
    if not os.path.exists(file):
        os.makedirs(os.path.dirname(file), exist_ok=True)
        desktop = session.service("com.sun.star.frame.Desktop")
        arguments = filters.for_loading(file, as_template=False)
        model = desktop.loadComponentFromURL("private:factory/swriter", "_blank", 0, arguments)
        try:
            model.storeToURL(uno.systemPathToFileUrl(file), filters.for_saving(file))
        finally:
            model.close(True)
    return Template(session, file)


class Template(WordObject):
    DEFAULT = "Name"

    def __init__(self, session, file):
        self._session = session
        self._file = file

    @property
    def Name(self):
        return os.path.basename(self._file)

    @property
    def Path(self):
        return self._session.paths.to_windows(os.path.dirname(self._file))

    @property
    def FullName(self):
        return self._session.paths.to_windows(self._file)

    def OpenAsDocument(self):
        """Open the template itself."""
        return self._session.root.Documents.Open(self.FullName)
