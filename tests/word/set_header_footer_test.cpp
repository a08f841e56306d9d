// SetHeaderFooter: what is copied, and that a failure leaves nothing open and nothing saved.
#include "word_test.h"

namespace {

class SetHeaderFooter : public WordTest {
 protected:
  SetHeaderFooter() {
    word_.objects.insert({"Font", "FormattedText"});
    word_.answers[R"(Documents.Open(bstr "s"))"] = {.object = "Source"};
    word_.answers[R"(Documents.Open(bstr "d"))"] = {.object = "Target"};
    word_.answers[R"(Documents.Open(bstr "N.dotm"))"] = {.object = "Source"};
    word_.answers["Application.NormalTemplate"] = {.object = "Normal"};
    word_.answers["Normal.FullName"] = {L"N.dotm"};
    word_.answers["Source.Sections"] = {.object = "From"};
    word_.answers["Sections.[newenum]"] = {.items = {"To"}};
    word_.answers["From.Headers"] = {.object = "FromHeader"};
    word_.answers["To.Headers"] = {.object = "ToHeader"};
    word_.answers["From.Headers(i4 3)"] = {.object = "Absent"};
    word_.answers["FromHeader.Exists"] = {true};
    word_.answers["ToHeader.Exists"] = {true};
    word_.answers["To.Headers(i4 2)"] = {.object = "NewHeader"};
    word_.answers["NewHeader.Exists"] = {false};
    word_.answers["Absent.Exists"] = {false};
    word_.answers["Source.Styles"] = {.object = "SourceStyle"};
    word_.answers["Target.Styles"] = {.object = "TargetStyle"};
  }

  const std::string opened_ =
      R"(get Application.Documents | get Documents.Open(bstr "s") | get Application.Documents)"
      R"( | get Documents.Open(bstr "d") | get Source.Sections(i4 1) | get Target.Sections | get Sections.[newenum])"
      " | next Sections";
  const std::string copied_ = " | get FromHeader.Range | get Range.FormattedText | get ";
  const std::string headers_ =
      " | get From.Headers(i4 1) | get FromHeader.Exists | get To.Headers(i4 1) | get ToHeader.Exists" +
      copied_ +
      "ToHeader.Range | put Range.FormattedText=object | get From.Headers(i4 2) | get FromHeader.Exists"
      " | get To.Headers(i4 2) | get NewHeader.Exists | put NewHeader.Exists=bool -1" +
      copied_ +
      "NewHeader.Range | put Range.FormattedText=object | get From.Headers(i4 3) | get Absent.Exists";
  const std::string font_ =
      " | next Sections | get Source.Styles(i4 -1) | get SourceStyle.Font | get Target.Styles(i4 -1)"
      " | put TargetStyle.Font=object";
  const std::string closed_ = " | call Target.Save | call Target.Close(i4 0) | call Source.Close(i4 0)";
};

TEST_F(SetHeaderFooter, CopiesWhatTheSourceHas) {
  make_ready();
  expect(L"SetHeaderFooter", {L"s", L"d", true, false, true}, "ui1 1");
  EXPECT_EQ(log(), opened_ + headers_ + font_ + closed_);
}

TEST_F(SetHeaderFooter, TakesTheNormalTemplateForAnEmptyName) {
  make_ready();
  expect(L"SetHeaderFooter", {L"", L"d", false, false, true}, "ui1 1");
  EXPECT_TRUE(
      log().starts_with("get Application.NormalTemplate | get Normal.FullName | get Application.Documents"
                        R"( | get Documents.Open(bstr "N.dotm"))"));
}

TEST_F(SetHeaderFooter, OpensNothingWhenNothingIsChosen) {
  make_ready();
  expect(L"SetHeaderFooter", {L"s", L"d", false, false, false}, "ui1 0",
         "Nothing has been set to be changed!");
  EXPECT_EQ(log(), "");
}

TEST_F(SetHeaderFooter, ClosesWhatItOpenedWhicheverStepFails) {
  const std::string steps = opened_ + headers_ + font_ + closed_;
  size_t step = 1;
  for (size_t end = steps.find(" | "); end != std::string::npos; ++step, end = steps.find(" | ", end + 1)) {
    SCOPED_TRACE(step);
    make_ready();
    word_.fail_at = step;
    expect(L"SetHeaderFooter", {L"s", L"d", true, false, true}, "ui1 0", "Set Header/Footer No such member.");
    const std::string done = steps.substr(0, end);
    const std::string rest = log().substr(done.size());
    const bool source = step > 2, target = step > 4;
    const bool saved_or_closed = done.ends_with("Close(i4 0)");
    if (saved_or_closed) continue;  // the failure of a Close is not repeated
    EXPECT_EQ(rest, std::string(target ? " | call Target.Close(i4 0)" : "") +
                        (source ? " | call Source.Close(i4 0)" : ""));
  }
  EXPECT_GT(step, 30U);
}

}  // namespace
