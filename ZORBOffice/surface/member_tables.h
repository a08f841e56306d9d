// The members of the three default interfaces: the library's whole surface.
#pragma once

#include "ZORBOffice/surface/member_table.h"

namespace zorboffice {

extern const MemberTable zorb_word_members;
extern const MemberTable zorb_outlook_members;
extern const MemberTable open_writer_members;

}  // namespace zorboffice
