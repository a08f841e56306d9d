// SetHeaderFooter: what is copied, and that a failure leaves nothing open and nothing saved.
#include "support/member_rows.h"

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
      office_.answers["Documents.Count"].value = ++count_;
    };
    office_.answers["Source.Styles"] = {.object = "SourceStyle"};
    office_.answers["Target.Styles"] = {.object = "TargetStyle"};
  }

  // Closes whatever was opened and not closed without a failure.
  std::string cleaned_up(const std::string& reached) override {
    std::string closed;
    for (const auto& [document, name] : {std::pair{"Target", "d"}, {"Source", "s"}, {"Source", "N.dotm"}})
      if (reached.find(open(name) + " | ") != reached.npos &&
          reached.find(std::string(document) + ".Close(i4 0) | ") == reached.npos)
        closed += std::string(" | call ") + document + ".Close(i4 0)";
    return closed;
  }

  long count_ = 0;

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

  const std::string sections_ =
      open("s") + " | " + open("d") +
      " | get Source.Sections(i4 1) | get Target.Sections | get Sections.[newenum] | next Sections";
  const std::string font_ =
      " | get Source.Styles(i4 -1) | get SourceStyle.Font | get Target.Styles(i4 -1) | put "
      "TargetStyle.Font=object";
  const std::string closed_ = " | call Source.Close(i4 0) | call Target.Save | call Target.Close(i4 0)";
};

TEST_F(SetHeaderFooter, CopiesWhatIsChosenAndClosesWhatItOpenedWhicheverStepFails) {
  const std::string next = " | next Sections", both = copy("Headers") + copy("Footers") + next,
                    normal = "get Application.NormalTemplate | get Normal.FullName | " + open("N.dotm") +
                             " | " + open("d") + font_ + closed_;
  const std::string one_file = open("s") +
                               " | get Source.Sections(i4 1) | get Source.Sections | get From.[newenum]"
                               " | next From | next From" +
                               copy("Headers") +
                               " | next From | get Source.Styles(i4 -1) | get SourceStyle.Font"
                               " | get Source.Styles(i4 -1) | put SourceStyle.Font=object"
                               " | call Source.Save | call Source.Close(i4 0)";
  const std::pair<Arguments, std::string> rows[] = {
      {{L"s", L"d", true, true, true}, sections_ + both + font_ + closed_},
      {{L"s", L"d", true, false, false}, sections_ + copy("Headers") + next + closed_},
      {{L"s", L"d", false, true, false}, sections_ + copy("Footers") + next + closed_},
      {{L"s", L"d", false, false, true}, open("s") + " | " + open("d") + font_ + closed_},
      {{L"", L"d", false, false, true}, normal},
      {{L"nORMAL", L"d", false, false, true}, normal},
      {{L"s", L".\\x\\../S", true, false, true}, one_file}};
  office_.answers["From.[newenum]"] = {.items = {"To", "To"}};
  for (const auto& [arguments, steps] : rows)
    check({L"SetHeaderFooter", arguments, "ui1 1", steps, {}, "", "Set Header/Footer %"});
}

TEST_F(SetHeaderFooter, LeavesADocumentOpenThatWasOpen) {
  make_ready();
  office_.answers["Documents.Count"] = {1};
  expect(L"SetHeaderFooter", {L"s", L"d", false, false, true}, "ui1 1");
  EXPECT_TRUE(log().ends_with("put TargetStyle.Font=object | call Target.Save"));
}

TEST_F(SetHeaderFooter, NeedsTheApplication) {
  expect(L"SetHeaderFooter", {L"s", L"d", true, false, false}, "ui1 0", "Set Header/Footer Object required");
}

}  // namespace
