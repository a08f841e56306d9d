// The current appointment's recurrence pattern, its exceptions and occurrences.
#include "ZORBOffice/common/conversions.h"
#include "ZORBOffice/outlook/property_tables.h"
#include "ZORBOffice/outlook/zorb_outlook.h"

namespace zorboffice {
namespace {

// What a number must not be, what is written in its place, and what the user is told.
struct Limit {
  const wchar_t* member;  // the key also
  bool (*is_broken_by)(LONG number);
  LONG replacement;
  const wchar_t* lead_in;
  const wchar_t* tail;
  bool shows_converted = false;  // the number rather than the text that it was converted from
};

bool is_outside_1_to_31(LONG number) { return number < 1 || number > 31; }

// olRecursDaily 0, olRecursWeekly 1, olRecursMonthly 2, olRecursMonthNth 3, olRecursYearly 5, olRecursYearNth
// 6
bool is_no_recurrence_type(LONG number) { return number < 0 || number == 4 || number > 6; }

// Months are held against the bounds of days: Outlook refuses 13 to 31 itself.
constexpr Limit limits[] = {
    {L"DayOfMonth", is_outside_1_to_31, 1, L"The DayOfMonth is invalid ",
     L" it will use a default value of the first day"},
    {L"DayOfWeekMask", [](LONG number) { return number > 127; }, 127, L"The DayOfWeekMask is invalid ",
     L" it will use a default value of Every Day", true},
    {L"DayOfWeekMask", [](LONG number) { return number < 1; }, 2, L"The DayOfWeekMask is invalid ",
     L" it will use a default value of Mondays only", true},
    {L"MonthOfYear", is_outside_1_to_31, 1, L"The MonthOfYear is invalid ",
     L" it will use a default value of January"},
    {L"RecurrenceType", is_no_recurrence_type, 0, L"The RecurranceType is invalid ",
     L" it will use a default value of Daily"},
};

const Limit* broken_limit(BSTR key, BSTR value) {
  for (const Limit& limit : limits) {
    if (view(key) == limit.member && limit.is_broken_by(int16_of(value))) return &limit;
  }
  return nullptr;
}

}  // namespace

HRESULT ZORBOutlook::GetAppointmentInstance(BSTR EntryDate, VARIANT_BOOL* result) noexcept {
  return trapped(result, stored(), [&] {
    const DATE date = date_of(EntryDate);  // the empty text is no date
    VARIANT_BOOL is_taken = VARIANT_FALSE;
    check(GetRecurrencePattern(&is_taken));
    if (is_taken == VARIANT_FALSE) return false;
    const AutomationObject pattern = state_.CurrentRecurrencePattern.typed();
    state_.CurrentAppointment = pattern.get(L"GetOccurrence", Argument::date(date)).object();
    return true;
  });
}

HRESULT ZORBOutlook::GetRecurrencePattern(VARIANT_BOOL* result) noexcept {
  return trapped(result, stored(), [&] {
    const AutomationObject appointment = state_.CurrentAppointment.typed();
    state_.CurrentRecurrencePattern = appointment.get(L"GetRecurrencePattern").object();
    return success;
  });
}

HRESULT ZORBOutlook::ClearRecurrencePattern(VARIANT_BOOL* result) noexcept {
  return trapped(result, stored(), [&] {
    const AutomationObject appointment = state_.CurrentAppointment.typed();
    const bool is_recurring = appointment.get(L"IsRecurring").flag();
    if (is_recurring) {
      appointment.call(L"ClearRecurrencePattern");
    } else {
      show_message(L"not Recurrence");
    }
    return is_recurring;
  });
}

HRESULT ZORBOutlook::GetRecurrenceProperty(BSTR RecurProp, BSTR* result) noexcept {
  return trapped(result, stored(), [&] {
    return read_property(recurrence_properties, state_.CurrentRecurrencePattern, RecurProp,
                         L"Unknown Property : ");
  });
}

HRESULT ZORBOutlook::SetRecurrenceProperty(BSTR RecurProp, BSTR PropertyValue, BSTR* result) noexcept {
  // Reads the appointment: where that fails, the second failure reaches the host, unseen and not stored.
  const auto report = [&](const Failure& failure) {
    show_message(
        concatenated({view(RecurProp), L" : ", view(PropertyValue), L" : ", failure.description.view()}),
        appointment_title());
  };
  return trapped(result, both(report, stored()), [&] {
    const AutomationObject pattern = state_.CurrentRecurrencePattern;
    const Limit* limit = broken_limit(RecurProp, PropertyValue);
    if (!limit) {
      return write_property(recurrence_properties, pattern, RecurProp, PropertyValue, L"Unknown property ");
    }
    const Bstr converted = decimal(int16_of(PropertyValue));
    const std::wstring_view shown = limit->shows_converted ? converted.view() : view(PropertyValue);
    show_message(concatenated({limit->lead_in, shown, limit->tail}), appointment_title());
    pattern.typed().put(limit->member, limit->replacement);
  });
}

HRESULT ZORBOutlook::GetExceptionProperty(SHORT Instance, BSTR ExceptProp, BSTR* result) noexcept {
  return trapped(result, stored(), [&] {
    const auto exception = [&] {
      const AutomationObject pattern = state_.CurrentRecurrencePattern.typed();
      return pattern.get(L"Exceptions").get(L"Item", Instance).object();
    };
    if (view(ExceptProp) == L"Get Appointment") {
      state_.CurrentAppointment = exception().get(L"AppointmentItem").object();
      return Bstr(L"Appointment Found");
    }
    const Property* property = find_readable(exception_properties, ExceptProp);
    return property ? property->format->read(exception(), property->member) : Bstr();
  });
}

std::wstring ZORBOutlook::appointment_title() const {
  const AutomationObject appointment = state_.CurrentAppointment.typed();
  const Bstr subject = appointment.get(L"Subject").text();
  const Bstr start = general_date(appointment.get(L"Start").date());
  return concatenated({subject.view(), L" ", start.view()});
}

}  // namespace zorboffice
