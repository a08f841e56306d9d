// An owned variant.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <utility>

namespace zorboffice {

class Variant {
 public:
  Variant() { VariantInit(&value_); }
  Variant(Variant&& other) noexcept : value_(other.release()) {}
  Variant(const Variant&) = delete;
  // Most are empty by now, and the system's function costs more than the question.
  ~Variant() {
    if (V_VT(&value_) != VT_EMPTY) VariantClear(&value_);
  }

  Variant& operator=(Variant other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }

  VARIANT& get() { return value_; }
  const VARIANT& get() const { return value_; }
  VARTYPE type() const { return V_VT(&value_); }

  // For functions that store a variant. Must be empty, or what it holds leaks.
  VARIANT* receive() { return &value_; }

  // Gives the content away and is empty afterwards; the caller clears it.
  VARIANT release() {
    const VARIANT released = value_;
    VariantInit(&value_);
    return released;
  }

 private:
  VARIANT value_;
};

}  // namespace zorboffice
