// How long a step waits for an application that stays busy, and what the host sees meanwhile.
#include <gtest/gtest.h>

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/failure.h"
#include "support/fake_offices.h"

namespace {

TEST(Waiting, EndsAfterTenSecondsAndLeavesInputToTheHost) {
  FakeWord office(Serving::unnamed);
  const HWND window =
      CreateWindowW(L"Static", L"", WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  static int keys;
  const WNDPROC procedure = [](HWND target, UINT message, WPARAM first, LPARAM second) WINAPI -> LRESULT {
    keys += message == WM_KEYDOWN;
    return DefWindowProcW(target, message, first, second);
  };
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  std::vector<DWORD> attempts;
  office.gate = [&] {
    attempts.push_back(GetTickCount());
    PostMessageW(window, WM_KEYDOWN, VK_RETURN, 0);
    return RPC_E_SERVERCALL_RETRYLATER;
  };
  zorboffice::AutomationObject document;
  *document.variable() = office.make("Document");
  EXPECT_THROW(document.call(L"Save"), zorboffice::Failure);
  EXPECT_NEAR(attempts.back() - attempts.front(), 10'300, 400);
  EXPECT_LT(attempts[1] - attempts[0], 100U) << "the first pause is short";
  EXPECT_LT(attempts.size(), 40U) << "the others grow";
  EXPECT_EQ(keys, 0);
  DestroyWindow(window);
}

}  // namespace
