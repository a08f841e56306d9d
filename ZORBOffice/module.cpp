#include "ZORBOffice/module.h"

#include <atomic>
#include <new>

namespace zorboffice {
namespace {

HMODULE own_module = nullptr;
std::atomic<long> references = 0;
// Apart from the references: a host that unlocks too often must not unload the code of a living instance.
std::atomic<long> locks = 0;

}  // namespace

HMODULE module_handle() noexcept { return own_module; }
void set_module_handle(HMODULE module) noexcept { own_module = module; }

std::wstring module_path() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(own_module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw std::bad_alloc();
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

ModuleReference::ModuleReference() noexcept { ++references; }
ModuleReference::~ModuleReference() { --references; }

void lock_module(bool lock) noexcept { locks += lock ? 1 : -1; }

bool can_unload_module() noexcept { return references == 0 && locks <= 0; }

}  // namespace zorboffice
