// What OpenWriter's own members ask of the suite, how they fail at each of their steps, and that the members
// that it shares with ZORBWord do the same over the suite.
#include <regex>

#include "shared_members.h"
#include "support/fake_word.h"
#include "support/text.h"
#include "writer_test.h"

namespace {

// A member's call on a control with an open document, its result, the steps that it takes, what it shows, and
// what it shows when a step fails, % for the failure's description.
struct Row {
  const wchar_t* member;
  Arguments arguments;
  const char* result;
  std::string steps, shows = {}, shows_failing = {};
  std::map<std::string, Answer> answers = {};
};

const std::string service = "get Application.createInstance(bstr \"com.sun.star.";
const std::string started = "create com.sun.star.ServiceManager | " + service +
                            "reflection.CoreReflection\") | " + service + "frame.Desktop\")";
const std::string placed =
    started +
    " | put Application.WindowState=i4 0 | create Global | get Global.CentimetersToPoints(r4 3)"
    " | put Application.Left=r4 85.5 | put Application.Top=i2 1 | get Application.Version";
const std::string resized =
    placed +
    " | get Global.System | get System.HorizontalResolution | get Global.CentimetersToPoints(r4 3)"
    " | get Global.System | get System.VerticalResolution | get Global.CentimetersToPoints(r4 0.5)"
    " | get Global.PixelsToPoints(r4 1280, missing) | get Global.PixelsToPoints(r4 1024, missing)"
    " | call Application.Resize(Width:=r4 874.5, Height:=r4 753.75)";
const std::string twice = "Start % | %";

std::string loaded(const std::string& path) {
  return "get Desktop.loadComponentFromURL(bstr \"file:///" + path +
         "\", bstr \"_blank\", i2 0, &array never dimensioned)";
}

const std::string read = "get Document.GetText | get GetText.GetString", all = "bstr \"all of it\"";

std::string searched(const std::string& expression) {
  return "get Document.createSearchDescriptor | put createSearchDescriptor.SearchString=bstr \"a.c\""
         " | put createSearchDescriptor.SearchRegularExpression=bool " +
         expression + " | get Document.findFirst(&object)";
}
const std::string hit = " | get Document.GetSelection | get GetSelection.GetString";
const std::string search_fails = "a.c | Search %";

const _variant_t nothing(static_cast<IDispatch*>(nullptr)), unknown(static_cast<IUnknown*>(nullptr));

const Arguments other_flags = {L"a.c", 0, false, true, true, true, false, true, true},
                expression = {L"a.c", 1, true, false, false, false, true, false, false};

const Row own[] = {
    {L"Start", {}, "ui1 1", started, "", twice},
    {L"Start",
     {false},
     "ui1 1",
     started,
     "",
     twice,
     {{R"(Application.createInstance(bstr "com.sun.star.reflection.CoreReflection"))", {nothing}}}},
    {L"Start", {true}, "ui1 1", resized, "", twice},
    {L"Start", {true}, "ui1 1", placed, "", twice, {{"Application.Version", {L"85"}}}},
    {L"OpenDoc", {L"C:\\my docs\\a.odt"}, "ui1 1", loaded("C:\\my docs\\a.odt"), "", "OpenDoc %"},
    {L"CreateDoc", {L"C:\\a.ott"}, "ui1 1", loaded("C:\\a.ott"), "", "Create Doc %"},
    {L"CreateDoc", {}, "ui1 1", loaded(""), "", "Create Doc %"},
    {L"CloseDoc", {}, "empty", "call Document.Close(&i2 0, i4 1, bool 0)"},
    {L"CloseDoc", {-1}, "empty", "call Document.Close(&i2 -1, i4 1, bool 0)"},
    {L"ReadText", {0, 0}, "bstr \"all of it\"", read, "", "ReadText : %"},
    {L"ReadText", {5, 10}, "bstr \"all of it\"", read, "", "ReadText : %"},
    {L"Search", {L"a.c"}, "ui1 1", searched("0") + hit, "a.c | chosen", search_fails},
    {L"Search", other_flags, "ui1 1", searched("0") + hit, "a.c | chosen", search_fails},
    {L"Search",
     expression,
     "ui1 0",
     searched("-1"),
     "a.c",
     search_fails,
     {{"Document.findFirst", {nothing}}}},
    {L"Search", {L"a.c"}, "ui1 0", searched("0"), "a.c", search_fails, {{"Document.findFirst", {unknown}}}},
};

class OwnMembers : public WriterTest, public testing::WithParamInterface<Row> {
 protected:
  OwnMembers() {
    for (const auto& [path, answer] : row_.answers) office_.answers[path] = answer;
  }

  const Row& row_ = GetParam();
};

TEST_P(OwnMembers, TakeTheirSteps) {
  make_ready();
  expect(row_.member, row_.arguments, row_.result, row_.shows);
  EXPECT_EQ(taken_log(office_), row_.steps);
  expect(L"ReadText", {0, 0}, all);
  EXPECT_EQ(taken_log(office_), read) << "a document is active, also a closed one";
}

TEST_P(OwnMembers, StopAtTheStepThatFails) {
  const auto failed =
      std::regex_replace(row_.result, std::regex(" [^]*"), row_.result[0] == 'b' ? " \"\"" : " 0");
  for (size_t step = 1, end = 0; end != std::string::npos; ++step) {
    SCOPED_TRACE(step);
    make_ready();
    office_.fail_at = step;
    expect(row_.member, row_.arguments, failed,
           std::regex_replace(row_.shows_failing, std::regex("%"), "No such member."));
    end = row_.steps.find(" | ", end + 1);
    EXPECT_EQ(taken_log(office_), row_.steps.substr(0, end));
    office_.fail_at = 0;
    expect(L"ReadText", {0, 0}, all);
    expect(L"OpenDoc", {L"b"}, "ui1 1");
    EXPECT_EQ(taken_log(office_), read + " | " + loaded("b")) << "the earlier state is kept";
  }
}

INSTANTIATE_TEST_SUITE_P(Writer, OwnMembers, testing::ValuesIn(own),
                         [](const auto& row) { return utf8(row.param.member) + std::to_string(row.index); });

using State = WriterTest;

TEST_F(State, TheWindowsMembersDoNothing) {
  for (const bool ready : {false, true}) {
    if (ready) make_ready();
    for (const auto* member : {L"SetVisible", L"SetActive", L"SetScreenUpdating"})
      for (const bool flag : {false, true}) expect(member, {flag}, "ui1 1");
    EXPECT_EQ(taken_log(office_), "");
  }
}

TEST_F(State, AFailedPlacementKeepsWhatWasStarted) {
  office_.refused["Application.WindowState"] = DISP_E_UNKNOWNNAME;
  const std::string text = "Object doesn't support this property or method";
  expect(L"Start", {true}, "ui1 0", "Start " + text + " | " + text);
  EXPECT_EQ(taken_log(office_), started);
  expect(L"CreateDoc", {L"a"}, "ui1 1");
  EXPECT_EQ(office_.live, 4);
}

// Nothing where a document or a descriptor is due is a failure, and what is no object always.
TEST_F(State, AnswersThatAreNoObjectsFail) {
  const std::string unset = "Object variable or With block variable not set";
  for (const auto& [path, answer, member, boxes] :
       {std::tuple{"Document.findFirst", _variant_t(), L"Search", std::string("a | Search Object required")},
        {"Document.createSearchDescriptor", nothing, L"Search", "a | Search " + unset},
        {"Desktop.loadComponentFromURL", nothing, L"OpenDoc", "OpenDoc " + unset},
        {"Desktop.loadComponentFromURL", 7, L"CreateDoc", "Create Doc Object required"}}) {
    const auto usual = office_.answers;
    make_ready();
    office_.answers[path] = {answer};
    expect(member, {L"a"}, "ui1 0", boxes);
    office_.answers = usual;
    expect(L"ReadText", {0, 0}, all);
  }
}

TEST_F(State, WhatACallPutsIntoItsReferencesIsReleased) {
  make_ready();
  office_.answers["Document.findFirst"].effect = [&](const DISPPARAMS& parameters) {
    (*parameters.rgvarg->ppdispVal)->Release();
    *parameters.rgvarg->ppdispVal = office_.make("Other");
  };
  office_.answers["Desktop.loadComponentFromURL"].effect = [&](const DISPPARAMS& parameters) {
    SAFEARRAY* filled = *parameters.rgvarg->pparray = SafeArrayCreateVector(VT_VARIANT, 0, 1);
    LONG index = 0;
    _variant_t object(office_.make("Argument"), false);
    SafeArrayPutElement(filled, &index, &object);
  };
  expect(L"Search", {L"a"}, "ui1 1", "a | chosen");
  expect(L"OpenDoc", {L"a"}, "ui1 1");
  EXPECT_EQ(office_.live, 4);
}

class SharedMembers : public WriterTest {
 protected:
  SharedMembers() {
    for (FakeOffice* office : {static_cast<FakeOffice*>(&word_), static_cast<FakeOffice*>(&office_)})
      office->objects.insert({"Font", "FormattedText", "NormalTemplate", "Styles"});
  }

  // What a host that is bound to ZORBWord sees of a member of a control with an open document.
  std::string outcome(FakeOffice& office, const outside::ClassIds& ids, const std::wstring& member,
                      const Arguments& arguments, size_t fail_at) {
    office.fail_at = 0;
    const auto control = outside::create(ids);
    EXPECT_EQ(late_call(control.Get(), L"Start"), "ui1 1");
    EXPECT_EQ(late_call(control.Get(), L"OpenDoc", {L"a"}), "ui1 1");
    taken_log(office);
    const int live = office.live;
    office.fail_at = fail_at;
    const std::string result = late_call(control.Get(), member.c_str(), arguments, host_.Get());
    steps_ = office.log.size();
    return result + "\n" + taken_boxes(boxes_) + "\n" + taken_log(office) + "\n" +
           std::to_string(office.live - live);
  }

  FakeWord word_;
  ComPtr<IDispatch> host_ = outside::create(outside::classes[0]);
  size_t steps_ = 0;
};

TEST_F(SharedMembers, DoOverTheSuiteWhatTheyDoOverTheWordProcessor) {
  for (const auto& member : shared_members()) {
    SCOPED_TRACE(member.name);
    for (const auto* arguments : {&member.fewest, &member.all}) {
      outcome(office_, outside::classes[2], member.name, *arguments, 0);
      EXPECT_EQ(steps_ == 0, member.name.starts_with(L"GetLastError"));
      const size_t steps = steps_;
      size_t fail_at = 0;
      do {
        EXPECT_EQ(outcome(office_, outside::classes[2], member.name, *arguments, fail_at),
                  outcome(word_, outside::classes[0], member.name, *arguments, fail_at));
      } while (fail_at++ < steps);
    }
  }
  host_.Reset();
}

}  // namespace
