#include <string>

#include "ZORBOffice/common/conversions.h"
#include "ZORBOffice/common/failure.h"
#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

// Each exception's mark, "-" for a deleted and "+" for a changed occurrence, and its day, joined by ",".
constinit const Format as_exception_list = {
    says("each exception as `-` (deleted) or `+` (changed) and `dd/MM/yyyy`, joined by `,`"),
    [](const AutomationObject& pattern, const wchar_t* member) {
      const auto exceptions = [&] { return pattern.typed().get(member); };
      const LONG count = exceptions().get(L"Count").int32();
      std::wstring list;
      for (LONG index = 1; index <= count; ++index) {
        // The object model is asked with a 16-bit index.
        if (index > SHRT_MAX) throw_runtime_error(runtime_error::overflow);
        const auto exception = [&] { return exceptions().get(L"Item", static_cast<SHORT>(index)); };
        if (!list.empty()) list += L',';
        list += exception().get(L"Deleted").flag() ? L'-' : L'+';
        list += formatted(exception().get(L"OriginalDate").date(), L"dd/mm/yyyy").view();
      }
      return Bstr(list);
    }};

// recurrence.cpp warns of what is out of bounds, and writes the replacement.
constinit const Conversion from_day = {says("1 to 31; otherwise a warning, and 1"), write_int16};
constinit const Conversion from_month = {
    says("1 to 31; otherwise a warning, and 1 (Outlook itself refuses 13 to 31)"), write_int16};
constinit const Conversion from_mask = {says("1 to 127; above, a warning and 127; below, a warning and 2"),
                                        write_int16};
constinit const Conversion from_type = {says("0, 1, 2, 3, 5 or 6; otherwise a warning, and 0"), write_int16};

constexpr Property pattern_rows[] = {
    {L"Class", L"Class", says("The pattern's class: an OlObjectClass number, 28."), &as_decimal},
    {L"DayOfMonth", L"DayOfMonth", says("The day of the month."), &as_decimal, &from_day},
    {L"DayOfWeekMask", L"DayOfWeekMask",
     says("The days of the week, added up: Sunday 1, Monday 2, Tuesday 4, Wednesday 8, Thursday 16, Friday "
          "32, Saturday 64."),
     &as_decimal, &from_mask},
    {L"Duration", L"Duration", says("How long an occurrence takes, in minutes."), &as_decimal, &from_int16},
    {L"EndTime", L"EndTime", says("The time of day at which an occurrence ends."), &as_date_time, &from_date},
    {L"Interval", L"Interval", says("Every how many days, weeks, months or years it recurs."), &as_decimal,
     &from_int16},
    {L"Instance", L"Instance", says("Which such day of the month: first (1) to fourth (4), or last (5)."),
     &as_decimal, &from_int16},
    {L"MonthOfYear", L"MonthOfYear", says("The month, 1 to 12."), &as_decimal, &from_month},
    {L"NoEndDate", L"NoEndDate", says("Whether the series has no end."), &as_flag, &from_flag},
    {L"Occurrences", L"Occurrences", says("How many occurrences there are."), &as_decimal, &from_int16},
    {L"PatternEndDate", L"PatternEndDate", says("The day on which the series ends."), &as_date, &from_date},
    {L"PatternStartDate", L"PatternStartDate",
     says("The day on which the series begins; it cannot be written."), &as_date},
    {L"PatternStartDate", L"PatternEndDate",
     says("Writes the day on which the series ends, as PatternEndDate does: the start stays."), nullptr,
     &from_date},  // hosts know it so
    {L"RecurrenceType", L"RecurrenceType",
     says("How it recurs: daily (0), weekly (1), monthly (2), monthly by weekday (3), yearly (5) or yearly "
          "by weekday (6)."),
     &as_decimal, &from_type},
    {L"StartTime", L"StartTime", says("The time of day at which an occurrence begins."), &as_date_time,
     &from_date},
    {L"Exception Count", L"Exceptions", says("How many exceptions the series has."), &as_count},
    {L"Exception List", L"Exceptions", says("All exceptions in one text."), &as_exception_list},
};

constexpr Property exception_rows[] = {
    {L"OriginalDate", L"OriginalDate", says("The day on which the occurrence would have been."), &as_date},
    {L"Deleted", L"Deleted", says("Whether the occurrence was deleted; otherwise it was changed."), &as_flag},
};

}  // namespace

constinit const std::span<const Property> recurrence_properties = pattern_rows;
constinit const std::span<const Property> exception_properties = exception_rows;

}  // namespace zorboffice
