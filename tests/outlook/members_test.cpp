// What every member asks of the mail client, and how it fails at each of its steps.
#include "outlook_test.h"
#include "support/text.h"

namespace {

// A member's call on a ready control, its result, its steps, and what it replaces in what the control holds.
struct Row {
  std::wstring member;
  std::vector<_variant_t> arguments;
  const char* result;
  std::string steps;
  std::pair<std::string, std::string> replaced = {};
  std::map<std::string, Answer> answers = {};
};

const _variant_t nothing(static_cast<IDispatch*>(nullptr));
const std::string first_report =
    "get Email.Attachments | get Attachments.[newenum] | next Attachments | get Email.Body | get "
    "Logo.FileName"
    " | next Attachments | get Email.Body | get Report.FileName";
const std::string then_figures = " | next Attachments | get Email.Body | get Figures.FileName";

// The rows of InitItems for a word and the kind whose collection it fills.
void add_filling(std::vector<Row>& rows, const std::wstring& word, const ItemKind& kind, int number,
                 const std::string& folder, const std::string& key) {
  for (const auto* condition : {L"", L"[Subject] = 'a'", L" "}) {
    const std::string chosen = *condition ? "Chosen" : "Fresh";
    std::string steps =
        "get NameSpace.GetDefaultFolder(i4 " + std::to_string(number) + ") | get " + folder + ".Items";
    if (*condition) steps += " | get Fresh.Restrict(bstr \"" + utf8(condition) + "\")";
    if (!key.empty()) steps += " | call " + chosen + ".Sort(bstr \"[" + key + "]\")";
    rows.push_back({L"InitItems",
                    {word.c_str(), condition},
                    "bool -1",
                    steps,
                    {kind.items, chosen},
                    {{folder + ".Items", {.object = "Fresh"}}, {"Fresh.Restrict", {.object = "Chosen"}}}});
  }
}

std::vector<Row> all_rows() {
  const Answer foreign = {.object = "Foreign"}, end = {.value = nothing};
  const std::string skipping =
      "get ContactItems.GetFirst | get Foreign.Class | get ContactItems.GetNext | get FoundContact.Class";
  std::vector<Row> rows = {
      {L"StartOutlook",
       {},
       "bool -1",
       "create Outlook.Application | get Application.GetNamespace(bstr \"MAPI\")"},
      {L"StopOutlook", {}, "bool -1", ""},
      {L"StopOutlook", {false}, "bool -1", ""},
      {L"StopOutlook", {true}, "bool -1", "call Application.Quit"},
      {L"GetRecurrencePattern", {}, "bool -1", "get Appointment.GetRecurrencePattern"},
      {L"GetAppointmentInstance",
       {L"21/07/2007 09:30:00"},
       "bool -1",
       "get Appointment.GetRecurrencePattern | get Pattern.GetOccurrence(date 07/21/2007 09:30:00)",
       {"Appointment", "Occurrence"}},
      {L"SaveEmailAttachment",
       {1, L"C:\\r"},
       "bool -1",
       first_report + " | call Report.SaveAsFile(bstr \"C:\\r\")"},
      {L"SaveEmailAttachment",
       {2, L""},
       "bool -1",
       first_report + then_figures + " | call Figures.SaveAsFile(bstr \"\")"},
      {L"SaveEmailAttachment", {3, L"a"}, "bool -1", first_report + then_figures + " | next Attachments"},
      {L"GetFirstItem",
       {L"Contact"},
       "bool -1",
       skipping,
       {"Contact", "FoundContact"},
       {{"ContactItems.GetFirst", foreign}}},
      {L"GetFirstItem",
       {L"Contact"},
       "bool 0",
       skipping.substr(0, skipping.rfind(" | ")),
       {},
       {{"ContactItems.GetFirst", foreign}, {"ContactItems.GetNext", end}}},
      {L"GetFirstItem", {L"Task"}, "bool 0", "get TaskItems.GetFirst", {}, {{"TaskItems.GetFirst", end}}},
      {L"GetNextItem", {L"Task"}, "bool 0", "get TaskItems.GetNext", {}, {{"TaskItems.GetNext", end}}},
  };
  const char* sort_keys[] = {"Start", "FullName", "Subject", "DueDate", "CreationTime"};
  for (const auto& kind : item_kinds) {
    const std::string name = kind.name, found = kind.found, items = kind.items;
    const _variant_t word = kind.word;
    const std::pair<std::string, std::string> made_current = {name, found};
    const std::string by_class = " | get " + found + ".Class";
    rows.insert(
        rows.end(),
        {{L"OpenItem", {word}, "bool -1", "call " + name + ".Display"},
         {L"DeleteItem", {word}, "bool -1", "call " + name + ".Delete"},
         {L"SaveItem", {word}, "bool -1", "call " + name + ".Save"},
         {L"SaveItemToFile", {word, L"C:\\a b"}, "bool -1", "call " + name + ".SaveAs(bstr \"C:\\a b\")"},
         {L"CreateItem",
          {word},
          "bool -1",
          "get Application.CreateItem(i4 " + std::to_string(kind.item_type) + ")",
          {name, "Made"},
          {{"Application.CreateItem", {.object = "Made"}}}},
         {L"GetItem",
          {word, word},
          "bool -1",
          "get NameSpace.GetItemFromID(bstr \"" + utf8(kind.word) + "\")" + by_class,
          made_current},
         {L"GetItemCount", {word}, "i2 7", "get " + items + ".Count"},
         {L"GetFirstItem", {word}, "bool -1", "get " + items + ".GetFirst" + by_class, made_current},
         {L"GetNextItem", {word}, "bool -1", "get " + items + ".GetNext" + by_class, made_current}});
    const auto* key = sort_keys[&kind - item_kinds];
    add_filling(rows, kind.word, kind, kind.folder_number, kind.folder, key);
    add_filling(rows, std::wstring(L"Deleted ") + kind.word, kind, 3, "DeletedItems", "");
  }
  add_filling(rows, L"Sent Items", item_kinds[4], 5, "SentMail", "CreationTime");
  return rows;
}

class Members : public OutlookTest, public testing::WithParamInterface<Row> {
 protected:
  void make_row_ready() {
    outlook_.answers = usual_;
    make_ready();
    usual_held_ = held();
    for (const auto& [path, answer] : row_.answers) outlook_.answers[path] = answer;
    // CreateItem's usual answers name their argument.
    if (row_.member == L"CreateItem")
      std::erase_if(outlook_.answers,
                    [](auto& known) { return known.first.find("CreateItem(") != known.first.npos; });
  }

  std::string held_with(const std::string& earlier, const std::string& later) const {
    std::string names = usual_held_;
    if (const auto at = names.find("|" + earlier + "|"); !earlier.empty() && at != names.npos)
      names.replace(at + 1, earlier.size(), later);
    return names;
  }

  // The message box of a failure after the steps `done`, "" for none.
  std::string message(const std::string& description, const std::string& done) const {
    const auto argument = [this](size_t index) { return utf8(row_.arguments[index].bstrVal) + " "; };
    if (row_.member == L"OpenItem") return "open item " + argument(0) + description;
    if (row_.member == L"InitItems") return "init items " + argument(0) + argument(1) + description;
    if (row_.member == L"GetNextItem" || done.find(".GetNext") != done.npos)
      return "next item " + description;
    if (row_.member == L"GetFirstItem") return "first item " + description;
    if (row_.member == L"SaveEmailAttachment") return "Couldn't save Attachment " + description + " : 0 : 1";
    return "";
  }
  const char* failed() const { return row_.member == L"GetItemCount" ? "i2 0" : "bool 0"; }

  const Row& row_ = GetParam();
  const std::map<std::string, Answer> usual_ = outlook_.answers;
  std::string usual_held_;
};

TEST_P(Members, TakeTheirSteps) {
  make_row_ready();
  expect(row_.member.c_str(), row_.arguments, row_.result);
  EXPECT_EQ(log(), row_.steps);
  EXPECT_EQ(last_error(), unset) << "success does not clear the last error";
  EXPECT_EQ(held(), held_with(row_.replaced.first, row_.replaced.second));
}

TEST_P(Members, StopAtTheStepThatFails) {
  std::string facts;
  if (row_.member == L"SaveEmailAttachment")
    facts = " | get Email.Attachments | get Attachments.Item(" +
            describe(_variant_t(short(row_.arguments[0]))) +
            ") | get Attachment.BlockLevel | get Attachment.Type";
  for (size_t step = 1, end = row_.steps.empty() ? std::string::npos : 0; end != std::string::npos; ++step) {
    SCOPED_TRACE(step);
    make_row_ready();
    const std::string done = row_.steps.substr(0, end);
    end = row_.steps.find(" | ", end + 1);
    const std::string reached = row_.steps.substr(0, end), shown = message("No such member.", reached);
    outlook_.fail_at = step;
    expect(row_.member.c_str(), row_.arguments, failed(), shown);
    EXPECT_EQ(log(), reached + facts);
    EXPECT_EQ(errors_at_boxes_, std::vector<std::string>(shown.empty() ? 0 : 1, unset)) << "box first";
    EXPECT_EQ(last_error(), recorded(5941, "No such member."));
    outlook_.fail_at = 0;
    // The collection is replaced where it is fetched, and again where it is restricted.
    std::string later;
    if (row_.member == L"InitItems" && done.find(".Items") != done.npos) later = "Fresh";
    if (done.find(".Restrict") != done.npos) later = "Chosen";
    EXPECT_EQ(held(), later.empty() ? usual_held_ : held_with(row_.replaced.first, later));
  }
}

TEST_P(Members, NeedWhatTheirFirstStepIsAskedOf) {
  if (row_.steps.empty() || row_.steps.starts_with("create")) return;
  const bool raises = row_.member == L"SaveEmailAttachment";  // the box needs the e-mail, too
  expect(row_.member.c_str(), row_.arguments, raises ? "raised 800A005B " + not_set : failed(),
         raises ? "" : message(not_set, ""));
  EXPECT_EQ(last_error(), raises ? recorded(0, "") : unset);
  EXPECT_EQ(log(), "");
}

void PrintTo(const Row& row, std::ostream* out) { *out << utf8(row.member) << ": " << row.steps; }

std::string name_of(const testing::TestParamInfo<Row>& row) {
  return utf8(row.param.member) + std::to_string(row.index);
}

INSTANTIATE_TEST_SUITE_P(Outlook, Members, testing::ValuesIn(all_rows()), name_of);

}  // namespace
