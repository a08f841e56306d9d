// ZORBWord over LibreOffice: what finding, replacing and tables do to a real document, and what the user is
// told.
#include "office_host.h"

namespace {

class Office : public OfficeHost<0> {
 protected:
  Office() {
    expect(L"Start", {}, "ui1 1");
    expect(L"CreateDoc", {}, "ui1 1");
  }
  ~Office() { call(L"StopWord", {true}); }
};

const std::wstring longest(255, L'x'), too_long(256, L'x');

// With BeginAtTop and the given match flags: case, whole word, wildcards.
struct Finding {
  std::wstring text;
  const char* result;
  const char* selected = nullptr;
  bool match_case = false, whole_word = false, wildcards = false;
  const char* message = "";
};

TEST_F(Office, FindsAndSelects) {
  call(L"SendText", {(L"Alpha beta alphabet. 10^2 (net)\rlast " + longest).c_str()});
  const Finding rows[] = {
      {L"beta", "ui1 1", "bstr \"beta\""},
      {L"alpha", "ui1 1", "bstr \"Alpha\""},
      {L"alpha", "ui1 1", "bstr \"alpha\"", true},
      {L"alphabet", "ui1 1", "bstr \"alphabet\"", false, true},
      {L"alph", "ui1 0", nullptr, false, true},
      {L"gamma", "ui1 0"},
      {L"", "ui1 0"},
      {L"10^^2", "ui1 1", "bstr \"10^2\""},
      {L")^pl", "ui1 1", "bstr \")\rl\""},
      {L"b?t", "ui1 0"},
      {L"b?t", "ui1 1", "bstr \"bet\"", false, false, true},
      {L"[0-9]{2}", "ui1 1", "bstr \"10\"", false, false, true},
      {longest, "ui1 1"},
      {too_long, "ui1 0", nullptr, false, false, false, "Search String parameter too long."},
  };
  for (const Finding& row : rows) {
    SCOPED_TRACE(row.text);
    const Arguments arguments = {row.text.c_str(), 1, true, true, row.match_case, row.whole_word,
                                 row.wildcards};
    expect(L"Search", arguments, row.result, row.message);
    if (row.selected) {
      EXPECT_EQ(call(L"SelectionText"), row.selected);
    }
  }
}

TEST_F(Office, SearchesOnFromTheSelectionOrFromTheTop) {
  const Arguments on = {L"one", 0}, from_top = {L"one", 0, true, true};
  call(L"SendText", {L"one two one"});
  EXPECT_EQ(call(L"Search", on), "ui1 0") << "the selection is at the end";
  expect(L"Search", from_top, "ui1 1");
  expect(L"Search", on, "ui1 1");
  expect(L"Search", on, "ui1 0");
}

TEST_F(Office, ReplacesNoneOneOrAll) {
  const std::pair<int, const char*> rows[] = {
      {0, "bstr \"a b a b a\r\""}, {1, "bstr \"c b a b a\r\""}, {2, "bstr \"c b c b c\r\""}};
  call(L"SendText", {L"a b a b a"});
  for (const auto& [option, text] : rows) {
    SCOPED_TRACE(option);
    call(L"Search", {L"a", 1, true, true});
    call(L"CursorLeft", {1});
    expect(L"Replace", {L"a", L"c", 1, true, true, false, false, false, false, false, option}, "ui1 1");
    expect(L"ReadText", {0, 0}, text);
  }
  expect(L"Replace", {L"a", L"c"}, "ui1 0");
  expect(L"Replace", {too_long.c_str(), L"c"}, "ui1 0");  // in silence
}

TEST_F(Office, ReplacesWhateverTheTextHolds) {
  struct {
    std::wstring text, by;
    bool wildcards;
    const char* result;
    const char* left;
  } const rows[] = {
      {longest, L"long", false, "ui1 1", "bstr \"long a^b 12\r\""},
      {too_long, L"y", false, "ui1 0", "bstr \"long a^b 12\r\""},
      {L"", L"y", false, "ui1 0", "bstr \"long a^b 12\r\""},
      {L"a^^b", L"c^^d", false, "ui1 1", "bstr \"long c^d 12\r\""},
      {L" ^^", L"", false, "ui1 0", "bstr \"long c^d 12\r\""},
      {L"c", L"^&^&", false, "ui1 1", "bstr \"long cc^d 12\r\""},
      {L"([0-9])([0-9])", L"\\2\\1", true, "ui1 1", "bstr \"long cc^d 21\r\""},
      {L"long", L"", false, "ui1 1", "bstr \" cc^d 21\r\""},
  };
  call(L"SendText", {(longest + L" a^b 12").c_str()});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    const Arguments arguments = {row.text.c_str(), row.by.c_str(), 1,     true, true, false, false,
                                 row.wildcards,    false,          false, 2};
    expect(L"Replace", arguments, row.result);
    expect(L"ReadText", {0, 0}, row.left);
  }
}

TEST_F(Office, ReadsTablesSectionsHeadersAndFooters) {
  expect(L"CreateDoc", {demo_template()}, "ui1 1");
  expect(L"Search", {L"<<Amount>>", 1, true, true}, "ui1 1");
  expect(L"InTable", {}, "ui1 1");
  expect(L"CellCount", {}, "i4 3");
  expect(L"CellText", {1}, "bstr \"<<Number>>\r\a\"");
  expect(L"CellText", {4}, "bstr \"\"", "CellText The requested member of the collection does not exist.");
  expect(L"SelectRow", {}, "empty");
  expect(L"SelectionText", {}, "bstr \"<<Number>>\r\a<<Amount>>\r\a<<Due>>\r\a\r\a\"");
  expect(L"NumberOfSections", {}, "i4 1");
  expect(L"ReadHeaderFooterText", {1, true, 1, 0, 0}, "bstr \"Account statement for customer <<Number>>\r\"");
  expect(L"ReadHeaderFooterText", {1, false, 1, 0, 4}, "bstr \"ent\"");
  expect(L"ReadHeaderFooterText", {1, true, 3, 0, 0}, "bstr \"\"");
  expect(L"ReplaceHeaderFooter", {2, true, 1, L"a", L"b"}, "ui1 0",
         "Replace Header/Footer The requested member of the collection does not exist.");
}

TEST_F(Office, CopiesHeadersAndFootersIntoAnotherFile) {
  const auto source = demo_template(), target = temporary(L"target.docx");
  call(L"SendText", {L"body"});
  call(L"SaveDoc", {target});
  call(L"CloseDoc");
  expect(L"SetHeaderFooter", {source, target, true, true, true}, "ui1 1");
  expect(L"OpenDoc", {target}, "ui1 1");
  expect(L"ReadText", {0, 0}, "bstr \"body\r\"");
  EXPECT_THAT(call(L"ReadHeaderFooterText", {1, true, 1, 0, 0}),
              testing::StartsWith("bstr \"Account statement for customer <<Number>>\r"));
  EXPECT_THAT(call(L"ReadHeaderFooterText", {1, false, 1, 0, 0}),
              testing::StartsWith("bstr \"Sent to <<Name>>"));
  call(L"CloseDoc");
  expect_failure(L"SetHeaderFooter", {source, L"C:\\missing.docx", true, false, false}, "ui1 0",
                 "Set Header/Footer ");
  expect(L"StopWord", {false}, "empty");  // which ends it only when nothing is left open
  expect(L"SetActive", {true}, "ui1 0", "Set Active Object required");
  expect(L"Start", {}, "ui1 1");
  DeleteFileW(V_BSTR(&target));
}

TEST_F(Office, TellsWhatIsNotInATable) {
  expect(L"InTable", {}, "ui1 0");
  expect(L"CellCount", {}, "i4 0", "CellCount The requested member of the collection does not exist.");
}

}  // namespace
