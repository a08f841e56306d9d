// ZORBWord of the built library over the recording word processor, as each test of this folder drives it.
#pragma once

#include "outside/library.h"
#include "support/fake_word.h"
#include "support/message_boxes.h"

class WordTest : public testing::Test {
 protected:
  using Arguments = std::vector<_variant_t>;

  ~WordTest();

  // Replaces the control by a new one that has started the word processor and opened a document.
  void make_ready();
  // Calls `member` late bound and returns its result as the log shows values, or "raised NUMBER DESCRIPTION"
  // with the failure that reached the host.
  std::string call(const wchar_t* member, Arguments arguments = {});
  // Calls `member`, which must give `result` and show a message box with the text `message`, or none for "".
  void expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
              const std::string& message = "");
  // The log since the last call, steps separated by " | ".
  std::string log();

  FakeWord word_;
  MessageBoxes boxes_;
  Microsoft::WRL::ComPtr<IDispatch> control_ = outside::create(outside::classes[0]);
};
