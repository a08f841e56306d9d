// A word processor that is too busy to take a call.

#include "support/control_test.h"
#include "support/fake_offices.h"

namespace {

class Filter : public IMessageFilter {
 public:
  Filter() { CoRegisterMessageFilter(this, nullptr); }
  ~Filter() { CoRegisterMessageFilter(nullptr, nullptr); }
  Filter(const Filter&) = delete;

  HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG WINAPI AddRef() override { return ++references; }
  ULONG WINAPI Release() override { return --references; }
  DWORD WINAPI HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override { return 0; }
  DWORD WINAPI RetryRejectedCall(HTASK, DWORD, DWORD) override { return MAXDWORD; }
  DWORD WINAPI MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

  ULONG references = 1;
};

class Busy : public ControlTest<FakeWord, 0> {
 protected:
  // Turns every trip away the first time, with one code and the other.
  void turn_away_once() {
    office_.gate = [times = 0]() mutable {
      ++times;
      return times % 2 == 0 ? S_OK : times % 4 == 1 ? RPC_E_CALL_REJECTED : RPC_E_SERVERCALL_RETRYLATER;
    };
  }

  int trips_ = 0;
};

TEST_F(Busy, TakesEveryTripAtTheSecondAttemptAndRunsNoStepTwice) {
  const std::pair<const wchar_t*, Arguments> members[] = {
      {L"Start", {}}, {L"OpenDoc", {L"a"}}, {L"ReadText", {0, 0}}, {L"PrintDoc", {1}}, {L"StopWord", {true}}};
  std::string undisturbed;
  for (const bool busy : {false, true}) {
    renew();
    std::string all;
    if (busy) turn_away_once();
    for (const auto& [member, arguments] : members) all += call(member, arguments) + " | ";
    all += log();
    if (!busy) undisturbed = all;
    EXPECT_EQ(all, undisturbed);
  }
}

TEST_F(Busy, AsksTheHostsFilterAndLeavesItInPlace) {
  expect(L"Start", {}, "ui1 1");
  Filter filter;
  const auto references = filter.references;
  office_.gate = [&] { return ++trips_, RPC_E_CALL_REJECTED; };
  expect(L"SetActive", {true}, "ui1 0", "Set Active Call was rejected by callee.");
  EXPECT_EQ(trips_, 1);
  EXPECT_EQ(filter.references, references);
  IMessageFilter* found = nullptr;
  CoRegisterMessageFilter(nullptr, &found);
  EXPECT_EQ(found, &filter);
}

// What another thread sends is handled while a member waits, as in any call.
TEST_F(Busy, LetsTheHostCallAndReleaseTheControl) {
  expect(L"Start", {}, "ui1 1");
  log();
  static std::function<void()> host;
  host = [&] {
    office_.gate = [] { return S_OK; };
    expect(L"SetScreenUpdating", {true}, "ui1 1");
    control_.Reset();
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_FALSE);
  };
  static const HWND window =
      CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  const WNDPROC procedure = [](HWND, UINT message, WPARAM, LPARAM) WINAPI -> LRESULT {
    if (message == WM_APP) host();
    return 0;
  };
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  const auto send = [](void*) WINAPI -> DWORD { return SendMessageW(window, WM_APP, 0, 0) != 0; };
  HANDLE sender = nullptr;
  office_.gate = [&] {
    if (++trips_ == 1) sender = CreateThread(nullptr, 0, send, nullptr, 0, nullptr);
    return RPC_E_CALL_REJECTED;
  };
  EXPECT_EQ(call(L"SetActive", {true}), "ui1 1");
  EXPECT_EQ(log(), "put Application.ScreenUpdating=bool -1 | call Application.Activate");
  WaitForSingleObject(sender, INFINITE);
  CloseHandle(sender);
  DestroyWindow(window);
}

}  // namespace
