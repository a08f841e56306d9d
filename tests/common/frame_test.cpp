// The members' frame: what it leaves behind for a host, and message boxes that nobody would see.
#include <gtest/gtest.h>

#include "ZORBOffice/common/member_frame.h"

namespace zorboffice {
namespace {

TEST(Frame, AFailedCallLeavesNoStringToFree) {
  BSTR result = nullptr;
  const auto fails = [] { throw_runtime_error(6); };
  EXPECT_EQ(trapped(&result, none, fails), static_cast<HRESULT>(0x800A0006));
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(trapped(&result, silent, fails), S_OK);
  EXPECT_NE(result, nullptr);
  SysFreeString(result);
}

// Last, because the process stays where nobody sees it.
TEST(Frame, ShowsNothingWhereNobodyCanPressOk) {
  const HWINSTA unseen = CreateWindowStationW(L"unseen", 0, WINSTA_ALL_ACCESS, nullptr);
  ASSERT_NE(unseen, nullptr);
  ASSERT_TRUE(SetProcessWindowStation(unseen));
  show_message(L"Would wait for ever.");
}

}  // namespace
}  // namespace zorboffice
