// What the registry gets.
#pragma once

#include <windows.h>

#include <span>

#include "ZORBOffice/surface/class_row.h"

namespace zorboffice {

enum class Scope {
  machine,  // needs an administrator
  user      // the current user's classes only
};

// Writes all entries of the classes and the type library below the scope's classes. On failure puts
// everything back as it was and returns the failure.
HRESULT register_library(Scope scope, std::span<const ClassRow> classes) noexcept;

// Removes the same entries; one that is not there is no failure. Keys that hold anything else are kept, and
// so are the entries that the library of the other bitness needs too, while that is registered.
HRESULT unregister_library(Scope scope, std::span<const ClassRow> classes) noexcept;

}  // namespace zorboffice
