// Sessions with office applications in other processes that end or are busy, sessions in several apartments,
// and instances that are called from another one.

#include "ZORBOffice/surface/word_processor_interface.h"
#include "server.h"
#include "support/control_test.h"
#include "support/fake_offices.h"

namespace {

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

struct Apartment {
  COINIT kind;
  std::function<void()> run;
};

// Runs each in a thread of its own while this apartment answers.
void run_in(const std::vector<Apartment>& apartments) {
  const auto start = [](void* context) WINAPI -> DWORD {
    const auto& [kind, run] = *static_cast<const Apartment*>(context);
    CoInitializeEx(nullptr, kind);
    run();
    CoUninitialize();
    return 0;
  };
  std::vector<HANDLE> threads;
  for (auto& apartment : apartments)
    threads.push_back(CreateThread(nullptr, 0, start, const_cast<Apartment*>(&apartment), 0, nullptr));
  for (HANDLE thread : threads) {
    DWORD index = 0;
    EXPECT_EQ(CoWaitForMultipleHandles(0, 30'000, 1, &thread, &index), S_OK);
    CloseHandle(thread);
  }
  EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
}

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
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 2 && arguments[1] == std::string("--serve")) return serve(arguments[2]);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
