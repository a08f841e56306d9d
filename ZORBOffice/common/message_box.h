// The members' message boxes.
#pragma once

#include <string>

namespace zorboffice {

// Shows a modal box with an OK button, owned by the thread's active window. Where the process's window
// station is not visible (a service, a scheduled task) nobody could press OK: nothing is shown there.
void show_message(const std::wstring& text, const std::wstring& title = L"ZORBOffice");

}  // namespace zorboffice
