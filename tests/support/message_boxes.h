// Watches for message boxes of the test's thread and answers them in the user's place.
#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "text.h"

struct SeenBox {
  std::string title, text;
  std::vector<std::string> buttons;
  HWND owner;
};

// While the one lives, every message box of the thread that made it is read and its first button pressed, by
// a thread that sees it as a user does. It is recorded before it is pressed, so whatever a member showed is
// there as soon as the member has returned.
class MessageBoxes {
 public:
  MessageBoxes() {
    seen_.clear();
    WaitForSingleObject(ready_, INFINITE);
  }
  ~MessageBoxes() {
    UnhookWindowsHookEx(hook_);
    PostThreadMessageW(user_, WM_QUIT, 0, 0);
    WaitForSingleObject(thread_, INFINITE);
    for (const HANDLE handle : {thread_, ready_}) CloseHandle(handle);
  }
  MessageBoxes(const MessageBoxes&) = delete;

  // The boxes that appeared since the last call, oldest first.
  std::vector<SeenBox> take() { return std::exchange(seen_, {}); }

 private:
  static std::string text_of(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
    return utf8(text);
  }

  // Calls the user to a box that is being made: looking for one all the time would keep the machine busy.
  static LRESULT WINAPI call_user(int code, WPARAM first, LPARAM second) {
    const auto& done = *reinterpret_cast<const CWPRETSTRUCT*>(second);
    if (code == HC_ACTION && done.message == WM_INITDIALOG)
      PostThreadMessageW(user_, WM_APP, reinterpret_cast<WPARAM>(done.hwnd), 0);
    return CallNextHookEx(nullptr, code, first, second);
  }

  static DWORD WINAPI watch(void* ready) {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // makes the thread's queue
    SetEvent(ready);
    while (GetMessageW(&message, nullptr, 0, 0) > 0) answer(reinterpret_cast<HWND>(message.wParam));
    return 0;
  }

  static void answer(HWND box) {
    // A box is shown only after its controls were filled in.
    while (IsWindow(box) && !IsWindowVisible(box)) Sleep(1);
    SeenBox seen{text_of(box), {}, {}, GetWindow(box, GW_OWNER)};
    for (HWND label = nullptr; (label = FindWindowExW(box, label, L"Static", nullptr));)
      seen.text += text_of(label);
    const HWND first_button = FindWindowExW(box, nullptr, L"Button", nullptr);
    for (HWND button = first_button; button; button = FindWindowExW(box, button, L"Button", nullptr)) {
      seen.buttons.push_back(text_of(button));
      std::erase(seen.buttons.back(), '&');
    }
    seen_.push_back(std::move(seen));  // the test's thread is in the box until it is pressed
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(first_button), BN_CLICKED),
                 reinterpret_cast<LPARAM>(first_button));
  }

  // Hooks get no context.
  inline static std::vector<SeenBox> seen_;
  inline static DWORD user_;
  const HANDLE ready_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const HANDLE thread_ = CreateThread(nullptr, 0, watch, ready_, 0, &user_);
  const HHOOK hook_ = SetWindowsHookExW(WH_CALLWNDPROCRET, call_user, nullptr, GetCurrentThreadId());
};
