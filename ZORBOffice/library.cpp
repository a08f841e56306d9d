// The library's entry points.
#include <windows.h>
#include <olectl.h>

#include "ZORBOffice/class_factory.h"
#include "ZORBOffice/class_table.h"
#include "ZORBOffice/module.h"
#include "ZORBOffice/registration.h"
#include "ZORBOffice/word/word_global.h"

using namespace zorboffice;

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  set_module_handle(module);
  DisableThreadLibraryCalls(module);
  return load_class_table();
}

// Returns the class factory of one of the three classes, CLASS_E_CLASSNOTAVAILABLE for any other identifier.
STDAPI DllGetClassObject(REFCLSID class_id, REFIID id, LPVOID* factory) {
  if (!factory) return E_POINTER;
  *factory = nullptr;
  for (const ClassRow& row : class_table()) {
    if (row.published.class_id == class_id) return get_class_factory(row, id, factory);
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

// Returns S_OK only while no instance and no class-factory lock is alive.
STDAPI DllCanUnloadNow() {
  if (!can_unload_module()) return S_FALSE;
  release_word_global();
  return S_OK;
}

// Registers the classes and the type library for the machine. Returns the failure of the first entry that
// could not be written; the registry is as it was then.
STDAPI DllRegisterServer() { return register_library(Scope::machine, class_table()); }

// Removes everything that DllRegisterServer wrote.
STDAPI DllUnregisterServer() { return unregister_library(Scope::machine, class_table()); }

// Does either of the two for what regsvr32's /i names: "user" in any case is the current user only; nothing
// is the machine. Returns E_INVALIDARG for any other text.
STDAPI DllInstall(BOOL install, LPCWSTR command_line) {
  Scope scope = Scope::machine;
  if (command_line && *command_line) {
    if (CompareStringOrdinal(command_line, -1, L"user", -1, TRUE) != CSTR_EQUAL) return E_INVALIDARG;
    scope = Scope::user;
  }
  return install ? register_library(scope, class_table()) : unregister_library(scope, class_table());
}
