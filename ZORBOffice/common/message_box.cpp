#include "ZORBOffice/common/message_box.h"

#include <windows.h>

namespace zorboffice {
namespace {

bool somebody_can_press_ok() {
  USEROBJECTFLAGS flags{};
  DWORD size = 0;
  // In doubt the box is shown: a failure must not go unseen.
  if (!GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, &size))
    return true;
  return (flags.dwFlags & WSF_VISIBLE) != 0;
}

}  // namespace

void show_message(const std::wstring& text, const std::wstring& title) {
  if (somebody_can_press_ok()) MessageBoxW(GetActiveWindow(), text.c_str(), title.c_str(), MB_OK);
}

}  // namespace zorboffice
