// The built library as a stranger meets it: a file beside the test program, its entry points, its
// identifiers. Nothing here comes from the library's own headers: these are the values that hosts have
// stored.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <wrl/client.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace outside {

using Microsoft::WRL::ComPtr;

struct ClassIds {
  const wchar_t *name, *class_id, *interface_id, *events_id;
};
inline constexpr auto library_id = L"{8698DD46-FA38-4FD0-8336-FA997FB10D92}";
inline constexpr ClassIds classes[] = {
    {L"ZORBWord", L"{495CDEB3-7F1E-4663-9DB2-E33437412CE0}", L"{79397B6A-4416-4196-8824-6E599916DC95}",
     L"{EDE70B6E-665B-435C-AC4B-27A4E10D18CC}"},
    {L"ZORBOutlook", L"{A04BAF5A-D329-4C3A-A012-CFFA919D559F}", L"{A7E31FE0-E2A1-4B1E-B386-22564026551D}",
     L"{A0FC765B-247C-4751-AB23-514B81F14DAF}"},
    {L"OpenWriter", L"{B0584FF2-C51E-4844-94E6-AAC137F18002}", L"{8A83A708-86A0-414A-A588-7DC374938729}",
     L"{4E2897A2-ADCE-42D9-850E-6A2BB5D32040}"}};

// Ends the running test where going on would only crash.
inline void require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(std::string("missing or refused: ") + what);
}

inline GUID guid(const wchar_t* text) {
  GUID id{};
  require(CLSIDFromString(text, &id) == S_OK, "identifier");
  return id;
}

// Loads the library once, from the test program's own folder, in a thread that has its apartment.
inline HMODULE library() {
  static const HMODULE module = [] {
    // A crash ends the program instead of waiting for a user.
    SetUnhandledExceptionFilter([](EXCEPTION_POINTERS*) WINAPI -> LONG { return EXCEPTION_EXECUTE_HANDLER; });
    CoInitialize(nullptr);
    return LoadLibraryW(L"ZORBOffice.ocx");
  }();
  require(module, "ZORBOffice.ocx beside the test program");
  return module;
}

// The text of a string that came from the other side, which is freed.
inline std::wstring take(BSTR text) {
  const std::wstring taken(text ? text : L"", SysStringLen(text));
  SysFreeString(text);
  return taken;
}

inline std::wstring library_path() {
  wchar_t path[MAX_PATH] = {};
  GetModuleFileNameW(library(), path, MAX_PATH);
  return path;
}

template <class... Parameters>
HRESULT call(const char* name, Parameters... arguments) {
  const auto address = reinterpret_cast<void*>(GetProcAddress(library(), name));
  require(address, name);
  return reinterpret_cast<HRESULT(WINAPI*)(Parameters...)>(address)(arguments...);
}

inline ComPtr<IClassFactory> factory(const ClassIds& ids) {
  ComPtr<IClassFactory> made;
  const GUID id = guid(ids.class_id);
  require(call<REFCLSID, REFIID, void**>("DllGetClassObject", id, IID_IClassFactory, &made) == S_OK,
          "factory");
  return made;
}

inline ComPtr<IDispatch> create(const ClassIds& ids) {
  ComPtr<IDispatch> made;
  require(factory(ids)->CreateInstance(nullptr, IID_IDispatch, &made) == S_OK, "instance");
  return made;
}

// Calls the method of that slot of a vtable; an argument is the value of its variant's type.
inline HRESULT call_slot(IUnknown* target, size_t slot, std::vector<VARIANT>& arguments) {
  std::vector<VARTYPE> types;
  std::vector<VARIANT*> places;
  for (VARIANT& argument : arguments) types.push_back(V_VT(&argument)), places.push_back(&argument);
  VARIANT answer = {};
  const HRESULT called = DispCallFunc(target, slot * sizeof(void*), CC_STDCALL, VT_ERROR,
                                      static_cast<UINT>(types.size()), types.data(), places.data(), &answer);
  return FAILED(called) ? called : V_ERROR(&answer);
}

}  // namespace outside
