#include "ZORBOffice/word/printers.h"

#include <windows.h>
#include <winspool.h>

#include <string>
#include <string_view>
#include <vector>

#include "ZORBOffice/common/failure.h"

namespace zorboffice {
namespace {

// The system's printing library. Unlike the others it would be searched for, in the host's own folder first:
// it is loaded by its full path, when it is needed.
class PrintingLibrary {
 public:
  using Enumerate = decltype(&EnumPrintersW);

  PrintingLibrary() {
    wchar_t folder[MAX_PATH];
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length > 0 && length < MAX_PATH)
      module_ = LoadLibraryW(std::wstring(folder, length).append(L"\\winspool.drv").c_str());
    if (module_) enumerate = reinterpret_cast<Enumerate>(GetProcAddress(module_, "EnumPrintersW"));
    if (enumerate) return;
    FreeLibrary(module_);
    throw_hresult(HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND));
  }
  PrintingLibrary(const PrintingLibrary&) = delete;
  PrintingLibrary& operator=(const PrintingLibrary&) = delete;
  ~PrintingLibrary() { FreeLibrary(module_); }

  Enumerate enumerate = nullptr;

 private:
  HMODULE module_ = nullptr;
};

}  // namespace

std::optional<Bstr> first_pdf_printer() {
  // Level 4 asks the registry only: no printer is contacted, so none that is switched off can hold the member
  // up.
  constexpr DWORD level = 4;
  constexpr DWORD installed = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  const PrintingLibrary library;
  std::vector<PRINTER_INFO_4W> printers;
  DWORD count = 0;
  for (;;) {
    auto bytes = static_cast<DWORD>(printers.size()) * static_cast<DWORD>(sizeof(PRINTER_INFO_4W));
    auto* buffer = reinterpret_cast<BYTE*>(printers.data());
    if (library.enumerate(installed, nullptr, level, buffer, bytes, &bytes, &count)) break;
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
