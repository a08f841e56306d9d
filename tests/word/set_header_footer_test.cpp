// SetHeaderFooter: what is copied, and that a failure leaves nothing open and nothing saved.
#include <tuple>

#include "word_test.h"

namespace {

class SetHeaderFooter : public WordTest {
 protected:
  SetHeaderFooter() {
    office_.objects.insert({"Font", "FormattedText"});
    office_.answers[R"(Documents.Open(bstr "s"))"] = {.object = "Source"};
    office_.answers[R"(Documents.Open(bstr "d"))"] = {.object = "Target"};
    office_.answers[R"(Documents.Open(bstr "N.dotm"))"] = {.object = "Source"};
    office_.answers["Application.NormalTemplate"] = {.object = "Normal"};
    office_.answers["Normal.FullName"] = {L"N.dotm"};
    office_.answers["Source.Sections"] = {.object = "From"};
    office_.answers["Sections.[newenum]"] = {.items = {"To"}};
    for (const std::string kind : {"Headers", "Footers"}) {
      office_.answers["From." + kind] = {.object = kind == "Headers" ? "FromHeaders" : "FromFooters"};
      office_.answers["To." + kind] = {.object = kind == "Headers" ? "ToHeaders" : "ToFooters"};
      office_.answers["To." + kind + "(i4 2)"] = {.object = kind == "Headers" ? "NewHeaders" : "NewFooters"};
      office_.answers["From." + kind + "(i4 3)"] = {.object = "Absent"};
      office_.answers["From" + kind + ".Exists"] = office_.answers["To" + kind + ".Exists"] = {true};
      office_.answers["New" + kind + ".Exists"] = {false};
    }
    office_.answers["Absent.Exists"] = {false};
    // Each answer is one more than the last, as if every opening added a document.
    office_.answers["Documents.Count"].effect = [this](const DISPPARAMS&) {
      if (grows_) office_.answers["Documents.Count"].value = ++count_;
    };
    office_.answers["Source.Styles"] = {.object = "SourceStyle"};
    office_.answers["Target.Styles"] = {.object = "TargetStyle"};
  }

  long count_ = 0;
  bool grows_ = true;

  static std::string open(const std::string& name) {
    return "get Application.Documents | get Documents.Count | get Documents.Open(bstr \"" + name +
           "\") | get Documents.Count";
  }
  // The steps that copy one kind; the source has no even-page one, and the destination no first-page one yet.
  static std::string copy(const std::string& kind) {
    const std::string text = " | get From" + kind + ".Range | get Range.FormattedText | get ";
    const std::string put = ".Range | put Range.FormattedText=object";
    return " | get From." + kind + "(i4 1) | get From" + kind + ".Exists | get To." + kind +
           "(i4 1) | get To" + kind + ".Exists" + text + "To" + kind + put + " | get From." + kind +
           "(i4 2) | get From" + kind + ".Exists | get To." + kind + "(i4 2) | get New" + kind +
           ".Exists | put New" + kind + ".Exists=bool -1" + text + "New" + kind + put + " | get From." +
           kind + "(i4 3) | get Absent.Exists";
  }

  const std::string opened_ = open("s") + " | " + open("d");
  const std::string sections_ =
      " | get Source.Sections(i4 1) | get Target.Sections | get Sections.[newenum] | next Sections";
  const std::string font_ =
      " | get Source.Styles(i4 -1) | get SourceStyle.Font | get Target.Styles(i4 -1) | put "
      "TargetStyle.Font=object";
  const std::string closed_ = " | call Source.Close(i4 0) | call Target.Save | call Target.Close(i4 0)";
  const std::string everything_ =
      opened_ + sections_ + copy("Headers") + copy("Footers") + " | next Sections" + font_ + closed_;
};

TEST_F(SetHeaderFooter, CopiesWhatIsChosenAndTheSourceHas) {
  const std::tuple<bool, bool, bool, std::string> rows[] = {
      {true, true, true, everything_},
      {true, false, false, opened_ + sections_ + copy("Headers") + " | next Sections" + closed_},
      {false, true, false, opened_ + sections_ + copy("Footers") + " | next Sections" + closed_},
      {false, false, true, opened_ + font_ + closed_},
  };
  for (const auto& [header, footer, font, steps] : rows) {
    make_ready();
    expect(L"SetHeaderFooter", {L"s", L"d", header, footer, font}, "ui1 1");
    EXPECT_EQ(log(), steps);
  }
}

TEST_F(SetHeaderFooter, TakesTheNormalTemplateForAnEmptyNameAndForNormal) {
  for (const wchar_t* name : {L"", L"Normal", L"nORMAL"}) {
    make_ready();
    expect(L"SetHeaderFooter", {name, L"d", false, false, true}, "ui1 1");
    EXPECT_TRUE(
        log().starts_with("get Application.NormalTemplate | get Normal.FullName | " + open("N.dotm")));
  }
}

TEST_F(SetHeaderFooter, OpensSavesAndClosesOneFileOnce) {
  make_ready();
  office_.answers["From.[newenum]"] = {.items = {"To", "To"}};
  expect(L"SetHeaderFooter", {L"s", L".\\x\\../S", true, false, true}, "ui1 1");
  EXPECT_EQ(log(), open("s") + " | get Source.Sections(i4 1) | get Source.Sections | get From.[newenum]" +
                       " | next From | next From" + copy("Headers") + " | next From" +
                       " | get Source.Styles(i4 -1) | get SourceStyle.Font | get Source.Styles(i4 -1)" +
                       " | put SourceStyle.Font=object | call Source.Save | call Source.Close(i4 0)");
}

TEST_F(SetHeaderFooter, OpensNothingWhenNothingIsChosen) {
  make_ready();
  expect(L"SetHeaderFooter", {L"s", L"d", false, false, false}, "ui1 0",
         "Nothing has been set to be changed!");
  EXPECT_EQ(log(), "");
}

TEST_F(SetHeaderFooter, LeavesADocumentOpenThatWasOpen) {
  make_ready();
  grows_ = false;
  expect(L"SetHeaderFooter", {L"s", L"d", false, false, true}, "ui1 1");
  EXPECT_TRUE(log().ends_with("put TargetStyle.Font=object | call Target.Save"));
}

TEST_F(SetHeaderFooter, ClosesWhatItOpenedWhicheverStepFails) {
  for_each_step(everything_, [&](size_t step, const std::string& done) {
    if (!step) return;
    make_ready();
    office_.fail_at = step;
    expect(L"SetHeaderFooter", {L"s", L"d", true, true, true}, "ui1 0", "Set Header/Footer No such member.");
    std::string rest = log();
    ASSERT_TRUE(rest.starts_with(done)) << rest;
    rest = rest.substr(done.size());
    const bool source_closed =
        done.find("Source.Close") != std::string::npos && !done.ends_with("Source.Close(i4 0)");
    const bool target = step > 8, source = step > 4 && !source_closed;
    EXPECT_EQ(rest, std::string(target ? " | call Target.Close(i4 0)" : "") +
                        (source ? " | call Source.Close(i4 0)" : ""));
    EXPECT_EQ(office_.live, 2);
  });
}

TEST_F(SetHeaderFooter, NeedsTheApplication) {
  expect(L"SetHeaderFooter", {L"s", L"d", true, false, false}, "ui1 0", "Set Header/Footer Object required");
}

TEST_F(WordTest, NothingIsFoundInAHeaderThatDoesNotExist) {
  make_ready();
  office_.answers["Headers.Exists"] = {false};
  expect(L"ReplaceHeaderFooter", {1, true, 2, L"a", L"b"}, "ui1 0");
}

}  // namespace
