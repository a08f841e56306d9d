// How long a step waits for an application that stays busy, and what the host sees meanwhile.
#include <gtest/gtest.h>

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/failure.h"
#include "support/fake_object.h"

namespace zorboffice {
namespace {

TEST(Waiting, EndsAfterTenSecondsAndLeavesInputToTheHost) {
  const HWND window =
      CreateWindowW(L"Static", L"", WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  static int handled;
  const WNDPROC procedure = [](HWND target, UINT message, WPARAM first, LPARAM second) WINAPI -> LRESULT {
    handled += message == WM_KEYDOWN || message == WM_LBUTTONDOWN;
    return DefWindowProcW(target, message, first, second);
  };
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  FakeOffice office;
  std::vector<DWORD> attempts;
  office.gate = [&] {
    attempts.push_back(GetTickCount());
    PostMessageW(window, WM_KEYDOWN, VK_RETURN, 0);
    PostMessageW(window, WM_LBUTTONDOWN, 0, 0);
    return RPC_E_SERVERCALL_RETRYLATER;
  };
  AutomationObject object;
  *object.variable() = office.make("Document");
  try {
    object.call(L"Save");
    ADD_FAILURE() << "it was not busy";
  } catch (const zorboffice::Failure& failure) {
    EXPECT_EQ(failure.number, RPC_E_SERVERCALL_RETRYLATER);
  }
  const DWORD waited = attempts.back() - attempts.front(), last = attempts.size();
  EXPECT_GE(waited, 9'900U);
  EXPECT_LT(waited, 11'000U);
  EXPECT_LT(attempts[1] - attempts[0], 100U) << "the first pause is short";
  EXPECT_LT(last, 40U) << "the others grow";
  MSG message;
  for (const UINT expected : {WM_KEYDOWN, WM_LBUTTONDOWN}) {
    EXPECT_TRUE(PeekMessageW(&message, window, WM_KEYFIRST, WM_MOUSELAST, PM_REMOVE));
    EXPECT_EQ(message.message, expected);
  }
  EXPECT_EQ(handled, 0);
  DestroyWindow(window);
}

}  // namespace
}  // namespace zorboffice
