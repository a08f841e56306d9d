// ZORBWord: drives Microsoft Word.
#pragma once

#include "ZORBOffice/word/word_members.h"

namespace zorboffice {

class ZORBWord final : public WordMembers {
 public:
  using WordMembers::WordMembers;

 private:
  bool is_chosen(Choice* choice) const override { return flag(reinterpret_cast<VARIANT_BOOL*>(choice)); }
};

}  // namespace zorboffice
