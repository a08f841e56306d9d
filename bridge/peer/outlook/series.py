"""When the appointments of a series begin; the calendar's arithmetic is dateutil's."""

import dataclasses
import datetime
import itertools

from dateutil import rrule

# OlRecurrenceType.
DAILY, WEEKLY, MONTHLY, MONTHLY_NTH, YEARLY, YEARLY_NTH = 0, 1, 2, 3, 5, 6
FREQUENCIES = {
    DAILY: rrule.DAILY,
    WEEKLY: rrule.WEEKLY,
    MONTHLY: rrule.MONTHLY,
    MONTHLY_NTH: rrule.MONTHLY,
    YEARLY: rrule.YEARLY,
    YEARLY_NTH: rrule.YEARLY,
}
# Of OlDaysOfWeek, the lowest bit first.
DAYS = (rrule.SU, rrule.MO, rrule.TU, rrule.WE, rrule.TH, rrule.FR, rrule.SA)
# Which of a series' settings count for which types.
BY_DAYS = (WEEKLY, MONTHLY_NTH, YEARLY_NTH)
BY_DAY = (MONTHLY, YEARLY)
BY_INSTANCE = (MONTHLY_NTH, YEARLY_NTH)
BY_MONTH = (YEARLY, YEARLY_NTH)
LAST = 5  # The instance that means the last one of a month.


@dataclasses.dataclass(frozen=True)
class Series:
    """A rule; one without a count or a last day never ends."""

    start: datetime.datetime
    duration: int
    type: int
    days: int
    day: int
    month: int
    instance: int
    interval: int = 1
    count: int | None = None
    last_day: datetime.date | None = None

    @classmethod
    def new(cls, start, duration, kind=WEEKLY):
        """Return the series of a type that an appointment suggests by its own date."""
        days = 1 << (start.weekday() + 1) % 7
        return cls(start, duration, kind, days, start.day, start.month, (start.day + 6) // 7)

    def of_type(self, kind):
        """Return the series with another type, as suggested by its first day."""
        new = Series.new(self.start, self.duration, kind)
        return dataclasses.replace(new, count=self.count, last_day=self.last_day)

    def starts(self):
        """Return the starts of all appointments in their order, as dateutil's rule."""
        choice = {}
        if self.type in BY_DAYS:
            choice["byweekday"] = [day for bit, day in enumerate(DAYS) if self.days >> bit & 1]
        if self.type in BY_INSTANCE:
            choice["bysetpos"] = -1 if self.instance == LAST else self.instance
        if self.type in BY_DAY:
            # A month that is too short has its appointment on its last day.
            choice["bymonthday"] = range(min(self.day, 28), self.day + 1)
            choice["bysetpos"] = -1
        if self.type in BY_MONTH:
            choice["bymonth"] = self.month
        until = self.last_day and datetime.datetime.combine(self.last_day, datetime.time.max)
        frequency = FREQUENCIES[self.type]
        return rrule.rrule(
            frequency, self.start, self.interval, wkst=rrule.SU, count=self.count, until=until, **choice
        )

    @property
    def is_endless(self):
        return self.count is None and self.last_day is None

    def first(self):
        """Return the first start; of a series without any, the day it was to begin."""
        return next(iter(self.starts()), self.start)

    def end(self):
        """Return the day on which a series with an end ends."""
        return self.last_day or max(itertools.islice(self.starts(), self.count), default=self.start).date()
