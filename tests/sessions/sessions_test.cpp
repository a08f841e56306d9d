// Sessions with office applications in other processes that end or are busy, sessions in several apartments,
// and instances that are called from another one.

#include <cstdlib>

#include "ZORBOffice/surface/word_processor_interface.h"
#include "support/apartments.h"
#include "support/control_test.h"
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

// While one lives, the system starts this program as the office for each creation of its class, of the kind
// that ZORB_OFFICE names.
struct Registered {
  explicit Registered(const char* kind = "") {
    _putenv_s("ZORB_OFFICE", kind);
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    for (const auto& [program_id, class_id, name] : served) {
      write(program_id + L"\\CLSID", class_id.substr(class_id.find(L'{')));
      write(class_id + L"\\LocalServer32", L"\"" + std::wstring(program) + L"\" --serve " + name);
    }
  }
  ~Registered() {
    for (const auto& [program_id, class_id, name] : served)
      for (const auto& key : {program_id, class_id})
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + key).c_str());
  }
};

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

// What is typed tells the word processor what to do.
constexpr auto die = L"die";       // the process ends in the middle of the call
constexpr auto be_busy = L"busy";  // every call of the next third of a second is turned away

// In the new process: serves the application of that name.
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

// Ends a process as a user of the task manager does.
void kill_process(const std::string& answered) {
  const auto number = std::strtoul(&answered[answered.find('"') + 1], nullptr, 10);
  const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, number);
  EXPECT_TRUE(TerminateProcess(process, 1)) << answered;
  WaitForSingleObject(process, INFINITE);
  CloseHandle(process);
}

using WordSession = HostTest<0>;
using OutlookSession = HostTest<1>;

// Each next word processor numbers its members in another way, which the control must learn anew.
TEST_F(WordSession, BeginsAnewAfterTheWordProcessorHasEnded) {
  const std::string gone = "The remote server machine does not exist or is unavailable";
  for (const auto* kind : {"published", "own_numbers"}) {
    const Registered registered(kind);
    expect(L"Start", {}, "ui1 1");
    expect(L"CreateDoc", {}, "ui1 1");
    expect(L"SendText", {L"text"}, "ui1 1");
    expect(L"SelectionText", {}, "bstr \"text\"");
    const bool between_calls = kind == std::string("own_numbers");
    if (between_calls) kill_process(call(L"GetDefaultPaths", {1}));
    const Soon soon;
    expect(L"SendText", {die}, "ui1 0", "SendText " + (between_calls ? gone : "RPC call failed."));
    expect(L"StopWord", {true}, "raised 800A01CE " + gone);
    expect(L"CreateDoc", {}, "ui1 0", "Create Doc " + gone);
  }
  const Soon soon;
  control_.Reset();
  EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
}

TEST_F(OutlookSession, BeginsAnewAfterOutlookHasEnded) {
  const Registered registered;
  for (int times = 0; times < 2; ++times) {
    expect(L"StartOutlook", {}, "bool -1");
    expect(L"InitItems", {L"Appointment", L""}, "bool -1");
    expect(L"GetFirstItem", {L"Appointment"}, "bool -1");
    kill_process(call(L"GetAppointmentProperty", {L"Subject"}));
    const Soon soon;
    expect(L"GetItemCount", {L"Appointment"}, "i2 0");
    expect(L"GetLastErrorNumber", {}, "i2 462");
    expect(L"StopOutlook", {true}, "bool 0");
  }
}

using Microsoft::WRL::ComPtr;

using Marshalled = ControlTest<FakeWord, 0>;

// The office's objects tell when they are called from another apartment than the control's, which lets go of
// it in the middle of a member.
TEST_F(Marshalled, AnInstanceIsCalledFromAnotherApartmentWhichReleasesItLast) {
  EXPECT_EQ(outside::call("DllRegisterServer"), S_OK);
  office_.answers["Selection.TypeText"].effect = [&](const DISPPARAMS&) { control_.Reset(); };
  const GUID published = outside::guid(outside::classes[0].interface_id);
  for (const auto kind : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED}) {
    renew();
    IStream* stream = nullptr;
    EXPECT_EQ(CoMarshalInterThreadInterfaceInStream(published, control_.Get(), &stream), S_OK);
    run_in({{kind, [&] {
               ComPtr<zorboffice::WordProcessorInterface> word;
               ASSERT_EQ(CoGetInterfaceAndReleaseStream(stream, published, &word), S_OK);
               VARIANT_BOOL place = VARIANT_FALSE;
               BYTE started = 0;
               EXPECT_EQ(word->get_Start(&place, &started), S_OK);
               EXPECT_EQ(started, 1);
               EXPECT_EQ(late_call(word.Get(), L"CreateDoc"), "ui1 1");
               EXPECT_EQ(late_call(word.Get(), L"SendText", {L"text"}), "ui1 1");
               EXPECT_EQ(late_call(word.Get(), L"SelectionText"), "bstr \"chosen\"");
             }}});
    EXPECT_EQ(office_.live, 0);
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
  }
  EXPECT_EQ(outside::call("DllUnregisterServer"), S_OK);
}

// Each with a word processor of its own, in another process, which is busy for a while. One ends its
// apartment before it releases the control.
TEST(Apartments, HaveTheirOwnSessionsAtOnce) {
  const Registered registered("published");
  outside::library();
  const auto session = [](const wchar_t* own) {
    const auto control = outside::create(outside::classes[0]);
    std::wstring all;
    EXPECT_EQ(late_call(control.Get(), L"Start"), "ui1 1");
    EXPECT_EQ(late_call(control.Get(), L"CreateDoc"), "ui1 1");
    for (const auto* text : {own, be_busy, own}) {
      EXPECT_EQ(late_call(control.Get(), L"SendText", {text}), "ui1 1");
      EXPECT_EQ(late_call(control.Get(), L"SelectionText"), "bstr \"" + utf8(all += text) + "\"");
    }
    return control;
  };
  const auto end_first = [&] {
    auto control = session(L"second");
    CoUninitialize();
    control.Reset();
    CoInitialize(nullptr);
  };
  run_in({{COINIT_MULTITHREADED, [&] { session(L"first"); }}, {COINIT_APARTMENTTHREADED, end_first}});
  EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 2 && arguments[1] == std::string("--serve")) return serve(arguments[2]);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
