// One argument as a host passes it.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include "ZORBOffice/common/variant.h"

namespace zorboffice {

// Reads the value behind however many references, and writes a changed one back.
class HostArgument {
 public:
  // Follows the references of argument. Returns DISP_E_BADVARTYPE for a reference that leads nowhere.
  HRESULT open(VARIANTARG& argument) noexcept;

  // Whether the host left the argument out.
  bool is_missing() const noexcept;

  // Whether the host passed a variable of its own, which write() can change.
  bool is_variable() const noexcept { return in_variant_ || (V_VT(variable_) & VT_BYREF); }

  // Copies the value into the empty cell, converted to type (VT_VARIANT: as it is).
  HRESULT read(VARTYPE type, LCID locale, VARIANT& cell) const noexcept;

  // Stores the value in the host's variable in that variable's own type. A variant variable takes the value's
  // type where its own has no room for it.
  HRESULT write(const VARIANT& cell, LCID locale) noexcept;

 private:
  VARIANT* variable_ = nullptr;  // the value, or the typed reference to it
  bool in_variant_ = false;      // the host's variable is a variant
};

}  // namespace zorboffice
