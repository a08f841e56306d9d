// Every key of every property accessor: what is read or written, how it is converted, how it fails.
#include <regex>
#include <set>

#include "property_test.h"
#include "support/text.h"

namespace {

struct Accessor {
  const wchar_t* member;
  std::string item;
  // "form:key,key;form:key", where a key is "Key" or "Key=way" and a way is a member of the item, or "A.B"
  // for B of the item's A, "A+B" for both with a blank between them, "A*B" for B of each in A with ";"
  // between them.
  std::string keys;
  // The boxes for unknown keys and for failures: @ is the key, $ the value, % the failure's description.
  std::string unknown = "Unknown Property @", failure = "";
};

const std::string contact_texts =
    "text:AssistantTelephoneNumber,Body,Business2TelephoneNumber,BusinessAddress,BusinessAddressCity,"
    "BusinessAddressCountry,BusinessAddressPostalCode,BusinessAddressState,BusinessAddressStreet,"
    "BusinessFaxNumber,BusinesshomePage=BusinessHomePage,BusinessTelephoneNumber,CarTelephoneNumber,"
    "CompanyMainTelephoneNumber,CompanyName,Email1Address,Email2Address,Email3Address,FirstName,FullName,"
    "GovernmentIDNumber,Home2TelephoneNumber,HomeAddress,HomeAddressCity,HomeAddressCountry,"
    "HomeAddressPostalCode,HomeAddressState,HomeAddressStreet,HomeFaxNumber,HomeTelephoneNumber,JobTitle,"
    "MailingAddress,MailingAddressCity,MailingAddressCountry,MailingAddressPostalCode,MailingAddressState,"
    "MailingAddressStreet,MobileTelephoneNumber,Nickname,OtherAddress,OtherAddressCity,OtherAddressCountry,"
    "OtherAddressPostalCode,OtherAddressState,OtherAddressStreet,OtherFaxNumber,OtherTelephoneNumber,"
    "PrimaryTelephoneNumber,RadioTelephoneNumber,Title,WebPage";

const Accessor accessors[] = {
    {L"GetAppointmentProperty", "Appointment",
     "text:Billing=BillingInformation,Body,Companies,EntryID,Folder=Parent.Name,Location,MessageClass,"
     "Mileage,"
     "Subject;number:Duration,Importance,MeetingStatus,RecurrenceState,ReminderMinutesBeforeStart,"
     "Sensitivity;"
     "flag:AllDayEvent,IsRecurring,ReminderSet;moment:End,Start;"
     "date:CreatedDate=CreationTime,EndDate=End,ModifiedDate=LastModificationTime,StartDate=Start;"
     "time:CreatedTime=CreationTime,EndTime=End,ModifiedTime=LastModificationTime,StartTime=Start"},
    {L"SetAppointmentProperty", "Appointment",
     "text:Billing=BillingInformation,Body,Companies,Location,MessageClass,Mileage,Subject;"
     "number:Duration,ReminderMinutesBeforeStart;flag:AllDayEvent,ReminderSet;date:End,Start;"
     "privacy:Sensitivity"},
    {L"GetRecurrenceProperty", "Pattern",
     "number:Class,DayOfMonth,DayOfWeekMask,Duration,Interval,Instance,MonthOfYear,Occurrences,"
     "RecurrenceType,"
     "Exception Count=Exceptions.Count;flag:NoEndDate;date:PatternEndDate,PatternStartDate;"
     "moment:EndTime,StartTime",
     "Unknown Property : @"},
    {L"SetRecurrenceProperty", "Pattern",
     "number:Duration,Interval,Instance,Occurrences;date:EndTime,PatternEndDate,"
     "PatternStartDate=PatternEndDate,StartTime;flag:NoEndDate;day:DayOfMonth;days:DayOfWeekMask;"
     "month:MonthOfYear;type:RecurrenceType",
     "Unknown property @", title + "@ : $ : %"},
    {L"GetContactProperty", "Contact",
     contact_texts +
         ",EntryID,Folder=Parent.Name,AllTelephoneNumbers=AssistantTelephoneNumber+Business2TelephoneNumber+"
         "BusinessTelephoneNumber+CarTelephoneNumber+CompanyMainTelephoneNumber+Home2TelephoneNumber+"
         "HomeTelephoneNumber+OtherTelephoneNumber+PrimaryTelephoneNumber,"
         "AllFaxNumbers=BusinessFaxNumber+HomeFaxNumber+OtherFaxNumber,"
         "AllEmailAddresses=Email1Address+Email2Address+Email3Address;number:SelectedMailingAddress;"
         "date:ModifiedDate=LastModificationTime;time:ModifiedTime=LastModificationTime",
     "Unknown Property @", "Get Contact prop % : @"},
    {L"SetContactProperty", "Contact", contact_texts, "Unknown Property @", "Unable to create contact: %"},
    {L"GetTaskProperty", "Task",
     "text:Body,EntryID,Folder=Parent.Name,Subject;number:PercentComplete,Priority=Importance;"
     "flag:Reminder=ReminderSet;date:CreationDate=CreationTime,DueDate,ModifiedDate=LastModificationTime,"
     "ReminderDate=ReminderTime,StartDate;time:CreationTime,ModifiedTime=LastModificationTime,ReminderTime;"
     "status:Status",
     "Unknown Task Property @", "Get Task prop % : @"},
    {L"SetTaskProperty", "Task",
     "text:Subject,Body;number:PercentComplete,Priority=Importance;status:Status;"
     "date:StartDate,DueDate,ReminderDate=ReminderTime",
     "unknown property @", "Set Task prop % : @"},
    {L"GetEmailProperty", "Email",
     "text:Attachments=Attachments*DisplayName,BCC,Body,CC,EntryID,HTMLBody,Parent=Parent.Name,"
     "Recipients=Recipients*Name,SenderEmailAddress,SenderName,Subject,To;"
     "number:Attachment Count=Attachments.Count,Class,Importance,Sensitivity,Size;"
     "date:ReceivedDate=ReceivedTime;time:ReceivedTime"},
    {L"GetNoteProperty", "Note",
     "text:Body,Categories,EntryID,Folder=Parent.Name,MessageClass,Parent=Parent.Name,Subject;"
     "number:Class,Color,DownloadState,Height,Left,MarkForDownload,Size,Top,Width;flag:IsConflict,Saved;"
     "date:ModifiedDate=LastModificationTime;time:CreationTime,ModifiedTime=LastModificationTime"},
    {L"SetNoteProperty", "Note", "text:Body,Categories,MessageClass;number:Height,Left,Top,Width"},
};

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
const std::string mismatch = "!13 Type mismatch", by_default = " it will use a default value of ";
const Sample odd = {L"abc", mismatch};

// A text is read with the member's own name at its end, unless it is empty.
const std::map<std::string, Samples> read = {
    {"text", {{L"a; b \x20ac\n", "a; b \xe2\x82\xac\n"}, {L"", ""}, {{1L, VT_ERROR}, mismatch}}},
    {"number", {{40000, "40000"}, {0, "0"}, {-1, "-1"}, odd}},
    {"flag", {{true, "True"}, {false, "False"}, odd}},
    {"date", {{afternoon, "05/03/2007"}, {night, "05/03/2007"}, odd}},
    {"time", {{afternoon, "14:30:00"}, {night, "23:59:59"}, {midnight, "00:00:00"}, odd}},
    {"moment", {{afternoon, "3/5/2007 2:30:00 PM"}, {midnight, "3/5/2007"}, odd}},
    {"status", Samples{{0, "Not Started"}, {1, "In Progress"}, {2, "Completed"}} +
                   Samples{{3, "Waiting on someone else"}, {4, "Deferred"}, {5, "5"}, {-1, "-1"}, odd}},
};
const std::map<std::string, Samples> written = {
    {"text", samples("a; b>bstr \"a; b\"|>bstr \"\"")},
    {"number", samples("15>i4 15|2.5>i4 2|3.5>i4 4|-2.5>i4 -2|1e2>i4 100|32767.4>i4 32767|-32768>i4 -32768|"
                       "32767.5>!6 Overflow|-32769>!6 Overflow|abc>!13 Type mismatch|>!13 Type mismatch")},
    {"flag", samples("True>bool -1|fALSE>bool 0|tRUE>bool -1|0>bool 0|2>bool -1|-0.5>bool -1|"
                     "yes>!13 Type mismatch|>!13 Type mismatch")},
    {"date", samples("3/5/2007 14:30>date 03/05/2007 14:30:00|13/2/2007>date 02/13/2007|"
                     "14:30:15>date 14:30:15|13/13/2007>!13 Type mismatch|>!13 Type mismatch")},
    {"privacy",
     samples("2>i4 2|1.5>i4 2|0>i4 0|1>i4 0|3>i4 0|-2>i4 0|40000>!6 Overflow|abc>!13 Type mismatch")},
    {"status", samples("Not Started>i4 0|In Progress>i4 1|Completed>i4 2|Waiting on someone else>i4 3|"
                       "Deferred>i4 4")},
    {"day",
     samples("1>i4 1|30.6>i4 31|32768>!6 Overflow") +
         samples("31.6>i4 1| 0>i4 1|-1>i4 1", "The DayOfMonth is invalid $" + by_default + "the first day")},
    {"days", samples("1>i4 1|62>i4 62|127>i4 127|>!13 Type mismatch") +
                 samples("127.6>i4 127", "The DayOfWeekMask is invalid 128" + by_default + "Every Day") +
                 samples("2e2>i4 127", "The DayOfWeekMask is invalid 200" + by_default + "Every Day") +
                 samples("0.5>i4 2", "The DayOfWeekMask is invalid 0" + by_default + "Mondays only") +
                 samples("-7>i4 2", "The DayOfWeekMask is invalid -7" + by_default + "Mondays only")},
    {"month", samples("1>i4 1|13>i4 13|31>i4 31") +
                  samples("0>i4 1|32>i4 1", "The MonthOfYear is invalid $" + by_default + "January")},
    {"type", samples("0>i4 0|1>i4 1|2>i4 2|3>i4 3|5>i4 5|6>i4 6") +
                 samples("4>i4 0|7>i4 0|-1>i4 0", "The RecurranceType is invalid $" + by_default + "Daily")},
};

struct Row {
  std::wstring key;
  std::string form;
  // The members that hold the values, as "Object.Member", and the steps to all of them.
  std::vector<std::string> members = {};
  std::string steps = {}, between = {};
  // Failures are the same for all keys of a form; only the first shows all of its boxes.
  bool leads = false;
};

Row row_of(const std::string& form, const std::string& item, const std::string& entry) {
  const auto name = split(entry, '=')[0], way = split(entry, '=').back();
  Row row = {{name.begin(), name.end()}, form};
  if (const auto each = split(way, '*'); each.size() > 1) {
    row.between = ";";
    row.steps = "get " + item + "." + each[0] + " | get " + each[0] + ".[newenum] | next " + each[0];
    for (const char* object : {"First.", "Second."}) {
      row.members.push_back(object + each[1]);
      row.steps += " | get " + row.members.back() + " | next " + each[0];
    }
  } else if (const auto inner = split(way, '.'); inner.size() > 1) {
    row.members = {way};
    row.steps = "get " + item + "." + inner[0] + " | get " + way;
  } else {
    row.between = " ";
    for (const auto& member : split(way, '+')) {
      row.members.push_back(item + "." + member);
      row.steps += (row.steps.empty() ? "get " : " | get ") + row.members.back();
    }
  }
  return row;
}

std::vector<Row> rows_of(const Accessor& accessor) {
  std::vector<Row> rows;
  for (const auto& group : split(accessor.keys, ';')) {
    const auto first = rows.size();
    for (const auto& entry : split(split(group, ':')[1], ','))
      rows.push_back(row_of(split(group, ':')[0], accessor.item, entry));
    rows[first].leads = true;
  }
  return rows;
}

class Properties : public PropertyTest, public testing::WithParamInterface<Accessor> {
 protected:
  // Calls the accessor for `key` with `value`, which a getter does not get. The boxes are from the tables.
  void check_key(const std::wstring& key, const _variant_t& value, const std::string& result,
                 const std::string& steps, std::string box, const std::string& description = "") {
    SCOPED_TRACE(utf8(key) + ": " + describe(value));
    box = std::regex_replace(box, std::regex("%"), description);
    box = std::regex_replace(box, std::regex("@"), utf8(key));
    if (sets_) box = std::regex_replace(box, std::regex("\\$"), utf8(value.bstrVal));
    Arguments arguments = {key.c_str()};
    if (sets_) arguments.push_back(value);
    check(accessor_.member, arguments, result, steps, box);
  }
  // The same for a call that fails after `steps`.
  void check_failure(const Row& row, const _variant_t& value, std::string steps, int number,
                     const std::string& description) {
    const auto earlier = last_error(), error = recorded(number, description);
    if (reports_) steps += (steps.empty() ? "" : " | ") + title_steps;
    check_key(row.key, value, failed_, steps, accessor_.failure, description);
    EXPECT_EQ(last_error(), error);
    const std::vector<std::string> at_box(accessor_.failure.empty() ? 0 : 1, reports_ ? earlier : error);
    EXPECT_EQ(errors_at_boxes_, at_box);
  }

  const Accessor& accessor_ = GetParam();
  const std::vector<Row> rows_ = rows_of(accessor_);
  const bool sets_ = accessor_.member[0] == 'S', reports_ = accessor_.failure.starts_with(title);
  const bool answers_text_ = !sets_ || reports_;
  const std::string done_ = answers_text_ ? text_result("") : "bool -1";
  const std::string failed_ = answers_text_ ? text_result("") : "bool 0";
  const std::map<std::string, Samples>& samples_ = sets_ ? written : read;
};

TEST_P(Properties, ConvertEveryValueOfEveryKey) {
  make_current();
  for (const auto& row : rows_)
    for (const auto& [given, becomes, warning] : samples_.at(row.form)) {
      const bool fails = becomes.starts_with("!"), named = row.form == "text" && !becomes.empty() && !fails;
      if (fails && !row.leads) continue;
      std::string joined;
      for (const auto& member : row.members) {
        office_.answers[member] = {named ? _variant_t(_bstr_t(given) + _bstr_t(value_of(member))) : given};
        joined += (&member == &row.members[0] ? "" : row.between) + becomes + (named ? member : "");
      }
      const auto first = row.steps.substr(0, row.steps.find(" | ", row.steps.find(row.members[0])));
      const auto way = warning.empty() ? "" : title_steps + " | ",
                 box = warning.empty() ? "" : title + warning;
      if (fails) {
        check_failure(row, given, sets_ ? "" : first, std::stoi(becomes.substr(1)),
                      becomes.substr(becomes.find(' ') + 1));
      } else if (sets_) {
        check_key(row.key, given, done_, way + "put " + row.members[0] + "=" + becomes, box);
      } else {
        check_key(row.key, given, text_result(joined), row.steps, "");
      }
    }
}

TEST_P(Properties, FailAtEveryStep) {
  make_current();
  for (const auto& row : rows_) {
    const auto& [given, becomes, warning] = samples_.at(row.form)[0];
    for (const auto& member : row.members) office_.answers[member] = {given};
    const auto steps = sets_ ? "put " + row.members[0] + "=" + becomes : row.steps;
    for (size_t step = 1, end = 0; end != std::string::npos; ++step) {
      end = steps.find(" | ", end + 1);
      office_.fail_at = step;
      check_failure(row, given, steps.substr(0, end), LOWORD(++office_.failure.scode), "No such member.");
    }
  }
}

TEST_P(Properties, NeedTheirItem) {
  if (reports_) make_ready();
  for (const auto& row : rows_)
    if (row.leads) check_failure(row, samples_.at(row.form)[0].given, "", 91, not_set);
  check_key(L"nothing", L"", done_, "", accessor_.unknown);
}

TEST_P(Properties, KnowNoOtherKey) {
  const auto& own = rows_[0].key;
  std::set<std::wstring> others = {L"", own + L" ", own + own, L"BusinessHomePage",
                                   static_cast<wchar_t>(own[0] ^ 0x20) + own.substr(1)};
  for (const auto& accessor : accessors)
    if (accessor.item == accessor_.item)
      for (const auto& row : rows_of(accessor)) others.insert(row.key);
  for (const auto& row : rows_) others.erase(row.key);
  make_current();
  for (const auto& key : others) check_key(key, L"1", done_, "", accessor_.unknown);
  EXPECT_EQ(last_error(), unset);
}

void PrintTo(const Accessor& accessor, std::ostream* out) { *out << utf8(accessor.member); }

INSTANTIATE_TEST_SUITE_P(All, Properties, testing::ValuesIn(accessors),
                         [](const auto& row) { return utf8(row.param.member); });

TEST_F(PropertyTest, OtherStatusesAndKeysWithANullAreUnknown) {
  make_current();
  for (const wchar_t* status : {L"", L"2", L"completed", L"Completed "})
    check(L"SetTaskProperty", {L"Status", status}, "bool -1", "", "unknown Status " + utf8(status));
  check(L"GetTaskProperty", {text({L"Subject\0", 8})}, text_result(""), "", "Unknown Task Property Subject");
  EXPECT_EQ(last_error(), unset);
}

}  // namespace
