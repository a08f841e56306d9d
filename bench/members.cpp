#include "bench/members.h"

#include "ZORBOffice/surface/identifiers.h"
#include "ZORBOffice/surface/member_tables.h"

namespace bench {
namespace {

constexpr auto creates = "creates an object";
constexpr auto ends_session = "lets go of the type library";
constexpr auto prints = "asks the system for its printers";
constexpr auto runs_messages = "runs pending messages";
constexpr auto formats_date = "writes or reads a date as text";
constexpr auto path = L"C:\\a.docx";

const std::vector<HostCall> document = {{L"OpenDoc", {path}}};
const std::vector<HostCall> appointment = {{L"CreateItem", {L"Appointment"}}};
const std::vector<HostCall> recurring = {{L"CreateItem", {L"Appointment"}}, {L"GetRecurrencePattern"}};
const std::vector<HostCall> contact = {{L"CreateItem", {L"Contact"}}};
const std::vector<HostCall> task = {{L"CreateItem", {L"Task"}}};
const std::vector<HostCall> mail = {{L"CreateItem", {L"Email"}}};
const std::vector<HostCall> note = {{L"CreateItem", {L"Note"}}};
const std::vector<HostCall> collection = {{L"InitItems", {L"Email", L""}}};
const std::vector<HostCall> walk = {{L"InitItems", {L"Email", L""}}, {L"GetFirstItem", {L"Email"}}};

const std::vector<MeasuredMember> word = {
    {{L"Start", {false}}, {}, {}, "", creates, true},
    {{L"Start", {true}}, {}, {}, "placing the window", creates, true},
    {{L"SetVisible", {true}}},
    {{L"SetActive", {true}}},
    {{L"SetScreenUpdating", {false}}},
    {{L"StopWord", {true}}, {}, {{L"Start", {false}}}, "", ends_session},
    {{L"GetDefaultPaths", {2}}},
    {{L"OpenDoc", {path}}},
    {{L"CreateDoc", {L"C:\\a.dotx"}}},
    {{L"FinaliseDoc"}, document},
    {{L"SaveDoc", {L""}}, document},
    {{L"SaveDoc", {path}}, document, {}, "under a name"},
    {{L"SaveDocAsPDF"}, document, {}, "", prints},
    {{L"CloseDoc", {0}}, {}, document},
    {{L"PrintDoc", {1}}, document, {}, "", runs_messages},
    {{L"IsPrinting"}},
    {{L"SendText", {L"Dear Ms Miller"}}, document},
    {{L"ReadText", {2, 5}}, document},
    {{L"ReadText", {3, 0}}, document, {}, "to the end"},
    {{L"ReadText", {0, 0}}, document, {}, "three sections"},
    {{L"SelectionText"}, document},
    {{L"Cut"}, document},
    {{L"Paste"}, document},
    {{L"SelectParagraph"}, document},
    {{L"CursorLeft", {3}}, document},
    {{L"CursorRight", {3}}, document},
    {{L"CursorStartOfParagraph"}, document},
    {{L"CursorStartOfCell"}, document},
    {{L"CursorEndOfCell"}, document},
    {{L"CursorEndOfParagraph"}, document},
    {{L"Move", {4, 2}}, document},
    {{L"GotoLine", {7}}, document},
    {{L"Search", {L"a", 1, true, true}}, document},
    {{L"Replace", {L"a", L"b"}}, document},
    {{L"InTable"}, document},
    {{L"SelectRow"}, document},
    {{L"CellCount"}, document},
    {{L"CellText", {2}}, document},
    {{L"NumberOfSections"}, document},
    {{L"ReadHeaderFooterText", {1, true, 1, 0, 0}}, document},
    {{L"ReplaceHeaderFooter", {1, true, 1, L"a", L"b"}}, document},
    {{L"SetHeaderFooter", {L"C:\\s.dotx", L"C:\\d.dotx", true, true, true}}},
};

const std::vector<MeasuredMember> outlook = {
    {{L"StartOutlook"}, {}, {}, "", creates, true},
    {{L"StopOutlook", {true}}},
    {{L"NewEmail", {L"", L"a;b", L"c", L"", L"Subject", L"Text", false, true, L"C:\\a.pdf"}},
     {},
     {},
     "",
     creates,
     true},
    {{L"OpenItem", {L"Email"}}, mail},
    {{L"InitItems", {L"Email", L""}}},
    {{L"InitItems", {L"Email", L"[Unread] = True"}}, {}, {}, "restricted"},
    {{L"CreateItem", {L"Email"}}},
    {{L"DeleteItem", {L"Email"}}, mail},
    {{L"GetItem", {L"Appointment", L"AppointmentItem"}}},
    {{L"GetAppointmentInstance", {L"2026-11-23 14:30"}}, appointment, {}, "", formats_date},
    {{L"SaveItem", {L"Email"}}, mail},
    {{L"SaveItemToFile", {L"Email", L"C:\\a.msg"}}, mail},
    {{L"SaveEmailAttachment", {1, L"C:\\a.pdf"}}, mail},
    {{L"GetItemCount", {L"Email"}}, collection},
    {{L"GetFirstItem", {L"Email"}}, collection},
    {{L"GetNextItem", {L"Email"}}, walk},
    {{L"GetAppointmentProperty", {L"Subject"}}, appointment},
    {{L"GetAppointmentProperty", {L"StartDate"}}, appointment, {}, "a date", formats_date},
    {{L"SetAppointmentProperty", {L"Subject", L"Offer"}}, appointment},
    {{L"SetAppointmentProperty", {L"Start", L"2026-11-23 14:30"}}, appointment, {}, "a date", formats_date},
    {{L"GetRecurrencePattern"}, appointment},
    {{L"ClearRecurrencePattern"}, appointment},
    {{L"GetRecurrenceProperty", {L"Interval"}}, recurring},
    {{L"SetRecurrenceProperty", {L"Interval", L"2"}}, recurring},
    {{L"GetExceptionProperty", {1, L"Deleted"}}, recurring},
    {{L"GetContactProperty", {L"FullName"}}, contact},
    {{L"GetContactProperty", {L"AllEmailAddresses"}}, contact, {}, "three members"},
    {{L"SetContactProperty", {L"FullName", L"A. Miller"}}, contact},
    {{L"GetTaskProperty", {L"Status"}}, task},
    {{L"SetTaskProperty", {L"Subject", L"Offer"}}, task},
    {{L"GetEmailProperty", {L"Subject"}}, mail},
    {{L"GetEmailProperty", {L"Attachments"}}, mail, {}, "three elements"},
    {{L"GetNoteProperty", {L"Body"}}, note},
    {{L"SetNoteProperty", {L"Body", L"Offer"}}, note},
};

}  // namespace

std::span<const MeasuredClass> measured_classes() {
  static const MeasuredClass classes[] = {
      {"ZORBWord", zorboffice::zorb_word_class_id, zorboffice::zorb_word_members, {L"Start", {false}}, word},
      {"ZORBOutlook",
       zorboffice::zorb_outlook_class_id,
       zorboffice::zorb_outlook_members,
       {L"StartOutlook"},
       outlook}};
  return classes;
}

}  // namespace bench
