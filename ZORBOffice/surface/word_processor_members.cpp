#include "ZORBOffice/surface/member_tables.h"

namespace zorboffice {
namespace {

using enum MemberKind;
using I = WordProcessorInterface;

constexpr SHORT yes = VARIANT_TRUE;
constexpr SHORT no = VARIANT_FALSE;
constexpr SHORT find_continue = 1;  // wdFindContinue of the word processor's object model
constexpr SHORT replace_one = 1;    // wdReplaceOne
constexpr SHORT by_character = 1;   // wdCharacter

constexpr Parameter flag(const wchar_t* name) { return by_ref(name, VT_BOOL); }
constexpr Parameter byte(const wchar_t* name) { return by_ref(name, VT_UI1); }
constexpr Parameter int16(const wchar_t* name) { return by_ref(name, VT_I2); }
constexpr Parameter int32(const wchar_t* name) { return by_ref(name, VT_I4); }
constexpr Parameter string(const wchar_t* name) { return by_ref(name, VT_BSTR); }
constexpr Parameter variant(const wchar_t* name) { return by_ref(name, VT_VARIANT); }

// Identifiers stand as hosts were compiled against them, gaps included.
template <VARTYPE choice>
constexpr Member members[] = {
    {L"Start",
     0x68030013,
     property_get,
     VT_UI1,
     native_call<&I::get_Start>,
     {flag(L"Template").defaults_to(no)}},
    {L"SetVisible", 0x68030012, property_get, VT_UI1, native_call<&I::get_SetVisible>, {flag(L"IsVisible")}},
    {L"SetActive", 0x68030011, property_get, VT_UI1, native_call<&I::get_SetActive>, {flag(L"IsActive")}},
    {L"OpenDoc", 0x68030010, property_get, VT_UI1, native_call<&I::get_OpenDoc>, {string(L"Doc")}},
    {L"CreateDoc",
     0x6803000F,
     property_get,
     VT_UI1,
     native_call<&I::get_CreateDoc>,
     {string(L"Doc").defaults_to(0)}},
    {L"SendText", 0x6803000E, property_get, VT_UI1, native_call<&I::get_SendText>, {string(L"Text")}},
    {L"ReadText",
     0x6803000D,
     property_get,
     VT_BSTR,
     native_call<&I::get_ReadText>,
     {int32(L"StartPos"), int32(L"EndPos")}},
    {L"SetScreenUpdating",
     0x6803000C,
     property_get,
     VT_UI1,
     native_call<&I::get_SetScreenUpdating>,
     {flag(L"Update")}},
    {L"Search",
     0x6803000B,
     property_get,
     VT_UI1,
     native_call<&I::get_Search>,
     {string(L"SearchString"), byte(L"WrapAction").defaults_to(find_continue),
      flag(L"SearchForward").defaults_to(yes), flag(L"BeginAtTop").defaults_to(no),
      flag(L"MatchCase").defaults_to(no), flag(L"MatchWholeWord").defaults_to(no),
      flag(L"MatchWildcards").defaults_to(no), flag(L"MatchSoundsLike").defaults_to(no),
      flag(L"MatchAllWordForms").defaults_to(no)}},
    {L"InTable", 0x6803000A, property_get, VT_UI1, native_call<&I::get_InTable>, {}},
    {L"SelectRow", 0x60030015, method, VT_VARIANT, native_call<&I::SelectRow>, {}},
    {L"Replace",
     0x68030009,
     property_get,
     VT_UI1,
     native_call<&I::get_Replace>,
     {string(L"SearchString"), string(L"ReplaceString"), byte(L"WrapAction").defaults_to(find_continue),
      flag(L"SearchForward").defaults_to(yes), flag(L"BeginAtTop").defaults_to(yes),
      flag(L"MatchCase").defaults_to(no), flag(L"MatchWholeWord").defaults_to(no),
      flag(L"MatchWildcards").defaults_to(no), flag(L"MatchSoundsLike").defaults_to(no),
      flag(L"MatchAllWordForms").defaults_to(no), byte(L"ReplaceOption").defaults_to(replace_one)}},
    {L"NumberOfSections", 0x68030008, property_get, VT_I4, native_call<&I::get_NumberOfSections>, {}},
    {L"ReadHeaderFooterText",
     0x68030007,
     property_get,
     VT_BSTR,
     native_call<&I::get_ReadHeaderFooterText>,
     {int32(L"Section"), flag(L"IsHeader"), byte(L"HeaderFooterType"), int32(L"StartPos"), int32(L"EndPos")}},
    {L"SetHeaderFooter",
     0x68030006,
     property_get,
     VT_UI1,
     native_call<&I::get_SetHeaderFooter>,
     {string(L"SourceTemplate"), string(L"DestTemplate"), by_ref(L"ApplyHeader", choice),
      by_ref(L"ApplyFooter", choice), by_ref(L"ApplyFont", choice)}},
    {L"ReplaceHeaderFooter",
     0x68030005,
     property_get,
     VT_UI1,
     native_call<&I::get_ReplaceHeaderFooter>,
     {int32(L"Section"), flag(L"IsHeader"), byte(L"HeaderFooterType"), string(L"SearchString"),
      string(L"ReplaceString"), byte(L"WrapAction").defaults_to(find_continue),
      flag(L"SearchForward").defaults_to(yes), flag(L"BeginAtTop").defaults_to(yes),
      flag(L"MatchCase").defaults_to(no), flag(L"MatchWholeWord").defaults_to(no),
      flag(L"MatchWildcards").defaults_to(no), flag(L"MatchSoundsLike").defaults_to(no),
      flag(L"MatchAllWordForms").defaults_to(no), byte(L"ReplaceOption").defaults_to(replace_one)}},
    {L"CellCount", 0x68030004, property_get, VT_I4, native_call<&I::get_CellCount>, {}},
    {L"CellText", 0x68030003, property_get, VT_BSTR, native_call<&I::get_CellText>, {int32(L"CellId")}},
    {L"Cut", 0x60030016, method, VT_VARIANT, native_call<&I::Cut>, {}},
    {L"SelectParagraph", 0x60030017, method, VT_VARIANT, native_call<&I::SelectParagraph>, {}},
    {L"SelectionText", 0x68030002, property_get, VT_BSTR, native_call<&I::get_SelectionText>, {}},
    {L"Paste", 0x60030018, method, VT_VARIANT, native_call<&I::Paste>, {}},
    {L"CursorLeft",
     0x60030019,
     method,
     VT_VARIANT,
     native_call<&I::CursorLeft>,
     {int16(L"Units"), int16(L"Unit").defaults_to(by_character), variant(L"Selecting").defaults_to(0)}},
    {L"CursorRight",
     0x6003001A,
     method,
     VT_VARIANT,
     native_call<&I::CursorRight>,
     {int16(L"Units"), int16(L"Unit").defaults_to(by_character), variant(L"Selecting").defaults_to(0)}},
    {L"CursorStartOfParagraph", 0x6003001B, method, VT_VARIANT, native_call<&I::CursorStartOfParagraph>, {}},
    {L"CursorStartOfCell", 0x6003001C, method, VT_VARIANT, native_call<&I::CursorStartOfCell>, {}},
    {L"CursorEndOfCell", 0x6003001D, method, VT_VARIANT, native_call<&I::CursorEndOfCell>, {}},
    {L"CursorEndOfParagraph", 0x6003001E, method, VT_VARIANT, native_call<&I::CursorEndOfParagraph>, {}},
    {L"Move", 0x6003001F, method, VT_VARIANT, native_call<&I::Move>, {int16(L"Unit"), int16(L"Units")}},
    {L"FinaliseDoc", 0x60030020, method, VT_VARIANT, native_call<&I::FinaliseDoc>, {}},
    {L"SaveDoc", 0x60030021, method, VT_VARIANT, native_call<&I::SaveDoc>, {string(L"Docname").optional()}},
    {L"SaveDocAsPDF", 0x60030022, method, VT_BOOL, native_call<&I::SaveDocAsPDF>, {}},
    {L"CloseDoc",
     0x60030023,
     method,
     VT_VARIANT,
     native_call<&I::CloseDoc>,
     {int16(L"SaveOption").optional()}},
    {L"StopWord", 0x60030024, method, VT_VARIANT, native_call<&I::StopWord>, {flag(L"Force").optional()}},
    {L"PrintDoc",
     0x60030025,
     method,
     VT_VARIANT,
     native_call<&I::PrintDoc>,
     {int16(L"Copies"), flag(L"Background").defaults_to(no)}},
    {L"IsPrinting", 0x60030026, method, VT_I2, native_call<&I::IsPrinting>, {}},
    {L"GetDefaultPaths", 0x60030027, method, VT_BSTR, native_call<&I::GetDefaultPaths>, {int16(L"PathId")}},
    {L"GotoLine", 0x60030028, method, VT_BOOL, native_call<&I::GotoLine>, {int16(L"LineNo")}},
    {L"GetLastErrorNumber", 0x68030001, property_get, VT_I4, native_call<&I::get_GetLastErrorNumber>, {}},
    {L"GetLastErrorDescription",
     0x68030000,
     property_get,
     VT_BSTR,
     native_call<&I::get_GetLastErrorDescription>,
     {}},
};

static_assert(agree_with_signatures(members<VT_BOOL>) && agree_with_signatures(members<VT_UI1>));

}  // namespace

constinit const MemberTable zorb_word_members = members<VT_BOOL>;
constinit const MemberTable open_writer_members = members<VT_UI1>;

}  // namespace zorboffice
