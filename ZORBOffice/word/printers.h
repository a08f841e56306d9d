// The printers installed on this system.
#pragma once

#include <optional>

#include "ZORBOffice/common/bstr.h"

namespace zorboffice {

// The name of the first installed printer, in the system's order, whose name contains "PDF" in capitals.
// Throws Failure when the system cannot list its printers.
std::optional<Bstr> first_pdf_printer();

}  // namespace zorboffice
