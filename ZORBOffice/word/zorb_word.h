// ZORBWord: drives Microsoft Word.
#pragma once

#include "ZORBOffice/word/word_members.h"

namespace zorboffice {

class ZORBWord final : public WordMembers {
 public:
  using WordMembers::WordMembers;
};

}  // namespace zorboffice
