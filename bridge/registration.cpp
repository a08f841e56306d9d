#include "registration.h"

#include <windows.h>
#include <objbase.h>
#include <winspool.h>

#include "served_classes.h"

namespace {

const std::wstring kClasses = L"Software\\Classes\\";
const std::wstring kPrinter =
    std::wstring(L"System\\CurrentControlSet\\Control\\Print\\Printers\\") + kPdfPrinter;

std::wstring text_of(const CLSID& id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return text;
}

bool write(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, text.c_str(),
                         static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

bool write(const std::wstring& key, const wchar_t* name, DWORD number) {
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_DWORD, &number, sizeof number) ==
         ERROR_SUCCESS;
}

bool write_class(const ServedClass& served, const std::wstring& command) {
  const std::wstring id = text_of(served.id);
  const std::wstring class_key = kClasses + L"CLSID\\" + id;
  return write(kClasses + served.program_id, nullptr, served.title) &&
         write(kClasses + served.program_id + L"\\CLSID", nullptr, id) &&
         write(class_key, nullptr, served.title) &&
         write(class_key + L"\\ProgID", nullptr, served.program_id) &&
         write(class_key + L"\\LocalServer32", nullptr, command);
}

// Nothing is ever sent to the printer's port: whoever prints to it prints through the bridge.
bool write_printer() {
  return write(kPrinter, L"Name", kPdfPrinter) && write(kPrinter, L"Port", L"FILE:") &&
         write(kPrinter, L"Printer Driver", L"wineps.drv") &&
         write(kPrinter, L"Print Processor", L"wineps") && write(kPrinter, L"Datatype", L"RAW") &&
         write(kPrinter, L"Share Name", L"") && write(kPrinter, L"Attributes", PRINTER_ATTRIBUTE_LOCAL) &&
         write(kPrinter, L"Status", 0UL);
}

}  // namespace

bool register_server(unsigned short port) {
  wchar_t program[MAX_PATH];
  if (!GetModuleFileNameW(nullptr, program, MAX_PATH)) return false;
  const std::wstring command = L"\"" + std::wstring(program) + L"\" --serve " + std::to_wstring(port);
  bool written = write_printer();
  for (const ServedClass& served : kServedClasses) written = written && write_class(served, command);
  if (!written) unregister_server();
  return written;
}

void unregister_server() {
  for (const ServedClass& served : kServedClasses) {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (kClasses + served.program_id).c_str());
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (kClasses + L"CLSID\\" + text_of(served.id)).c_str());
  }
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kPrinter.c_str());
}

std::vector<std::wstring> local_printers() {
  DWORD size = 0, count = 0;
  EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 4, nullptr, 0, &size, &count);
  std::vector<BYTE> buffer(size + 1);
  if (!EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 4, buffer.data(), size, &size, &count)) return {};
  const auto* printers = reinterpret_cast<const PRINTER_INFO_4W*>(buffer.data());
  std::vector<std::wstring> names;
  for (DWORD index = 0; index < count; ++index) names.emplace_back(printers[index].pPrinterName);
  return names;
}
