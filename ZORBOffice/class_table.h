// The list of the library's three classes. Nothing below knows it: whoever needs a class is handed its row.
#pragma once

#include <span>

#include "ZORBOffice/surface/class_row.h"

namespace zorboffice {

// The table, empty until load_class_table() has succeeded.
std::span<const ClassRow> class_table() noexcept;

// Reads the interface identifiers from the library's resources. Returns false where one is damaged.
bool load_class_table() noexcept;

}  // namespace zorboffice
