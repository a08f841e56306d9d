// The loaded library: its handle, and what keeps it loaded.
#pragma once

#include <windows.h>

#include <string>

namespace zorboffice {

// The library's own module handle; set before any other code of the library runs.
HMODULE module_handle() noexcept;
void set_module_handle(HMODULE module) noexcept;

// The library file's full path; throws std::bad_alloc.
std::wstring module_path();

// While one is alive the library must not be unloaded. Every object the outside can hold has one.
class ModuleReference {
 public:
  ModuleReference() noexcept;
  ~ModuleReference();
  ModuleReference(const ModuleReference&) = delete;
  ModuleReference& operator=(const ModuleReference&) = delete;
};

// IClassFactory::LockServer.
void lock_module(bool lock) noexcept;

// Whether nothing keeps the library loaded.
bool can_unload_module() noexcept;

}  // namespace zorboffice
