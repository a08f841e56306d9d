// Text as the tests compare and print it.
#pragma once

#include <string>
#include <string_view>

// `wide` in UTF-8 without loss: every 16-bit unit by itself, so nulls and single halves of pairs stay.
inline std::string utf8(std::wstring_view wide) {
  std::string text;
  for (const unsigned unit : wide) {
    if (unit >= 0x800)
      text += {static_cast<char>(0xE0 | unit >> 12), static_cast<char>(0x80 | (unit >> 6 & 0x3F))};
    if (unit >= 0x80 && unit < 0x800) text += static_cast<char>(0xC0 | unit >> 6);
    text += static_cast<char>(unit < 0x80 ? unit : 0x80 | (unit & 0x3F));
  }
  return text;
}
