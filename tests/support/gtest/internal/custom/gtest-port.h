// GoogleTest's own place for what a platform lacks: MinGW's Win32 thread model has no std::mutex, which
// GoogleTest's Notification is made of.
#ifndef ZORBOFFICE_TESTS_GTEST_PORT_H_
#define ZORBOFFICE_TESTS_GTEST_PORT_H_

#include <windows.h>

#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

class Notification {
 public:
  Notification() : event_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}
  Notification(const Notification&) = delete;
  ~Notification() { CloseHandle(event_); }
  void Notify() { SetEvent(event_); }
  void WaitForNotification() { WaitForSingleObject(event_, INFINITE); }

 private:
  HANDLE event_;
};

}  // namespace testing::internal

#endif  // ZORBOFFICE_TESTS_GTEST_PORT_H_
