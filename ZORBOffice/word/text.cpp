// Typing and reading text.
#include <string>

#include "ZORBOffice/word/word_members.h"

namespace zorboffice {

AutomationObject WordMembers::selection() const {
  return document().get(L"ActiveWindow").get(L"Selection").object();
}

HRESULT WordMembers::get_SendText(BSTR* Text, BYTE* result) noexcept {
  return trapped(result, message(L"SendText "), [&] {
    selection().call(L"TypeText", Argument::text(dereferenced(Text)));
    return success;
  });
}

HRESULT WordMembers::get_ReadText(LONG* StartPos, LONG* EndPos, BSTR* result) noexcept {
  return trapped(result, message(L"ReadText : "), [&] {
    const AutomationObject held = document();
    const LONG start = dereferenced(StartPos);
    const LONG end = dereferenced(EndPos);
    if (start > 0 && end > 0) return held.get(L"Range", by_ref(StartPos), by_ref(EndPos)).get(L"Text").text();
    if (start > 0) {
      const auto length = static_cast<LONG>(held.get(L"Range").get(L"Text").text().view().size());
      return held.get(L"Range", start, length).text();
    }
    if (end > 0) return held.get(L"Range", SHORT{1}, end).get(L"Text").text();

    std::wstring text;
    held.get(L"Sections").object().for_each([&](const Result& section) {
      text += section.get(L"Range").get(L"Text").text().view();
    });
    return Bstr(text);
  });
}

HRESULT WordMembers::get_SelectionText(BSTR* result) noexcept {
  return trapped(result, message(L"SelectionText "), [&] { return selection().get(L"Text").text(); });
}

HRESULT WordMembers::Cut(VARIANT* result) noexcept {
  return trapped(result, silent, [&] { selection().call(L"Cut"); });
}

HRESULT WordMembers::Paste(VARIANT* result) noexcept {
  return trapped(result, message(L"Paste "), [&] { selection().call(L"Paste"); });
}

}  // namespace zorboffice
