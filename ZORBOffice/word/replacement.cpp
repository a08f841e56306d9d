#include "ZORBOffice/word/replacement.h"

#include "ZORBOffice/common/member_frame.h"

namespace zorboffice {

bool Replacement::execute(const AutomationObject& find) const {
  constexpr bool with_format = false;
  return find
      .get(L"Execute", by_ref(SearchString), by_ref_flag(MatchCase), by_ref_flag(MatchWholeWord),
           by_ref_flag(MatchWildcards), by_ref_flag(MatchSoundsLike), by_ref_flag(MatchAllWordForms),
           by_ref_flag(SearchForward), by_ref(WrapAction), with_format, by_ref(ReplaceString),
           by_ref(ReplaceOption))
      .flag();
}

}  // namespace zorboffice
