// Watches for message boxes of the test process and answers them in the user's place.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

struct SeenBox {
  std::string title, text;
  std::vector<std::string> buttons;
  HWND owner;
};

// While one lives, every message box of this process is recorded and its first button pressed. A box is
// recorded before it is pressed, so whatever a member showed is there as soon as the member has returned.
class MessageBoxes {
 public:
  MessageBoxes();
  ~MessageBoxes();
  MessageBoxes(const MessageBoxes&) = delete;
  MessageBoxes& operator=(const MessageBoxes&) = delete;

  // The boxes that appeared since the last call, oldest first.
  std::vector<SeenBox> take();

 private:
  static DWORD WINAPI watch(void* self);
  void answer(HWND box);

  SRWLOCK lock_ = SRWLOCK_INIT;
  std::vector<SeenBox> seen_;
  HANDLE stop_, thread_;
};
