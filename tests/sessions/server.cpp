#include "server.h"

#include <cstdlib>

#include "support/fake_offices.h"
#include "support/message_filter.h"

namespace {

const std::wstring classes = L"Software\\Classes\\";
struct Served {
  std::wstring program_id, class_id, name;
} const served[] = {{L"Word.Application", L"CLSID\\{5D3A2E0B-6C0E-4F53-9C0B-1B8E0A7D6F21}", L"word"},
                    {L"Outlook.Application", L"CLSID\\{B7C1E0A4-52D9-4E0B-8F3A-6D5C2A91F7E8}", L"outlook"}};

void write(const std::wstring& key, const std::wstring& text) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, (classes + key).c_str(), nullptr, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// Until it was held and is no more; a client that broke off does not leave it behind for ever.
int run(const FakeOffice& office) {
  HANDLE never = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  DWORD index = 0;
  for (int times = 0, held = 0; times < 1200 && held <= office.live; ++times) {
    held = office.live > 0;
    CoWaitForMultipleHandles(0, 50, 1, &never, &index);
  }
  return 0;
}

}  // namespace

Registered::Registered(const std::string& kind) {
  _putenv_s("ZORB_OFFICE", kind.c_str());
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  for (const auto& [program_id, class_id, name] : served) {
    write(program_id + L"\\CLSID", class_id.substr(class_id.find(L'{')));
    write(class_id + L"\\LocalServer32", L"\"" + std::wstring(program) + L"\" --serve " + name);
  }
}

Registered::~Registered() {
  for (const auto& [program_id, class_id, name] : served)
    for (const auto& key : {program_id, class_id})
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + key).c_str());
}

int serve(const std::string& name) {
  CoInitialize(nullptr);
  const _variant_t process = std::to_wstring(GetCurrentProcessId()).c_str();
  if (name == "outlook") {
    FakeOutlook office(Serving::others);
    office.answers["FoundAppointment.Subject"] = {process};
    return run(office);
  }
  MessageFilter filter;
  FakeWord office(Serving::others);
  office.answers["Options.DefaultFilePath"] = {process};
  auto& all = office.answers["Selection.Text"].value = L"";
  office.answers["Selection.TypeText"].effect = [&](const DISPPARAMS& parameters) {
    const std::wstring text = V_BSTR(&parameters.rgvarg[0]);
    if (text == die) std::exit(1);
    if (text == be_busy) filter.busy_until = GetTickCount() + 333;
    all = (std::wstring(V_BSTR(&all)) + text).c_str();
  };
  return run(office);
}
