// ZORBOutlook's properties, under a month-first locale.
#pragma once

#include <array>

#include "outlook_test.h"

// What a user has set: date and time separator, short date, time, decimal and thousands mark.
using UserFormats = std::array<const wchar_t*, 6>;

const UserFormats month_first = {L"/", L":", L"M/d/yyyy", L"h:mm:ss tt", L".", L","};

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

class PropertyTest : public OutlookTest {
 protected:
  PropertyTest() {
    office_.objects.insert({"Exceptions", "Parent", "Recipients"});
    for (const char* list : {"Attachments.[newenum]", "Recipients.[newenum]"})
      office_.answers[list] = {.items = {"First", "Second"}};
    office_.answers["Appointment.Start"] = {march_5(14, 30)};
    office_.answers["Appointment.Subject"] = {L"Lunch"};
  }

  // Makes a ready control that has taken the appointment's recurrence pattern "Pattern".
  void make_current() {
    make_ready();
    check(L"GetRecurrencePattern", {}, "bool -1", "get Appointment.GetRecurrencePattern");
  }
  // Does what expect does, and the call must take `steps`.
  void check(const wchar_t* member, const Arguments& arguments, const std::string& result,
             const std::string& steps = "", const std::string& shown = "") {
    expect(member, arguments, result, shown);
    EXPECT_EQ(log(), steps);
  }

  UserLocale locale_{month_first};
};

// What SetRecurrenceProperty's boxes are titled with, as expect takes it, and the steps to that.
const std::string title = "[Lunch 3/5/2007 2:30:00 PM] ",
                  title_steps = "get Appointment.Subject | get Appointment.Start";

// A result that is `text`, as check takes it.
inline std::string text_result(const std::string& text) { return "bstr \"" + text + "\""; }
// An argument or an answer.
inline _variant_t value_of(const std::string& ascii) {
  return std::wstring(ascii.begin(), ascii.end()).c_str();
}
inline std::vector<std::string> split(const std::string& list, char separator) {
  std::vector<std::string> parts(1);
  for (const char each : list) each == separator ? parts.emplace_back() : parts.back() += each;
  return parts;
}
