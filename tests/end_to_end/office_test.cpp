// ZORBWord and OpenWriter over LibreOffice: what they do to real documents, and what the user is told.
#include <cstdio>
#include <fstream>

#include "support/control_test.h"

namespace {

_variant_t temporary(const std::wstring& name) {
  wchar_t folder[MAX_PATH];
  GetTempPathW(MAX_PATH, folder);
  return (folder + (L"zorb " + name)).c_str();
}

_variant_t demo_template() { return project_file(L"examples\\demo\\letters.dotx").c_str(); }

class Office : public HostTest<0> {
 protected:
  Office() {
    expect(L"Start", {}, "ui1 1");
    expect(L"CreateDoc", {}, "ui1 1");
  }
  ~Office() { call(L"StopWord", {true}); }

  const std::string no_member = "The requested member of the collection does not exist.";
  const std::wstring longest = std::wstring(255, L'x'), too_long = longest + L'x';
};

TEST_F(Office, WritesMovesCutsAndPastes) {
  const std::wstring special = L"\xe9\x20ac\xd83d\xde00 ";
  const auto text = [&](const wchar_t* rest) { return _variant_t((special + rest).c_str()); };
  const std::tuple<const wchar_t*, Arguments, std::string> rows[] = {
      {L"SendText", {text(L"three")}, "ui1 1"},
      {L"CursorLeft", {L"5", 1, 1}, "empty"},
      {L"SelectionText", {}, "bstr \"three\""},
      {L"Cut", {}, "empty"},
      {L"ReadText", {0, 0}, describe(text(L"\r"))},
      {L"Paste", {}, "empty"},
      {L"CursorLeft", {3}, "empty"},
      {L"SendText", {L"-"}, "ui1 1"},
      {L"GotoLine", {1}, "bool -1"},
      {L"SelectParagraph", {}, "empty"},
      {L"SelectionText", {}, describe(text(L"th-ree\r"))},
      {L"IsPrinting", {}, "i2 0"},
      {L"CloseDoc", {0}, "empty"},
      {L"GotoLine", {1}, "bool 0"}};
  for (const auto& [member, arguments, result] : rows) expect(member, arguments, result);
}

TEST_F(Office, FindsAndSelects) {
  // Nothing is selected where nothing is found.
  const struct {
    std::wstring text;
    const wchar_t* selected = nullptr;
    bool match_case = false, whole_word = false, wildcards = false;
  } rows[] = {{L"beta", L"beta"},
              {L"alpha", L"Alpha"},
              {L"alpha", L"alpha", true},
              {L"alphabet", L"alphabet", false, true},
              {L"alph", nullptr, false, true},
              {L""},
              {L"10^^2", L"10^2"},
              {L")^pl", L")\rl"},
              {L"b?t"},
              {L"b?t", L"bet", false, false, true},
              {L"[0-9]{2}", L"10", false, false, true},
              {longest, longest.c_str()},
              {too_long}};
  call(L"SendText", {(L"Alpha beta alphabet. 10^2 (net)\rlast " + longest).c_str()});
  for (const auto& [text, selected, match_case, whole_word, wildcards] : rows) {
    SCOPED_TRACE(text);
    expect(L"Search", {text.c_str(), 1, true, true, match_case, whole_word, wildcards},
           selected ? "ui1 1" : "ui1 0", text == too_long ? "Search String parameter too long." : "");
    if (selected) expect(L"SelectionText", {}, describe(_variant_t(selected)));
  }
  // Without a wrap, on from the selection or from the top.
  call(L"CreateDoc");
  call(L"SendText", {L"one two one"});
  for (const auto& [from_top, result] :
       {std::pair{false, "ui1 0"}, {true, "ui1 1"}, {false, "ui1 1"}, {false, "ui1 0"}})
    expect(L"Search", {L"one", 0, true, from_top}, result);
}

TEST_F(Office, ReplacesNoneOneOrAll) {
  // With wildcards where the text has brackets.
  const std::tuple<int, std::wstring, const wchar_t*, const char*> rows[] = {
      {0, L"a", L"c", "a b a b a"},
      {1, L"a", L"c", "c b a b a"},
      {2, L"a", L"c", "c b c b c"},
      {2, L"a", L"c", nullptr},
      {2, too_long, L"y", nullptr},  // in silence
      {2, L"", L"y", nullptr},
      {2, L"c", longest.c_str(), ""},
      {2, L" ^^", L"", nullptr},
      {2, longest, L"12^^", "12^ b 12^ b 12^"},
      {2, L"b", L"^&^&", "12^ bb 12^ bb 12^"},
      {2, L"([0-9])([0-9])", L"\\2\\1", "21^ bb 21^ bb 21^"},
      {2, L"^^", L"", "21 bb 21 bb 21"}};
  call(L"SendText", {L"a b a b a"});
  std::string left;
  for (const auto& [option, text, by, after] : rows) {
    SCOPED_TRACE(text);
    const bool wildcards = text.find(L'[') != text.npos;
    call(L"Search", {L"a", 1, true, true});
    call(L"CursorLeft", {1});
    expect(L"Replace", {text.c_str(), by, 1, true, true, false, false, wildcards, false, false, option},
           after ? "ui1 1" : "ui1 0");
    if (after) left = after;
    if (!left.empty()) expect(L"ReadText", {0, 0}, "bstr \"" + left + "\r\"");
  }
}

TEST_F(Office, ReadsTablesSectionsHeadersAndFooters) {
  expect(L"InTable", {}, "ui1 0");
  expect(L"CellCount", {}, "i4 0", "CellCount " + no_member);
  expect(L"CreateDoc", {demo_template()}, "ui1 1");
  expect(L"Search", {L"<<Amount>>", 1, true, true}, "ui1 1");
  expect(L"InTable", {}, "ui1 1");
  expect(L"CellCount", {}, "i4 3");
  expect(L"CellText", {1}, "bstr \"<<Number>>\r\a\"");
  expect(L"CellText", {4}, "bstr \"\"", "CellText " + no_member);
  expect(L"SelectRow", {}, "empty");
  expect(L"SelectionText", {}, "bstr \"<<Number>>\r\a<<Amount>>\r\a<<Due>>\r\a\r\a\"");
  expect(L"NumberOfSections", {}, "i4 1");
  expect(L"ReadHeaderFooterText", {1, true, 1, 0, 0}, "bstr \"Account statement for customer <<Number>>\r\"");
  expect(L"ReadHeaderFooterText", {1, false, 1, 0, 4}, "bstr \"ent\"");
  expect(L"ReadHeaderFooterText", {1, true, 3, 0, 0}, "bstr \"\"");
  expect(L"ReplaceHeaderFooter", {2, true, 1, L"a", L"b"}, "ui1 0", "Replace Header/Footer " + no_member);
}

TEST_F(Office, CopiesHeadersAndFootersIntoAnotherFile) {
  const auto source = demo_template(), target = temporary(L"target.docx");
  call(L"SendText", {L"body"});
  call(L"SaveDoc", {target});
  call(L"CloseDoc");
  expect(L"SetHeaderFooter", {source, target, true, true, true}, "ui1 1");
  expect(L"OpenDoc", {target}, "ui1 1");
  expect(L"ReadText", {0, 0}, "bstr \"body\r\"");
  EXPECT_TRUE(call(L"ReadHeaderFooterText", {1, true, 1, 0, 0}).starts_with("bstr \"Account statement for"));
  EXPECT_TRUE(call(L"ReadHeaderFooterText", {1, false, 1, 0, 0}).starts_with("bstr \"Sent to <<Name>>"));
  call(L"CloseDoc");
  EXPECT_EQ(call(L"SetHeaderFooter", {source, L"C:\\missing.docx", true, false, false}), "ui1 0");
  EXPECT_TRUE(taken_boxes(boxes_).starts_with("Set Header/Footer "));
  expect(L"StopWord", {false}, "empty");  // which ends it only when nothing is left open
  expect(L"SetActive", {true}, "ui1 0", "Set Active Object required");
  expect(L"Start", {}, "ui1 1");
  DeleteFileW(V_BSTR(&target));
}

class WriterOffice : public HostTest<2> {
 protected:
  WriterOffice() { EXPECT_EQ(call(L"Start"), "ui1 1"); }

  // Opens a document of that text, which the word processor wrote in the format of its name.
  void open(const wchar_t* name, const wchar_t* text) {
    const auto word = outside::create(outside::classes[0]);
    late_call(word.Get(), L"Start");
    late_call(word.Get(), L"CreateDoc");
    late_call(word.Get(), L"SendText", {text});
    late_call(word.Get(), L"SaveDoc", {temporary(name)});
    EXPECT_EQ(late_call(word.Get(), L"StopWord", {true}), "empty");
    expect(L"OpenDoc", {temporary(name)}, "ui1 1");
  }

  const std::string unknown = "Object doesn't support this property or method";
};

TEST_F(WriterOffice, OpensDocumentsOneAfterAnother) {
  for (const auto* name : {L"one.odt", L"two.docx", L"three.doc"}) {
    open(name, name);
    expect(L"ReadText", {5, 10}, describe(_variant_t(name)));
  }
  EXPECT_EQ(call(L"OpenDoc", {temporary(L"missing.odt")}), "ui1 0");
  EXPECT_TRUE(taken_boxes(boxes_).starts_with("OpenDoc Unsupported URL <file:///"));
  EXPECT_EQ(call(L"CreateDoc"), "ui1 0");
  EXPECT_TRUE(taken_boxes(boxes_).starts_with("Create Doc Unsupported URL <file:///>"));
  expect(L"CloseDoc", {}, "empty");
  expect(L"ReadText", {0, 0}, "bstr \"three.doc\"");  // the last document that was opened
  expect(L"CreateDoc", {demo_template()}, "ui1 1");
  EXPECT_NE(call(L"ReadText", {0, 0}).find("<<Name>>"), std::string::npos);
}

TEST_F(WriterOffice, ReadsAMillionCharactersInOnePiece) {
  std::wstring text;
  for (int line = 0; text.size() < 1 << 20; ++line)
    text += std::to_wstring(line) + L" na\xefve \x20ac \xd83d\xde00 " + std::wstring(1000, L'x') + L"\n";
  text.pop_back();
  const _variant_t file = temporary(L"large.txt");
  std::ofstream(V_BSTR(&file), std::ios::binary)
      << "\xff\xfe" << std::string_view(reinterpret_cast<const char*>(text.data()), text.size() * 2);
  ASSERT_EQ(call(L"OpenDoc", {file}), "ui1 1");
  EXPECT_TRUE(call(L"ReadText", {0, 0}) == describe(_variant_t(text.c_str())));
}

TEST_F(WriterOffice, FindsAndHasNotTheWordProcessorsMembers) {
  open(L"search.odt", L"Alpha beta");
  // The document offers no GetSelection to show what was found.
  for (const auto& [text, expression, hit] : {std::tuple{L"Beta", false, true},
                                              {L"b.ta", false, false},
                                              {L"b.ta", true, true},
                                              {L"gamma", false, false},
                                              {L"", false, false}})
    expect(L"Search", {text, 1, true, true, true, true, expression}, "ui1 0",
           utf8(text) + (hit ? " | Search " + unknown : ""));
  expect(L"SelectionText", {}, "bstr \"\"", "SelectionText " + unknown);
  expect(L"NumberOfSections", {}, "raised 800A01B6 " + unknown);
  // A window that cannot be placed ends nothing of what was started.
  expect(L"Start", {true}, "ui1 0", "Start " + unknown + " | " + unknown);
  expect(L"ReadText", {0, 0}, "bstr \"Alpha beta\"");
  open(L"placed.odt", L"text");
}

// The programs behind the control are killed. The script recovery does that, which is asked on the standard
// output and answers on the standard input.
class Recovery : public HostTest<0> {
 protected:
  static void please(const char* request) {
    std::printf("please %s\n", request);
    std::fflush(stdout);
    char answer[16] = "";
    ASSERT_TRUE(std::fgets(answer, sizeof(answer), stdin));
  }
};

TEST_F(Recovery, ASessionBeginsAnewAfterAKill) {
  for (const char* killed : {"", "kill office", "kill bridge"}) {
    SCOPED_TRACE(killed);
    if (*killed) {
      please(killed);
      for (const auto& [member, prefix] :
           {std::pair{L"CreateDoc", "Create Doc "}, {L"Paste", "Paste "}, {L"CloseDoc", "Close Doc "}}) {
        const Soon soon;
        EXPECT_NE(call(member), "ui1 1");
        const auto boxes = taken_boxes(boxes_);
        EXPECT_TRUE(boxes.starts_with(prefix)) << boxes;
      }
      EXPECT_TRUE(call(L"StopWord", {true}).starts_with("raised "));
      please("start");
    }
    expect(L"Start", {}, "ui1 1");
    expect(L"CreateDoc", {}, "ui1 1");
    expect(L"SendText", {L"text"}, "ui1 1");
    expect(L"ReadText", {0, 0}, "bstr \"text\r\"");
  }
  expect(L"StopWord", {true}, "empty");
  control_.Reset();
  EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
}

}  // namespace
