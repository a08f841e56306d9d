"""Paths and file URLs between the drives of the Wine prefix and the machine underneath."""

import os
import re
import urllib.parse

import uno

WINDOWS_PATH = re.compile(r"[A-Za-z]:(?=[\\/]|$)")
WINDOWS_URL = re.compile(r"file:///([A-Za-z])(?::|%3A|\|)", re.IGNORECASE)


class Paths:
    def __init__(self, prefix):
        self._drives = {}
        devices = os.path.join(prefix, "dosdevices")
        for name in os.listdir(devices):
            if re.fullmatch("[a-z]:", name):
                self._drives[name] = os.path.realpath(os.path.join(devices, name))

    def to_unix(self, path):
        """Return the file that a Windows path means, or None for one that names no drive of the prefix.
        Case does not matter, as under Windows; parts that do not exist are kept as spelt."""
        if not WINDOWS_PATH.match(path) or "\0" in path:
            return None
        result = self._drives.get(path[:2].lower())
        for part in re.split(r"[\\/]+", path[2:]) if result else ():
            if part not in ("", "."):
                result = os.path.dirname(result) if part == ".." else _child(result, part)
        return result

    def to_windows(self, path):
        """Return a file's Windows path by the drive that holds it most closely."""
        drive, root = max(
            ((drive, root) for drive, root in self._drives.items() if _is_within(path, root)),
            key=lambda pair: len(pair[1]),
        )
        return drive.upper() + "\\" + os.path.relpath(path, root).replace("/", "\\").removeprefix(".")

    def url_to_unix(self, url):
        """Return a file URL that names a drive as one of the machine underneath; any other text unchanged.
        Backslashes and blanks stand in such URLs as clients wrote them."""
        if not WINDOWS_URL.match(url):
            return url
        drive = WINDOWS_URL.match(url)
        path = self.to_unix(drive[1] + ":" + urllib.parse.unquote(url[drive.end() :]))
        return uno.systemPathToFileUrl(path) if path else url

    def url_to_windows(self, url):
        """Return a file URL of the machine underneath as one that names a drive; any other text unchanged."""
        if not url.startswith("file:///") or WINDOWS_URL.match(url):
            return url
        path = self.to_windows(uno.fileUrlToSystemPath(url))
        return "file:///" + urllib.parse.quote(path.replace("\\", "/"), safe="/:")


def _is_within(path, root):
    return path == root or path.startswith(root.rstrip("/") + "/")


def _child(folder, name):
    exact = os.path.join(folder, name)
    try:
        if os.path.lexists(exact):
            return exact
        same = (each for each in os.listdir(folder) if each.lower() == name.lower())
        return os.path.join(folder, next(same, name))
    except OSError:
        return exact
