// The functions that the loaded library imports, which a test can put its own in the place of.
#pragma once

#include <string_view>

#include "outside/library.h"

// Lets the library call `replacement` where it imports the function called `name`; returns the function, null
// where it imports none of that name.
inline void* replace_import(std::string_view name, void* replacement) {
  auto* const base = reinterpret_cast<BYTE*>(outside::library());
  const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
  const auto* headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
  for (; library->Name; ++library) {
    auto* named = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
    auto* called = reinterpret_cast<void**>(base + library->FirstThunk);
    for (; named->u1.AddressOfData; ++named, ++called) {
      if (IMAGE_SNAP_BY_ORDINAL(named->u1.Ordinal)) continue;
      const auto* import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + named->u1.AddressOfData);
      if (name != reinterpret_cast<const char*>(import->Name)) continue;
      DWORD access = 0;
      VirtualProtect(called, sizeof *called, PAGE_READWRITE, &access);
      void* const earlier = std::exchange(*called, replacement);
      VirtualProtect(called, sizeof *called, access, &access);
      return earlier;
    }
  }
  return nullptr;
}
