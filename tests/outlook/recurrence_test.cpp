// The recurrence pattern and its exceptions.
#include "property_test.h"

namespace {

const std::string nothing = text_result("");

class Recurrence : public PropertyTest {
 protected:
  Recurrence() {
    office_.answers["Exceptions.Count"] = {3};
    for (const char* name : {"Exception1", "Exception2", "Exception3"}) {
      const std::string number(1, name[9]);
      office_.answers["Exceptions.Item(i2 " + number + ")"] = {.object = name};
      office_.answers[name + std::string(".Deleted")] = {number == "2"};
      office_.answers[name + std::string(".OriginalDate")] = {march_5(14, 30)};
    }
    make_current();
  }

  void set(const std::string& key, const std::string& value, const std::string& steps,
           const std::string& boxes, const std::string& result = nothing) {
    SCOPED_TRACE(key + ": " + value);
    check(L"SetRecurrenceProperty", {value_of(key), value_of(value)}, result, steps, boxes);
  }
  // Makes the call, whose every step is failed in turn first, which must show nothing and record that.
  void check_steps(const wchar_t* member, const Arguments& arguments, const std::string& steps,
                   const std::string& result, const std::string& failed = nothing) {
    for_each_step(steps, [&](size_t step, const std::string& reached) {
      office_.fail_at = step;
      check(member, arguments, step ? failed : result, reached);
      if (step) {
        EXPECT_EQ(last_error(), recorded(5941, "No such member."));
      }
    });
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
  for (const wchar_t* key : {L"OriginalDate", L"Deleted", L"Get Appointment"})
    check(L"GetExceptionProperty", {1, key}, nothing);
  EXPECT_EQ(last_error(), unset);
  check(L"GetRecurrenceProperty", {L"Exception List"}, nothing);
  check(L"GetRecurrencePattern", {}, "bool 0");
  check(L"ClearRecurrencePattern", {}, "bool 0");
}

TEST_F(Recurrence, IsTakenAndClearedByTheAppointment) {
  const std::string asked = "get Appointment.IsRecurring";
  office_.answers["Appointment.IsRecurring"] = {false};
  check(L"ClearRecurrencePattern", {}, "bool 0", asked, "not Recurrence");
  EXPECT_EQ(last_error(), unset);
  office_.answers["Appointment.IsRecurring"] = {true};
  const auto cleared = asked + " | call Appointment.ClearRecurrencePattern";
  check_steps(L"ClearRecurrencePattern", {}, cleared, "bool -1", "bool 0");
  office_.answers["Appointment.GetRecurrencePattern"] = {.object = "Other"};
  office_.fail_at = 1;
  check(L"GetRecurrencePattern", {}, "bool 0", "get Appointment.GetRecurrencePattern");
  office_.fail_at = 0;
  set("Interval", "1", "put Pattern.Interval=i4 1", "");
  check(L"GetRecurrencePattern", {}, "bool -1", "get Appointment.GetRecurrencePattern");
  set("Interval", "1", "put Other.Interval=i4 1", "");
}

TEST_F(Recurrence, ListsItsExceptions) {
  const std::string counted = "get Pattern.Exceptions | get Exceptions.Count";
  auto steps = counted;
  for (const std::string i : {"1", "2", "3"})
    for (const std::string member : {".Deleted", ".OriginalDate"})
      steps += " | get Pattern.Exceptions | get Exceptions.Item(i2 " + i + ") | get Exception" + i + member;
  const auto list = text_result("+05/03/2007,-05/03/2007,+05/03/2007");
  check_steps(L"GetRecurrenceProperty", {L"Exception List"}, steps, list);
  office_.answers["Exceptions.Count"] = {0};
  check(L"GetRecurrenceProperty", {L"Exception List"}, nothing, counted);
}

TEST_F(Recurrence, GivesEachException) {
  office_.answers["Exceptions.Item(i2 -7)"] = {.object = "Exception3"};
  office_.answers["Exception2.AppointmentItem"] = {.object = "Occurrence"};
  office_.answers["Occurrence.Subject"] = {L"Dinner"};
  const auto get = [&](short i, const std::string& exception, const wchar_t* key, const std::string& member,
                       const std::string& text) {
    const auto found = "get Pattern.Exceptions | get Exceptions.Item(i2 " + std::to_string(i) + ") | get ";
    check_steps(L"GetExceptionProperty", {i, key}, found + exception + "." + member, text_result(text));
    const int held = office_.live;
    expect(L"GetExceptionProperty", {i, key}, text_result(text));
    EXPECT_EQ(office_.live, held);
    log();
  };
  get(2, "Exception2", L"OriginalDate", "OriginalDate", "05/03/2007");
  get(2, "Exception2", L"Deleted", "Deleted", "True");
  get(-7, "Exception3", L"Deleted", "Deleted", "False");
  office_.fail_at = 3;
  expect(L"GetExceptionProperty", {2, L"Get Appointment"}, nothing);
  office_.fail_at = 0;
  log();
  check(L"GetAppointmentProperty", {L"Subject"}, text_result("Lunch"), "get Appointment.Subject");
  get(2, "Exception2", L"Get Appointment", "AppointmentItem", "Appointment Found");
  check(L"GetAppointmentProperty", {L"Subject"}, text_result("Dinner"), "get Occurrence.Subject");
}

}  // namespace
