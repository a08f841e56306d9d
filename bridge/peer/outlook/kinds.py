"""All kinds of items, and how a client names the one that it wants."""

from outlook.appointment import AppointmentItem
from outlook.contact import ContactItem
from outlook.item import FullItem, Item
from outlook.mail import MailItem
from outlook.model import BAD_VALUE, OutlookError, fields
from outlook.task import TaskItem


@fields(int, 3, "Color", within=range(5))
@fields(int, 200, "Width", within=range(1, 2**31))
@fields(int, 166, "Height", within=range(1, 2**31))
@fields(int, 80, "Left Top")
class NoteItem(Item):
    Class = 44
    message_class = "IPM.StickyNote"
    home = 12

    @property
    def Subject(self) -> str:
        """The first line of the note."""
        return (self.Body.splitlines() or [""])[0]


@fields(str, "", "DLName SenderName")
class OtherItem(FullItem):
    """A kind of which the stand-in knows nothing but that real folders hold it."""


def _other(name, item_class, message_class, home):
    values = {"Class": item_class, "message_class": message_class, "home": home}
    return type(name, (OtherItem,), values)


# By item type where one can be created by it; a message class means the kind whose own it begins with.
BY_TYPE = {
    0: MailItem,
    1: AppointmentItem,
    2: ContactItem,
    3: TaskItem,
    4: _other("JournalItem", 42, "IPM.Activity", 11),
    5: NoteItem,
    6: _other("PostItem", 45, "IPM.Post", 6),
    7: _other("DistListItem", 69, "IPM.DistList", 10),
}
KINDS = (
    *BY_TYPE.values(),
    _other("DocumentItem", 41, "IPM.Document", 6),
    _other("ReportItem", 46, "REPORT", 6),
    _other("MeetingRequestItem", 53, "IPM.Schedule.Meeting.Request", 6),
    _other("MeetingCancellationItem", 54, "IPM.Schedule.Meeting.Canceled", 6),
    _other("MeetingDeclinedItem", 55, "IPM.Schedule.Meeting.Resp.Neg", 6),
    _other("MeetingAcceptedItem", 56, "IPM.Schedule.Meeting.Resp.Pos", 6),
    _other("MeetingTentativeItem", 57, "IPM.Schedule.Meeting.Resp.Tent", 6),
    _other("MeetingForwardItem", 181, "IPM.Schedule.Meeting.Notification.Forward", 6),
)


def of_type(number):
    """Return the kind that an OlItemType means."""
    if number not in BY_TYPE:
        raise OutlookError(BAD_VALUE)
    return BY_TYPE[number]


def of_message_class(text):
    """Return the kind of a message class: "IPM.Note.Order" is a mail, "REPORT.IPM.Note.NDR" a report."""
    for kind in KINDS:
        own = kind.message_class.lower()
        if text.lower() == own or text.lower().startswith(own + "."):
            return kind
    raise OutlookError(BAD_VALUE)
