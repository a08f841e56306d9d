// What the members of the word processors' controls ask of the office, as rows, and how they fail.
#pragma once

#include "control_test.h"
#include "published.h"

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
    const auto usual = office_.answers;
    auto failure = *std::ranges::find(failures_, row.member, &PublishedMember::name);
    if (!row.fails.empty()) failure.boxes = std::regex_replace(row.fails, std::regex("%"), no_member);
    this->for_each_step(row.steps, [&](size_t step, const std::string& reached) {
      make_ready();
      for (const auto& [path, answer] : row.answers) office_.answers[path] = answer;
      office_.fail_at = step;
      if (step) this->expect(row.member, row.arguments, failure.result, failure.boxes);
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
    office_.writes = true;
    for (const bool typed : {true, false}) {
      check_references(row, typed);
      office_.answers = usual;
    }
    office_.writes = false;
  }

 private:
  // Calls the row's member with variables, of the arguments' own types or variants. What the office gets by
  // reference must come back changed, and nothing else.
  void check_references(const Row& row, bool typed) {
    make_ready();
    for (const auto& [path, answer] : row.answers) office_.answers[path] = answer;
    auto host = row.arguments;
    Arguments references(host.size());
    for (size_t i = 0; i < host.size(); ++i) {
      references[i].vt = VT_BYREF | (typed ? host[i].vt : VARTYPE{VT_VARIANT});
      references[i].byref = typed ? static_cast<void*>(&host[i].lVal) : &host[i];
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

  const std::string no_member = "No such member.";
  const std::vector<PublishedMember> failures_ = published_members(class_index, 5941, no_member);
};
