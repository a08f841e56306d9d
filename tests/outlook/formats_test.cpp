// Dates, times and numbers under the formats that users set.
#include "outlook_test.h"

namespace {

struct Country {
  UserFormats formats;
  // 5 March 2007, 14:30, as general text, its date alone, and what the pictures make of both.
  std::string moment, day, date, time;
  // A host's texts for that day, separated by "|", and for 2.5 and 1000.
  std::string days, half, thousand;
};

const UserFormats day_first = {L"/", L":", L"dd/MM/yyyy", L"HH:mm:ss", L".", L","},
                  with_dots = {L".", L":", L"dd.MM.yyyy", L"HH:mm:ss", L",", L"."},
                  all_dots = {L".", L".", L"d.M.yyyy", L"H.mm.ss", L",", L"'"},
                  year_first = {L"-", L":", L"yyyy-MM-dd", L"HH:mm:ss", L",", L"."};
const Country countries[] = {
    {day_first, "05/03/2007 14:30:00", "05/03/2007", "05/03/2007", "14:30:00", "05/03/2007|5/3/07|2007-03-05",
     "2.5", "1,000"},
    {with_dots, "05.03.2007 14:30:00", "05.03.2007", "05.03.2007", "14:30:00", "05.03.2007|5.3.07|2007-03-05",
     "2,5", "1.000"},
    {all_dots, "5.3.2007 14.30.00", "5.3.2007", "05.03.2007", "14.30.00", "5.3.2007", "2,5", "1'000"},
    {year_first, "2007-03-05 14:30:00", "2007-03-05", "05-03-2007", "14:30:00", "2007-03-05|2007-3-5", "2,5",
     "1.000"},
};

class Formats : public OutlookTest, public testing::WithParamInterface<Country> {
 protected:
  Formats() { make_ready(); }

  const Country& country_ = GetParam();
  UserLocale user_{country_.formats};
};

TEST_P(Formats, AreThoseOfTheUserInWhatIsRead) {
  office_.answers["Appointment.Duration"] = {1234567};
  office_.answers["Exceptions.Count"] = {1};
  office_.answers["Exceptions.Item"] = {.object = "Exception"};
  office_.answers["Exception.Deleted"] = {true};
  office_.answers["Exception.OriginalDate"] = office_.answers["Pattern.EndTime"] = {march_5(14, 30)};
  expect(L"GetAppointmentProperty", {L"Start"}, text_result(country_.moment));
  expect(L"GetAppointmentProperty", {L"StartDate"}, text_result(country_.date));
  expect(L"GetAppointmentProperty", {L"StartTime"}, text_result(country_.time));
  expect(L"GetAppointmentProperty", {L"Duration"}, text_result("1234567"));
  expect(L"GetRecurrenceProperty", {L"EndTime"}, text_result(country_.moment));
  expect(L"GetRecurrenceProperty", {L"Exception List"}, text_result("-" + country_.date));
  expect(L"GetExceptionProperty", {1, L"Deleted"}, text_result("True"));
  office_.answers["Appointment.Start"] = {march_5(0)};
  expect(L"GetAppointmentProperty", {L"Start"}, text_result(country_.day));
  expect(L"SetRecurrenceProperty", {L"RecurrenceType", L"4"}, text_result(""),
         "[Lunch " + country_.day + "] The RecurranceType is invalid 4 it will use a default value of Daily");
}

TEST_P(Formats, AreThoseOfTheUserInWhatIsWritten) {
  const auto set = [&](const wchar_t* key, const std::string& value, const std::string& put) {
    SCOPED_TRACE(value);
    check(L"SetAppointmentProperty", {key, value_of(value)}, "bool -1", "put Appointment." + put);
  };
  for (const auto& day : split(country_.days, '|')) set(L"End", day, "End=date 03/05/2007");
  set(L"End", country_.day + " 14:30", "End=date 03/05/2007 14:30:00");
  set(L"Duration", country_.half, "Duration=i4 2");
  set(L"Duration", country_.thousand, "Duration=i4 1000");
  set(L"AllDayEvent", country_.half, "AllDayEvent=bool -1");
  set(L"AllDayEvent", "True", "AllDayEvent=bool -1");
}

INSTANTIATE_TEST_SUITE_P(Under, Formats, testing::ValuesIn(countries));

}  // namespace
