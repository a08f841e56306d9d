// What a control holds between calls, and what passes through it from and to the host.

#include "word_test.h"

namespace {

using State = WordTest;

TEST_F(State, ADocumentOpenedWhileAnotherClosesStays) {
  make_ready();
  office_.answers["Document.Close"].effect = [&](const DISPPARAMS&) { expect(L"OpenDoc", {L"b"}, "ui1 1"); };
  expect(L"CloseDoc", {}, "empty");
  EXPECT_EQ(office_.live, 2);
  expect(L"SaveDoc", {}, "empty");
}

TEST_F(State, ASecondStartReplacesTheApplicationWhichAnEndingControlReleasesAndNothingQuits) {
  make_ready();
  expect(L"Start", {}, "ui1 1");
  EXPECT_EQ(office_.live, 2);
  control_.Reset();
  EXPECT_EQ(office_.live, 0);
  EXPECT_EQ(log().find("Quit"), std::string::npos);
}

TEST_F(State, ALateFailureOfStartKeepsTheNewApplication) {
  office_.fail_at = 3;
  expect(L"Start", {}, "ui1 0");
  expect(L"SetActive", {true}, "ui1 1");
}

TEST_F(State, ClosingAndStoppingLetGo) {
  make_ready();
  expect(L"CloseDoc", {}, "empty");
  EXPECT_EQ(office_.live, 1);
  expect(L"CloseDoc", {}, "empty", "Close Doc Object required");
  office_.answers["Documents.Count"] = {1};
  expect(L"StopWord", {}, "empty");
  EXPECT_EQ(office_.live, 1) << "with a document open the word processor goes on";
  expect(L"StopWord", {true}, "empty");
  EXPECT_EQ(office_.live, 0);
  expect(L"SetActive", {true}, "ui1 0", "Set Active Object required");
}

TEST_F(State, ANewDocumentReplacesTheEarlierOneWithoutClosingIt) {
  make_ready();
  office_.answers["Documents.Add"] = {.object = "Document2"};
  expect(L"CreateDoc", {}, "ui1 1");
  expect(L"SaveDoc", {}, "empty");
  EXPECT_EQ(log(),
            "get Application.Documents | get Documents.Add(Template:=&bstr \"\") | call Document2.Save");
  EXPECT_EQ(office_.live, 2);
}

TEST_F(State, TextOfAnyLengthAndEveryPlaneGoesThroughUnchanged) {
  _variant_t null_text(L"");
  SysFreeString(std::exchange(null_text.bstrVal, nullptr));
  // Lone halves of pairs and nulls are text, too.
  const wchar_t units[] = L"A\xFFFD\xD800\xDC00\xDBFF\xDFFD\xDC00\xD800";
  VARIANT odd = {};
  odd.vt = VT_BSTR;
  odd.bstrVal = SysAllocStringLen(units, std::size(units));
  make_ready();
  for (const auto& text :
       {_variant_t(L""), null_text, _variant_t(std::wstring(32000, L'x').c_str()), _variant_t(odd, false)}) {
    office_.answers["Selection.Text"] = {text};
    expect(L"OpenDoc", {text}, "ui1 1");
    EXPECT_TRUE(log().ends_with("Documents.Open(&" + describe(text) + ")"));
    expect(L"SendText", {text}, "ui1 1");
    EXPECT_TRUE(log().ends_with("Selection.TypeText(" + describe(text) + ")"));
    expect(L"SelectionText", {}, describe(text));
    log();
  }
}

}  // namespace
