// The classes that clients can create.
#pragma once

#include <windows.h>

#include <array>

struct ServedClass {
  CLSID id;
  const wchar_t* program_id;
  const wchar_t* title;
  const char* peer_name;
};

// All identifiers are those that the programs themselves are known by: what a client has stored must find
// the bridge.
inline constexpr std::array<ServedClass, 3> kServedClasses = {{
    {{0x000209ff, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}},
     L"Word.Application",
     L"Word processor, answered by LibreOffice",
     "word"},
    {{0x82154420, 0x0fbf, 0x11d4, {0x83, 0x13, 0x00, 0x50, 0x04, 0x52, 0x6a, 0xb4}},
     L"com.sun.star.ServiceManager",
     L"Office suite's service manager, answered by LibreOffice",
     "suite"},
    {{0x0006f03a, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}},
     L"Outlook.Application",
     L"Stand-in for Outlook",
     "outlook"},
}};
