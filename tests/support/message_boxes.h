// Answers the message boxes of the test's thread in the user's place.
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

// While the one lives, every message box of the thread that made it is recorded and its first button pressed.
class MessageBoxes {
 public:
  MessageBoxes() { seen_.clear(); }
  ~MessageBoxes() { UnhookWindowsHookEx(hook_); }
  MessageBoxes(const MessageBoxes&) = delete;

  // The boxes that appeared since the last call, oldest first.
  std::vector<SeenBox> take() { return std::exchange(seen_, {}); }

 private:
  static std::string text_of(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
    return utf8(text);
  }
  static LRESULT WINAPI answer(int code, WPARAM first, LPARAM second) {
    const auto& done = *reinterpret_cast<const CWPRETSTRUCT*>(second);
    // By then the box has all of its texts.
    if (code == HC_ACTION && done.message == WM_INITDIALOG) {
      SeenBox seen{text_of(done.hwnd), {}, {}, GetWindow(done.hwnd, GW_OWNER)};
      for (HWND label = nullptr; (label = FindWindowExW(done.hwnd, label, L"Static", nullptr));)
        seen.text += text_of(label);
      for (HWND button = nullptr; (button = FindWindowExW(done.hwnd, button, L"Button", nullptr));) {
        seen.buttons.push_back(text_of(button));
        std::erase(seen.buttons.back(), '&');
        if (seen.buttons.size() == 1)
          PostMessageW(done.hwnd, WM_COMMAND, GetDlgCtrlID(button), LPARAM(button));
      }
      seen_.push_back(std::move(seen));
    }
    return CallNextHookEx(nullptr, code, first, second);
  }

  inline static std::vector<SeenBox> seen_;  // hooks get no context
  const HHOOK hook_ = SetWindowsHookExW(WH_CALLWNDPROCRET, answer, nullptr, GetCurrentThreadId());
};
