// A find-and-replace with all its settings as the host gave them.
#pragma once

#include "ZORBOffice/common/automation_object.h"

namespace zorboffice {

struct Replacement {
  BSTR* SearchString;
  BSTR* ReplaceString;
  BYTE* WrapAction;
  VARIANT_BOOL* SearchForward;
  VARIANT_BOOL* MatchCase;
  VARIANT_BOOL* MatchWholeWord;
  VARIANT_BOOL* MatchWildcards;
  VARIANT_BOOL* MatchSoundsLike;
  VARIANT_BOOL* MatchAllWordForms;
  BYTE* ReplaceOption;

  // Executes it on a Find object of the word processor: every setting travels as an argument, none is left
  // set. Returns whether the text was found; throws Failure.
  bool execute(const AutomationObject& find) const;
};

}  // namespace zorboffice
