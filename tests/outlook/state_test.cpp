// What a control holds between and during calls, and the edges of words, counts, walks and failures.
#include <regex>

#include "outlook_test.h"

namespace {

using State = OutlookTest;

TEST_F(State, OnlyTheClassTellsKindsApart) {
  make_ready();
  const std::string usual = held();
  for (const auto& kind : item_kinds) {
    office_.answers[std::string(kind.items) + ".GetNext"] = {nothing};
    for (const int item_class : {26, 40, 43, 44, 48, 69, 46, 53, 181, 45, 41, 0, 65536 + kind.item_class}) {
      if (item_class == kind.item_class) continue;
      office_.answers[std::string(kind.found) + ".Class"] = {item_class};
      expect(L"GetFirstItem", {kind.word}, "bool 0");
      expect(L"GetItem", {kind.word, kind.word}, "bool 0");
      EXPECT_EQ(last_error(), recorded(13, "Type mismatch"));
    }
  }
  EXPECT_EQ(held(), usual);
}

TEST_F(State, UnknownWordsAreShownAndNotRecorded) {
  const std::wstring_view words[] = {{},         L"",           L"appointment",
                                     L"Email ",  L"Tas",        {L"Email\0", 6},
                                     L"Deleted", L"Sent Items", L"Deleted Email"};
  const std::wstring long_word(3000, L'x');
  for (const std::wstring member :
       {L"OpenItem", L"InitItems", L"GetItem", L"GetItemCount", L"GetFirstItem", L"GetNextItem",
        L"CreateItem", L"DeleteItem", L"SaveItem", L"SaveItemToFile"})
    for (auto word : words) {
      if (member == L"InitItems" && (word == L"Sent Items" || word == L"Deleted Email")) word = long_word;
      Arguments arguments = {text(word)};
      if (member == L"GetItem" || member == L"InitItems" || member == L"SaveItemToFile")
        arguments.push_back(L"");
      auto caption = std::regex_replace(utf8(member), std::regex("(.)(?=[A-Z])"), "$1 ");
      caption = std::regex_replace(caption, std::regex("To"), "to");
      // A box ends its text at a null.
      expect(member.c_str(), arguments, member == L"GetItemCount" ? "i2 0" : "bool 0",
             "[" + caption + "] Unknown Entry Type " + utf8(word.substr(0, word.find(L'\0'))));
    }
  EXPECT_EQ(last_error(), recorded(0, ""));
  EXPECT_EQ(log(), "");
}

TEST_F(State, AHundredThousandForeignItemsTakeNeitherStackNorMemory) {
  make_ready();
  const int alive = office_.live;
  int skipped = 0;
  const void* stack = nullptr;
  auto& next = office_.answers["ContactItems.GetNext"];
  next = {.object = "Foreign", .effect = [&](const DISPPARAMS& on_stack) {
            if (++skipped == 1) stack = &on_stack;
            if (stack != &on_stack || office_.live > alive + 1 || skipped == 100000)
              next = {.object = "FoundContact"};
            office_.log.clear();
          }};
  office_.answers["ContactItems.GetFirst"] = {.object = "Foreign"};
  expect(L"GetFirstItem", {L"Contact"}, "bool -1");
  EXPECT_EQ(log(), "get Foreign.Class | get ContactItems.GetNext | get FoundContact.Class");
  EXPECT_EQ(skipped, 100000);
}

TEST_F(State, CountsAndTheLastErrorsNumberAreOfSixteenBits) {
  make_ready();
  office_.answers["EmailItems.Count"] = {32767};
  expect(L"GetItemCount", {L"Email"}, "i2 32767");
  EXPECT_EQ(last_error(), unset);
  office_.answers["EmailItems.Count"] = {32768};
  expect(L"GetItemCount", {L"Email"}, "i2 0");
  EXPECT_EQ(last_error(), recorded(6, "Overflow"));
  const std::string overflow = "raised 800A0006 Overflow";
  const std::pair<Failure, std::string> rows[] = {{{DISP_E_EXCEPTION, 0, 32767, L"a"}, "i2 32767"},
                                                  {{DISP_E_EXCEPTION, 0, 32768, L"a"}, overflow},
                                                  {{DISP_E_EXCEPTION, 0xFFFF8000, 0, L"a"}, "i2 -32768"},
                                                  {{DISP_E_EXCEPTION, 0xFFFF7FFF, 0, L"a"}, overflow},
                                                  {{DISP_E_EXCEPTION, 0x80020009, 0, L"a"}, overflow}};
  for (const auto& [failure, number] : rows) {
    office_.failure = failure;
    log();
    office_.fail_at = 1;
    expect(L"DeleteItem", {L"Note"}, "bool 0");
    for (int asked = 0; asked < 2; ++asked) EXPECT_EQ(last_error(), number + " bstr \"a\"");
  }
}

TEST_F(State, DatesAreConvertedBeforeAnythingIsAsked) {
  for (const auto* date : {L"", L"soon", L"32/13/2007"}) {
    expect(L"GetAppointmentInstance", {date}, "bool 0");
    EXPECT_EQ(last_error(), recorded(13, "Type mismatch"));
  }
}

TEST_F(State, AttachmentsAreCountedWithoutThoseThatTheBodyNames) {
  const std::tuple<short, const wchar_t*, const wchar_t*, std::string> rows[] = {
      {1, L"a LOGO.PNG", L"logo.png", "call Logo"},
      {1, L"xlogo.pngx", L"logo.png", "call Report"},
      {1, L"text", L"", "call Report"},
      {1, L"", L"", "call Logo"},
      {2, L"report.pdf", L"a", "call Figures"},
      {0, L"", L"a", "next Attachments"},
      {-1, L"", L"a", "next Attachments"}};
  make_ready();
  for (const auto& [number, body, name, saved] : rows) {
    office_.answers["Email.Body"] = {body};
    office_.answers["Logo.FileName"] = {name};
    expect(L"SaveEmailAttachment", {number, L""}, "bool -1");
    EXPECT_EQ(office_.log.back().substr(0, office_.log.back().find('.')), saved);
  }
  office_.answers["Attachments.[newenum]"].items.assign(32768, "Report");
  expect(L"SaveEmailAttachment", {short{0}, L""}, "bool 0", "Couldn't save Attachment Overflow : 0 : 1");
  EXPECT_EQ(last_error(), recorded(6, "Overflow"));
}

TEST_F(State, AFailureWhoseFactsCannotBeReadReachesTheHost) {
  make_ready();
  for (const auto* fact : {"Attachments.Item", "Attachment.BlockLevel", "Attachment.Type"}) {
    office_.refused = {{"Figures.SaveAsFile", E_FAIL}, {fact, E_ACCESSDENIED}};
    expect(L"SaveEmailAttachment", {2, L""}, "raised 800A0046 Permission denied");
    EXPECT_EQ(last_error(), unset);
  }
}

TEST_F(State, AHalfStartedSessionKeepsTheNewApplicationAndTheOldNamespace) {
  office_.fail_at = 2;
  expect(L"StartOutlook", {}, "bool 0");
  expect(L"CreateItem", {L"Email"}, "bool -1");
  expect(L"GetItem", {L"Email", L"Email"}, "bool 0");
  make_ready();
  office_.answers["Application.GetNamespace"] = {.object = "Second"};
  for (const auto* space : {"NameSpace", "Second"}) {
    office_.fail_at = *space == 'N' ? 2 : 0;
    call(L"StartOutlook");
    call(L"GetItem", {L"Email", L""});
    EXPECT_EQ(office_.log.at(2), "get " + std::string(space) + ".GetItemFromID(bstr \"\")");
    log();
  }
}

TEST_F(State, ControlsShareNothingAndGoOnAfterStopping) {
  make_ready();
  const auto first = control_;
  const std::string usual = held();
  make_ready();
  expect(L"GetFirstItem", {L"Task"}, "bool -1");
  expect(L"GetAppointmentInstance", {L""}, "bool 0");
  control_ = first;
  EXPECT_EQ(last_error(), unset);
  expect(L"GetRecurrencePattern", {}, "bool -1");
  expect(L"StopOutlook", {true}, "bool -1");
  EXPECT_EQ(held(), usual);
  EXPECT_EQ(office_.live, 13) << "application, namespace, pattern, a collection and an item of each kind";
}

TEST_F(State, WhatTheHostDoesDuringACallCounts) {
  make_ready();
  office_.answers["Notes.Items"] = {.object = "Fresh"};
  office_.answers["Fresh.GetNext"] = {.object = "FoundNote"};
  office_.answers["NoteItems.GetNext"] = {.object = "Foreign", .effect = [&](const DISPPARAMS&) {
                                            office_.answers["NoteItems.GetNext"] = {nothing};
                                            call(L"InitItems", {L"Note", L""});
                                          }};
  expect(L"GetNextItem", {L"Note"}, "bool -1");
  EXPECT_TRUE(log().ends_with("get Foreign.Class | get Fresh.GetNext | get FoundNote.Class"));
  office_.answers["FoundNote.Display"].effect = [&](const DISPPARAMS&) {
    call(L"CreateItem", {L"Note"});
    control_.Reset();
  };
  expect(L"OpenItem", {L"Note"}, "bool -1");
  EXPECT_EQ(office_.live, 0);
  make_ready();
  at_box_ = [&] { control_.Reset(); };
  office_.fail_at = 1;
  expect(L"OpenItem", {L"Task"}, "bool 0", "open item Task No such member.");
}

class Recurrence : public OutlookTest {
 protected:
  Recurrence() { make_ready(); }

  void set(const std::string& key, const std::string& value, const std::string& steps,
           const std::string& boxes, const std::string& result = text_result("")) {
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
    check(L"GetExceptionProperty", {1, key}, text_result(""));
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
