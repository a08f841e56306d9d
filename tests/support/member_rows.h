// What the members of the word processors' controls ask of the office, as rows, and how they fail.
#pragma once

#include <map>

#include "control_test.h"
#include "fake_offices.h"

struct PublishedMember {
  std::wstring name;
  std::string result, boxes;  // after a failure, which Fault::in fills in
};

inline std::vector<PublishedMember> published_members(int class_index) {
  const std::map<std::wstring, std::string> failures = {{L"byte", "ui1 0"},    {L"flag", "bool 0"},
                                                        {L"short", "i2 0"},    {L"long", "i4 0"},
                                                        {L"variant", "empty"}, {L"string", "bstr \"\""}};
  std::vector<PublishedMember> published;
  for (const auto& member : outside::members_of(outside::classes[class_index])) {
    const std::wstring text = member.signature;
    auto boxes = std::regex_replace(member.fresh, std::regex("Object required"), "%");
    boxes = std::regex_replace(boxes, std::regex("424"), "#");
    const bool raises = boxes.starts_with("raised: ");
    published.push_back({member.name(),
                         raises ? "raised @ %" : failures.at(text.substr(text.rfind(L' ') + 1)),
                         raises ? "" : boxes});
  }
  return published;
}

// A member's call on a control with an open document, its result, the steps that it takes and the boxes that
// it shows. `fails` are the boxes where a step fails, % for what failed, if they are not the published ones.
struct Row {
  const wchar_t* member;
  Arguments arguments;
  std::string result, steps;
  std::map<std::string, Answer> answers = {};
  std::string shows = "", fails = "";
};

template <class Office, int class_index>
class WordProcessorTest : public ControlTest<Office, class_index> {
 protected:
  using ControlTest<Office, class_index>::office_;

  // Replaces the control by a new one that has started the application and opened a document.
  void make_ready() {
    this->renew();
    this->expect(L"Start", {}, "ui1 1");
    this->expect(L"OpenDoc", {L"C:\\a.docx"}, "ui1 1");
    this->log();
  }

  // Uses the application and the document, which a member that failed has left as they were.
  virtual void check_kept() = 0;
  // The steps that tidy up after the last of those failed.
  virtual std::string cleaned_up(const std::string&) { return ""; }

  // Calls the row's member: undisturbed, with each of its steps failing in turn, and with an office that
  // writes to what it gets.
  void check(const Row& row) {
    SCOPED_TRACE(utf8(row.member) + ": " + row.steps);
    Driven::here().members[class_index].insert(row.member);
    const auto usual = office_.answers;
    auto failure = *std::ranges::find(failures_, row.member, &PublishedMember::name);
    if (!row.fails.empty()) failure.boxes = row.fails;
    const auto make_row_ready = [&](size_t step) {
      make_ready();
      for (const auto& [path, answer] : row.answers) office_.answers[path] = answer;
      office_.fail_at = step;
    };
    this->for_each_step(row.steps, [&](size_t step, const std::string& reached, const Fault& fault) {
      make_row_ready(step);
      if (step) this->expect(row.member, row.arguments, fault.in(failure.result), fault.in(failure.boxes));
      if (!step) this->expect(row.member, row.arguments, row.result, row.shows);
      EXPECT_EQ(this->log(), step ? reached + cleaned_up(reached) : reached);
      office_.answers = usual;
      office_.fail_at = 0;
      // A call that shows or raises something, or takes no step, leaves everything as it was, too.
      if (!step && row.shows.empty() && !row.steps.empty() && !row.result.starts_with("raised")) return;
      check_kept();
      this->expect(L"GetLastErrorNumber", {}, "i4 0");
      this->expect(L"GetLastErrorDescription", {}, "bstr \"\"");
    });
    const auto failed = [&](const Fault& fault, const std::string& result, const std::string& boxes) {
      // Where the text of an earlier box is what cannot be had, that one is missing.
      return result == fault.in(failure.result) && (" | " + fault.in(failure.boxes)).ends_with(" | " + boxes);
    };
    this->run_short(
        row.member, row.arguments, [&] { make_row_ready(0); }, failed,
        [&] {
          const auto own = std::exchange(office_.answers, usual);
          this->log();
          check_kept();
          office_.answers = own;
        });
    office_.answers = usual;
    office_.writes = true;
    check_references(row);
    office_.answers = usual;
    office_.writes = false;
  }

 private:
  // Calls the row's member with variables. What the office gets by reference must come back changed, and
  // nothing else.
  void check_references(const Row& row) {
    make_ready();
    for (const auto& [path, answer] : row.answers) office_.answers[path] = answer;
    auto host = row.arguments;
    Arguments references(host.size());
    for (size_t i = 0; i < host.size(); ++i) {
      references[i].vt = VT_BYREF | VT_VARIANT;
      references[i].byref = &host[i];
    }
    this->call(row.member, references);
    taken_boxes(this->boxes_);
    for (size_t i = 0; i < host.size(); ++i) {
      auto expected = describe(row.arguments[i]);
      const auto value = expected.substr(expected.find(' '));
      for (const std::string kind : {"&i2", "&i4", "&bstr"})
        for (const char* end : {",", ")"})
          if (row.steps.find(kind + value + end) != std::string::npos)
            expected.insert(expected.size() - value.ends_with('"'), kind == "&bstr" ? "!" : "0");
      EXPECT_EQ(describe(host[i]), expected);
    }
  }

  const std::vector<PublishedMember> failures_ = published_members(class_index);
};

class WordTest : public WordProcessorTest<FakeWord, 0> {
 protected:
  void check_kept() override {
    EXPECT_EQ(office_.live, 2);
    expect(L"SaveDoc", {}, "empty");
    expect(L"SetActive", {true}, "ui1 1");
    EXPECT_EQ(log(), "call Document.Save | call Application.Activate");
  }
};

inline std::string loaded(const std::string& path) {
  return "get Desktop.loadComponentFromURL(bstr \"file:///" + path +
         "\", bstr \"_blank\", i2 0, &array never dimensioned)";
}

class WriterTest : public WordProcessorTest<FakeSuite, 2> {
 protected:
  WriterTest() {
    answers_too_ = {
        "get Document.findFirst(&object): nothing",
        R"(get Application.createInstance(bstr "com.sun.star.reflection.CoreReflection"): nothing)"};
  }
  void check_kept() override {
    expect(L"ReadText", {0, 0}, "bstr \"all of it\"");
    expect(L"OpenDoc", {L"b"}, "ui1 1");
    EXPECT_EQ(log(), "get Document.GetText | get GetText.GetString | " + loaded("b"));
  }
};
