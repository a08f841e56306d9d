// A word processor that is too busy to take a call.

#include "support/control_test.h"
#include "support/fake_offices.h"
#include "support/message_filter.h"

namespace {

class Busy : public ControlTest<FakeWord, 0> {
 protected:
  int trips_ = 0;
};

// Each trip is turned away the first time, with one code and the other.
TEST_F(Busy, TakesEveryTripAtTheSecondAttemptAndRunsNoStepTwice) {
  const std::pair<const wchar_t*, Arguments> members[] = {
      {L"Start", {}}, {L"OpenDoc", {L"a"}}, {L"ReadText", {0, 0}}, {L"PrintDoc", {1}}, {L"StopWord", {true}}};
  std::string undisturbed;
  for (const bool busy : {false, true}) {
    renew();
    std::string all;
    if (busy)
      office_.gate = [&] {
        ++trips_;
        return trips_ % 2 == 0 ? S_OK : trips_ % 4 == 1 ? RPC_E_CALL_REJECTED : RPC_E_SERVERCALL_RETRYLATER;
      };
    for (const auto& [member, arguments] : members) all += call(member, arguments) + " | ";
    all += log();
    if (!busy) undisturbed = all;
    EXPECT_EQ(all, undisturbed);
  }
}

TEST_F(Busy, AsksTheHostsFilterAndLeavesItInPlace) {
  expect(L"Start", {}, "ui1 1");
  MessageFilter filter;
  const auto references = filter.references;
  office_.gate = [&] { return ++trips_, RPC_E_CALL_REJECTED; };
  expect(L"SetActive", {true}, "ui1 0", "Set Active Call was rejected by callee.");
  EXPECT_EQ(trips_, 1);
  EXPECT_EQ(filter.references, references);
  IMessageFilter* found = nullptr;
  CoRegisterMessageFilter(nullptr, &found);
  EXPECT_EQ(found, &filter);
}

// Windows are painted while a member waits, as in any call, but get no input.
TEST_F(Busy, LetsTheHostCallAndReleaseTheControl) {
  expect(L"Start", {}, "ui1 1");
  log();
  static std::function<void()> paint;
  paint = [&] {
    office_.gate = [] { return S_OK; };
    expect(L"SetScreenUpdating", {true}, "ui1 1");
    control_.Reset();
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_FALSE);
  };
  const HWND window =
      CreateWindowW(L"Static", L"", WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  const WNDPROC procedure = [](HWND target, UINT message, WPARAM first, LPARAM second) WINAPI -> LRESULT {
    if (message == WM_PAINT) paint();
    EXPECT_NE(message, WM_KEYDOWN);
    return DefWindowProcW(target, message, first, second);
  };
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  PostMessageW(window, WM_KEYDOWN, VK_RETURN, 0);
  office_.gate = [] { return RPC_E_CALL_REJECTED; };
  EXPECT_EQ(call(L"SetActive", {true}), "ui1 1");
  EXPECT_EQ(log(), "put Application.ScreenUpdating=bool -1 | call Application.Activate");
  DestroyWindow(window);
}

}  // namespace
