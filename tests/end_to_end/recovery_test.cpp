// ZORBWord while the programs behind it are killed. The script beside this one, recovery, does that: it is
// asked on the standard output and answers on the standard input.
#include <cstdio>

#include "support/control_test.h"

namespace {

class Recovery : public HostTest<0> {
 protected:
  static void please(const char* request) {
    std::printf("please %s\n", request);
    std::fflush(stdout);
    char answer[16] = "";
    ASSERT_TRUE(std::fgets(answer, sizeof(answer), stdin));
  }
};

TEST_F(Recovery, ASessionBeginsAnewAfterAKill) {
  for (const char* killed : {"", "kill office", "kill bridge"}) {
    SCOPED_TRACE(killed);
    if (*killed) {
      please(killed);
      for (const auto& [member, prefix] :
           {std::pair{L"CreateDoc", "Create Doc "}, {L"Paste", "Paste "}, {L"CloseDoc", "Close Doc "}}) {
        const Soon soon;
        EXPECT_NE(call(member), "ui1 1");
        const auto boxes = taken_boxes(boxes_);
        EXPECT_TRUE(boxes.starts_with(prefix)) << boxes;
      }
      EXPECT_TRUE(call(L"StopWord", {true}).starts_with("raised "));
      please("start");
    }
    expect(L"Start", {}, "ui1 1");
    expect(L"CreateDoc", {}, "ui1 1");
    expect(L"SendText", {L"text"}, "ui1 1");
    expect(L"ReadText", {0, 0}, "bstr \"text\r\"");
  }
  expect(L"StopWord", {true}, "empty");
  control_.Reset();
  EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
}

}  // namespace
