// zorboffice_bridge: the COM local server of the bridge. See README.md for the whole picture.
#include "peer.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <utility>

#include "call_error.h"
#include "class_factory.h"
#include "client_watch.h"
#include "registration.h"
#include "remote_object.h"
#include "served_classes.h"
#include "text.h"

namespace {

constexpr const char* kUsage =
    "usage: zorboffice_bridge --register PORT   write the classes and the PDF printer for the peer at PORT\n"
    "       zorboffice_bridge --unregister      remove them\n"
    "       zorboffice_bridge --serve PORT      serve clients until the peer hangs up\n"
    "       zorboffice_bridge --check CLASS     create an object of a class as any client would\n";

int fail(const char* text) {
  std::fprintf(stderr, "zorboffice_bridge: %s\n", text);
  return 1;
}

// Tells the peer what only this side of the border can see.
void greet(Peer& peer) {
  Json printers = Json::array();
  for (const std::wstring& name : local_printers()) printers.push_back(narrow(name));
  const HDC screen = GetDC(nullptr);
  const int dots_per_inch = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  peer.ask({{"do", "hello"},
            {"printers", printers},
            {"pdf_printer", narrow(kPdfPrinter)},
            {"screen", {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}},
            {"dots_per_inch", dots_per_inch}});
}

// Every object that goes to a client needs a stub, for which the platform reads the registry anew each time,
// unless it finds the stubs' class among those that the process itself offers.
void keep_stubs_at_hand() {
  CLSID stubs{};
  IUnknown* factory = nullptr;
  DWORD cookie = 0;
  if (FAILED(CoGetPSClsid(IID_IDispatch, &stubs)) || FAILED(CoRegisterPSClsid(IID_IDispatch, stubs))) return;
  if (FAILED(CoGetClassObject(stubs, CLSCTX_INPROC_SERVER, nullptr, IID_IPSFactoryBuffer,
                              reinterpret_cast<void**>(&factory)))) {
    return;
  }
  CoRegisterClassObject(stubs, factory, CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER, REGCLS_MULTIPLEUSE,
                        &cookie);
  factory->Release();
}

// What answers the clients.
struct Server {
  Peer peer;
  RemoteObjects objects{peer};
  ClientWatch clients{peer};
  ClassFactory factories[kServedClasses.size()] = {{kServedClasses[0], peer, clients, objects},
                                                   {kServedClasses[1], peer, clients, objects},
                                                   {kServedClasses[2], peer, clients, objects}};
};

// Keeps an object of each interface that clients call ready for them, for ever. Where the last one goes, Wine
// takes the interface back, and waits for ever for a call before that is just ending, or for another client's
// that is just offering it anew.
bool keep_interfaces(Server& server) {
  VARIANT none{};
  V_VT(&none) = VT_ARRAY | VT_VARIANT;
  V_ARRAY(&none) = SafeArrayCreateVector(VT_VARIANT, 0, 0);
  const std::pair<const IID&, IUnknown*> kept[] = {{IID_IClassFactory, &server.factories[0]},
                                                   {IID_IDispatch, server.objects.make(0, "")},
                                                   {IID_IEnumVARIANT, new Enumeration(none)}};
  return std::ranges::all_of(kept, [](const auto& each) {
    IStream* stream = nullptr;
    return SUCCEEDED(CreateStreamOnHGlobal(nullptr, TRUE, &stream)) &&
           SUCCEEDED(CoMarshalInterface(stream, each.first, each.second, MSHCTX_LOCAL, nullptr,
                                        MSHLFLAGS_TABLESTRONG));
  });
}

int serve(unsigned short port) {
  keep_stubs_at_hand();
  // A client that comes while the server is still starting makes the platform start another one.
  const HANDLE only = CreateMutexW(nullptr, TRUE, L"ZORBOffice bridge");
  if (!only || GetLastError() == ERROR_ALREADY_EXISTS) return fail("already serving");
  // Never destroyed: clients may hold objects to the end of the process, and its other threads use the peer.
  Server& server = *new Server;
  if (!keep_interfaces(server)) return fail("cannot offer the interfaces");
  if (!server.peer.connect(port)) return fail("no peer at the port");
  try {
    greet(server.peer);
  } catch (const CallError&) {
    return fail("the peer does not answer");
  }
  DWORD cookies[kServedClasses.size()] = {};
  bool registered = true;
  for (size_t index = 0; index < std::size(cookies); ++index) {
    registered &= SUCCEEDED(CoRegisterClassObject(kServedClasses[index].id, &server.factories[index],
                                                  CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &cookies[index]));
  }
  if (registered) {
    std::puts("ready");
    std::fflush(stdout);
    server.peer.wait_until_gone();
  }
  for (const DWORD cookie : cookies) CoRevokeClassObject(cookie);
  return registered ? 0 : fail("cannot register the class objects");
}

int check(const wchar_t* program_id) {
  IDispatch* application = nullptr;
  CLSID id{};
  HRESULT result = CLSIDFromProgID(program_id, &id);
  if (SUCCEEDED(result)) {
    result = CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                              reinterpret_cast<void**>(&application));
  }
  if (FAILED(result)) {
    std::fprintf(stderr, "zorboffice_bridge: cannot create an object of the class: 0x%08lX\n", result);
    return 1;
  }
  application->Release();
  return 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const std::wstring_view command = count > 1 ? arguments[1] : L"";
  const auto port = static_cast<unsigned short>(count > 2 ? std::wcstoul(arguments[2], nullptr, 10) : 0);
  if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) return fail("cannot start COM");
  int result = 2;
  if (command == L"--register" && port != 0) {
    result = register_server(port) ? 0 : fail("cannot write the registry");
  } else if (command == L"--unregister") {
    unregister_server();
    result = 0;
  } else if (command == L"--serve" && port != 0) {
    result = serve(port);
  } else if (command == L"--check" && count > 2) {
    result = check(arguments[2]);
  } else {
    std::fputs(kUsage, stderr);
  }
  CoUninitialize();
  return result;
}
