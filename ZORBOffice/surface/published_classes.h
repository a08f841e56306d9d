// The three classes under their published names, and the type library that describes them.
#pragma once

#include <windows.h>

#include "ZORBOffice/surface/identifiers.h"
#include "ZORBOffice/surface/member_tables.h"

namespace zorboffice {

inline constexpr wchar_t type_library_name[] = L"ZORBOffice50";  // also its help string
inline constexpr WORD type_library_major = 1;
inline constexpr WORD type_library_minor = 0;
inline constexpr LCID type_library_locale = 0x0409;  // US English

// An interface's identifier is a resource of the library under the interface's name (RT_RCDATA, 16 bytes):
// see class_table.
struct PublishedClass {
  const wchar_t* name;
  const wchar_t* default_interface;
  const wchar_t* event_interface;
  const CLSID& class_id;
  const MemberTable& members;
};

inline constexpr PublishedClass zorb_word_class = {L"ZORBWord", L"_ZORBWord", L"__ZORBWord",
                                                   zorb_word_class_id, zorb_word_members};
inline constexpr PublishedClass zorb_outlook_class = {L"ZORBOutlook", L"_ZORBOutlook", L"__ZORBOutlook",
                                                      zorb_outlook_class_id, zorb_outlook_members};
inline constexpr PublishedClass open_writer_class = {L"OpenWriter", L"_OpenWriter", L"__OpenWriter",
                                                     open_writer_class_id, open_writer_members};

}  // namespace zorboffice
