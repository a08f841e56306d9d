// What a control holds between calls, and what passes through it from and to the host.
#include <utility>

#include "word_test.h"

namespace {

using State = WordTest;

TEST_F(State, AnEndingControlReleasesAndCallsNothing) {
  make_ready();
  EXPECT_EQ(office_.live, 2);
  control_.Reset();
  EXPECT_EQ(office_.live, 0);
  EXPECT_EQ(log(), "");
}

TEST_F(State, ADocumentOpenedWhileAnotherClosesStays) {
  make_ready();
  office_.answers["Document.Close"].effect = [&](const DISPPARAMS&) { expect(L"OpenDoc", {L"b"}, "ui1 1"); };
  expect(L"CloseDoc", {}, "empty");
  EXPECT_EQ(office_.live, 2);
  expect(L"SaveDoc", {}, "empty");
}

TEST_F(State, ASecondStartReplacesTheApplicationAndQuitsNothing) {
  make_ready();
  expect(L"Start", {}, "ui1 1");
  EXPECT_EQ(log().find("Quit"), std::string::npos);
  EXPECT_EQ(office_.live, 2);
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

// The word processor changes everything that reaches it by reference.
void change(const DISPPARAMS& parameters) {
  for (UINT i = 0; i < parameters.cArgs; ++i) {
    const VARIANT& argument = parameters.rgvarg[i];
    if (argument.vt == (VT_BYREF | VT_I2)) *argument.piVal *= 10;
    if (argument.vt == (VT_BYREF | VT_I4)) *argument.plVal *= 10;
    if (argument.vt == (VT_BYREF | VT_BSTR))
      SysReAllocString(argument.pbstrVal, (std::wstring(*argument.pbstrVal) + L"!").c_str());
  }
}

TEST_F(State, WhatComesBackByReferenceReachesTheHostsVariable) {
  const struct {
    const wchar_t* member;
    std::vector<_variant_t> host;
    const char *changing, *after;
  } rows[] = {
      {L"GetDefaultPaths", {short{2}}, "Options.DefaultFilePath", "i2 20 "},
      {L"OpenDoc", {L"a"}, "Documents.Open", "bstr \"a!\" "},
      {L"CreateDoc", {L"a"}, "Documents.Add", "bstr \"a!\" "},
      {L"SaveDoc", {L"a"}, "Document.SaveAs", "bstr \"a!\" "},
      {L"PrintDoc", {short{2}, true}, "Document.PrintOut", "i2 20 bool -1 "},
      {L"CloseDoc", {short{2}}, "Document.Close", "i2 20 "},
      {L"SendText", {L"a"}, "Selection.TypeText", "bstr \"a\" "},
      {L"ReadText", {3, 5}, "Document.Range", "int 30 int 50 "},
      {L"ReadText", {3, 0}, "Document.Range", "int 3 int 0 "},
      {L"CursorLeft", {short{3}, short{2}, short{1}}, "Selection.MoveLeft", "i2 30 i2 20 i2 1 "},
      {L"CursorRight", {3, 2, 1}, "Selection.MoveRight", "int 30 int 20 int 1 "},
      {L"Move", {short{4}, 2}, "Selection.Move", "i2 40 int 20 "},
      {L"GotoLine", {short{7}}, "Selection.GoTo", "i2 70 "},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.changing);
    make_ready();
    const auto usual = office_.answers;
    office_.answers[row.changing].effect = change;
    for (const bool typed : {true, false}) {
      auto host = row.host;
      std::vector<_variant_t> arguments(host.size());
      for (size_t i = 0; i < host.size(); ++i) {
        arguments[i].vt = VT_BYREF | (typed ? host[i].vt : VARTYPE{VT_VARIANT});
        arguments[i].byref = typed ? static_cast<void*>(&host[i].lVal) : &host[i];
      }
      call(L"OpenDoc", {L"C:\\a.docx"});
      call(row.member, arguments);
      std::string after;
      for (const auto& variable : host) after += describe(variable) + " ";
      EXPECT_EQ(after, row.after);
    }
    office_.answers = usual;
  }
}

}  // namespace
