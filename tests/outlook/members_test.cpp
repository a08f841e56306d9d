// What every member asks of the mail client, and how it fails at each of its steps.
#include <regex>

#include "outlook_test.h"

namespace {

// A member's call on a ready control, its steps, what it holds then instead of what, as "earlier>later", and
// its result. A row with an @ stands for one row a kind, with the kind's @item, @found and so on.
struct Row {
  const wchar_t* member;
  std::vector<_variant_t> arguments;
  std::string steps, change = "", result = "bool -1";
  std::map<std::string, Answer> answers = {};
};

const std::string report =
    "get Email.Attachments | get Attachments.[newenum] | next Attachments | get Email.Body"
    " | get Logo.FileName | next Attachments | get Email.Body | get Report.FileName | ";
const std::string figures = "next Attachments | get Email.Body | get Figures.FileName | ";
const std::string filled = "get NameSpace.GetDefaultFolder(i4 @number) | get @folder.Items | ";
const std::string sent =
    R"(get NameSpace.GetDefaultFolder(i4 5) | get SentMail.Items | call Fresh.Sort(bstr "[CreationTime]"))";
const std::string gone = "get NameSpace.GetDefaultFolder(i4 3) | get DeletedItems.Items";
const std::string restricted = R"(get Fresh.Restrict(bstr "a = ' '"))", of_class = " | get @found.Class";
const std::string sorted = R"(call Fresh.Sort(bstr "[@key]"))",
                  chosen = R"( | call Chosen.Sort(bstr "[@key]"))";
const std::string two = "get NoteItems.GetFirst | get Foreign.Class | get NoteItems.GetNext";
const std::string pattern = "get Appointment.GetRecurrencePattern",
                  instance = pattern + " | get Pattern.GetOccurrence(date 07/21/2007 09:30:00)";
const std::pair<const std::string, Answer> foreign = {"NoteItems.GetFirst", {.object = "Foreign"}},
                                           end = {"NoteItems.GetNext", {nothing}};

const std::string cleared = "get Appointment.IsRecurring | call Appointment.ClearRecurrencePattern";
const std::map<std::string, Answer> exceptions = {{"Exceptions.Count", {2}},
                                                  {"Exceptions.Item(i2 1)", {.object = "Moved"}},
                                                  {"Exceptions.Item(i2 -2)", {.object = "Moved"}},
                                                  {"Exceptions.Item(i2 2)", {.object = "Gone"}},
                                                  {"Moved.OriginalDate", {march_5(14, 30)}},
                                                  {"Gone.OriginalDate", {march_5(0)}},
                                                  {"Gone.Deleted", {true}},
                                                  {"Moved.AppointmentItem", {.object = "Occurrence"}}};
std::string of(int number, const std::string& member) {
  return "get Pattern.Exceptions | get Exceptions.Item(i2 " + std::to_string(number) + ") | get " + member;
}
const std::string counted = "get Pattern.Exceptions | get Exceptions.Count",
                  moved = of(1, "Moved.Deleted | ") + of(1, "Moved.OriginalDate | "),
                  listed = counted + " | " + moved + of(2, "Gone.Deleted | ") + of(2, "Gone.OriginalDate");

constexpr auto list = L"Exception List", taken = L"Get Appointment";
constexpr auto day = R"(bstr "05/03/2007")", found = R"(bstr "Appointment Found")",
               change = "Appointment>Occurrence";

const Row rows[] = {
    {L"StartOutlook", {}, R"(create Outlook.Application | get Application.GetNamespace(bstr "MAPI"))"},
    {L"GetLastErrorNumber", {}, "", "", "i2 91"},
    {L"GetLastErrorDescription", {}, "", "", R"(bstr ")" + not_set + '"'},
    {L"StopOutlook", {}, ""},
    {L"StopOutlook", {false}, ""},
    {L"StopOutlook", {true}, "call Application.Quit"},
    {L"InitItems", {L"@", L""}, filled + sorted, "@items>Fresh"},
    {L"InitItems", {L"@", L"a = ' '"}, filled + restricted + chosen, "@items>Chosen"},
    {L"InitItems", {L"Deleted @", L""}, gone, "@items>Fresh"},
    {L"InitItems", {L"Deleted @", L"a = ' '"}, gone + " | " + restricted, "@items>Chosen"},
    {L"InitItems", {L"Sent Items", L""}, sent, "EmailItems>Fresh"},
    {L"GetItemCount", {L"@"}, "get @items.Count", "", "i2 7"},
    {L"GetFirstItem", {L"@"}, "get @items.GetFirst" + of_class, "@item>@found"},
    {L"GetNextItem", {L"@"}, "get @items.GetNext" + of_class, "@item>@found"},
    {L"GetFirstItem", {L"Note"}, two + " | get FoundNote.Class", "Note>FoundNote", "bool -1", {foreign}},
    {L"GetFirstItem", {L"Note"}, two, "", "bool 0", {foreign, end}},
    {L"GetFirstItem", {L"Note"}, "get NoteItems.GetFirst", "", "bool 0", {{"NoteItems.GetFirst", {nothing}}}},
    {L"GetNextItem", {L"Note"}, "get NoteItems.GetNext", "", "bool 0", {end}},
    {L"GetItem", {L"@", L"@"}, R"(get NameSpace.GetItemFromID(bstr "@item"))" + of_class, "@item>@found"},
    {L"GetRecurrencePattern", {}, pattern},
    {L"GetAppointmentInstance", {L"21/07/2007 09:30:00"}, instance, "Appointment>Occurrence"},
    {L"ClearRecurrencePattern", {}, cleared, "", "bool -1", {{"Appointment.IsRecurring", {true}}}},
    {L"GetRecurrenceProperty", {list}, listed, "", R"(bstr "+05/03/2007,-05/03/2007")", exceptions},
    {L"GetRecurrenceProperty", {list}, counted, "", R"(bstr "")", {{"Exceptions.Count", {0}}}},
    {L"GetExceptionProperty", {1, L"OriginalDate"}, of(1, "Moved.OriginalDate"), "", day, exceptions},
    {L"GetExceptionProperty", {2, L"Deleted"}, of(2, "Gone.Deleted"), "", R"(bstr "True")", exceptions},
    {L"GetExceptionProperty", {-2, L"Deleted"}, of(-2, "Moved.Deleted"), "", R"(bstr "False")", exceptions},
    {L"GetExceptionProperty", {1, taken}, of(1, "Moved.AppointmentItem"), change, found, exceptions},
    {L"CreateItem", {L"@"}, "get Application.CreateItem(i4 @type)", "@item>Made"},
    {L"OpenItem", {L"@"}, "call @item.Display"},
    {L"DeleteItem", {L"@"}, "call @item.Delete"},
    {L"SaveItem", {L"@"}, "call @item.Save"},
    {L"SaveItemToFile", {L"@", L"C:\\a b"}, R"(call @item.SaveAs(bstr "C:\a b"))"},
    {L"SaveEmailAttachment", {short{1}, L"C:\\r"}, report + R"(call Report.SaveAsFile(bstr "C:\r"))"},
    {L"SaveEmailAttachment", {short{2}, L""}, report + figures + R"(call Figures.SaveAsFile(bstr ""))"},
    {L"SaveEmailAttachment", {short{3}, L"a"}, report + figures + "next Attachments"},
};

template <class Text>
Text with(Text text, const Text& part, const Text& other) {
  for (size_t at = 0; (at = text.find(part, at)) != text.npos; at += other.size())
    text.replace(at, part.size(), other);
  return text;
}

std::vector<Row> all_rows() {
  const char* const sort_keys[] = {"Start", "FullName", "Subject", "DueDate", "CreationTime"};
  std::vector<Row> all;
  for (const Row& row : rows)
    for (const auto& kind : item_kinds) {
      all.push_back(row);
      Row& own = all.back();
      const std::pair<std::string, std::string> parts[] = {{"@items", kind.items},
                                                           {"@item", kind.name},
                                                           {"@found", kind.found},
                                                           {"@number", std::to_string(kind.folder_number)},
                                                           {"@folder", kind.folder},
                                                           {"@type", std::to_string(kind.item_type)},
                                                           {"@key", sort_keys[&kind - item_kinds]}};
      for (auto* text : {&own.steps, &own.change})
        for (const auto& [part, name] : parts) *text = with(*text, part, name);
      for (auto& argument : own.arguments)
        if (argument.vt == VT_BSTR) argument = with<std::wstring>(argument.bstrVal, L"@", kind.word).c_str();
      if (own.arguments == row.arguments) break;
    }
  return all;
}

class Members : public OutlookTest, public testing::WithParamInterface<Row> {
 protected:
  // Makes a control ready, and everything that it fetches from then on new.
  void make_row_ready() {
    office_.answers = usual_;
    make_ready();
    kept_ = held();
    auto answers = row_.answers;
    answers["Fresh.Restrict"] = {.object = "Chosen"};
    for (const auto* items : {"Calendar", "Contacts", "Notes", "Tasks", "Inbox", "SentMail", "DeletedItems"})
      answers[std::string(items) + ".Items"] = {.object = "Fresh"};
    for (const auto* type : {"0", "1", "2", "3", "5"})
      answers["Application.CreateItem(i4 " + std::string(type) + ")"] = {.object = "Made"};
    answers.merge(office_.answers);
    office_.answers = answers;
  }
  // What is held with the row's change, which goes as far as `last`.
  std::string held_after(const std::string& last) const {
    const std::string earlier = "|" + row_.change.substr(0, row_.change.find('>')) + "|";
    return last.empty() ? kept_ : with(kept_, earlier, "|" + last + "|");
  }
  // The message box of a failure at the last of the steps `reached`, "" for none.
  std::string message(const std::string& description, const std::string& reached) const {
    const auto argument = [this](int index) { return utf8(row_.arguments[index].bstrVal) + " "; };
    const std::wstring_view member = row_.member;
    if (member == L"OpenItem") return "open item " + argument(0) + description;
    if (member == L"InitItems") return "init items " + argument(0) + argument(1) + description;
    if (member == L"GetNextItem" || reached.find(".GetNext") != reached.npos)
      return "next item " + description;
    if (member == L"GetFirstItem") return "first item " + description;
    return facts_.empty() ? "" : "Couldn't save Attachment " + description + " : 0 : 1";
  }

  const Row& row_ = GetParam();
  const std::map<std::string, Answer> usual_ = office_.answers;
  const std::string failed_ =
      std::regex_replace(row_.result, std::regex(" [^]*"), row_.result.starts_with("bstr") ? " \"\"" : " 0");
  // The steps that the message box of SaveEmailAttachment takes.
  const std::string facts_ = row_.steps.find(".FileName") == std::string::npos
                                 ? ""
                                 : " | get Email.Attachments | get Attachments.Item(" +
                                       describe(row_.arguments[0]) +
                                       ") | get Attachment.BlockLevel | get Attachment.Type";
  std::string kept_;
};

TEST_P(Members, TakeTheirStepsAndStopAtTheOneThatFails) {
  Driven::here().members[1].insert(row_.member);
  for_each_step(row_.steps, [&](size_t step, const std::string& reached, const Fault& fault) {
    make_row_ready();
    const std::string shown = step ? message(fault.description, reached) : "";
    office_.fail_at = step;
    expect(row_.member, row_.arguments, step ? failed_ : row_.result, shown);
    // The body is read before the attachment is looked at.
    const bool late = fault.failure.result == S_OK && reached.ends_with("next Attachments");
    EXPECT_EQ(log(), step ? reached + (late ? " | get Email.Body" : "") + facts_ : reached);
    EXPECT_EQ(errors_at_boxes_, std::vector<std::string>(shown.empty() ? 0 : 1, unset)) << "box first";
    EXPECT_EQ(last_error(), step ? recorded(fault.number, fault.description) : unset)
        << "it is never cleared";
    office_.fail_at = 0;
    // The collection is replaced as soon as it is fetched, and again as soon as it is restricted.
    const auto done = reached.substr(0, reached.rfind(" | ") == reached.npos ? 0 : reached.rfind(" | "));
    const bool fetched = done.find(".Items") != done.npos, restricted = done.find(".Restrict") != done.npos;
    const auto last = row_.change.substr(row_.change.find('>') + 1);
    EXPECT_EQ(held(), held_after(!step ? last : restricted ? "Chosen" : fetched ? "Fresh" : ""));
  });
}

TEST_P(Members, RunShortOfMemory) {
  const auto failed = [&](const Fault& fault, const std::string& result, const std::string& boxes) {
    const bool raises = std::wstring_view(row_.member).starts_with(L"GetLastError");
    return result == (raises ? fault.in("raised @ %") : failed_) &&
           boxes == message(fault.description, log());
  };
  run_short(
      row_.member, row_.arguments, [&] { make_row_ready(); }, failed,
      [&] {
        const auto last = row_.change.substr(row_.change.find('>') + 1);
        const std::set<std::string> told = {unset, recorded(7, "Out of memory"), recorded(7, "")},
                                    states = {kept_, held_after("Fresh"), held_after("Chosen"),
                                              held_after(last)};
        EXPECT_TRUE(told.contains(last_error())) << last_error();
        EXPECT_TRUE(states.contains(held())) << held();
      });
}

TEST_P(Members, NeedWhatTheirFirstStepIsAskedOf) {
  if (row_.steps.empty() || row_.steps.starts_with("create")) return;
  const bool raises = !facts_.empty();  // without an e-mail there are none
  expect(row_.member, row_.arguments, raises ? "raised 800A005B " + not_set : failed_,
         raises ? "" : message(not_set, ""));
  EXPECT_EQ(last_error(), raises ? recorded(0, "") : unset);
  EXPECT_EQ(log(), "");
}

void PrintTo(const Row& row, std::ostream* out) { *out << utf8(row.member) << ": " << row.steps; }

INSTANTIATE_TEST_SUITE_P(Outlook, Members, testing::ValuesIn(all_rows()),
                         [](const auto& row) { return utf8(row.param.member) + std::to_string(row.index); });

}  // namespace
