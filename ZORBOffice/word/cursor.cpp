// Moving the selection.
#include "ZORBOffice/word/word_members.h"

namespace zorboffice {
namespace {

constexpr LONG paragraph = 4;          // wdParagraph
constexpr LONG cell = 12;              // wdCell
constexpr LONG without_selecting = 0;  // wdMove
constexpr LONG line = 3;               // wdGoToLine
constexpr LONG absolute = 1;           // wdGoToAbsolute

}  // namespace

HRESULT WordMembers::SelectParagraph(VARIANT* result) noexcept {
  return trapped(result, message(L"Select Paragraph "),
                 [&] { selection().get(L"Paragraphs", SHORT{1}).get(L"Range").call(L"Select"); });
}

HRESULT WordMembers::CursorLeft(SHORT* Units, SHORT* Unit, VARIANT* Selecting, VARIANT* result) noexcept {
  return trapped(result, message(L"Cursor Left "), [&] {
    selection().call(L"MoveLeft", by_ref(Unit), by_ref(Units), Argument::variant(dereferenced(Selecting)));
  });
}

HRESULT WordMembers::CursorRight(SHORT* Units, SHORT* Unit, VARIANT* Selecting, VARIANT* result) noexcept {
  return trapped(result, message(L"Cursor Right "), [&] {
    selection().call(L"MoveRight", by_ref(Unit), by_ref(Units), Argument::variant(dereferenced(Selecting)));
  });
}

HRESULT WordMembers::move_to_edge(VARIANT* result, const wchar_t* prefix, const wchar_t* edge,
                                  LONG unit) noexcept {
  return trapped(result, message(prefix), [&] {
    selection().call(edge, Argument(unit).named(L"Unit"), Argument(without_selecting).named(L"Extend"));
  });
}

HRESULT WordMembers::CursorStartOfParagraph(VARIANT* result) noexcept {
  // Hosts know this member by the text of its sibling.
  return move_to_edge(result, L"CursorEndOfParagraph", L"StartOf", paragraph);
}

HRESULT WordMembers::CursorStartOfCell(VARIANT* result) noexcept {
  return move_to_edge(result, L"CursorStartOfCell", L"StartOf", cell);
}

HRESULT WordMembers::CursorEndOfCell(VARIANT* result) noexcept {
  return move_to_edge(result, L"CursorEndOfCell", L"EndOf", cell);
}

HRESULT WordMembers::CursorEndOfParagraph(VARIANT* result) noexcept {
  return move_to_edge(result, L"CursorEndOfParagraph", L"EndOf", paragraph);
}

HRESULT WordMembers::Move(SHORT* Unit, SHORT* Units, VARIANT* result) noexcept {
  return trapped(result, message(L"Move :"), [&] { selection().call(L"Move", by_ref(Unit), by_ref(Units)); });
}

HRESULT WordMembers::GotoLine(SHORT* LineNo, VARIANT_BOOL* result) noexcept {
  return trapped(result, silent, [&] {
    selection().call(L"GoTo", Argument(line).named(L"What"), Argument(absolute).named(L"Which"),
                     by_ref(LineNo).named(L"Count"));
    return success;
  });
}

}  // namespace zorboffice
