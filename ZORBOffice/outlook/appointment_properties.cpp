#include "ZORBOffice/common/conversions.h"
#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

// Only the private level is carried over: personal and confidential become normal.
constinit const Conversion from_privacy = {
    "2 is private (2), any other number of 16 bits normal (0)",
    [](const AutomationObject& item, const wchar_t* member, BSTR value) {
      constexpr LONG normal = 0;      // olNormal
      constexpr LONG is_private = 2;  // olPrivate
      const LONG converted = int16_of(value) == is_private ? is_private : normal;
      item.typed().put(member, converted);
    }};

constexpr Property rows[] = {
    {L"AllDayEvent", L"AllDayEvent", &as_flag, &from_flag},
    {L"Billing", L"BillingInformation", &as_text, &from_text},
    text_property(L"Body"),
    text_property(L"Companies"),
    {L"CreatedDate", L"CreationTime", &as_date},
    {L"CreatedTime", L"CreationTime", &as_time},
    {L"Duration", L"Duration", &as_decimal, &from_int16},
    {L"End", L"End", &as_date_time, &from_date},
    {L"EndDate", L"End", &as_date},
    {L"EndTime", L"End", &as_time},
    {L"EntryID", L"EntryID", &as_text},
    {L"Folder", L"Parent", &as_name},
    {L"IsRecurring", L"IsRecurring", &as_flag},
    {L"Importance", L"Importance", &as_decimal},
    {L"ModifiedDate", L"LastModificationTime", &as_date},
    {L"ModifiedTime", L"LastModificationTime", &as_time},
    text_property(L"Location"),
    {L"MeetingStatus", L"MeetingStatus", &as_decimal},
    text_property(L"MessageClass"),
    text_property(L"Mileage"),
    {L"RecurrenceState", L"RecurrenceState", &as_decimal},
    {L"ReminderMinutesBeforeStart", L"ReminderMinutesBeforeStart", &as_decimal, &from_int16},
    {L"ReminderSet", L"ReminderSet", &as_flag, &from_flag},
    {L"Sensitivity", L"Sensitivity", &as_decimal, &from_privacy},
    {L"Start", L"Start", &as_date_time, &from_date},
    {L"StartDate", L"Start", &as_date},
    {L"StartTime", L"Start", &as_time},
    text_property(L"Subject"),
};

}  // namespace

constinit const std::span<const Property> appointment_properties = rows;

}  // namespace zorboffice
