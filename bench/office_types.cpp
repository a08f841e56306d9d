#include "bench/office_types.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace bench {
namespace {

constexpr DISPID class_member = 61450;

constexpr Answer number(double value) { return {Answer::number, nullptr, value}; }
constexpr Answer text(const wchar_t* value) { return {Answer::text, value}; }
constexpr Answer object(const wchar_t* type) { return {Answer::object, type}; }
constexpr Answer any(const wchar_t* type) { return {Answer::any, type}; }
constexpr Answer flag = {Answer::flag, nullptr, 1};
constexpr Answer date = {Answer::date, nullptr, 46347.5};
constexpr Answer points = {Answer::real, nullptr, 85.5};

constexpr MemberRow get(const wchar_t* name, Answer answer, const wchar_t* parameters = L"") {
  return {name, false, answer, parameters};
}
constexpr MemberRow call(const wchar_t* name, const wchar_t* parameters = L"", Answer answer = {}) {
  return {name, true, answer, parameters};
}
constexpr MemberRow item(const wchar_t* type) { return call(L"Item", L"Index", object(type)); }
constexpr MemberRow elements(const wchar_t* type) { return get(L"_NewEnum", {Answer::elements, type}); }

constexpr MemberRow word[] = {get(L"Documents", object(L"Documents")),
                              get(L"Options", object(L"Options")),
                              get(L"System", object(L"System")),
                              get(L"NormalTemplate", object(L"Template")),
                              get(L"Visible", flag),
                              get(L"ScreenUpdating", flag),
                              get(L"WindowState", number(0)),
                              get(L"Left", points),
                              get(L"Top", points),
                              get(L"Version", text(L"16.0")),
                              get(L"ActivePrinter", text(L"Office printer")),
                              get(L"BackgroundPrintingStatus", number(0)),
                              get(L"BackgroundSavingStatus", number(0)),
                              call(L"Activate"),
                              call(L"CentimetersToPoints", L"Centimeters", points),
                              call(L"PixelsToPoints", L"Pixels fVertical", points),
                              call(L"Resize", L"Width Height"),
                              call(L"Quit", L"SaveChanges OriginalFormat RouteDocument")};
constexpr MemberRow documents[] = {get(L"Count", {Answer::counted}), item(L"Document"),
                                   call(L"Open", L"FileName", object(L"Document")),
                                   call(L"Add", L"Template NewTemplate", object(L"Document"))};
constexpr MemberRow document[] = {
    get(L"ActiveWindow", object(L"Window")),
    get(L"Sections", object(L"Sections")),
    get(L"Styles", object(L"Styles")),
    get(L"AttachedTemplate", any(L"Template")),
    get(L"UpdateStylesOnOpen", flag),
    call(L"Range", L"Start End", object(L"Range")),
    call(L"UpdateStyles"),
    call(L"Save"),
    call(L"SaveAs", L"FileName FileFormat"),
    call(L"Close", L"SaveChanges OriginalFormat RouteDocument"),
    call(L"PrintOut", L"Background Append Range OutputFileName From To Item Copies")};
constexpr MemberRow window[] = {get(L"Caption", text(L"Letter")), get(L"Selection", object(L"Selection"))};
constexpr MemberRow selection[] = {get(L"Text", text(L"chosen")),
                                   get(L"Find", object(L"Find")),
                                   get(L"Rows", object(L"Rows")),
                                   get(L"Paragraphs", object(L"Paragraphs")),
                                   get(L"Information", flag, L"Type"),
                                   call(L"TypeText", L"Text"),
                                   call(L"MoveLeft", L"Unit Count Extend", number(1)),
                                   call(L"MoveRight", L"Unit Count Extend", number(1)),
                                   call(L"StartOf", L"Unit Extend", number(1)),
                                   call(L"EndOf", L"Unit Extend", number(1)),
                                   call(L"Move", L"Unit Count", number(1)),
                                   call(L"HomeKey", L"Unit Extend", number(1)),
                                   call(L"GoTo", L"What Which Count Name", object(L"Range")),
                                   call(L"SelectRow"),
                                   call(L"Cut"),
                                   call(L"Paste")};
constexpr MemberRow find[] = {
    get(L"Forward", flag),
    get(L"Text", text(L"")),
    get(L"Wrap", number(1)),
    get(L"Format", flag),
    get(L"MatchCase", flag),
    get(L"MatchWholeWord", flag),
    get(L"MatchWildcards", flag),
    get(L"MatchSoundsLike", flag),
    get(L"MatchAllWordForms", flag),
    call(L"ClearFormatting"),
    call(L"Execute",
         L"FindText MatchCase MatchWholeWord MatchWildcards MatchSoundsLike MatchAllWordForms Forward Wrap "
         L"Format ReplaceWith Replace",
         flag)};
constexpr MemberRow range[] = {call(L"Select"),
                               call(L"SetRange", L"Start End"),
                               get(L"Find", object(L"Find")),
                               get(L"Text", text(L"The text of a range")),
                               get(L"_Default", text(L"Its text")),
                               get(L"FormattedText", object(L"Range"))};
constexpr MemberRow options[] = {get(L"AutoFormatAsYouTypeApplyNumberedLists", flag),
                                 get(L"DefaultFilePath", text(L"C:\\Documents"), L"Path")};
constexpr MemberRow screen[] = {get(L"VerticalResolution", number(1024)),
                                get(L"HorizontalResolution", number(1280))};
constexpr MemberRow sections[] = {elements(L"Section"), get(L"Count", number(3)), item(L"Section")};
constexpr MemberRow section[] = {get(L"Headers", object(L"HeadersFooters")), get(L"Range", object(L"Range")),
                                 get(L"Footers", object(L"HeadersFooters"))};
constexpr MemberRow headers_footers[] = {get(L"Count", number(3)), item(L"HeaderFooter")};
constexpr MemberRow header_footer[] = {get(L"Range", object(L"Range")), get(L"Exists", flag)};
constexpr MemberRow rows[] = {item(L"Row"), get(L"Count", number(5))};
constexpr MemberRow row[] = {get(L"Height", points), get(L"Cells", object(L"Cells"))};
constexpr MemberRow cells[] = {get(L"Count", number(4)), item(L"Cell")};
constexpr MemberRow cell[] = {get(L"Width", points), get(L"Height", points), get(L"Range", object(L"Range"))};
constexpr MemberRow paragraphs[] = {item(L"Paragraph"), get(L"Count", number(9))};
constexpr MemberRow paragraph[] = {get(L"Range", object(L"Range"))};
constexpr MemberRow styles[] = {item(L"Style")};
constexpr MemberRow style[] = {get(L"NameLocal", text(L"Normal")), get(L"Font", object(L"Font"))};
constexpr MemberRow font[] = {get(L"Name", text(L"Liberation Serif"))};
constexpr MemberRow word_template[] = {get(L"Name", text(L"N.dotm")), get(L"FullName", text(L"C:\\N.dotm"))};

constexpr Type word_types[] = {{L"Application", true, word},
                               {L"Documents", false, documents},
                               {L"Document", true, document},
                               {L"Window", false, window},
                               {L"Selection", false, selection},
                               {L"Find", false, find},
                               {L"Range", false, range},
                               {L"Options", false, options},
                               {L"System", false, screen},
                               {L"Sections", false, sections},
                               {L"Section", false, section},
                               {L"HeadersFooters", false, headers_footers},
                               {L"HeaderFooter", false, header_footer},
                               {L"Rows", false, rows},
                               {L"Row", false, row},
                               {L"Cells", false, cells},
                               {L"Cell", false, cell},
                               {L"Paragraphs", false, paragraphs},
                               {L"Paragraph", false, paragraph},
                               {L"Styles", false, styles},
                               {L"Style", false, style},
                               {L"Font", true, font},
                               {L"Template", false, word_template}};

constexpr MemberRow outlook[] = {get(L"Name", text(L"Outlook")),
                                 call(L"CreateItem", L"ItemType", {Answer::created}),
                                 call(L"GetNamespace", L"Type", object(L"NameSpace")), call(L"Quit")};
constexpr MemberRow name_space[] = {
    call(L"GetItemFromID", L"EntryIDItem EntryIDStore", {Answer::found}),
    call(L"GetDefaultFolder", L"FolderType", {Answer::folder, L"MAPIFolder"})};
constexpr MemberRow folder[] = {get(L"Name", text(L"Folder")), get(L"Items", object(L"Items"))};
constexpr MemberRow items[] = {
    call(L"Item", L"Index", {Answer::first}),       get(L"Count", number(7)),
    call(L"GetFirst", L"", {Answer::first}),        call(L"GetNext", L"", {Answer::next}),
    call(L"Restrict", L"Filter", object(L"Items")), call(L"Sort", L"Property Descending")};

constexpr MemberRow item_class = get(L"Class", {Answer::item_class});
constexpr MemberRow subject = get(L"Subject", text(L"An item's subject"));
constexpr MemberRow body = get(L"Body", text(L"The picture logo.png is in the text."));
constexpr MemberRow entry_id = get(L"EntryID", text(L"AppointmentItem"));
constexpr MemberRow parent = get(L"Parent", any(L"MAPIFolder"));
constexpr MemberRow display = call(L"Display", L"Modal");
constexpr MemberRow remove = call(L"Delete");
constexpr MemberRow save = call(L"Save");
constexpr MemberRow save_as = call(L"SaveAs", L"Path Type");

constexpr MemberRow appointment[] = {body,
                                     save,
                                     get(L"Start", date),
                                     get(L"End", date),
                                     item_class,
                                     parent,
                                     display,
                                     subject,
                                     remove,
                                     save_as,
                                     entry_id,
                                     get(L"IsRecurring", flag),
                                     get(L"Location", text(L"Here")),
                                     call(L"GetRecurrencePattern", L"", object(L"RecurrencePattern")),
                                     call(L"ClearRecurrencePattern")};
constexpr MemberRow contact[] = {subject,
                                 item_class,
                                 body,
                                 get(L"FullName", text(L"A. Miller")),
                                 save,
                                 save_as,
                                 entry_id,
                                 display,
                                 parent,
                                 get(L"Email1Address", text(L"a@example.net")),
                                 get(L"Email2Address", text(L"")),
                                 get(L"Email3Address", text(L"")),
                                 remove};
constexpr MemberRow note[] = {
    parent, remove, get(L"Color", number(3)), subject, entry_id, save_as, item_class, save, display, body};
constexpr MemberRow task[] = {save_as,
                              get(L"DueDate", date),
                              item_class,
                              subject,
                              display,
                              body,
                              entry_id,
                              get(L"Status", number(1)),
                              get(L"Importance", number(1)),
                              save,
                              remove,
                              parent};
constexpr MemberRow mail[] = {display,
                              get(L"To", text(L"a;b")),
                              get(L"CC", text(L"")),
                              get(L"BCC", text(L"")),
                              entry_id,
                              item_class,
                              get(L"HTMLBody", text(L"<p>")),
                              subject,
                              body,
                              parent,
                              get(L"Attachments", object(L"Attachments")),
                              get(L"Recipients", object(L"Recipients")),
                              call(L"Send"),
                              save_as,
                              remove,
                              save};
constexpr MemberRow pattern[] = {call(L"GetOccurrence", L"StartDate", object(L"AppointmentItem")),
                                 get(L"Interval", number(1)), get(L"Exceptions", object(L"Exceptions")),
                                 get(L"DayOfMonth", number(7)), get(L"NoEndDate", flag)};
constexpr MemberRow exceptions[] = {get(L"Count", number(2)), item(L"Exception")};
constexpr MemberRow exception[] = {get(L"OriginalDate", date), get(L"Deleted", flag),
                                   get(L"AppointmentItem", object(L"AppointmentItem"))};
constexpr MemberRow attachments[] = {
    item(L"Attachment"), elements(L"Attachment"), get(L"Count", number(3)),
    call(L"Add", L"Source Type Position DisplayName", object(L"Attachment"))};
constexpr MemberRow attachment[] = {get(L"DisplayName", text(L"A report")),
                                    get(L"FileName", text(L"report.pdf")), get(L"BlockLevel", number(0)),
                                    get(L"Type", number(1)), call(L"SaveAsFile", L"Path")};
constexpr MemberRow recipients[] = {get(L"Count", number(3)), elements(L"Recipient"), item(L"Recipient")};
constexpr MemberRow recipient[] = {get(L"Address", text(L"a@example.net")), get(L"Name", text(L"A. Miller"))};

constexpr Type outlook_types[] = {{L"Application", true, outlook},
                                  {L"NameSpace", false, name_space},
                                  {L"MAPIFolder", false, folder},
                                  {L"Items", true, items},
                                  {L"AppointmentItem", true, appointment},
                                  {L"ContactItem", true, contact},
                                  {L"NoteItem", true, note},
                                  {L"TaskItem", true, task},
                                  {L"MailItem", true, mail},
                                  {L"RecurrencePattern", false, pattern},
                                  {L"Exceptions", false, exceptions},
                                  {L"Exception", false, exception},
                                  {L"Attachments", false, attachments},
                                  {L"Attachment", false, attachment},
                                  {L"Recipients", false, recipients},
                                  {L"Recipient", false, recipient}};

constexpr Application list[] = {
    {L"Word.Application",
     {0x3b1f62a5, 0x8d0c, 0x4e57, {0xa1, 0x3c, 0x6f, 0x2b, 0x90, 0xd4, 0x77, 0x10}},
     {0x3b1f62a5, 0x8d0c, 0x4e57, {0xa1, 0x3c, 0x6f, 0x2b, 0x90, 0xd4, 0x77, 0x11}},
     word_types},
    {L"Outlook.Application",
     {0xc40d7e19, 0x25b6, 0x4f08, {0x9e, 0x51, 0x04, 0x8a, 0x6d, 0x3f, 0xb2, 0x20}},
     {0xc40d7e19, 0x25b6, 0x4f08, {0x9e, 0x51, 0x04, 0x8a, 0x6d, 0x3f, 0xb2, 0x21}},
     outlook_types}};

}  // namespace

constinit const std::span<const Application> applications = list;

DISPID member_id(const Application& application, const Type& type, const MemberRow& member) {
  const std::wstring_view name = member.name;
  if (name == L"_NewEnum") return DISPID_NEWENUM;
  if (name == L"Item" || name == L"_Default") return DISPID_VALUE;
  if (name == L"Class") return class_member;
  const auto number = &type - application.types.data();
  return static_cast<DISPID>(1 + 3 * number + (&member - type.members.data()));
}

const MemberRow* find_member(const Application& application, const Type& type, DISPID id) {
  const auto found = std::ranges::find_if(
      type.members, [&](const MemberRow& member) { return member_id(application, type, member) == id; });
  return found == type.members.end() ? nullptr : &*found;
}

const Type& find_type(const Application& application, const wchar_t* name) {
  const auto found = std::ranges::find(application.types, std::wstring_view(name), &Type::name);
  if (found == application.types.end()) throw std::logic_error("a type that no office has");
  return *found;
}

GUID type_id(const Application& application, const Type& type, bool of_class) {
  GUID id = application.library_id;
  id.Data2 = static_cast<WORD>(1 + (&type - application.types.data()));
  id.Data3 = of_class ? 2 : 1;
  return id;
}

int count_of_parameters(const MemberRow& member) {
  const std::wstring_view names = member.parameters;
  return names.empty() ? 0 : 1 + static_cast<int>(std::ranges::count(names, L' '));
}

}  // namespace bench
