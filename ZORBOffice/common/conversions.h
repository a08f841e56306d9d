// Conversions between text and values as the platform's automation makes them, in the user's locale.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include "ZORBOffice/common/bstr.h"

namespace zorboffice {

// All throw "Type mismatch" for a text that does not read as such a value.
DATE date_of(BSTR text);
bool flag_of(BSTR text);    // "True" and "False" in any case, or a number
SHORT int16_of(BSTR text);  // rounds halves to even; throws "Overflow" outside 16 bits

// Short date, then the time unless it is midnight; a time of no day stands alone.
Bstr general_date(DATE date);

// A date by a format picture, in which "/" and ":" stand for the locale's separators.
Bstr formatted(DATE date, const wchar_t* picture);

}  // namespace zorboffice
