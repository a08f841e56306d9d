"""Mails: their text in two forms, their recipients, and how they are sent."""

import datetime
import html
import html.parser

from outlook.attachments import BCC, CC, Recipients, TO
from outlook.item import FullItem
from outlook.model import MOVED_OR_DELETED, NO_DATE, NO_RECIPIENT, OutlookError, fields

SENT_ITEMS = 5
PLAIN, HTML = 1, 2  # Of OlBodyFormat.
ENDS_A_LINE = ("div", "li", "p", "table", "tr")

UNSEEN = ("head", "style", "script")


class _Text(html.parser.HTMLParser):
    """The readable text of an HTML page; a picture is its address in brackets."""

    def __init__(self, page):
        super().__init__()
        self._parts = []
        self._skipped = False
        self.feed(page)
        self.close()

    def handle_starttag(self, tag, attrs):
        if tag == "br":
            self._parts.append("\r\n")
        if tag == "img":
            self._parts.append(f"[{dict(attrs).get('src') or ''}]")
        self._skipped = self._skipped or tag in UNSEEN

    def handle_endtag(self, tag):
        if tag in ENDS_A_LINE:
            self._parts.append("\r\n")
        self._skipped = self._skipped and tag not in UNSEEN

    def handle_data(self, data):
        if not self._skipped:
            self._parts.append(data)

    def text(self):
        return "".join(self._parts).strip()


def _named(kind):
    """Return a property for the recipients of one kind, as names separated by semicolons."""

    def read(self) -> str:
        return "; ".join(name for name, own in self.recipients if own == kind)

    def write(self, value: str):
        others = [(name, own) for name, own in self.recipients if own != kind]
        names = [(name.strip(), kind) for name in value.split(";") if name.strip()]
        self.change("recipients", tuple(sorted(others + names, key=lambda pair: pair[1])))

    return property(read, write)


@fields(datetime.datetime, NO_DATE, "ReceivedTime SentOn", read_only=True)
@fields(str, "", "SenderName SenderEmailAddress", read_only=True)
@fields(bool, False, "Sent", read_only=True)
@fields(bool, False, "ReadReceiptRequested")
class MailItem(FullItem):
    Class = 43
    message_class = "IPM.Note"
    home = 16

    To = _named(TO)
    CC = _named(CC)
    BCC = _named(BCC)

    @property
    def recipients(self):
        return self.value("recipients", ())

    @property
    def Recipients(self):
        self.require()
        return Recipients(self)

    @property
    def Body(self) -> str:
        return self.value("Body", "")

    @Body.setter
    def Body(self, value: str):
        lines = html.escape(value, quote=False).replace("\r\n", "\n").replace("\n", "<br>\r\n")
        self._set_text(value, f"<html><body>{lines}</body></html>", PLAIN)

    @property
    def HTMLBody(self) -> str:
        return self.value("HTMLBody", "")

    @HTMLBody.setter
    def HTMLBody(self, value: str):
        self._set_text(_Text(value).text(), value, HTML)

    def _set_text(self, plain, page, kind):
        self.change("Body", plain)
        self.change("HTMLBody", page)
        self.change("BodyFormat", kind)

    @property
    def BodyFormat(self) -> int:
        return self.value("BodyFormat", HTML)

    def Send(self):
        if self.Sent:
            raise OutlookError(MOVED_OR_DELETED)
        if not self.recipients:
            raise OutlookError(NO_RECIPIENT)
        now = datetime.datetime.now().replace(microsecond=0)
        sent = {"Sent": True, "SentOn": now, "ReceivedTime": now, "SenderName": "Stand-in"}
        for name, value in sent.items():
            self.change(name, value)
        self.Save()
        self.record.move(SENT_ITEMS)
        self.outlook.hide(self)
        self._is_gone = True
