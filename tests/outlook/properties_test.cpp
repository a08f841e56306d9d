// Every key of every property accessor, as the reference page lists them, and how each fails.
#include <fstream>
#include <regex>
#include <set>

#include "outlook_test.h"

namespace {

struct Accessor {
  const wchar_t* member;
  std::string item;
  // The boxes for unknown keys and for failures: @ is the key, $ the value, % the failure's description.
  std::string unknown = "Unknown Property @", failure = "";
};

const Accessor accessors[] = {
    {L"GetAppointmentProperty", "Appointment"},
    {L"SetAppointmentProperty", "Appointment"},
    {L"GetRecurrenceProperty", "Pattern", "Unknown Property : @"},
    {L"SetRecurrenceProperty", "Pattern", "Unknown property @", title + "@ : $ : %"},
    {L"GetContactProperty", "Contact", "Unknown Property @", "Get Contact prop % : @"},
    {L"SetContactProperty", "Contact", "Unknown Property @", "Unable to create contact: %"},
    {L"GetTaskProperty", "Task", "Unknown Task Property @", "Get Task prop % : @"},
    {L"SetTaskProperty", "Task", "unknown property @", "Set Task prop % : @"},
    {L"GetEmailProperty", "Email"},
    {L"GetNoteProperty", "Note"},
    {L"SetNoteProperty", "Note"}};

// What the office application answers or the host passes, and what that becomes: the text read, the value
// written with the warning before it, or the last error behind "!".
struct Sample {
  _variant_t given;
  std::string becomes, warning = "";
};
using Samples = std::vector<Sample>;

// "given>becomes|given>becomes", all given as text.
Samples samples(const std::string& list, const std::string& warning = "") {
  Samples all;
  for (const auto& pair : split(list, '|'))
    all.push_back({value_of(split(pair, '>')[0]), split(pair, '>')[1], warning});
  return all;
}

Samples operator+(Samples all, const Samples& more) {
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

const _variant_t afternoon = march_5(14, 30), night = march_5(23, 59, 59), midnight = march_5(0);
const std::string by_default = " it will use a default value of ";

// By how the reference page's descriptions begin. A text is read with the member's own name at its end,
// unless it is empty. An empty answer is an empty text, 0 or false, and null is false.
using Forms = std::vector<std::pair<const char*, Samples>>;
const Forms read = {
    {"text", {{L"a; b \x20ac\n", "a; b \xe2\x82\xac\n"}, {L"", ""}, {{}, ""}}},
    {"decimal", {{40000, "40000"}, {0, "0"}, {-1, "-1"}, {{}, "0"}}},
    {"`True`", {{true, "True"}, {false, "False"}, {{}, "False"}, {null_value(), "False"}}},
    {"`dd/MM/yyyy`", {{afternoon, "05/03/2007"}, {night, "05/03/2007"}}},
    {"`HH:mm:ss`", {{afternoon, "14:30:00"}, {night, "23:59:59"}, {midnight, "00:00:00"}}},
    {"date and time", {{afternoon, "3/5/2007 2:30:00 PM"}, {midnight, "3/5/2007"}}},
    {"`Completed`",
     Samples{{0, "Not Started"}, {1, "In Progress"}, {2, "Completed"}} +
         Samples{{3, "Waiting on someone else"}, {4, "Deferred"}, {5, "5"}, {-1, "-1"}, {{}, "Not Started"}}},
};
const Forms written = {
    {"text", samples("a; b>bstr \"a; b\"|>bstr \"\"")},
    {"number of 16 bits",
     samples("15>i4 15|2.5>i4 2|3.5>i4 4|-2.5>i4 -2|1e2>i4 100|32767.4>i4 32767|-32768>i4 -32768|"
             "32767.5>!6 Overflow|-32769>!6 Overflow|abc>!13 Type mismatch|>!13 Type mismatch")},
    {"`True`", samples("True>bool -1|fALSE>bool 0|tRUE>bool -1|0>bool 0|2>bool -1|-0.5>bool -1|"
                       "yes>!13 Type mismatch|>!13 Type mismatch")},
    {"date, time or both", samples("3/5/2007 14:30>date 03/05/2007 14:30:00|13/2/2007>date 02/13/2007|"
                                   "14:30:15>date 14:30:15|13/13/2007>!13 Type mismatch|>!13 Type mismatch")},
    {"2 is private",
     samples("2>i4 2|1.5>i4 2|0>i4 0|1>i4 0|3>i4 0|-2>i4 0|40000>!6 Overflow|abc>!13 Type mismatch")},
    {"one of the five", samples("Not Started>i4 0|In Progress>i4 1|Completed>i4 2|"
                                "Waiting on someone else>i4 3|Deferred>i4 4")},
    {"1 to 31; otherwise a warning, and 1 (Outlook",
     samples("1>i4 1|13>i4 13|31>i4 31") +
         samples("0>i4 1|32>i4 1", "The MonthOfYear is invalid $" + by_default + "January")},
    {"1 to 31;",
     samples("1>i4 1|30.6>i4 31|32768>!6 Overflow") +
         samples("31.6>i4 1| 0>i4 1|-1>i4 1", "The DayOfMonth is invalid $" + by_default + "the first day")},
    {"1 to 127;", samples("1>i4 1|62>i4 62|127>i4 127|>!13 Type mismatch") +
                      samples("127.6>i4 127", "The DayOfWeekMask is invalid 128" + by_default + "Every Day") +
                      samples("2e2>i4 127", "The DayOfWeekMask is invalid 200" + by_default + "Every Day") +
                      samples("0.5>i4 2", "The DayOfWeekMask is invalid 0" + by_default + "Mondays only") +
                      samples("-7>i4 2", "The DayOfWeekMask is invalid -7" + by_default + "Mondays only")},
    {"0, 1, 2, 3, 5 or 6;",
     samples("0>i4 0|1>i4 1|2>i4 2|3>i4 3|5>i4 5|6>i4 6") +
         samples("4>i4 0|7>i4 0|-1>i4 0", "The RecurranceType is invalid $" + by_default + "Daily")},
};

struct Row {
  std::wstring key;
  const Samples* samples;
  // The members that hold the values, as "Object.Member", and the steps to all of them.
  std::vector<std::string> members = {};
  std::string steps = {}, between = " ";
  // Failures are the same for all keys of a form; only the first shows all of its boxes.
  bool leads = false, is_text = false;
};

// The keys that the reference page has for the accessor; members_test.cpp has the list of exceptions.
std::vector<Row> rows_of(const Accessor& accessor) {
  static const std::regex line_form(R"(\| `(.*)` \| .* \| (`.*`) \| (.*) \| (.*) \|)"),
      inner_form("(its|each) `(\\w+)`.*");
  std::ifstream page(project_file(L"docs\\reference\\properties.md").c_str());
  std::vector<Row> rows;
  std::set<const Samples*> seen;
  bool is_own = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) is_own = line.find(utf8(accessor.member)) != line.npos;
    std::smatch cells, inner;
    if (!is_own || !std::regex_match(line, cells, line_form)) continue;
    const bool sets = accessor.member[0] == 'S';
    std::string form = cells[sets ? 4 : 3], key = cells[1], names = cells[2], item = accessor.item;
    if (form.empty() || form.starts_with("each exception")) continue;
    Row row = {{key.begin(), key.end()}, nullptr};
    std::erase(names, '`');
    std::erase(names, ',');
    if (std::regex_match(form, inner, inner_form)) {
      const std::string member = inner[2];
      row.steps = "get " + item + "." + names;
      row.members = {names + "." + member};
      if (inner[1] == "each") {
        row.between = ";";
        row.members = {"First." + member, "Second." + member};
        row.steps += " | get " + names + ".[newenum] | next " + names;
      }
      for (const auto& each : row.members)
        row.steps += " | get " + each + (inner[1] == "each" ? " | next " + names : "");
      form = member == "Count" ? "decimal" : "text";
    } else {
      for (const auto& name : split(names, ' ')) row.members.push_back(item + "." + name);
      for (const auto& each : row.members) row.steps += (row.steps.empty() ? "get " : " | get ") + each;
      if (row.members.size() > 1) form = "text";
    }
    row.is_text = form == "text";
    for (const auto& [beginning, list] : sets ? written : read)
      if (!row.samples && form.starts_with(beginning)) row.samples = &list;
    row.leads = seen.insert(row.samples).second;
    rows.push_back(row);
  }
  return rows;
}

class Properties : public OutlookTest, public testing::WithParamInterface<Accessor> {
 protected:
  // Calls the accessor for `key` with `value`, which a getter does not get. The boxes are from the tables.
  void check_key(const std::wstring& key, const _variant_t& value, const std::string& result,
                 const std::string& steps, const std::string& box, const std::string& description = "") {
    SCOPED_TRACE(utf8(key) + ": " + describe(value));
    check(accessor_.member, arguments_of(key, value), result, steps, box_of(key, value, box, description));
  }
  std::string box_of(const std::wstring& key, const _variant_t& value, std::string box,
                     const std::string& description) const {
    box = std::regex_replace(box, std::regex("%"), description);
    box = std::regex_replace(box, std::regex("@"), utf8(key));
    return sets_ ? std::regex_replace(box, std::regex("\\$"), utf8(value.bstrVal)) : box;
  }
  Arguments arguments_of(const std::wstring& key, const _variant_t& value) const {
    return sets_ ? Arguments{key.c_str(), value} : Arguments{key.c_str()};
  }
  void check_failure(const Row& row, const _variant_t& value, std::string steps, int number,
                     const std::string& description) {
    const auto earlier = last_error(), error = recorded(number, description);
    if (reports_) steps += (steps.empty() ? "" : " | ") + title_steps;
    check_key(row.key, value, failed_, steps, accessor_.failure, description);
    EXPECT_EQ(last_error(), error);
    const std::vector<std::string> at_box(accessor_.failure.empty() ? 0 : 1, reports_ ? earlier : error);
    EXPECT_EQ(errors_at_boxes_, at_box);
  }

  Properties() { office_.answers["Attachments.[newenum]"].items = {"First", "Second"}; }

  const Accessor& accessor_ = GetParam();
  const std::vector<Row> rows_ = rows_of(accessor_);
  const bool sets_ = accessor_.member[0] == 'S', reports_ = accessor_.failure.starts_with(title);
  const bool answers_text_ = !sets_ || reports_;
  const std::string done_ = answers_text_ ? text_result("") : "bool -1";
  const std::string failed_ = answers_text_ ? text_result("") : "bool 0";
};

TEST_P(Properties, ConvertEveryValueAndFailAtEveryStepOfEveryKey) {
  Driven::here().members[1].insert(accessor_.member);
  make_ready();
  for (const auto& row : rows_)
    for (const auto& sample : *row.samples) {
      const auto& [given, becomes, warning] = sample;
      const bool fails = becomes.starts_with("!"), named = row.is_text && !becomes.empty() && !fails;
      if (fails && !row.leads) continue;
      std::string joined, steps = sets_ ? "put " + row.members[0] + "=" + becomes : row.steps;
      for (const auto& member : row.members) {
        office_.answers[member] = {named ? _variant_t(_bstr_t(given) + _bstr_t(value_of(member))) : given};
        joined += (&member == &row.members[0] ? "" : row.between) + becomes + (named ? member : "");
      }
      if (fails) {
        check_failure(row, given, "", std::stoi(becomes.substr(1)), becomes.substr(becomes.find(' ') + 1));
        continue;
      }
      check_key(row.key, given, sets_ ? done_ : text_result(joined),
                warning.empty() ? steps : title_steps + " | " + steps,
                warning.empty() ? "" : title + warning);
      if (&sample != &row.samples->front()) continue;
      for_each_step(steps, [&](size_t step, const std::string& reached, const Fault& fault) {
        office_.fail_at = step;
        if (step) check_failure(row, given, reached, fault.number, fault.description);
      });
    }
}

TEST_P(Properties, RunShortOfMemory) {
  for (const auto& row : rows_) {
    const auto& value = row.samples->front().given;
    if (!row.leads && row.members.size() < 2) continue;
    for (const auto& member : row.members) office_.answers[member] = {value};
    const auto failed = [&](const Fault& fault, const std::string& result, const std::string& boxes) {
      return result == failed_ && boxes == box_of(row.key, value, accessor_.failure, fault.description);
    };
    run_short(
        accessor_.member, arguments_of(row.key, value), [&] { make_ready(); }, failed,
        [&] {
          const std::set<std::string> told = {unset, recorded(7, "Out of memory"), recorded(7, "")};
          EXPECT_TRUE(told.contains(last_error())) << last_error();
        });
  }
}

TEST_P(Properties, NeedTheirItem) {
  if (reports_) {
    call(L"StartOutlook");
    call(L"CreateItem", {L"Appointment"});
    log();
  }
  for (const auto& row : rows_)
    if (row.leads) check_failure(row, row.samples->at(0).given, "", 91, not_set);
  check_key(L"nothing", L"", done_, "", accessor_.unknown);
}

TEST_P(Properties, KnowNoOtherKey) {
  const auto& own = rows_.at(0).key;
  std::set<std::wstring> others = {L"", own + L" ", own + own, L"BusinessHomePage",
                                   static_cast<wchar_t>(own[0] ^ 0x20) + own.substr(1)};
  for (const auto& accessor : accessors)
    if (accessor.item == accessor_.item)
      for (const auto& row : rows_of(accessor)) others.insert(row.key);
  for (const auto& row : rows_) others.erase(row.key);
  make_ready();
  for (const auto& key : others) check_key(key, L"1", done_, "", accessor_.unknown);
  EXPECT_EQ(last_error(), unset);
}

void PrintTo(const Accessor& accessor, std::ostream* out) { *out << utf8(accessor.member); }

INSTANTIATE_TEST_SUITE_P(All, Properties, testing::ValuesIn(accessors),
                         [](const auto& row) { return utf8(row.param.member); });

TEST_F(OutlookTest, OtherStatusesAndKeysWithANullAreUnknown) {
  make_ready();
  for (const wchar_t* status : {L"", L"2", L"completed", L"Completed "})
    check(L"SetTaskProperty", {L"Status", status}, "bool -1", "", "unknown Status " + utf8(status));
  check(L"GetTaskProperty", {text({L"Subject\0", 8})}, text_result(""), "", "Unknown Task Property Subject");
  EXPECT_EQ(last_error(), unset);
}

class Formats : public OutlookTest {
 protected:
  Formats() { make_ready(); }

  const UserLocale user_{{L".", L":", L"dd.MM.yyyy", L"HH:mm:ss", L",", L"."}};
};

TEST_F(Formats, AreThoseOfTheUserInWhatIsRead) {
  office_.answers["Appointment.Duration"] = {1234567};
  office_.answers["Exceptions.Count"] = {1};
  office_.answers["Exceptions.Item"] = {.object = "Exception"};
  office_.answers["Exception.Deleted"] = {true};
  office_.answers["Exception.OriginalDate"] = office_.answers["Pattern.EndTime"] = {afternoon};
  expect(L"GetAppointmentProperty", {L"Start"}, text_result("05.03.2007 14:30:00"));
  expect(L"GetAppointmentProperty", {L"StartDate"}, text_result("05.03.2007"));
  expect(L"GetAppointmentProperty", {L"Duration"}, text_result("1234567"));
  expect(L"GetRecurrenceProperty", {L"EndTime"}, text_result("05.03.2007 14:30:00"));
  expect(L"GetRecurrenceProperty", {L"Exception List"}, text_result("-05.03.2007"));
  expect(L"GetExceptionProperty", {1, L"Deleted"}, text_result("True"));
  office_.answers["Appointment.Start"] = {midnight};
  expect(L"SetRecurrenceProperty", {L"RecurrenceType", L"4"}, text_result(""),
         "[Lunch 05.03.2007] The RecurranceType is invalid 4 it will use a default value of Daily");
}

TEST_F(Formats, AreThoseOfTheUserInWhatIsWritten) {
  const std::tuple<const wchar_t*, const wchar_t*, std::string> rows[] = {
      {L"End", L"05.03.2007", "End=date 03/05/2007"},
      {L"End", L"5.3.07 14:30", "End=date 03/05/2007 14:30:00"},
      {L"End", L"2007-03-05", "End=date 03/05/2007"},
      {L"Duration", L"2,5", "Duration=i4 2"},
      {L"Duration", L"1.000", "Duration=i4 1000"},
      {L"AllDayEvent", L"2,5", "AllDayEvent=bool -1"},
      {L"AllDayEvent", L"True", "AllDayEvent=bool -1"}};
  for (const auto& [key, value, put] : rows)
    check(L"SetAppointmentProperty", {key, value}, "bool -1", "put Appointment." + put);
}

}  // namespace
