// The table in which the selection stands.
#include "ZORBOffice/word/word_members.h"

namespace zorboffice {
namespace {

constexpr SHORT with_in_table = 12;  // wdWithInTable
constexpr SHORT first_row = 1;

}  // namespace

HRESULT WordMembers::get_InTable(BYTE* result) noexcept {
  return trapped(result, message(L"InTable "),
                 [&] { return selection().get(L"Information", with_in_table).flag(); });
}

HRESULT WordMembers::SelectRow(VARIANT* result) noexcept {
  return trapped(result, message(L"Select Row "), [&] { selection().call(L"SelectRow"); });
}

HRESULT WordMembers::get_CellCount(LONG* result) noexcept {
  return trapped(result, message(L"CellCount "),
                 [&] { return selection().get(L"Rows", first_row).get(L"Cells").get(L"Count").int32(); });
}

HRESULT WordMembers::get_CellText(LONG* CellId, BSTR* result) noexcept {
  return trapped(result, message(L"CellText "), [&] {
    return selection()
        .get(L"Rows", first_row)
        .get(L"Cells", by_ref(CellId))
        .get(L"Range")
        .get(L"Text")
        .text();
  });
}

}  // namespace zorboffice
