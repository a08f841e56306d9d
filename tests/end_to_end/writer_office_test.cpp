// OpenWriter over LibreOffice: what it reads and finds in real documents, and what the user is told.
#include <gmock/gmock.h>

#include <fstream>
#include <regex>

#include "outside/library.h"
#include "support/fake_object.h"
#include "support/late_call.h"
#include "support/message_boxes.h"
#include "writer/shared_members.h"

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
  ASSERT_EQ(call(L"Start"), "ui1 1");
  ASSERT_EQ(call(L"OpenDoc", {written(L"members.odt", L"unharmed")}), "ui1 1");
  for (const auto& [name, arguments, all, fresh] : shared_members()) {
    SCOPED_TRACE(name);
    // As while nothing is started, but for what is wrong.
    std::string failure = std::regex_replace(fresh, std::regex("Object required"), unknown);
    failure = std::regex_replace(failure, std::regex("424"), "438");
    if (name == L"SetHeaderFooter") failure = "Set Header/Footer " + unknown;
    const bool raises = failure.starts_with("raised");
    const std::string result = call(name.c_str(), arguments);
    EXPECT_EQ(result.starts_with("raised"), raises);
    EXPECT_EQ(raises ? "raised: " + result.substr(16) : shown(), failure);
  }
  EXPECT_EQ(call(L"CloseDoc"), "empty");
  EXPECT_EQ(call(L"ReadText", {0, 0}), "bstr \"unharmed\"");
}

}  // namespace
