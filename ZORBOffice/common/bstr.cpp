#include "ZORBOffice/common/bstr.h"

#include <new>

namespace zorboffice {

Bstr::Bstr(std::wstring_view text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
  if (!text_) throw std::bad_alloc();
}

Bstr decimal(LONG number) {
  Bstr digits;
  // The neutral locale: no user's settings change the digits or the sign.
  if (FAILED(VarBstrFromI4(number, LOCALE_INVARIANT, LOCALE_NOUSEROVERRIDE, digits.receive())))
    throw std::bad_alloc();
  return digits;
}

std::wstring concatenated(std::initializer_list<std::wstring_view> parts) {
  std::wstring text;
  for (const std::wstring_view part : parts) text += part;
  return text;
}

}  // namespace zorboffice
