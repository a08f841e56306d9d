// The class factory of all three classes.
#pragma once

#include <windows.h>
#include <unknwn.h>

#include "ZORBOffice/surface/class_row.h"

namespace zorboffice {

// Returns the class factory of a class as the interface id asks for; E_NOINTERFACE or E_OUTOFMEMORY
// otherwise.
HRESULT get_class_factory(const ClassRow& row, REFIID id, void** factory) noexcept;

}  // namespace zorboffice
