#include "ZORBOffice/common/conversions.h"
#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

// Only the private level is carried over: personal and confidential become normal.
constinit const Conversion from_privacy = {
    says("2 is private (2), any other number of 16 bits normal (0)"),
    [](const AutomationObject& item, const wchar_t* member, BSTR value) {
      constexpr LONG normal = 0;      // olNormal
      constexpr LONG is_private = 2;  // olPrivate
      const LONG converted = int16_of(value) == is_private ? is_private : normal;
      item.typed().put(member, converted);
    }};

constexpr Property rows[] = {
    {L"AllDayEvent", L"AllDayEvent", says("Whether the appointment takes whole days."), &as_flag, &from_flag},
    {L"Billing", L"BillingInformation", says("Billing information."), &as_text, &from_text},
    text_property(L"Body", says("The appointment's text.")),
    text_property(L"Companies", says("The companies that have to do with the appointment.")),
    {L"CreatedDate", L"CreationTime", says("The day on which the item was made."), &as_date},
    {L"CreatedTime", L"CreationTime", says("The time of day at which the item was made."), &as_time},
    {L"Duration", L"Duration", says("How long it takes, in minutes."), &as_decimal, &from_int16},
    {L"End", L"End", says("When it ends."), &as_date_time, &from_date},
    {L"EndDate", L"End", says("The day on which it ends."), &as_date},
    {L"EndTime", L"End", says("The time of day at which it ends."), &as_time},
    {L"EntryID", L"EntryID", says("The item's identifier, for GetItem."), &as_text},
    {L"Folder", L"Parent", says("The name of the folder that the item is in."), &as_name},
    {L"IsRecurring", L"IsRecurring", says("Whether the appointment is a series."), &as_flag},
    {L"Importance", L"Importance", says("How important it is: low (0), normal (1) or high (2)."),
     &as_decimal},
    {L"ModifiedDate", L"LastModificationTime", says("The day on which the item was last changed."), &as_date},
    {L"ModifiedTime", L"LastModificationTime", says("The time of day at which the item was last changed."),
     &as_time},
    text_property(L"Location", says("The place.")),
    {L"MeetingStatus", L"MeetingStatus",
     says("Whether the appointment is a meeting, and in which state: an OlMeetingStatus number."),
     &as_decimal},
    text_property(L"MessageClass", says("The item's message class, as IPM.Appointment.")),
    text_property(L"Mileage", says("Miles travelled, as a text of the user's own.")),
    {L"RecurrenceState", L"RecurrenceState",
     says("Whether the item is a single appointment (0), a series (1), an occurrence (2) or an exception "
          "(3)."),
     &as_decimal},
    {L"ReminderMinutesBeforeStart", L"ReminderMinutesBeforeStart",
     says("How many minutes before the start the reminder comes."), &as_decimal, &from_int16},
    {L"ReminderSet", L"ReminderSet", says("Whether there is a reminder."), &as_flag, &from_flag},
    {L"Sensitivity", L"Sensitivity",
     says("Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3)."),
     &as_decimal, &from_privacy},
    {L"Start", L"Start", says("When it begins."), &as_date_time, &from_date},
    {L"StartDate", L"Start", says("The day on which it begins."), &as_date},
    {L"StartTime", L"Start", says("The time of day at which it begins."), &as_time},
    text_property(L"Subject", says("The subject.")),
};

}  // namespace

constinit const std::span<const Property> appointment_properties = rows;

}  // namespace zorboffice
