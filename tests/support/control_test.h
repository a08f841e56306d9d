// A control of the built library as a host drives it, alone or over a recording office application.
#pragma once

#include <utility>

#include "late_call.h"
#include "message_boxes.h"

using Arguments = std::vector<_variant_t>;

// The office's log since the last call, steps separated by " | ".
inline std::string taken_log(FakeOffice& office) {
  std::string all;
  for (const auto& line : std::exchange(office.log, {})) all += (all.empty() ? "" : " | ") + line;
  return all;
}

// The boxes since the last call, separated by " | ". A title that is not the library's stands in brackets
// before.
inline std::string taken_boxes(MessageBoxes& boxes) {
  std::string all;
  for (const auto& box : boxes.take()) {
    all += all.empty() ? "" : " | ";
    all += box.title == "ZORBOffice" ? box.text : "[" + box.title + "] " + box.text;
    EXPECT_EQ(box.buttons, std::vector<std::string>{"OK"});
  }
  return all;
}

// A control and the boxes that it shows, none of which may be left unseen.
template <int class_index>
class HostTest : public testing::Test {
 protected:
  ~HostTest() { EXPECT_EQ(taken_boxes(boxes_), ""); }

  // Calls `member` late bound and returns its result as the log shows values, or "raised NUMBER DESCRIPTION"
  // with the failure that reached the host.
  std::string call(const wchar_t* member, const Arguments& arguments = {}) {
    return late_call(control_.Get(), member, arguments);
  }

  // Calls `member`, which must give `result` and show the boxes `boxes`, as taken_boxes() has them.
  void expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
              const std::string& boxes = "") {
    EXPECT_EQ(call(member, arguments), result) << utf8(member);
    EXPECT_EQ(taken_boxes(boxes_), boxes) << utf8(member);
  }

  MessageBoxes boxes_;
  Microsoft::WRL::ComPtr<IDispatch> control_ = outside::create(outside::classes[class_index]);
};

template <class Office, int class_index>
class ControlTest : public HostTest<class_index> {
 protected:
  using HostTest<class_index>::control_;

  ~ControlTest() {
    end_control();
    EXPECT_EQ(office_.live, 0) << "objects of the office application are still held";
  }

  // Ends the control, and with it all that the library holds.
  void end_control() {
    control_.Reset();
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
  }

  // Replaces the control by a fresh one, over an application that no step fails in.
  void renew() {
    control_.Reset();
    outside::call("DllCanUnloadNow");
    office_.fail_at = 0;
    control_ = outside::create(outside::classes[class_index]);
  }

  std::string log() { return taken_log(office_); }

  Office office_;
};

template <class Office, int class_index>
class WordProcessorTest : public ControlTest<Office, class_index> {
 protected:
  // Replaces the control by a new one that has started the application and opened a document.
  void make_ready() {
    this->renew();
    this->expect(L"Start", {}, "ui1 1");
    this->expect(L"OpenDoc", {L"C:\\a.docx"}, "ui1 1");
    this->log();
  }
};
