// A variant that clears itself.
#pragma once

#include <windows.h>
#include <oleauto.h>

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
