// Values on their way between COM's variants and the peer's JSON, and text between UTF-16 and UTF-8.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

// A variant that clears itself.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  VARIANT* operator->() { return &value_; }
  VARIANT* out() { return &value_; }
  // Gives the value away; the holder is empty afterwards.
  VARIANT detach() {
    const VARIANT value = value_;
    VariantInit(&value_);
    return value;
  }

 private:
  VARIANT value_;
};

// UTF-16 to UTF-8; half of a surrogate pair becomes U+FFFD.
std::string narrow(std::wstring_view text);
// UTF-8 to UTF-16.
std::wstring wide(std::string_view text);

// Turns a client's argument of any kind, by value or by reference, into what the peer reads. A null array is
// an empty one, a null object {"nothing"}, an omitted argument {"missing"}.
// Throws CallError: DISP_E_TYPEMISMATCH for an object that is not the bridge's, DISP_E_BADVARTYPE for a kind
// that has no counterpart, DISP_E_OVERFLOW for infinities.
nlohmann::json to_json(const VARIANT& value);

// Turns a value of the peer into a variant that the caller owns.
VARIANT to_variant(const nlohmann::json& value);
