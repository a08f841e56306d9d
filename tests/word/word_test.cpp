#include "word_test.h"

#include <utility>

#include "support/late_call.h"
#include "support/text.h"

WordTest::~WordTest() {
  control_.Reset();
  EXPECT_EQ(word_.live, 0) << "objects of the word processor are still held";
  EXPECT_TRUE(boxes_.take().empty());
}

void WordTest::make_ready() {
  word_.fail_at = 0;
  control_ = outside::create(outside::classes[0]);
  expect(L"Start", {}, "ui1 1");
  expect(L"OpenDoc", {L"C:\\a.docx"}, "ui1 1");
  log();
}

std::string WordTest::call(const wchar_t* member, Arguments arguments) {
  return late_call(control_.Get(), member, std::move(arguments));
}

void WordTest::expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
                      const std::string& message) {
  EXPECT_EQ(call(member, arguments), result);
  std::string shown;
  for (const auto& box : boxes_.take()) {
    shown += box.text;
    EXPECT_EQ(box.title, "ZORBOffice");
    EXPECT_EQ(box.buttons, std::vector<std::string>{"OK"});
  }
  EXPECT_EQ(shown, message);
}

std::string WordTest::log() {
  std::string all;
  for (const auto& line : std::exchange(word_.log, {})) all += (all.empty() ? "" : " | ") + line;
  return all;
}
