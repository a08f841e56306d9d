#include "message_boxes.h"

#include <algorithm>
#include <utility>

#include "text.h"

namespace {

std::string text_of(HWND window) {
  std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
  return utf8(text);
}

}  // namespace

MessageBoxes::MessageBoxes()
    : stop_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      thread_(CreateThread(nullptr, 0, watch, this, 0, nullptr)) {}

MessageBoxes::~MessageBoxes() {
  SetEvent(stop_);
  WaitForSingleObject(thread_, INFINITE);
  CloseHandle(thread_);
  CloseHandle(stop_);
}

std::vector<SeenBox> MessageBoxes::take() {
  AcquireSRWLockExclusive(&lock_);
  auto boxes = std::exchange(seen_, {});
  ReleaseSRWLockExclusive(&lock_);
  return boxes;
}

DWORD WINAPI MessageBoxes::watch(void* self) {
  auto* boxes = static_cast<MessageBoxes*>(self);
  while (WaitForSingleObject(boxes->stop_, 3) == WAIT_TIMEOUT) {
    for (HWND box = nullptr; (box = FindWindowExW(nullptr, box, L"#32770", nullptr));) {
      DWORD process = 0;
      GetWindowThreadProcessId(box, &process);
      // A box is shown only after its controls were filled in.
      if (process == GetCurrentProcessId() && IsWindowVisible(box)) boxes->answer(box);
    }
  }
  return 0;
}

void MessageBoxes::answer(HWND box) {
  SeenBox seen{text_of(box), {}, {}, GetWindow(box, GW_OWNER)};
  for (HWND label = nullptr; (label = FindWindowExW(box, label, L"Static", nullptr));)
    seen.text += text_of(label);
  HWND first_button = FindWindowExW(box, nullptr, L"Button", nullptr);
  for (HWND button = first_button; button; button = FindWindowExW(box, button, L"Button", nullptr)) {
    seen.buttons.push_back(text_of(button));
    std::erase(seen.buttons.back(), '&');
  }
  AcquireSRWLockExclusive(&lock_);
  seen_.push_back(std::move(seen));
  ReleaseSRWLockExclusive(&lock_);
  const auto pressed = MAKEWPARAM(GetDlgCtrlID(first_button), BN_CLICKED);
  PostMessageW(box, WM_COMMAND, pressed, reinterpret_cast<LPARAM>(first_button));
  while (IsWindow(box)) Sleep(1);
}
