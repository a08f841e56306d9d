#include "ZORBOffice/common/conversions.h"

#include "ZORBOffice/common/failure.h"

namespace zorboffice {
namespace {

template <class Value, class Parse>
Value parsed(Parse parse, BSTR text) {
  Value value{};
  check(parse(text ? text : const_cast<wchar_t*>(L""), LOCALE_USER_DEFAULT, 0, &value));
  return value;
}

}  // namespace

DATE date_of(BSTR text) { return parsed<DATE>(VarDateFromStr, text); }
bool flag_of(BSTR text) { return parsed<VARIANT_BOOL>(VarBoolFromStr, text) != VARIANT_FALSE; }
SHORT int16_of(BSTR text) { return parsed<SHORT>(VarI2FromStr, text); }

Bstr general_date(DATE date) {
  Bstr text;
  check(VarBstrFromDate(date, LOCALE_USER_DEFAULT, 0, text.receive()));
  return text;
}

Bstr formatted(DATE date, const wchar_t* picture) {
  constexpr int sunday = 1;                 // vbSunday of the Basic runtime
  constexpr int week_of_first_january = 1;  // vbFirstJan1
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_DATE;
  V_DATE(&value) = date;
  Bstr text;
  check(VarFormat(&value, const_cast<wchar_t*>(picture), sunday, week_of_first_january, 0, text.receive()));
  return text;
}

}  // namespace zorboffice
