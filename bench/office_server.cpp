// The bench's office applications in a process of their own:
//   bench_office --serve FOLDER    registers and serves them until it is told to stop; writes "ready" when it
//   does bench_office --stop            tells it so, and takes out of the registry what an interrupted run
//   left
#include <windows.h>
#include <objbase.h>

#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include "bench/office.h"
#include "bench/office_registration.h"

namespace {

// Every object that goes to a client needs a stub, for which the platform reads the registry anew each time,
// unless the process itself offers the stubs' class. That would be most of what a call takes.
void keep_stubs_at_hand() {
  CLSID stubs{};
  IUnknown* factory = nullptr;
  DWORD cookie = 0;
  if (FAILED(CoGetPSClsid(IID_IDispatch, &stubs)) || FAILED(CoRegisterPSClsid(IID_IDispatch, stubs)) ||
      FAILED(CoGetClassObject(stubs, CLSCTX_INPROC_SERVER, nullptr, IID_IPSFactoryBuffer,
                              reinterpret_cast<void**>(&factory)))) {
    return;
  }
  CoRegisterClassObject(stubs, factory, CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER, REGCLS_MULTIPLEUSE,
                        &cookie);
  factory->Release();
}

void serve(const std::wstring& folder, HANDLE stopped) {
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  struct Unregistered {
    ~Unregistered() { bench::unregister_applications(); }
  } at_the_end;
  bench::register_applications(folder, L"\"" + std::wstring(program) + L"\" --serve \"" + folder + L"\"");
  ResetEvent(stopped);  // an earlier server that does not end holds it as it was
  keep_stubs_at_hand();
  const bench::ServedClasses served(CLSCTX_LOCAL_SERVER);
  served.keep_interfaces();
  std::puts("ready");
  std::fflush(stdout);
  // A bench that broke off does not leave it behind for ever.
  WaitForSingleObject(stopped, 15 * 60 * 1000);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const std::wstring_view command = count > 1 ? arguments[1] : L"";
  CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  const HANDLE stopped = CreateEventW(nullptr, TRUE, FALSE, L"ZORBOffice bench stopped");
  try {
    if (command == L"--serve" && count > 2) {
      serve(arguments[2], stopped);
    } else if (command == L"--stop") {
      SetEvent(stopped);
      bench::unregister_applications();
    } else {
      std::fputs("usage: bench_office --serve FOLDER | --stop\n", stderr);
      return 2;
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "bench_office: %s\n", failure.what());
    return 1;
  }
  CoUninitialize();
  return 0;
}
