// Finding and replacing text.
#include "ZORBOffice/word/replacement.h"
#include "ZORBOffice/word/word_members.h"

namespace zorboffice {
namespace {

constexpr SHORT story = 6;  // wdStory

}  // namespace

HRESULT WordMembers::get_Search(BSTR* SearchString, BYTE* WrapAction, VARIANT_BOOL* SearchForward,
                                VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
                                VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards,
                                VARIANT_BOOL* MatchSoundsLike, VARIANT_BOOL* MatchAllWordForms,
                                BYTE* result) noexcept {
  return trapped(result, message(L"Search "), [&] {
    const AutomationObject selected = selection();
    const auto find = [&] { return selected.get(L"Find"); };
    if (flag(BeginAtTop)) selected.call(L"HomeKey", story);
    find().call(L"ClearFormatting");
    find().put(L"Text", Argument::text(dereferenced(SearchString)));
    find().put(L"Forward", flag(SearchForward));
    find().put(L"Wrap", dereferenced(WrapAction));
    find().put(L"Format", false);
    find().put(L"MatchCase", flag(MatchCase));
    find().put(L"MatchWholeWord", flag(MatchWholeWord));
    find().put(L"MatchWildcards", flag(MatchWildcards));
    find().put(L"MatchSoundsLike", flag(MatchSoundsLike));
    find().put(L"MatchAllWordForms", flag(MatchAllWordForms));
    return find().get(L"Execute").flag();
  });
}

HRESULT WordMembers::get_Replace(BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
                                 VARIANT_BOOL* SearchForward, VARIANT_BOOL*, VARIANT_BOOL* MatchCase,
                                 VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards,
                                 VARIANT_BOOL* MatchSoundsLike, VARIANT_BOOL* MatchAllWordForms,
                                 BYTE* ReplaceOption, BYTE* result) noexcept {
  const Replacement replacement{SearchString,      ReplaceString,  WrapAction,     SearchForward,
                                MatchCase,         MatchWholeWord, MatchWildcards, MatchSoundsLike,
                                MatchAllWordForms, ReplaceOption};
  return trapped(result, silent, [&] { return replacement.execute(selection().get(L"Find").object()); });
}

}  // namespace zorboffice
