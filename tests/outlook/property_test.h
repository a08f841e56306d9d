// ZORBOutlook's properties, under a month-first locale.
#pragma once

#include <array>

#include "outlook_test.h"

// What a user has set: date and time separator, short date, time, decimal and thousands mark.
using UserFormats = std::array<std::wstring, 6>;

const UserFormats month_first = {L"/", L":", L"M/d/yyyy", L"h:mm:ss tt", L".", L","};

// While one lives, the user's settings have `formats`. The earlier ones are put back at the end.
class UserLocale {
 public:
  explicit UserLocale(const UserFormats& formats);
  ~UserLocale();

 private:
  std::map<LCTYPE, std::wstring> earlier_;
};

class PropertyTest : public OutlookTest {
 protected:
  PropertyTest();

  // Makes a ready control that has taken the appointment's recurrence pattern "Pattern".
  void make_current();
  // Does what expect does, and the call must take `steps`.
  void check(const wchar_t* member, const Arguments& arguments, const std::string& result,
             const std::string& steps = "", const std::string& shown = "");

  UserLocale locale_{month_first};
};

// What SetRecurrenceProperty's boxes are titled with, as expect takes it, and the steps to that.
const std::string title = "[Lunch 3/5/2007 2:30:00 PM] ",
                  title_steps = "get Appointment.Subject | get Appointment.Start";

// A result that is `text`, as check takes it.
std::string text_result(const std::string& text);
// An argument or an answer.
_variant_t value_of(const std::string& ascii);
std::vector<std::string> split(const std::string& list, char separator);
// 5 March 2007 at that time as the office application answers dates.
_variant_t march_5(int hour, int minute = 0, int second = 0);
