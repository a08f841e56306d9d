// OpenWriter over LibreOffice: what it reads and finds in real documents, and what the user is told.
#include <gmock/gmock.h>

#include <fstream>

#include "outside/library.h"
#include "support/fake_object.h"
#include "support/late_call.h"
#include "support/message_boxes.h"

namespace {

using Arguments = std::vector<_variant_t>;
using Microsoft::WRL::ComPtr;
using testing::HasSubstr;
using testing::StartsWith;

const std::string unknown = "Object doesn't support this property or method";

class WriterOffice : public testing::Test {
 protected:
  WriterOffice() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    folder_ = std::wstring(folder) + L"zorb ";
  }
  ~WriterOffice() { EXPECT_TRUE(boxes_.take().empty()); }

  std::string call(const wchar_t* member, const Arguments& arguments = {}) {
    return late_call(control_.Get(), member, arguments);
  }

  // The texts of the boxes shown since the last call, separated by "|".
  std::string shown() {
    std::string all;
    for (const auto& box : boxes_.take()) all += (all.empty() ? "" : "|") + box.text;
    return all;
  }

  _variant_t path(const std::wstring& name) const { return (folder_ + name).c_str(); }

  // Writes a document of that text with the word processor, in the format of its name.
  _variant_t written(const std::wstring& name, const wchar_t* text) const {
    const auto word = outside::create(outside::classes[0]);
    late_call(word.Get(), L"Start");
    late_call(word.Get(), L"CreateDoc");
    late_call(word.Get(), L"SendText", {text});
    late_call(word.Get(), L"SaveDoc", {path(name)});
    EXPECT_EQ(late_call(word.Get(), L"StopWord", {true}), "empty");
    return path(name);
  }

  std::wstring folder_;
  MessageBoxes boxes_;
  ComPtr<IDispatch> control_ = outside::create(outside::classes[2]);
};

TEST_F(WriterOffice, OpensDocumentsOneAfterAnother) {
  ASSERT_EQ(call(L"Start"), "ui1 1");
  for (const auto* name : {L"one.odt", L"two.docx", L"three.doc"}) {
    EXPECT_EQ(call(L"OpenDoc", {written(name, name)}), "ui1 1");
    EXPECT_EQ(call(L"ReadText", {5, 10}), describe(_variant_t(name)));
  }
  EXPECT_EQ(call(L"OpenDoc", {path(L"missing.odt")}), "ui1 0");
  EXPECT_THAT(shown(),
              testing::AllOf(StartsWith("OpenDoc Unsupported URL <file:///"), HasSubstr("missing.odt")));
  EXPECT_EQ(call(L"CreateDoc"), "ui1 0");
  EXPECT_THAT(shown(), StartsWith("Create Doc Unsupported URL <file:///>"));
  EXPECT_EQ(call(L"CloseDoc"), "empty");
  EXPECT_EQ(call(L"ReadText", {0, 0}), "bstr \"three.doc\"") << "the last document that was opened";
}

// The demo's template.
TEST_F(WriterOffice, CreatesADocumentFromATemplate) {
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring file = program;
  file = file.substr(0, file.rfind(L"\\build\\")) + L"\\examples\\letters.dotx";
  ASSERT_EQ(call(L"Start"), "ui1 1");
  EXPECT_EQ(call(L"CreateDoc", {file.c_str()}), "ui1 1");
  EXPECT_THAT(call(L"ReadText", {0, 0}), HasSubstr("<<Name>>"));
}

TEST_F(WriterOffice, ReadsFiveMegabytesInOnePiece) {
  std::wstring text;
  for (int line = 0; text.size() < 5 << 20; ++line)
    text += std::to_wstring(line) + L" na\xefve \x20ac \xd83d\xde00 " + std::wstring(1000, L'x') + L"\n";
  text.pop_back();
  const _variant_t file = path(L"large.txt");
  std::ofstream(V_BSTR(&file), std::ios::binary)
      << "\xff\xfe" << std::string_view(reinterpret_cast<const char*>(text.data()), text.size() * 2);
  ASSERT_EQ(call(L"Start"), "ui1 1");
  ASSERT_EQ(call(L"OpenDoc", {file}), "ui1 1");
  EXPECT_TRUE(call(L"ReadText", {0, 0}) == describe(_variant_t(text.c_str())));
}

TEST_F(WriterOffice, Searches) {
  const struct {
    const wchar_t* text;
    bool expression, hit;
  } rows[] = {{L"Beta", false, true}, {L"beta", false, true},   {L"b.ta", false, false},
              {L"b.ta", true, true},  {L"gamma", false, false}, {L"", false, false}};
  ASSERT_EQ(call(L"Start"), "ui1 1");
  ASSERT_EQ(call(L"OpenDoc", {written(L"search.odt", L"Alpha beta")}), "ui1 1");
  for (const auto& [text, expression, hit] : rows) {
    EXPECT_EQ(call(L"Search", {text, 1, true, true, true, true, expression}), "ui1 0");
    // The document offers no GetSelection to show what was found.
    EXPECT_EQ(shown(), std::string(text, text + wcslen(text)) + (hit ? "|Search " + unknown : ""));
  }
}

TEST_F(WriterOffice, KeepsWhatWasStartedWhenTheWindowCannotBePlaced) {
  EXPECT_EQ(call(L"Start", {true}), "ui1 0");
  EXPECT_EQ(shown(), "Start " + unknown + "|" + unknown);
  EXPECT_EQ(call(L"OpenDoc", {written(L"placed.odt", L"text")}), "ui1 1");
}

TEST_F(WriterOffice, FailsWhereTheSuiteHasNotTheWordProcessorsMembers) {
  const struct {
    const wchar_t* member;
    Arguments arguments;
    const char* result;
    std::string message;
  } rows[] = {
      {L"SendText", {L"a"}, "ui1 0", "SendText "},
      {L"InTable", {}, "ui1 0", "InTable "},
      {L"SelectRow", {}, "empty", "Select Row "},
      {L"Replace", {L"a", L"b"}, "ui1 0", ""},
      {L"NumberOfSections", {}, "raised 800A01B6 ", ""},
      {L"ReadHeaderFooterText", {1, true, 1, 0, 0}, "bstr \"\"", "Read h/f : "},
      {L"SetHeaderFooter", {L"s", L"d", 1, 0, 0}, "ui1 0", "Set Header/Footer "},
      {L"ReplaceHeaderFooter", {1, true, 1, L"a", L"b"}, "ui1 0", "Replace Header/Footer "},
      {L"CellCount", {}, "i4 0", "CellCount "},
      {L"CellText", {1}, "bstr \"\"", "CellText "},
      {L"Cut", {}, "empty", ""},
      {L"SelectParagraph", {}, "empty", "Select Paragraph "},
      {L"SelectionText", {}, "bstr \"\"", "SelectionText "},
      {L"Paste", {}, "empty", "Paste "},
      {L"CursorLeft", {1}, "empty", "Cursor Left "},
      {L"CursorRight", {1}, "empty", "Cursor Right "},
      {L"CursorStartOfParagraph", {}, "empty", "CursorEndOfParagraph"},
      {L"CursorStartOfCell", {}, "empty", "CursorStartOfCell"},
      {L"CursorEndOfCell", {}, "empty", "CursorEndOfCell"},
      {L"CursorEndOfParagraph", {}, "empty", "CursorEndOfParagraph"},
      {L"Move", {1, 1}, "empty", "Move :"},
      {L"GotoLine", {1}, "bool 0", ""},
      {L"FinaliseDoc", {}, "empty", "Finalise "},
      {L"SaveDoc", {}, "empty", "Save Doc : "},
      {L"SaveDocAsPDF", {}, "bool 0", "Unable to print pdf : "},
      {L"StopWord", {true}, "raised 800A01B6 ", ""},
      {L"PrintDoc", {1}, "empty", "Print Doc 438 :  "},
      {L"IsPrinting", {}, "raised 800A01B6 ", ""},
      {L"GetDefaultPaths", {1}, "bstr \"\"", "GetDefaultPaths "},
      {L"CloseDoc", {}, "empty", ""},
      {L"GetLastErrorNumber", {}, "i4 0", ""},
      {L"GetLastErrorDescription", {}, "bstr \"\"", ""},
  };
  ASSERT_EQ(call(L"Start"), "ui1 1");
  ASSERT_EQ(call(L"OpenDoc", {written(L"members.odt", L"unharmed")}), "ui1 1");
  for (const auto& [member, arguments, result, message] : rows) {
    SCOPED_TRACE(member);
    const std::string raised = std::string(result).starts_with("raised") ? unknown : "";
    const std::string last = member == std::wstring(L"SaveDoc") ? " " : "";
    EXPECT_EQ(call(member, arguments), result + raised);
    EXPECT_EQ(shown(), message.empty() ? "" : message + unknown + last);
  }
  EXPECT_EQ(call(L"ReadText", {0, 0}), "bstr \"unharmed\"");
}

}  // namespace
