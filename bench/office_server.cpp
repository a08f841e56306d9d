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

#include "bench/marshaling.h"
#include "bench/office.h"
#include "bench/office_registration.h"

namespace {

void serve(const std::wstring& folder, HANDLE stopped) {
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  struct Unregistered {
    ~Unregistered() { bench::unregister_applications(); }
  } at_the_end;
  bench::register_applications(folder, L"\"" + std::wstring(program) + L"\" --serve \"" + folder + L"\"");
  ResetEvent(stopped);  // an earlier server that does not end holds it as it was
  bench::keep_proxies_and_stubs_at_hand();
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
