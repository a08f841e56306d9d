// OpenWriter over LibreOffice: what it reads and finds in real documents, and what the user is told.
#include <fstream>
#include <regex>

#include "office_host.h"
#include "writer/shared_members.h"

namespace {

const std::string unknown = "Object doesn't support this property or method";

class WriterOffice : public OfficeHost<2> {
 protected:
  // Writes a document of that text with the word processor, in the format of its name.
  static _variant_t written(const std::wstring& name, const wchar_t* text) {
    const auto word = outside::create(outside::classes[0]);
    late_call(word.Get(), L"Start");
    late_call(word.Get(), L"CreateDoc");
    late_call(word.Get(), L"SendText", {text});
    late_call(word.Get(), L"SaveDoc", {temporary(name)});
    EXPECT_EQ(late_call(word.Get(), L"StopWord", {true}), "empty");
    return temporary(name);
  }
};

TEST_F(WriterOffice, OpensDocumentsOneAfterAnother) {
  ASSERT_EQ(call(L"Start"), "ui1 1");
  for (const auto* name : {L"one.odt", L"two.docx", L"three.doc"}) {
    expect(L"OpenDoc", {written(name, name)}, "ui1 1");
    expect(L"ReadText", {5, 10}, describe(_variant_t(name)));
  }
  expect_failure(L"OpenDoc", {temporary(L"missing.odt")}, "ui1 0", "OpenDoc Unsupported URL <file:///",
                 "missing.odt");
  expect_failure(L"CreateDoc", {}, "ui1 0", "Create Doc Unsupported URL <file:///>");
  expect(L"CloseDoc", {}, "empty");
  EXPECT_EQ(call(L"ReadText", {0, 0}), "bstr \"three.doc\"") << "the last document that was opened";
}

TEST_F(WriterOffice, CreatesADocumentFromATemplate) {
  ASSERT_EQ(call(L"Start"), "ui1 1");
  expect(L"CreateDoc", {demo_template()}, "ui1 1");
  EXPECT_THAT(call(L"ReadText", {0, 0}), testing::HasSubstr("<<Name>>"));
}

TEST_F(WriterOffice, ReadsFiveMegabytesInOnePiece) {
  std::wstring text;
  for (int line = 0; text.size() < 5 << 20; ++line)
    text += std::to_wstring(line) + L" na\xefve \x20ac \xd83d\xde00 " + std::wstring(1000, L'x') + L"\n";
  text.pop_back();
  const _variant_t file = temporary(L"large.txt");
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
    // The document offers no GetSelection to show what was found.
    expect(L"Search", {text, 1, true, true, true, true, expression}, "ui1 0",
           utf8(text) + (hit ? " | Search " + unknown : ""));
  }
}

TEST_F(WriterOffice, KeepsWhatWasStartedWhenTheWindowCannotBePlaced) {
  expect(L"Start", {true}, "ui1 0", "Start " + unknown + " | " + unknown);
  expect(L"OpenDoc", {written(L"placed.odt", L"text")}, "ui1 1");
}

TEST_F(WriterOffice, FailsWhereTheSuiteHasNotTheWordProcessorsMembers) {
  ASSERT_EQ(call(L"Start"), "ui1 1");
  ASSERT_EQ(call(L"OpenDoc", {written(L"members.odt", L"unharmed")}), "ui1 1");
  for (const auto& [name, arguments, all, fresh, failed] : shared_members()) {
    SCOPED_TRACE(name);
    // As while nothing is started, but for what is wrong.
    std::string failure = std::regex_replace(fresh, std::regex("Object required"), unknown);
    failure = std::regex_replace(failure, std::regex("424"), "438");
    failure = std::regex_replace(failure, std::regex("raised:"), "raised 800A01B6");
    if (name == L"SetHeaderFooter") failure = "Set Header/Footer " + unknown;
    const bool raises = failure.starts_with("raised");
    expect(name.c_str(), arguments, raises ? failure : failed, raises ? "" : failure);
  }
  expect(L"CloseDoc", {}, "empty");
  expect(L"ReadText", {0, 0}, "bstr \"unharmed\"");
}

}  // namespace
