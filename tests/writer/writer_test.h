// OpenWriter of the built library over the recording suite, as each test of this folder drives it.
#pragma once

#include "outside/library.h"
#include "support/fake_suite.h"
#include "support/late_call.h"
#include "support/message_boxes.h"

using Arguments = std::vector<_variant_t>;
using Microsoft::WRL::ComPtr;

// The office's log since the last call, steps separated by " | ".
inline std::string taken_log(FakeOffice& office) {
  std::string all;
  for (const auto& line : std::exchange(office.log, {})) all += (all.empty() ? "" : " | ") + line;
  return all;
}

class WriterTest : public testing::Test {
 protected:
  ~WriterTest() {
    end_control();
    EXPECT_EQ(suite_.live, 0) << "objects of the suite are still held";
  }

  // Ends the control, and with it all that the library holds.
  void end_control() {
    control_.Reset();
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
  }

  // Replaces the control by a new one that has started the suite and opened a document.
  void make_ready() {
    suite_.fail_at = 0;
    end_control();
    control_ = outside::create(outside::classes[2]);
    expect(L"Start", {}, "ui1 1");
    expect(L"OpenDoc", {L"C:\\a.odt"}, "ui1 1");
    taken_log(suite_);
  }

  // Calls `member`, which must give `result` and show the boxes, whose texts are separated by "|".
  void expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
              const std::string& boxes = "") {
    EXPECT_EQ(late_call(control_.Get(), member, arguments), result);
    EXPECT_EQ(shown(), boxes);
  }

  std::string shown() {
    std::string all;
    for (const auto& box : boxes_.take()) {
      all += (all.empty() ? "" : "|") + box.text;
      EXPECT_EQ(box.title, "ZORBOffice");
      EXPECT_EQ(box.buttons, std::vector<std::string>{"OK"});
    }
    return all;
  }

  FakeSuite suite_;
  MessageBoxes boxes_;
  ComPtr<IDispatch> control_ = outside::create(outside::classes[2]);
};
