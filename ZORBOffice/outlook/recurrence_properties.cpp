#include <string>

#include "ZORBOffice/common/conversions.h"
#include "ZORBOffice/common/failure.h"
#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

// Each exception's mark, "-" for a deleted and "+" for a changed occurrence, and its day, joined by ",".
constinit const Format as_exception_list = {
    "each exception as `-` (deleted) or `+` (changed) and `dd/MM/yyyy`, joined by `,`",
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
constinit const Conversion from_day = {"1 to 31; otherwise a warning, and 1", write_int16};
constinit const Conversion from_month = {
    "1 to 31; otherwise a warning, and 1 (Outlook itself refuses 13 to 31)", write_int16};
constinit const Conversion from_mask = {"1 to 127; above, a warning and 127; below, a warning and 2",
                                        write_int16};
constinit const Conversion from_type = {"0, 1, 2, 3, 5 or 6; otherwise a warning, and 0", write_int16};

constexpr Property pattern_rows[] = {
    {L"Class", L"Class", &as_decimal},
    {L"DayOfMonth", L"DayOfMonth", &as_decimal, &from_day},
    {L"DayOfWeekMask", L"DayOfWeekMask", &as_decimal, &from_mask},
    {L"Duration", L"Duration", &as_decimal, &from_int16},
    {L"EndTime", L"EndTime", &as_date_time, &from_date},
    {L"Interval", L"Interval", &as_decimal, &from_int16},
    {L"Instance", L"Instance", &as_decimal, &from_int16},
    {L"MonthOfYear", L"MonthOfYear", &as_decimal, &from_month},
    {L"NoEndDate", L"NoEndDate", &as_flag, &from_flag},
    {L"Occurrences", L"Occurrences", &as_decimal, &from_int16},
    {L"PatternEndDate", L"PatternEndDate", &as_date, &from_date},
    {L"PatternStartDate", L"PatternStartDate", &as_date},
    {L"PatternStartDate", L"PatternEndDate", nullptr, &from_date},  // hosts know it so: the start stays
    {L"RecurrenceType", L"RecurrenceType", &as_decimal, &from_type},
    {L"StartTime", L"StartTime", &as_date_time, &from_date},
    {L"Exception Count", L"Exceptions", &as_count},
    {L"Exception List", L"Exceptions", &as_exception_list},
};

constexpr Property exception_rows[] = {
    {L"OriginalDate", L"OriginalDate", &as_date},
    {L"Deleted", L"Deleted", &as_flag},
};

}  // namespace

constinit const std::span<const Property> recurrence_properties = pattern_rows;
constinit const std::span<const Property> exception_properties = exception_rows;

}  // namespace zorboffice
