#include "property_test.h"

namespace {

// A new separator changes the picture too, so the pictures come after the separators. Wine takes marks of
// money for marks of numbers.
const std::pair<LCTYPE, size_t> types[] = {
    {LOCALE_SDATE, 0},    {LOCALE_STIME, 1},     {LOCALE_SSHORTDATE, 2},     {LOCALE_STIMEFORMAT, 3},
    {LOCALE_SDECIMAL, 4}, {LOCALE_STHOUSAND, 5}, {LOCALE_SMONDECIMALSEP, 4}, {LOCALE_SMONTHOUSANDSEP, 5}};

}  // namespace

UserLocale::UserLocale(const UserFormats& formats) {
  for (const auto& [type, setting] : types) {
    wchar_t text[80] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, 80);
    earlier_[type] = text;
  }
  for (const auto& [type, setting] : types)
    SetLocaleInfoW(LOCALE_USER_DEFAULT, type, formats[setting].c_str());
}

UserLocale::~UserLocale() {
  for (const auto& [type, setting] : types) SetLocaleInfoW(LOCALE_USER_DEFAULT, type, earlier_[type].c_str());
}

PropertyTest::PropertyTest() {
  office_.objects.insert({"Exceptions", "Parent", "Recipients"});
  for (const char* list : {"Attachments.[newenum]", "Recipients.[newenum]"})
    office_.answers[list] = {.items = {"First", "Second"}};
  office_.answers["Appointment.Start"] = {march_5(14, 30)};
  office_.answers["Appointment.Subject"] = {L"Lunch"};
}

void PropertyTest::make_current() {
  make_ready();
  check(L"GetRecurrencePattern", {}, "bool -1", "get Appointment.GetRecurrencePattern");
}

void PropertyTest::check(const wchar_t* member, const Arguments& arguments, const std::string& result,
                         const std::string& steps, const std::string& shown) {
  expect(member, arguments, result, shown);
  EXPECT_EQ(log(), steps);
}

std::string text_result(const std::string& text) { return "bstr \"" + text + "\""; }

_variant_t value_of(const std::string& ascii) { return std::wstring(ascii.begin(), ascii.end()).c_str(); }

std::vector<std::string> split(const std::string& list, char separator) {
  std::vector<std::string> parts;
  for (size_t from = 0, to = 0; to != std::string::npos; from = to + 1) {
    to = list.find(separator, from);
    parts.push_back(list.substr(from, to == std::string::npos ? to : to - from));
  }
  return parts;
}

_variant_t march_5(int hour, int minute, int second) {
  _variant_t value(39146 + (hour * 3600 + minute * 60 + second) / 86400.0);
  value.vt = VT_DATE;
  return value;
}
