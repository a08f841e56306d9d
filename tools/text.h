// What the programs of the build write: everything that is published is ASCII.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace zorboffice {

inline std::string ascii(std::wstring_view text) { return {text.begin(), text.end()}; }

// An identifier with braces.
inline std::string text_of(REFGUID id) {
  wchar_t buffer[39];
  StringFromGUID2(id, buffer, ARRAYSIZE(buffer));
  return ascii(buffer);
}

}  // namespace zorboffice
