// The library's embedded type information.
#pragma once

#include <windows.h>
#include <oaidl.h>

namespace zorboffice {

// Returns the type information of one of the library's interfaces or classes, or the failure to load it from
// the library's file.
HRESULT load_type_information(REFGUID id, ITypeInfo** information) noexcept;

}  // namespace zorboffice
