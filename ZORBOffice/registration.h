// What the registry gets.
#pragma once

#include <windows.h>

namespace zorboffice {

// Writes all entries of the three classes and the type library below the machine's classes. On failure
// removes what it wrote and returns the failure.
HRESULT register_library() noexcept;

// Removes the same entries; one that is not there is no failure. Keys that hold anything else are kept.
HRESULT unregister_library() noexcept;

}  // namespace zorboffice
