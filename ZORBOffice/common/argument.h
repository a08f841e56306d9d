// One argument of an automation call. It refers to its value and does not own it: use it within the call's
// expression.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <concepts>

#include "ZORBOffice/common/bstr.h"

namespace zorboffice {

class Argument {
 public:
  // The variant kind follows the C++ type exactly: no argument changes its kind on the way.
  Argument(std::same_as<SHORT> auto value) : Argument(VT_I2) { V_I2(&value_) = value; }
  Argument(std::same_as<LONG> auto value) : Argument(VT_I4) { V_I4(&value_) = value; }
  Argument(std::same_as<BYTE> auto value) : Argument(VT_UI1) { V_UI1(&value_) = value; }
  Argument(std::same_as<float> auto value) : Argument(VT_R4) { V_R4(&value_) = value; }
  Argument(std::same_as<bool> auto value) : Argument(VT_BOOL) {
    V_BOOL(&value_) = value ? VARIANT_TRUE : VARIANT_FALSE;
  }
  Argument(const Bstr& text) : Argument(VT_BSTR) { V_BSTR(&value_) = text.get(); }

  // An object by value.
  static Argument object(IDispatch* value) {
    Argument argument(VT_DISPATCH);
    V_DISPATCH(&argument.value_) = value;
    return argument;
  }

  // A string by value.
  static Argument text(BSTR value) {
    Argument argument(VT_BSTR);
    V_BSTR(&argument.value_) = value;
    return argument;
  }

  // A date by value: days since 30 December 1899.
  static Argument date(DATE value) {
    Argument argument(VT_DATE);
    V_DATE(&argument.value_) = value;
    return argument;
  }

  // A host's variant, unchanged.
  static Argument variant(const VARIANT& value) {
    Argument argument(VT_EMPTY);
    argument.value_ = value;
    return argument;
  }

  // Leaves an optional argument out while a later one is given.
  static Argument missing() {
    Argument argument(VT_ERROR);
    V_ERROR(&argument.value_) = DISP_E_PARAMNOTFOUND;
    return argument;
  }

  // References into the host's variables: the called side may write through them.
  static Argument reference(SHORT* value) { return Argument(VT_I2, value); }
  static Argument reference(LONG* value) { return Argument(VT_I4, value); }
  static Argument reference(BYTE* value) { return Argument(VT_UI1, value); }
  static Argument reference(BSTR* value) { return Argument(VT_BSTR, value); }
  static Argument flag_reference(VARIANT_BOOL* value) { return Argument(VT_BOOL, value); }

  static Argument object_reference(IDispatch** value) { return Argument(VT_DISPATCH, value); }

  // An array of variants; null is one that was declared but never dimensioned.
  static Argument array_reference(SAFEARRAY** value) { return Argument(VT_ARRAY | VT_VARIANT, value); }

  // The same argument, matched by name instead of by position.
  Argument named(const wchar_t* name) const {
    Argument argument = *this;
    argument.name_ = name;
    return argument;
  }

  const VARIANT& value() const { return value_; }
  const wchar_t* name() const { return name_; }

 private:
  explicit Argument(int type) {
    VariantInit(&value_);
    V_VT(&value_) = static_cast<VARTYPE>(type);
  }
  Argument(int type, void* reference) : Argument(VT_BYREF | type) { V_BYREF(&value_) = reference; }

  VARIANT value_;
  const wchar_t* name_ = nullptr;
};

}  // namespace zorboffice
