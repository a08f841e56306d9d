// An owned automation string.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace zorboffice {

// A null BSTR is the empty string, here as everywhere in automation.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text);  // throws std::bad_alloc

  // Takes over a string that the caller owns.
  static Bstr adopt(BSTR text) {
    Bstr owner;
    owner.text_ = text;
    return owner;
  }

  Bstr(const Bstr& other) : Bstr(other.view()) {}
  Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  ~Bstr() {
    if (text_) SysFreeString(text_);
  }

  Bstr& operator=(Bstr other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }

  BSTR get() const { return text_; }
  std::wstring_view view() const { return {text_ ? text_ : L"", SysStringLen(text_)}; }

  // Gives the string away; the caller frees it.
  BSTR release() { return std::exchange(text_, nullptr); }

  // For functions that store a string. Must be empty, or that string leaks.
  BSTR* receive() { return &text_; }

 private:
  BSTR text_ = nullptr;
};

// A number in decimal digits; throws std::bad_alloc.
Bstr decimal(LONG number);

// The parts, one immediately after the other; throws std::bad_alloc.
std::wstring concatenated(std::initializer_list<std::wstring_view> parts);

// A string that somebody else owns; null is empty.
inline std::wstring_view view(BSTR text) { return {text ? text : L"", SysStringLen(text)}; }

}  // namespace zorboffice
