"""Appointments, single ones and series."""

import datetime

from outlook.item import FullItem
from outlook.model import BAD_VALUE, END_BEFORE_START, INSTANCE_GONE, OutlookError, fields, within_bounds
from outlook.recurrence import RecurrencePattern
from outlook.series import Series
from outlook.store import Occurrence

MINUTE = datetime.timedelta(minutes=1)
A_DAY = 24 * 60


@fields(str, "", "Location RequiredAttendees OptionalAttendees Resources")
@fields(str, "Stand-in", "Organizer", read_only=True)
@fields(int, 0, "MeetingStatus", within=(0, 1, 3, 5, 7))
@fields(int, 2, "BusyStatus", within=range(5))
@fields(int, 15, "ReminderMinutesBeforeStart", within=range(2**31))
@fields(bool, True, "ReminderSet")
@fields(bool, False, "ResponseRequested")
class AppointmentItem(FullItem):
    Class = 26
    message_class = "IPM.Appointment"
    home = 9

    @classmethod
    def new(cls, outlook, shelf=None):
        item = super().new(outlook, shelf)
        now = datetime.datetime.now().replace(second=0, microsecond=0)
        item.record.values.update(Start=now + (30 - now.minute % 30) * MINUTE, Duration=30)
        return item

    @property
    def series(self):
        return self.value("series")

    def _require_single(self):
        if self.series:  # A series is moved by its pattern.
            raise OutlookError(BAD_VALUE)

    @property
    def Start(self) -> datetime.datetime:
        return self.series.first() if self.series else self.value("Start")

    @Start.setter
    def Start(self, value: datetime.datetime):
        self._require_single()
        self.change("Start", value.replace(second=0))

    @property
    def Duration(self) -> int:
        return self.series.duration if self.series else self.value("Duration")

    @Duration.setter
    def Duration(self, value: int):
        self._require_single()
        self.change("Duration", within_bounds(value, range(2**31)))

    @property
    def End(self) -> datetime.datetime:
        return self.Start + self.Duration * MINUTE

    @End.setter
    def End(self, value: datetime.datetime):
        self._require_single()
        if value < self.Start:
            raise OutlookError(END_BEFORE_START)
        self.change("Duration", (value - self.Start) // MINUTE)

    @property
    def AllDayEvent(self) -> bool:
        return self.value("AllDayEvent", False)

    @AllDayEvent.setter
    def AllDayEvent(self, value: bool):
        self._require_single()
        if value:
            start = self.Start.replace(hour=0, minute=0)
            self.change("Duration", max(-(-((self.End - start) // MINUTE) // A_DAY), 1) * A_DAY)
            self.change("Start", start)
        self.change("AllDayEvent", value)

    @property
    def IsRecurring(self) -> bool:
        return self.RecurrenceState != 0

    @property
    def RecurrenceState(self) -> int:
        """OlRecurrenceState: none, master, occurrence or exception."""
        record = self.record
        if isinstance(record, Occurrence):
            return 3 if record.is_exception else 2
        return 1 if self.series else 0

    def GetRecurrencePattern(self):
        """The pattern of the series; an appointment that was single becomes the first of a weekly one."""
        if isinstance(self.record, Occurrence):
            return self.Parent.GetRecurrencePattern()
        if not self.series:
            self.change("series", Series.new(self.Start, self.Duration))
        return RecurrencePattern(self)

    def ClearRecurrencePattern(self):
        if isinstance(self.record, Occurrence):
            raise OutlookError(INSTANCE_GONE)
        start, duration = self.Start, self.Duration
        self.change("series", None)
        self.change("Start", start)
        self.change("Duration", duration)

    def Save(self):
        # The exceptions belong to the series as it was.
        if self.series != self.record.values.get("series"):
            self.record.changes.clear()
        super().Save()
