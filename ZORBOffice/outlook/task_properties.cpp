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
    "`Completed`, `Deferred`, `In Progress`, `Not Started` or `Waiting on someone else`",
    [](const AutomationObject& item, const wchar_t* member) {
      const LONG number = item.typed().get(member).int32();
      const auto* row = std::ranges::find(statuses, number, &Status::number);
      return row == std::end(statuses) ? decimal(number) : Bstr(row->text);
    }};

constinit const Conversion from_status = {
    "one of the five status texts; another text is said in a box and not written",
    [](const AutomationObject& item, const wchar_t* member, BSTR value) {
      const auto* row = std::ranges::find(statuses, view(value), &Status::text);
      if (row == std::end(statuses)) return show_message(concatenated({L"unknown Status ", view(value)}));
      item.typed().put(member, row->number);
    }};

constexpr Property rows[] = {
    text_property(L"Body"),
    {L"CreationDate", L"CreationTime", &as_date},
    {L"CreationTime", L"CreationTime", &as_time},
    {L"DueDate", L"DueDate", &as_date, &from_date},
    {L"EntryID", L"EntryID", &as_text},
    {L"Folder", L"Parent", &as_name},
    {L"ModifiedDate", L"LastModificationTime", &as_date},
    {L"ModifiedTime", L"LastModificationTime", &as_time},
    {L"PercentComplete", L"PercentComplete", &as_decimal, &from_int16},
    {L"Priority", L"Importance", &as_decimal, &from_int16},
    {L"Reminder", L"ReminderSet", &as_flag},
    {L"ReminderDate", L"ReminderTime", &as_date, &from_date},
    {L"ReminderTime", L"ReminderTime", &as_time},
    text_property(L"Subject"),
    {L"StartDate", L"StartDate", &as_date, &from_date},
    {L"Status", L"Status", &as_status, &from_status},
};

}  // namespace

constinit const std::span<const Property> task_properties = rows;

}  // namespace zorboffice
