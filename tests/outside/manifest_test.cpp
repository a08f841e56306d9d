// Use of the library unregistered: hosts that activate a context create the controls from its manifest.
#include <fstream>

#include "registry.h"

namespace outside {
namespace {

std::wstring folder() { return library_path().substr(0, library_path().rfind(L'\\') + 1); }

// How a host comes by its context.
struct Source {
  const char* name;
  std::wstring path;
  bool is_in_library;  // as its first manifest
};

Source beside_library() { return {"manifest beside the library", folder() + L"ZORBOffice.manifest", false}; }

// The manifest of an application that needs the library, beside which the library is looked for.
std::wstring application_manifest() {
  auto path = folder() + L"application of manifest_test.manifest";
  std::ofstream(std::string(path.begin(), path.end()))
      << R"(<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <assemblyIdentity type="win32" name="Application" version="1.0.0.0"/>
  <dependency><dependentAssembly>
    <assemblyIdentity type="win32" name="ZORBOffice" version="1.0.0.0" processorArchitecture=")"
      << (sizeof(void*) == 8 ? "amd64" : "x86") << "\"/>\n  </dependentAssembly></dependency>\n</assembly>\n";
  return path;
}

class ActivationContext {
 public:
  explicit ActivationContext(const Source& source) {
    const std::wstring beside = folder();
    ACTCTXW description = {};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
    description.lpSource = source.path.c_str();
    description.lpAssemblyDirectory = beside.c_str();
    if (source.is_in_library) {
      description.dwFlags |= ACTCTX_FLAG_RESOURCE_NAME_VALID;
      description.lpResourceName = MAKEINTRESOURCEW(1);
    }
    handle_ = CreateActCtxW(&description);
    require(handle_ != INVALID_HANDLE_VALUE, source.name);
  }
  ~ActivationContext() { ReleaseActCtx(handle_); }
  template <class Body>
  void within(const Body& body) const {
    ULONG_PTR cookie;
    require(ActivateActCtx(handle_, &cookie), "activation");
    body();
    EXPECT_TRUE(DeactivateActCtx(0, cookie));
  }

 private:
  HANDLE handle_;
};

ComPtr<IUnknown> create(REFCLSID id, const ClassIds& ids) {
  ComPtr<IUnknown> instance;
  const HRESULT created =
      CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, guid(ids.interface_id), &instance);
  EXPECT_EQ(created, S_OK);
  return instance;
}

// What a host that knows only names and identifiers finds.
void expect_controls() {
  ComPtr<ITypeLib> types;
  EXPECT_EQ(LoadRegTypeLib(guid(library_id), 1, 0, 0, &types), S_OK);
  for (const ClassIds& ids : classes) {
    SCOPED_TRACE(ids.name);
    EXPECT_TRUE(create(guid(ids.class_id), ids));
    for (const auto version : {L"", L".1"}) {
      // The identifier may be one that only the context knows.
      CLSID found = {};
      EXPECT_EQ(CLSIDFromProgID((L"ZORBOffice." + (ids.name + std::wstring(version))).c_str(), &found), S_OK);
      EXPECT_TRUE(create(found, ids));
    }
    for (const auto& [aspect, wanted] : {std::pair{DVASPECT_CONTENT, 131473u}, {DVASPECT_ICON, 0u}}) {
      DWORD status = 1;
      EXPECT_EQ(OleRegGetMiscStatus(guid(ids.class_id), aspect, &status), S_OK);
      EXPECT_EQ(status, wanted);
    }
    for (const auto& [id, marshaller] :
         {std::pair{ids.interface_id, L"{00020424-0000-0000-C000-000000000046}"},
          std::pair{ids.events_id, L"{00020420-0000-0000-C000-000000000046}"}}) {
      CLSID found = {};
      EXPECT_EQ(CoGetPSClsid(guid(id), &found), S_OK);
      EXPECT_EQ(found, guid(marshaller));
    }
  }
}

void expect_nothing() {
  ComPtr<IUnknown> instance;
  CLSID found;
  for (const ClassIds& ids : classes) {
    EXPECT_NE(CLSIDFromProgID((L"ZORBOffice." + std::wstring(ids.name)).c_str(), &found), S_OK);
    EXPECT_EQ(CoCreateInstance(guid(ids.class_id), nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &instance),
              REGDB_E_CLASSNOTREG);
  }
}

TEST(Manifest, lets_hosts_create_the_controls_unregistered) {
  unregister_all();
  const auto application = application_manifest();
  for (const Source& source : {beside_library(), Source{"manifest in the library", library_path(), true},
                               Source{"application's manifest", application, false}}) {
    SCOPED_TRACE(source.name);
    const ActivationContext context(source);
    expect_nothing();
    context.within(expect_controls);
    expect_nothing();
  }
  DeleteFileW(application.c_str());
}

// Calls a member by vtable from an apartment that the control does not live in.
DWORD WINAPI call_from_elsewhere(void*) {
  CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  const ActivationContext context(beside_library());
  context.within([] {
    const auto instance = create(guid(classes[0].class_id), classes[0]);
    ComPtr<IClientSecurity> proxy;
    EXPECT_EQ(instance.As(&proxy), S_OK) << "no proxy";
    LONG number = 1;
    VARIANT result = {}, target = {}, *arguments[] = {&target};
    VARTYPE types[] = {VT_I4 | VT_BYREF};
    V_BYREF(&target) = &number;
    constexpr auto last_error_number = (7 + 38) * sizeof(void*);
    EXPECT_EQ(
        DispCallFunc(instance.Get(), last_error_number, CC_STDCALL, VT_ERROR, 1, types, arguments, &result),
        S_OK);
    EXPECT_EQ(V_ERROR(&result), S_OK);
    EXPECT_EQ(number, 0);
  });
  CoUninitialize();
  return 0;
}

TEST(Manifest, serves_other_apartments) {
  HANDLE caller = CreateThread(nullptr, 0, call_from_elsewhere, nullptr, 0, nullptr);
  DWORD index;
  EXPECT_EQ(CoWaitForMultipleHandles(0, 30'000, 1, &caller, &index), S_OK);
  CloseHandle(caller);
  // Where marshalling takes it from a manifest, Wine registers the type library.
  UnRegisterTypeLib(guid(library_id), 1, 0, 0x409, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
}

}  // namespace
}  // namespace outside
