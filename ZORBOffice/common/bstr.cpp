#include "ZORBOffice/common/bstr.h"

#include <charconv>
#include <iterator>
#include <new>

namespace zorboffice {

Bstr::Bstr(std::wstring_view text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
  if (!text_) throw std::bad_alloc();
}

Bstr decimal(LONG number) {
  char digits[12];
  const auto written = std::to_chars(digits, std::end(digits), number);
  return Bstr(std::wstring(digits, written.ptr));
}

std::wstring concatenated(std::initializer_list<std::wstring_view> parts) {
  std::wstring text;
  for (const std::wstring_view part : parts) text += part;
  return text;
}

}  // namespace zorboffice
