// Every published member, one a line: what hosts were compiled against, and what each answers before anything
// was started. `&` marks a parameter by reference (in and out), `=` its default (`=)` the empty string), `?`
// one that is optional without a default.
#pragma once

#include <regex>
#include <string>
#include <vector>

#include "library.h"

namespace outside {

struct Member {
  DISPID id;
  const wchar_t* signature;
  // The message boxes' texts, each once; "" for none; or what reaches the host instead.
  const char* fresh;
  bool succeeds = false;

  std::wstring name() const {
    const std::wstring_view text = signature;
    return std::wstring(text.substr(text.find(L' ') + 1, text.find(L'(') - text.find(L' ') - 1));
  }
  static constexpr const char *raised = "raised: Object required",
                              *not_set = "raised: Object variable or With block variable not set";
};

inline constexpr std::pair<VARTYPE, const wchar_t*> type_names[] = {
    {VT_I2, L"short"},    {VT_I4, L"long"},       {VT_UI1, L"byte"},       {VT_BOOL, L"flag"},
    {VT_BSTR, L"string"}, {VT_HRESULT, L"error"}, {VT_VARIANT, L"variant"}};

inline constexpr Member word_members[] = {
    {0x68030013, L"get Start(Template &flag=0) byte", ""},
    {0x68030012, L"get SetVisible(IsVisible &flag) byte", "SetVisibleObject required"},
    {0x68030011, L"get SetActive(IsActive &flag) byte", "Set Active Object required"},
    {0x68030010, L"get OpenDoc(Doc &string) byte", "OpenDoc Object required"},
    {0x6803000F, L"get CreateDoc(Doc &string=) byte", "Create Doc Object required"},
    {0x6803000E, L"get SendText(Text &string) byte", "SendText Object required"},
    {0x6803000D, L"get ReadText(StartPos &long, EndPos &long) string", "ReadText : Object required"},
    {0x6803000C, L"get SetScreenUpdating(Update &flag) byte", "Set Screen Updating Object required"},
    {0x6803000B,
     L"get Search(SearchString &string, WrapAction &byte=1, SearchForward &flag=-1, BeginAtTop &flag=0, "
     L"MatchCase &flag=0, MatchWholeWord &flag=0, MatchWildcards &flag=0, MatchSoundsLike &flag=0, "
     L"MatchAllWordForms &flag=0) byte",
     "Search Object required"},
    {0x6803000A, L"get InTable() byte", "InTable Object required"},
    {0x60030015, L"call SelectRow() variant", "Select Row Object required"},
    {0x68030009,
     L"get Replace(SearchString &string, ReplaceString &string, WrapAction &byte=1, "
     L"SearchForward &flag=-1, BeginAtTop &flag=-1, MatchCase &flag=0, MatchWholeWord &flag=0, "
     L"MatchWildcards &flag=0, MatchSoundsLike &flag=0, MatchAllWordForms &flag=0, "
     L"ReplaceOption &byte=1) byte",
     ""},
    {0x68030008, L"get NumberOfSections() long", Member::raised},
    {0x68030007,
     L"get ReadHeaderFooterText(Section &long, IsHeader &flag, HeaderFooterType &byte, StartPos &long, "
     L"EndPos &long) string",
     "Read h/f : Object required"},
    {0x68030006,
     L"get SetHeaderFooter(SourceTemplate &string, DestTemplate &string, ApplyHeader &flag, "
     L"ApplyFooter &flag, ApplyFont &flag) byte",
     "Nothing has been set to be changed!"},
    {0x68030005,
     L"get ReplaceHeaderFooter(Section &long, IsHeader &flag, HeaderFooterType &byte, "
     L"SearchString &string, ReplaceString &string, WrapAction &byte=1, SearchForward &flag=-1, "
     L"BeginAtTop &flag=-1, MatchCase &flag=0, MatchWholeWord &flag=0, MatchWildcards &flag=0, "
     L"MatchSoundsLike &flag=0, MatchAllWordForms &flag=0, ReplaceOption &byte=1) byte",
     "Replace Header/Footer Object required"},
    {0x68030004, L"get CellCount() long", "CellCount Object required"},
    {0x68030003, L"get CellText(CellId &long) string", "CellText Object required"},
    {0x60030016, L"call Cut() variant", ""},
    {0x60030017, L"call SelectParagraph() variant", "Select Paragraph Object required"},
    {0x68030002, L"get SelectionText() string", "SelectionText Object required"},
    {0x60030018, L"call Paste() variant", "Paste Object required"},
    {0x60030019, L"call CursorLeft(Units &short, Unit &short=1, Selecting &variant=short 0) variant",
     "Cursor Left Object required"},
    {0x6003001A, L"call CursorRight(Units &short, Unit &short=1, Selecting &variant=short 0) variant",
     "Cursor Right Object required"},
    {0x6003001B, L"call CursorStartOfParagraph() variant", "CursorEndOfParagraphObject required"},
    {0x6003001C, L"call CursorStartOfCell() variant", "CursorStartOfCellObject required"},
    {0x6003001D, L"call CursorEndOfCell() variant", "CursorEndOfCellObject required"},
    {0x6003001E, L"call CursorEndOfParagraph() variant", "CursorEndOfParagraphObject required"},
    {0x6003001F, L"call Move(Unit &short, Units &short) variant", "Move :Object required"},
    {0x60030020, L"call FinaliseDoc() variant", "Finalise Object required"},
    {0x60030021, L"call SaveDoc(Docname &string?) variant", "Save Doc : Object required "},
    {0x60030022, L"call SaveDocAsPDF() flag", "Unable to print pdf : Object required"},
    {0x60030023, L"call CloseDoc(SaveOption &short?) variant", "Close Doc Object required"},
    {0x60030024, L"call StopWord(Force &flag?) variant", Member::raised},
    {0x60030025, L"call PrintDoc(Copies &short, Background &flag=0) variant",
     "Print Doc 424 :  Object required"},
    {0x60030026, L"call IsPrinting() short", Member::raised},
    {0x60030027, L"call GetDefaultPaths(PathId &short) string", "GetDefaultPaths Object required"},
    {0x60030028, L"call GotoLine(LineNo &short) flag", ""},
    {0x68030001, L"get GetLastErrorNumber() long", ""},
    {0x68030000, L"get GetLastErrorDescription() string", ""}};

inline constexpr Member outlook_members[] = {
    {0x60030001, L"call StartOutlook() flag", ""},
    {0x60030002, L"call StopOutlook(Force flag=0) flag", "", true},
    {0x60030003,
     L"call NewEmail(Template &string, ToAddress &string, CCAddress &string, BCCAddress &string, "
     L"Subject &string, Content &string, UseHTML &flag, AutoSend &flag, Attachment &string) flag",
     "New Email ActiveX component can't create object"
     "New Email Object required"
     "New Email Object variable or With block variable not set"},
    {0x60030004, L"call OpenItem(EntryType string) flag", "Unknown Entry Type "},
    {0x60030005, L"call InitItems(EntryType string, Condition string) flag", "Unknown Entry Type "},
    {0x60030006, L"call CreateItem(EntryType string) flag", "Unknown Entry Type "},
    {0x60030007, L"call DeleteItem(EntryType string) flag", "Unknown Entry Type "},
    {0x60030008, L"call GetItem(EntryType string, EntryId string) flag", "Unknown Entry Type "},
    {0x60030009, L"call GetAppointmentInstance(EntryDate string) flag", ""},
    {0x6003000A, L"call SaveItem(EntryType string) flag", "Unknown Entry Type "},
    {0x6003000B, L"call SaveItemToFile(EntryType string, FileName string) flag", "Unknown Entry Type "},
    {0x6003000C, L"call SaveEmailAttachment(AttachmentNo short, FileName string) flag", Member::not_set},
    {0x6003000D, L"call GetItemCount(EntryType string) short", "Unknown Entry Type "},
    {0x6003000E, L"call GetFirstItem(EntryType string) flag", "Unknown Entry Type "},
    {0x6003000F, L"call GetNextItem(EntryType string) flag", "Unknown Entry Type "},
    {0x60030010, L"call GetAppointmentProperty(AppProp string) string", "Unknown Property "},
    {0x60030011, L"call SetAppointmentProperty(AppProp string, PropertyValue string) flag",
     "Unknown Property ", true},
    {0x60030012, L"call GetRecurrencePattern() flag", ""},
    {0x60030013, L"call ClearRecurrencePattern() flag", ""},
    {0x60030014, L"call GetRecurrenceProperty(RecurProp string) string", "Unknown Property : "},
    {0x60030015, L"call SetRecurrenceProperty(RecurProp string, PropertyValue string) string",
     "Unknown property "},
    {0x60030016, L"call GetExceptionProperty(Instance short, ExceptProp string) string", ""},
    {0x60030017, L"call GetContactProperty(ContactProp string) string", "Unknown Property "},
    {0x60030018, L"call SetContactProperty(ContactProp string, PropertyValue string) flag",
     "Unknown Property ", true},
    {0x60030019, L"call GetTaskProperty(TaskProp string) string", "Unknown Task Property "},
    {0x6003001A, L"call SetTaskProperty(TaskProperty string, PropertyValue string) flag", "unknown property ",
     true},
    {0x6003001B, L"call GetEmailProperty(EmailProp string) string", "Unknown Property "},
    {0x6003001C, L"call GetNoteProperty(NoteProperty string) string", "Unknown Property "},
    {0x6003001D, L"call SetNoteProperty(NoteProperty string, PropertyValue string) flag", "Unknown Property ",
     true},
    {0x6003001E, L"call GetLastErrorNumber() short", ""},
    {0x6003001F, L"call GetLastErrorDescription() string", ""}};

inline std::vector<Member> members_of(const ClassIds& ids) {
  if (&ids == &classes[1]) return {std::begin(outlook_members), std::end(outlook_members)};
  std::vector<Member> members = {std::begin(word_members), std::end(word_members)};
  if (&ids == &classes[0]) return members;
  members[0].fresh = "Start ActiveX component can't create objectActiveX component can't create object";
  for (const int slot : {1, 2, 7}) members[slot].fresh = "", members[slot].succeeds = true;
  members[32].fresh = "";
  members[14].signature =
      L"get SetHeaderFooter(SourceTemplate &string, DestTemplate &string, ApplyHeader &byte, "
      L"ApplyFooter &byte, ApplyFont &byte) byte";
  return members;
}

// The types of a member's parameters and, as the last, of its result.
inline std::vector<VARTYPE> types_of(const std::wstring& signature) {
  static const std::wregex pattern(L" (&?)(short|long|byte|flag|string|variant)");
  std::vector<VARTYPE> types;
  for (std::wsregex_iterator i(signature.begin(), signature.end(), pattern), end; i != end; ++i)
    for (const auto& [type, name] : type_names)
      if ((*i)[2] == name) types.push_back(type | ((*i)[1].length() ? VT_BYREF : 0));
  return types;
}

}  // namespace outside
