#include <algorithm>
#include <iterator>

#include "ZORBOffice/common/message_box.h"
#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

struct Status {
  LONG number;  // an OlTaskStatus value
  std::wstring_view text;
};

constexpr Status statuses[] = {
    {2, L"Completed"},
    {4, L"Deferred"},
    {1, L"In Progress"},
    {0, L"Not Started"},
    {3, L"Waiting on someone else"},
};

// A number that has no text stands for itself.
constinit const Format as_status = {
    says("`Completed`, `Deferred`, `In Progress`, `Not Started` or `Waiting on someone else`"),
    [](const AutomationObject& item, const wchar_t* member) {
      const LONG number = item.typed().get(member).int32();
      const auto* row = std::ranges::find(statuses, number, &Status::number);
      return row == std::end(statuses) ? decimal(number) : Bstr(row->text);
    }};

constinit const Conversion from_status = {
    says("one of the five status texts; another text is said in a box and not written"),
    [](const AutomationObject& item, const wchar_t* member, BSTR value) {
      const auto* row = std::ranges::find(statuses, view(value), &Status::text);
      if (row == std::end(statuses)) return show_message(concatenated({L"unknown Status ", view(value)}));
      item.typed().put(member, row->number);
    }};

constexpr Property rows[] = {
    text_property(L"Body", says("The task's text.")),
    {L"CreationDate", L"CreationTime", says("The day on which the item was made."), &as_date},
    {L"CreationTime", L"CreationTime", says("The time of day at which the item was made."), &as_time},
    {L"DueDate", L"DueDate", says("The day on which the task is due."), &as_date, &from_date},
    {L"EntryID", L"EntryID", says("The item's identifier, for GetItem."), &as_text},
    {L"Folder", L"Parent", says("The name of the folder that the item is in."), &as_name},
    {L"ModifiedDate", L"LastModificationTime", says("The day on which the item was last changed."), &as_date},
    {L"ModifiedTime", L"LastModificationTime", says("The time of day at which the item was last changed."),
     &as_time},
    {L"PercentComplete", L"PercentComplete", says("How much of it is done, 0 to 100."), &as_decimal,
     &from_int16},
    {L"Priority", L"Importance", says("How important it is: low (0), normal (1) or high (2)."), &as_decimal,
     &from_int16},
    {L"Reminder", L"ReminderSet", says("Whether there is a reminder."), &as_flag},
    {L"ReminderDate", L"ReminderTime",
     says("The day of the reminder; writing sets its time too, but switches no reminder on."), &as_date,
     &from_date},
    {L"ReminderTime", L"ReminderTime", says("The time of day of the reminder."), &as_time},
    text_property(L"Subject", says("The subject.")),
    {L"StartDate", L"StartDate", says("The day on which the task begins."), &as_date, &from_date},
    {L"Status", L"Status", says("How far the task is, in English words."), &as_status, &from_status},
};

}  // namespace

constinit const std::span<const Property> task_properties = rows;

}  // namespace zorboffice
