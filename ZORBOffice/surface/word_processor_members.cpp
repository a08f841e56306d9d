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

constexpr Parameter flag(const wchar_t* name, const char* sentence) {
  return by_ref(name, VT_BOOL, sentence);
}
constexpr Parameter byte(const wchar_t* name, const char* sentence) { return by_ref(name, VT_UI1, sentence); }
constexpr Parameter int16(const wchar_t* name, const char* sentence) { return by_ref(name, VT_I2, sentence); }
constexpr Parameter int32(const wchar_t* name, const char* sentence) { return by_ref(name, VT_I4, sentence); }
constexpr Parameter string(const wchar_t* name, const char* sentence) {
  return by_ref(name, VT_BSTR, sentence);
}
constexpr Parameter variant(const wchar_t* name, const char* sentence) {
  return by_ref(name, VT_VARIANT, sentence);
}

// What searching and replacing have in common.
constexpr Parameter wrap_action =
    byte(L"WrapAction",
         says("What to do at the end of the text: stop (0), go on at its other end (1), or ask (2)."))
        .defaults_to(find_continue);
constexpr Parameter search_forward =
    flag(L"SearchForward", says("True searches towards the end, False towards the start.")).defaults_to(yes);
constexpr Parameter begin_at_top =
    flag(L"BeginAtTop", says("True moves to the start of the document before it searches.")).defaults_to(no);
constexpr Parameter match_case =
    flag(L"MatchCase", says("True tells capital letters from small ones.")).defaults_to(no);
constexpr Parameter match_whole_word =
    flag(L"MatchWholeWord", says("True finds whole words only.")).defaults_to(no);
constexpr Parameter match_wildcards =
    flag(L"MatchWildcards", says("True reads the text that is searched for as a pattern.")).defaults_to(no);
constexpr Parameter match_sounds_like =
    flag(L"MatchSoundsLike", says("True also finds words that sound alike.")).defaults_to(no);
constexpr Parameter match_all_word_forms =
    flag(L"MatchAllWordForms", says("True also finds the other forms of the words.")).defaults_to(no);
constexpr Parameter without_effect_at_top = flag(L"BeginAtTop", says("Has no effect.")).defaults_to(yes);
constexpr Parameter replace_option =
    byte(L"ReplaceOption", says("How many to replace: none (0), the first one (1), or all (2)."))
        .defaults_to(replace_one);
constexpr Parameter match_expression =
    flag(L"MatchWildcards", says("True reads the text that is searched for as a regular expression."))
        .defaults_to(no);

// An option that the suite's search does not look at.
template <bool for_suite>
constexpr Parameter option(Parameter parameter) {
  if (for_suite) parameter.sentence = says("Has no effect.");
  return parameter;
}

// Which header or footer.
constexpr Parameter section = int32(L"Section", says("The section, counted from 1."));
constexpr Parameter is_header = flag(L"IsHeader", says("True means the header, False the footer."));
constexpr Parameter header_footer_type =
    byte(L"HeaderFooterType", says("Of which pages: all others (1), the first (2), or even ones (3)."));

constexpr Parameter unit = int16(L"Unit", says("By what to move: a WdUnits number."));

template <bool for_suite>
constexpr VARTYPE choice = for_suite ? VT_UI1 : VT_BOOL;

// Identifiers stand as hosts were compiled against them, gaps included.
template <bool for_suite>
constexpr Member members[] = {
    {L"Start",
     0x68030013,
     property_get,
     VT_UI1,
     native_call<&I::get_Start>,
     {flag(L"Template",
           says(for_suite
                    ? "True also asks for a window in a certain place, which fails; False does nothing more."
                    : "True places Word's window on the screen; False switches automatic numbering off."))
          .defaults_to(no)},
     says(for_suite ? "Starts the office suite and holds its service manager and its desktop."
                    : "Starts a new Word and holds it.")},
    {L"SetVisible",
     0x68030012,
     property_get,
     VT_UI1,
     native_call<&I::get_SetVisible>,
     {flag(L"IsVisible", says(for_suite ? "Has no effect." : "True shows it, False hides it."))},
     says(for_suite ? "Does nothing: the suite decides itself what it shows."
                    : "Shows or hides Word, and brings it to the front.")},
    {L"SetActive",
     0x68030011,
     property_get,
     VT_UI1,
     native_call<&I::get_SetActive>,
     {flag(L"IsActive", says("Has no effect."))},
     says(for_suite ? "Does nothing: the suite decides itself what is in front."
                    : "Brings Word to the front.")},
    {L"OpenDoc",
     0x68030010,
     property_get,
     VT_UI1,
     native_call<&I::get_OpenDoc>,
     {string(L"Doc", says("Path of the document."))},
     says(for_suite ? "Loads a document into the suite and makes it the active one."
                    : "Opens a document and makes it the active one.")},
    {L"CreateDoc",
     0x6803000F,
     property_get,
     VT_UI1,
     native_call<&I::get_CreateDoc>,
     {string(L"Doc", says("Path of the template; an empty text means the normal one.")).defaults_to(0)},
     says(for_suite ? "Loads a new document from a template into the suite, and makes it the active one."
                    : "Makes a new document from a template, and makes it the active one.")},
    {L"SendText",
     0x6803000E,
     property_get,
     VT_UI1,
     native_call<&I::get_SendText>,
     {string(L"Text", says("The text to type."))},
     says("Types a text at the selection.")},
    {L"ReadText",
     0x6803000D,
     property_get,
     VT_BSTR,
     native_call<&I::get_ReadText>,
     {int32(L"StartPos",
            says(for_suite ? "Has no effect."
                           : "First character, counted from 0; both positions 0 mean the whole text.")),
      int32(L"EndPos",
            says(for_suite ? "Has no effect." : "Character after the last one; 0 means the end."))},
     says(for_suite ? "Reads the document's whole text." : "Reads the document's text, or a part of it.")},
    {L"SetScreenUpdating",
     0x6803000C,
     property_get,
     VT_UI1,
     native_call<&I::get_SetScreenUpdating>,
     {flag(L"Update", says(for_suite ? "Has no effect." : "True redraws, False does not."))},
     says(for_suite ? "Does nothing: the suite redraws as it likes."
                    : "Switches the redrawing of Word's windows on or off.")},
    {L"Search",
     0x6803000B,
     property_get,
     VT_UI1,
     native_call<&I::get_Search>,
     {string(L"SearchString", says("The text to find.")), option<for_suite>(wrap_action),
      option<for_suite>(search_forward), option<for_suite>(begin_at_top), option<for_suite>(match_case),
      option<for_suite>(match_whole_word), for_suite ? match_expression : match_wildcards,
      option<for_suite>(match_sounds_like), option<for_suite>(match_all_word_forms)},
     says(for_suite ? "Shows the text to find in a box, and tells whether the document holds it."
                    : "Finds a text and selects it.")},
    {L"InTable",
     0x6803000A,
     property_get,
     VT_UI1,
     native_call<&I::get_InTable>,
     {},
     says("Tells whether the selection is in a table.")},
    {L"SelectRow",
     0x60030015,
     method,
     VT_VARIANT,
     native_call<&I::SelectRow>,
     {},
     says("Selects the table row that the selection is in.")},
    {L"Replace",
     0x68030009,
     property_get,
     VT_UI1,
     native_call<&I::get_Replace>,
     {string(L"SearchString", says("The text to find.")),
      string(L"ReplaceString", says("The text to put in its place.")), wrap_action, search_forward,
      without_effect_at_top, match_case, match_whole_word, match_wildcards, match_sounds_like,
      match_all_word_forms, replace_option},
     says("Finds a text from the selection on and replaces it.")},
    {L"NumberOfSections",
     0x68030008,
     property_get,
     VT_I4,
     native_call<&I::get_NumberOfSections>,
     {},
     says("Counts the sections of the active document.")},
    {L"ReadHeaderFooterText",
     0x68030007,
     property_get,
     VT_BSTR,
     native_call<&I::get_ReadHeaderFooterText>,
     {section, is_header, header_footer_type,
      int32(L"StartPos", says("First character, counted from 0; both positions 0 mean the whole text.")),
      int32(L"EndPos", says("Character after the last one; 0 means the end."))},
     says("Reads the text of a header or footer, or a part of it.")},
    {L"SetHeaderFooter",
     0x68030006,
     property_get,
     VT_UI1,
     native_call<&I::get_SetHeaderFooter>,
     {string(L"SourceTemplate",
             says("Path of the document to copy from; an empty text means the normal template.")),
      string(L"DestTemplate",
             says("Path of the document to change; an empty text means the normal template.")),
      by_ref(L"ApplyHeader", choice<for_suite>, says("True copies the headers.")),
      by_ref(L"ApplyFooter", choice<for_suite>, says("True copies the footers.")),
      by_ref(L"ApplyFont", choice<for_suite>, says("True copies the normal style's font."))},
     says("Copies headers, footers and the normal font from one document to another, and saves that.")},
    {L"ReplaceHeaderFooter",
     0x68030005,
     property_get,
     VT_UI1,
     native_call<&I::get_ReplaceHeaderFooter>,
     {section, is_header, header_footer_type, string(L"SearchString", says("The text to find.")),
      string(L"ReplaceString", says("The text to put in its place.")), wrap_action, search_forward,
      without_effect_at_top, match_case, match_whole_word, match_wildcards, match_sounds_like,
      match_all_word_forms, replace_option},
     says("Finds a text in a header or footer and replaces it.")},
    {L"CellCount",
     0x68030004,
     property_get,
     VT_I4,
     native_call<&I::get_CellCount>,
     {},
     says("Counts the cells of the selection's first table row.")},
    {L"CellText",
     0x68030003,
     property_get,
     VT_BSTR,
     native_call<&I::get_CellText>,
     {int32(L"CellId", says("The cell, counted from 1."))},
     says("Reads a cell of the selection's first table row.")},
    {L"Cut",
     0x60030016,
     method,
     VT_VARIANT,
     native_call<&I::Cut>,
     {},
     says("Cuts the selection to the clipboard.")},
    {L"SelectParagraph",
     0x60030017,
     method,
     VT_VARIANT,
     native_call<&I::SelectParagraph>,
     {},
     says("Selects the paragraph in which the selection starts.")},
    {L"SelectionText",
     0x68030002,
     property_get,
     VT_BSTR,
     native_call<&I::get_SelectionText>,
     {},
     says("Reads the selected text.")},
    {L"Paste",
     0x60030018,
     method,
     VT_VARIANT,
     native_call<&I::Paste>,
     {},
     says("Pastes the clipboard at the selection.")},
    {L"CursorLeft",
     0x60030019,
     method,
     VT_VARIANT,
     native_call<&I::CursorLeft>,
     {int16(L"Units", says("How many units to move.")), unit.defaults_to(by_character),
      variant(L"Selecting", says("Whether to extend the selection (1) or only to move (0).")).defaults_to(0)},
     says("Moves the insertion point to the left.")},
    {L"CursorRight",
     0x6003001A,
     method,
     VT_VARIANT,
     native_call<&I::CursorRight>,
     {int16(L"Units", says("How many units to move.")), unit.defaults_to(by_character),
      variant(L"Selecting", says("Whether to extend the selection (1) or only to move (0).")).defaults_to(0)},
     says("Moves the insertion point to the right.")},
    {L"CursorStartOfParagraph",
     0x6003001B,
     method,
     VT_VARIANT,
     native_call<&I::CursorStartOfParagraph>,
     {},
     says("Moves the insertion point to the start of its paragraph.")},
    {L"CursorStartOfCell",
     0x6003001C,
     method,
     VT_VARIANT,
     native_call<&I::CursorStartOfCell>,
     {},
     says("Moves the insertion point to the start of its table cell.")},
    {L"CursorEndOfCell",
     0x6003001D,
     method,
     VT_VARIANT,
     native_call<&I::CursorEndOfCell>,
     {},
     says("Moves the insertion point to the end of its table cell.")},
    {L"CursorEndOfParagraph",
     0x6003001E,
     method,
     VT_VARIANT,
     native_call<&I::CursorEndOfParagraph>,
     {},
     says("Moves the insertion point to the end of its paragraph.")},
    {L"Move",
     0x6003001F,
     method,
     VT_VARIANT,
     native_call<&I::Move>,
     {unit, int16(L"Units", says("How many units to move; a negative number moves back."))},
     says("Collapses the selection and moves it.")},
    {L"FinaliseDoc",
     0x60030020,
     method,
     VT_VARIANT,
     native_call<&I::FinaliseDoc>,
     {},
     says("Updates the document's styles and parts it from its template.")},
    {L"SaveDoc",
     0x60030021,
     method,
     VT_VARIANT,
     native_call<&I::SaveDoc>,
     {string(L"Docname", says("Path to save as; an empty text keeps the name.")).optional()},
     says("Saves the document, under a new name where one is given.")},
    {L"SaveDocAsPDF",
     0x60030022,
     method,
     VT_BOOL,
     native_call<&I::SaveDocAsPDF>,
     {},
     says("Prints the document to the first printer whose name has PDF in it.")},
    {L"CloseDoc",
     0x60030023,
     method,
     VT_VARIANT,
     native_call<&I::CloseDoc>,
     {int16(L"SaveOption", says("What to do with changes: drop them (0), save them (-1), or ask (-2)."))
          .optional()},
     says("Closes the document.")},
    {L"StopWord",
     0x60030024,
     method,
     VT_VARIANT,
     native_call<&I::StopWord>,
     {flag(L"Force", says("True quits also while documents are open.")).optional()},
     says("Quits the application.")},
    {L"PrintDoc",
     0x60030025,
     method,
     VT_VARIANT,
     native_call<&I::PrintDoc>,
     {int16(L"Copies", says("How many copies.")),
      flag(L"Background", says("Has no effect.")).defaults_to(no)},
     says("Prints the document.")},
    {L"IsPrinting",
     0x60030026,
     method,
     VT_I2,
     native_call<&I::IsPrinting>,
     {},
     says("Counts the documents that are being printed or saved in the background.")},
    {L"GetDefaultPaths",
     0x60030027,
     method,
     VT_BSTR,
     native_call<&I::GetDefaultPaths>,
     {int16(L"PathId", says("Which folder: a WdDefaultFilePath number."))},
     says("Reads one of the default folders.")},
    {L"GotoLine",
     0x60030028,
     method,
     VT_BOOL,
     native_call<&I::GotoLine>,
     {int16(L"LineNo", says("The line, counted from 1."))},
     says("Moves the insertion point to a line.")},
    {L"GetLastErrorNumber",
     0x68030001,
     property_get,
     VT_I4,
     native_call<&I::get_GetLastErrorNumber>,
     {},
     says("Reads the number of the last recorded failure: always 0.")},
    {L"GetLastErrorDescription",
     0x68030000,
     property_get,
     VT_BSTR,
     native_call<&I::get_GetLastErrorDescription>,
     {},
     says("Reads the text of the last recorded failure: always empty.")},
};

static_assert(agree_with_signatures(members<false>) && agree_with_signatures(members<true>));

}  // namespace

constinit const MemberTable zorb_word_members = members<false>;
constinit const MemberTable open_writer_members = members<true>;

}  // namespace zorboffice
