#include "text.h"

#include <windows.h>

std::string narrow(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  std::string result(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr),
                     '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()),
                      nullptr, nullptr);
  return result;
}

std::wstring wide(std::string_view text) {
  const int length = static_cast<int>(text.size());
  std::wstring result(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()));
  return result;
}

std::wstring lower_case(std::wstring_view name) {
  std::wstring result(name);
  CharLowerBuffW(result.data(), static_cast<DWORD>(result.size()));
  return result;
}
