// GoogleTest's own place for what a platform lacks: MinGW's Win32 thread model has no std::mutex, which
// GoogleTest's Notification is made of. Only threads that GoogleTest starts wait for one, and no test starts
// any.
#pragma once

#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {
struct Notification {
  void Notify() {}
  void WaitForNotification() {}
};
}  // namespace testing::internal
