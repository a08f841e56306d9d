// Writing the recurrence pattern, which warns and reports, and taking it.
#include "outlook_test.h"

namespace {

const std::string nothing = text_result("");

class Recurrence : public OutlookTest {
 protected:
  Recurrence() { make_ready(); }

  void set(const std::string& key, const std::string& value, const std::string& steps,
           const std::string& boxes, const std::string& result = nothing) {
    SCOPED_TRACE(key + ": " + value);
    check(L"SetRecurrenceProperty", {value_of(key), value_of(value)}, result, steps, boxes);
  }
};

TEST_F(Recurrence, IsNotWrittenWhenItsWarningFails) {
  const std::string warning =
                        title + "The DayOfMonth is invalid 0 it will use a default value of the first day | ",
                    report = title + "DayOfMonth : 0 : No such member.";
  office_.fail_at = 1;
  set("DayOfMonth", "0", "get Appointment.Subject | " + title_steps, report);
  office_.fail_at = 2;
  set("DayOfMonth", "0", title_steps + " | " + title_steps, report);
  office_.fail_at = 3;
  set("DayOfMonth", "0", title_steps + " | put Pattern.DayOfMonth=i4 1 | " + title_steps, warning + report);
}

TEST_F(Recurrence, RaisesAFailureOfItsReportUnrecorded) {
  office_.fail_at = 2;
  set("Interval", "abc", title_steps, "", "raised 800A1735 No such member.");
  office_.fail_at = 0;
  office_.refused["Appointment.Subject"] = DISP_E_UNKNOWNNAME;
  set("DayOfMonth", "0", "", "", "raised 800A01B6 Object doesn't support this property or method");
  EXPECT_EQ(last_error(), unset);
  control_ = outside::create(outside::classes[1]);
  for (const char* value : {"1", "0", "abc"}) set("MonthOfYear", value, "", "", "raised 800A005B " + not_set);
  EXPECT_EQ(last_error(), recorded(0, ""));
}

TEST_F(Recurrence, LooksAtTheKeyBeforeThePattern) {
  control_ = outside::create(outside::classes[1]);
  for (const wchar_t* key : {L"", L"deleted", L"OriginalDate ", L"GetAppointment"})
    check(L"GetExceptionProperty", {1, key}, nothing);
  EXPECT_EQ(last_error(), recorded(0, ""));
}

TEST_F(Recurrence, IsTakenAndClearedByTheAppointment) {
  office_.answers["Appointment.IsRecurring"] = {false};
  check(L"ClearRecurrencePattern", {}, "bool 0", "get Appointment.IsRecurring", "not Recurrence");
  EXPECT_EQ(last_error(), unset);
  office_.answers["Appointment.GetRecurrencePattern"] = {.object = "Other"};
  for (const std::string held : {"Pattern", "Other"}) {
    office_.fail_at = held == "Pattern" ? 1 : 0;
    call(L"GetRecurrencePattern");
    log();
    office_.fail_at = 0;
    set("Interval", "1", "put " + held + ".Interval=i4 1", "");
  }
}

}  // namespace
