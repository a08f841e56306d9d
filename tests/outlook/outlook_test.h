// ZORBOutlook of the built library over the recording mail client, as each test of this folder drives it.
#pragma once

#include <array>

#include "support/control_test.h"
#include "support/fake_offices.h"

// What a user has set: date and time separator, short date, time, decimal and thousands mark.
using UserFormats = std::array<const wchar_t*, 6>;

// While one lives, the user's settings have `formats`. The earlier ones are put back at the end.
class UserLocale {
 public:
  explicit UserLocale(const UserFormats& formats) {
    for (const auto& [type, setting] : types) GetLocaleInfoW(LOCALE_USER_DEFAULT, type, earlier_[type], 80);
    for (const auto& [type, setting] : types) SetLocaleInfoW(LOCALE_USER_DEFAULT, type, formats[setting]);
  }
  ~UserLocale() {
    for (const auto& [type, setting] : types) SetLocaleInfoW(LOCALE_USER_DEFAULT, type, earlier_[type]);
  }

 private:
  // A new separator changes the picture too, so the pictures come after the separators. Wine takes marks of
  // money for marks of numbers.
  static constexpr std::pair<LCTYPE, size_t> types[] = {
      {LOCALE_SDATE, 0},    {LOCALE_STIME, 1},     {LOCALE_SSHORTDATE, 2},     {LOCALE_STIMEFORMAT, 3},
      {LOCALE_SDECIMAL, 4}, {LOCALE_STHOUSAND, 5}, {LOCALE_SMONDECIMALSEP, 4}, {LOCALE_SMONTHOUSANDSEP, 5}};
  std::map<LCTYPE, wchar_t[80]> earlier_;
};

// 5 March 2007 at that time as the office application answers dates.
inline _variant_t march_5(int hour, int minute = 0, int second = 0) {
  return {39146 + (hour * 3600 + minute * 60 + second) / 86400.0, VT_DATE};
}

class OutlookTest : public ControlTest<FakeOutlook, 1> {
 protected:
  OutlookTest() {
    boxes_.at_box = [this] {
      errors_at_boxes_.push_back(last_error());
      if (at_box_) at_box_();
    };
    for (const auto& kind : item_kinds)
      for (const auto* member : {"GetFirst", "GetNext"})
        answers_too_.insert(std::string("get ") + kind.items + "." + member + ": nothing");
    office_.objects.insert({"Parent", "Recipients"});
    office_.answers["Recipients.[newenum]"] = {.items = {"First", "Second"}};
    office_.answers["Appointment.Start"] = {march_5(14, 30)};
    office_.answers["Appointment.Subject"] = {L"Lunch"};
  }

  // Replaces the control by a new one that has recorded `unset`, started a session, filled the collection of
  // every kind, created a current item of every kind and taken the appointment's recurrence pattern
  // "Pattern".
  void make_ready() {
    renew();
    expect(L"StopOutlook", {true}, "bool 0");
    expect(L"StartOutlook", {}, "bool -1");
    for (const auto& kind : item_kinds) {
      expect(L"InitItems", {kind.word, text({})}, "bool -1");
      expect(L"CreateItem", {kind.word}, "bool -1");
    }
    expect(L"GetRecurrencePattern", {}, "bool -1");
    log();
  }
  // Forgets what was seen at earlier boxes, and does what ControlTest's does.
  void expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
              const std::string& boxes = "") {
    errors_at_boxes_.clear();
    ControlTest::expect(member, arguments, result, boxes);
  }
  void check(const wchar_t* member, const Arguments& arguments, const std::string& result,
             const std::string& steps = "", const std::string& shown = "") {
    expect(member, arguments, result, shown);
    EXPECT_EQ(log(), steps);
  }
  // The last error as the host reads it, and as it must read one of that number and description.
  std::string last_error() { return call(L"GetLastErrorNumber") + " " + call(L"GetLastErrorDescription"); }
  static std::string recorded(int number, const std::string& description) {
    const bool fits = number == static_cast<SHORT>(number);
    return (fits ? "i2 " + std::to_string(number) : "raised 800A0006 Overflow") + " bstr \"" + description +
           "\"";
  }
  // Current item and collection of every kind, by their objects' names: "|Appointment|AppointmentItems|…|".
  std::string held() {
    log();
    for (const auto& kind : item_kinds)
      for (const auto* member : {L"SaveItem", L"GetItemCount"}) call(member, {kind.word});
    std::string names = "|";
    for (const auto& line : std::exchange(office_.log, {}))
      names += line.substr(line.find(' ') + 1, line.find('.') - line.find(' ') - 1) + "|";
    return names;
  }
  // A string, which may hold nulls; the null string for {}.
  static _variant_t text(std::wstring_view text) {
    VARIANT value = {};
    value.vt = VT_BSTR;
    if (text.data()) value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return {value, false};
  }

  const std::string unset = recorded(91, not_set);

  // The last error while each box of the last expect came up, and what the host does then.
  std::vector<std::string> errors_at_boxes_;
  std::function<void()> at_box_;

 private:
  const UserLocale locale_{{L"/", L":", L"M/d/yyyy", L"h:mm:ss tt", L".", L","}};
};

// What SetRecurrenceProperty's boxes are titled with, as expect takes it, and the steps to that.
const std::string title = "[Lunch 3/5/2007 2:30:00 PM] ",
                  title_steps = "get Appointment.Subject | get Appointment.Start";

inline std::string text_result(const std::string& text) { return "bstr \"" + text + "\""; }
inline _variant_t value_of(const std::string& ascii) {
  return std::wstring(ascii.begin(), ascii.end()).c_str();
}
inline std::vector<std::string> split(const std::string& list, char separator) {
  std::vector<std::string> parts(1);
  for (const char each : list) each == separator ? parts.emplace_back() : parts.back() += each;
  return parts;
}
