"""Tasks."""

import datetime

from outlook.item import FullItem
from outlook.model import NO_DATE, fields, within_bounds

NOT_STARTED, IN_PROGRESS, COMPLETE = 0, 1, 2  # Of OlTaskStatus.
ALL_DONE = 100


@fields(int, 0, "ActualWork TotalWork", within=range(2**31))
@fields(str, "", "Owner ContactNames")
@fields(bool, False, "ReminderSet")
@fields(datetime.datetime, NO_DATE, "ReminderTime")
@fields(datetime.datetime, NO_DATE, "DateCompleted", read_only=True)
class TaskItem(FullItem):
    Class = 48
    message_class = "IPM.Task"
    home = 13

    @property
    def StartDate(self) -> datetime.datetime:
        return self.value("StartDate", NO_DATE)

    @StartDate.setter
    def StartDate(self, value: datetime.datetime):
        self._set_days(value, max(value, self.DueDate))

    @property
    def DueDate(self) -> datetime.datetime:
        return self.value("DueDate", NO_DATE)

    @DueDate.setter
    def DueDate(self, value: datetime.datetime):
        self._set_days(self.StartDate if self.StartDate == NO_DATE else min(value, self.StartDate), value)

    def _set_days(self, start, due):
        """Keep the days without their times: a task does not begin after it is due."""
        self.change("StartDate", start.replace(hour=0, minute=0, second=0))
        self.change("DueDate", due.replace(hour=0, minute=0, second=0))

    @property
    def PercentComplete(self) -> int:
        return self.value("PercentComplete", 0)

    @PercentComplete.setter
    def PercentComplete(self, value: int):
        status = COMPLETE if value == ALL_DONE else IN_PROGRESS if value else NOT_STARTED
        self._set_progress(within_bounds(value, range(ALL_DONE + 1)), status)

    @property
    def Status(self) -> int:
        return self.value("Status", NOT_STARTED)

    @Status.setter
    def Status(self, value: int):
        percent = {NOT_STARTED: 0, COMPLETE: ALL_DONE}.get(value, self.PercentComplete % ALL_DONE)
        self._set_progress(percent, within_bounds(value, range(5)))

    @property
    def Complete(self) -> bool:
        return self.Status == COMPLETE

    @Complete.setter
    def Complete(self, value: bool):
        self.Status = COMPLETE if value else NOT_STARTED

    def _set_progress(self, percent, status):
        today = datetime.datetime.combine(datetime.date.today(), datetime.time())
        self.change("PercentComplete", percent)
        self.change("Status", status)
        self.change("DateCompleted", today if status == COMPLETE else NO_DATE)
