// Use of the library unregistered: hosts that activate a context create the controls from its manifest.
#include <fstream>
#include <functional>

#include "registry.h"
#include "support/apartments.h"

namespace outside {
namespace {

// Runs `body` in the context of a manifest: the library's own, or that of an application which needs the
// library and looks for its manifest beside it.
void in_context(bool of_application, const std::function<void()>& body) {
  const std::wstring folder = library_path().substr(0, library_path().rfind(L'\\') + 1);
  const std::wstring application = folder + L"application of manifest_test.manifest";
  std::ofstream(std::string(application.begin(), application.end()))
      << R"(<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <assemblyIdentity type="win32" name="Application" version="1.0.0.0"/>
  <dependency><dependentAssembly>
    <assemblyIdentity type="win32" name="ZORBOffice" version="1.0.0.0" processorArchitecture=")"
      << (sizeof(void*) == 8 ? "amd64" : "x86") << "\"/>\n  </dependentAssembly></dependency>\n</assembly>\n";
  const std::wstring source = of_application ? application : library_path();
  ACTCTXW description = {};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
  description.lpSource = source.c_str();
  description.lpAssemblyDirectory = folder.c_str();
  description.lpResourceName = MAKEINTRESOURCEW(1);
  if (!of_application) description.dwFlags |= ACTCTX_FLAG_RESOURCE_NAME_VALID;
  const HANDLE context = CreateActCtxW(&description);
  ULONG_PTR cookie = 0;
  require(context != INVALID_HANDLE_VALUE && ActivateActCtx(context, &cookie), "context");
  body();
  EXPECT_TRUE(DeactivateActCtx(0, cookie));
  ReleaseActCtx(context);
  DeleteFileW(application.c_str());
}

// What a host that knows only names and identifiers finds in the present context.
void expect_controls(HRESULT found) {
  ComPtr<ITypeLib> types;
  EXPECT_EQ(SUCCEEDED(LoadRegTypeLib(guid(library_id), 1, 0, 0, &types)), SUCCEEDED(found));
  for (const ClassIds& ids : classes) {
    SCOPED_TRACE(ids.name);
    const auto create = [&](REFCLSID id) {
      ComPtr<IUnknown> instance;
      return CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, guid(ids.interface_id), &instance);
    };
    EXPECT_EQ(create(guid(ids.class_id)), found);
    for (const auto version : {L"", L".1"}) {
      // The identifier may be one that only the context knows.
      CLSID id = {};
      const auto name = L"ZORBOffice." + (ids.name + std::wstring(version));
      EXPECT_EQ(SUCCEEDED(CLSIDFromProgID(name.c_str(), &id)), SUCCEEDED(found));
      EXPECT_EQ(create(id), found);
    }
    if (FAILED(found)) continue;
    for (const auto& [aspect, wanted] : {std::pair{DVASPECT_CONTENT, 131473u}, {DVASPECT_ICON, 0u}}) {
      DWORD status = 1;
      EXPECT_EQ(OleRegGetMiscStatus(guid(ids.class_id), aspect, &status), S_OK);
      EXPECT_EQ(status, wanted);
    }
    for (const auto& [id, marshaller] :
         {std::pair{ids.interface_id, L"{00020424-0000-0000-C000-000000000046}"},
          std::pair{ids.events_id, L"{00020420-0000-0000-C000-000000000046}"}}) {
      CLSID stands = {};
      EXPECT_EQ(CoGetPSClsid(guid(id), &stands), S_OK);
      EXPECT_EQ(stands, guid(marshaller));
    }
  }
}

TEST(Manifest, lets_hosts_create_the_controls_unregistered) {
  unregister_all();
  for (const bool of_application : {false, true}) {
    SCOPED_TRACE(of_application ? "application's manifest" : "manifest in the library");
    expect_controls(REGDB_E_CLASSNOTREG);
    in_context(of_application, [] { expect_controls(S_OK); });
  }
  expect_controls(REGDB_E_CLASSNOTREG);
}

TEST(Manifest, serves_other_apartments) {
  const auto create = [] {
    ComPtr<IUnknown> instance;
    EXPECT_EQ(CoCreateInstance(guid(classes[0].class_id), nullptr, CLSCTX_INPROC_SERVER,
                               guid(classes[0].interface_id), &instance),
              S_OK);
    ComPtr<IClientSecurity> proxy;
    ASSERT_EQ(instance.As(&proxy), S_OK) << "no proxy";
  };
  run_in({{COINIT_MULTITHREADED, [&] { in_context(true, create); }}});
  // Where marshalling takes it from a manifest, Wine registers the type library.
  UnRegisterTypeLib(guid(library_id), 1, 0, 0x409, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
}

}  // namespace
}  // namespace outside
