"""The recurrence of an appointment: its pattern, single occurrences, and the exceptions among them."""

import dataclasses
import datetime

from binding import Published
from outlook.model import BAD_VALUE, Collection, INSTANCE_GONE, OutlookError, within_bounds
from outlook.series import BY_DAY, BY_DAYS, BY_INSTANCE, BY_MONTH, FREQUENCIES
from outlook.store import Occurrence

NO_END = datetime.datetime(4500, 8, 31)  # What the object model gives as the end of an endless series.
TIME_ONLY = datetime.date(1899, 12, 30)
DEFAULT_COUNT = 10
A_DAY = 24 * 60


def setting(field, allowed, types=tuple(FREQUENCIES)):
    """Return a property for a number of the series; where the type has no use for it, it is 0 and cannot be
    written."""

    def read(self) -> int:
        return getattr(self.series, field) if self.series.type in types else 0

    def write(self, value: int):
        within_bounds(self.series.type, types)
        self.change(**{field: within_bounds(value, allowed)})

    return property(read, write)


class RecurrencePattern(Published):
    """The pattern of an appointment; it changes with the appointment's saving and not before."""

    Interval = setting("interval", range(1, 1000))
    DayOfWeekMask = setting("days", range(1, 128), BY_DAYS)
    DayOfMonth = setting("day", range(1, 32), BY_DAY)
    MonthOfYear = setting("month", range(1, 13), BY_MONTH)
    Instance = setting("instance", range(1, 6), BY_INSTANCE)
    Duration = setting("duration", range(1, 999 * A_DAY))

    def __init__(self, item):
        self._item = item

    @property
    def series(self):
        series = self._item.series
        if series is None:
            raise OutlookError(INSTANCE_GONE)
        return series

    def change(self, **values):
        self._item.change("series", dataclasses.replace(self.series, **values))

    Class = 28

    @property
    def Parent(self):
        return self._item

    @property
    def RecurrenceType(self) -> int:
        return self.series.type

    @RecurrenceType.setter
    def RecurrenceType(self, value: int):
        if within_bounds(value, FREQUENCIES) != self.series.type:
            self._item.change("series", self.series.of_type(value))

    @property
    def PatternStartDate(self) -> datetime.datetime:
        return _midnight(self.series.first())

    @PatternStartDate.setter
    def PatternStartDate(self, value: datetime.datetime):
        if self.series.last_day and value.date() > self.series.last_day:
            raise OutlookError(BAD_VALUE)
        self.change(start=datetime.datetime.combine(value, self.series.start.time()))

    @property
    def PatternEndDate(self) -> datetime.datetime:
        return NO_END if self.series.is_endless else _midnight(self.series.end())

    @PatternEndDate.setter
    def PatternEndDate(self, value: datetime.datetime):
        if value.date() < self.series.start.date():
            raise OutlookError(BAD_VALUE)
        self.change(last_day=value.date(), count=None)

    @property
    def NoEndDate(self) -> bool:
        return self.series.is_endless

    @NoEndDate.setter
    def NoEndDate(self, value: bool):
        if value:
            self.change(last_day=None, count=None)
        elif self.series.is_endless:
            self.change(count=DEFAULT_COUNT)

    @property
    def Occurrences(self) -> int:
        if self.series.is_endless:
            return 0
        return self.series.count or self.series.starts().count()

    @Occurrences.setter
    def Occurrences(self, value: int):
        self.change(count=within_bounds(value, range(1, 1000)), last_day=None)

    @property
    def StartTime(self) -> datetime.datetime:
        return datetime.datetime.combine(TIME_ONLY, self.series.start.time())

    @StartTime.setter
    def StartTime(self, value: datetime.datetime):
        self.change(start=datetime.datetime.combine(self.series.start, value.time().replace(second=0)))

    @property
    def EndTime(self) -> datetime.datetime:
        end = self.series.start + datetime.timedelta(minutes=self.series.duration)
        return datetime.datetime.combine(TIME_ONLY, end.time())

    @EndTime.setter
    def EndTime(self, value: datetime.datetime):
        end = datetime.datetime.combine(self.series.start, value.time().replace(second=0))
        minutes = (end - self.series.start) // datetime.timedelta(minutes=1)
        self.change(duration=minutes % A_DAY or A_DAY)

    @property
    def Exceptions(self):
        return Exceptions(self._item)

    def GetOccurrence(self, StartDate: datetime.datetime):
        """An occurrence that was changed answers to its original start and to its own."""
        record = self._item.record
        for original, change in record.changes.items():
            if StartDate == original or (change and change.values["Start"] == StartDate):
                if change is None:
                    break
                return change.kind(self._item.outlook, change)
        else:
            if StartDate in self.series.starts():
                own = {"series": None, "Start": StartDate, "Duration": self.series.duration}
                occurrence = Occurrence(record, StartDate, self._item.values() | own)
                return occurrence.kind(self._item.outlook, occurrence)
        raise OutlookError(INSTANCE_GONE)


class SeriesException(Published):
    """A changed or deleted occurrence."""

    def __init__(self, item, original):
        self._item = item
        self._original = original

    @property
    def OriginalDate(self) -> datetime.datetime:
        return self._original

    @property
    def Deleted(self) -> bool:
        return self._item.record.changes.get(self._original) is None

    @property
    def AppointmentItem(self):
        if self.Deleted:
            raise OutlookError(INSTANCE_GONE)
        change = self._item.record.changes[self._original]
        return change.kind(self._item.outlook, change)


class Exceptions(Collection):
    """In the order of the dates that they had in the series."""

    def __init__(self, item):
        self._item = item

    def all(self):
        return [SeriesException(self._item, original) for original in sorted(self._item.record.changes)]


def _midnight(day):
    return datetime.datetime(day.year, day.month, day.day)
