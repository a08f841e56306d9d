#include "ZORBOffice/word/printers.h"

#include <windows.h>
#include <winspool.h>

#include <string_view>
#include <vector>

#include "ZORBOffice/common/failure.h"

namespace zorboffice {

std::optional<Bstr> first_pdf_printer() {
  // Level 4 asks the registry only: no printer is contacted, so none that is switched off can hold the member
  // up.
  constexpr DWORD level = 4;
  constexpr DWORD installed = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  std::vector<PRINTER_INFO_4W> printers;
  DWORD count = 0;
  for (;;) {
    auto bytes = static_cast<DWORD>(printers.size()) * static_cast<DWORD>(sizeof(PRINTER_INFO_4W));
    auto* buffer = reinterpret_cast<BYTE*>(printers.data());
    if (EnumPrintersW(installed, nullptr, level, buffer, bytes, &bytes, &count)) break;
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) throw_hresult(HRESULT_FROM_WIN32(GetLastError()));
    printers.resize(bytes / sizeof(PRINTER_INFO_4W) + 1);
  }
  for (DWORD i = 0; i < count; ++i) {
    const std::wstring_view name = printers[i].pPrinterName;
    if (name.find(L"PDF") != std::wstring_view::npos) return Bstr(name);
  }
  return std::nullopt;
}

}  // namespace zorboffice
