#include "server.h"

#include <cstdlib>

#include "support/fake_offices.h"
#include "support/text.h"

namespace {

struct Served {
  const wchar_t *program_id, *class_id, *name;
} constexpr served[] = {{L"Word.Application", L"{5D3A2E0B-6C0E-4F53-9C0B-1B8E0A7D6F21}", L"word"},
                        {L"Outlook.Application", L"{B7C1E0A4-52D9-4E0B-8F3A-6D5C2A91F7E8}", L"outlook"}};

void write(const std::wstring& key, const std::wstring& text) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), nullptr, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// Turns calls away before they run, as an application does that shows a dialog.
struct Filter : IMessageFilter {
  HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG WINAPI AddRef() override { return 1; }
  ULONG WINAPI Release() override { return 1; }
  // References are counted also while it is busy, for which Wine asks as well.
  DWORD WINAPI HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO call) override {
    const bool busy = GetTickCount() < busy_until && call->iid == IID_IDispatch;
    return busy ? SERVERCALL_REJECTED : SERVERCALL_ISHANDLED;
  }
  DWORD WINAPI RetryRejectedCall(HTASK, DWORD, DWORD) override { return MAXDWORD; }
  DWORD WINAPI MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }
  DWORD busy_until = 0;
} filter;

// A client that broke off does not leave it behind for ever.
void run(const FakeOffice& office) {
  bool was_held = false;
  SetTimer(nullptr, 0, 50, nullptr);
  const DWORD end = GetTickCount() + 60'000;
  for (MSG message; GetTickCount() < end && GetMessageW(&message, nullptr, 0, 0) > 0;) {
    DispatchMessageW(&message);
    was_held = was_held || office.live > 0;
    if (was_held && office.live == 0) return;
  }
}

}  // namespace

Registered::Registered(const std::string& kind) {
  _putenv_s("ZORB_OFFICE", kind.c_str());
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  for (const auto& [program_id, class_id, name] : served) {
    write(program_id + std::wstring(L"\\CLSID"), class_id);
    write(std::wstring(L"CLSID\\") + class_id + L"\\LocalServer32",
          L"\"" + std::wstring(program) + L"\" --serve " + name);
  }
}

Registered::~Registered() {
  for (const auto& [program_id, class_id, name] : served)
    for (const auto& key : {std::wstring(program_id), std::wstring(L"CLSID\\") + class_id})
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str());
}

int serve(const std::string& name) {
  CoInitialize(nullptr);
  CoRegisterMessageFilter(&filter, nullptr);
  if (name == "outlook") {
    FakeOutlook office(Serving::others);
    office.answers["FoundAppointment.Subject"] = {std::to_wstring(GetCurrentProcessId()).c_str()};
    run(office);
    return 0;
  }
  FakeWord office(Serving::others);
  office.answers["Options.DefaultFilePath"] = {std::to_wstring(GetCurrentProcessId()).c_str()};
  office.answers["Selection.Text"] = {L""};
  office.answers["Selection.TypeText"].effect = [&](const DISPPARAMS& parameters) {
    const std::wstring text = V_BSTR(&parameters.rgvarg[0]);
    if (text == die) std::exit(1);
    if (text == be_busy) filter.busy_until = GetTickCount() + 333;
    auto& all = office.answers["Selection.Text"].value;
    all = (std::wstring(V_BSTR(&all)) + text).c_str();
  };
  run(office);
  return 0;
}
