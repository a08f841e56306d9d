// Office applications in other processes that end, or are busy, in the middle of a session.

#include "server.h"
#include "support/control_test.h"

namespace {

// Ends a process as a user of the task manager does, and waits until it is gone.
void kill_process(const std::string& answered) {
  const auto number =
      std::strtoul(answered.substr(answered.find_first_of("0123456789")).c_str(), nullptr, 10);
  const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, number);
  ASSERT_TRUE(process && TerminateProcess(process, 1)) << answered;
  WaitForSingleObject(process, INFINITE);
  CloseHandle(process);
}

template <int class_index>
class SessionTest : public HostTest<class_index> {
 protected:
  // As expect(), and no later than the system's report.
  void expect_soon(const wchar_t* member, const Arguments& arguments, const std::string& result,
                   const std::string& boxes = "") {
    const DWORD started = GetTickCount();
    this->expect(member, arguments, result, boxes);
    EXPECT_LT(GetTickCount() - started, 1000U) << utf8(member);
  }

  void end_control() {
    const DWORD started = GetTickCount();
    this->control_.Reset();
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
    EXPECT_LT(GetTickCount() - started, 1000U);
  }
};

using WordSession = SessionTest<0>;
using OutlookSession = SessionTest<1>;

// Each next word processor numbers its members in another way, which the control must learn anew.
TEST_F(WordSession, StartsAnewAfterTheWordProcessorHasEnded) {
  const std::string gone = "The remote server machine does not exist or is unavailable";
  for (const auto* kind : {"published", "own_numbers"}) {
    const Registered registered(kind);
    expect(L"Start", {}, "ui1 1");
    expect(L"CreateDoc", {}, "ui1 1");
    expect(L"SendText", {L"text"}, "ui1 1");
    expect(L"SelectionText", {}, "bstr \"text\"");
    if (kind == std::string("own_numbers"))
      kill_process(call(L"GetDefaultPaths", {1}));
    else
      expect_soon(L"SendText", {die}, "ui1 0", "SendText RPC call failed.");
    expect_soon(L"SendText", {L"text"}, "ui1 0", "SendText " + gone);
    expect_soon(L"StopWord", {true}, "raised 800A01CE " + gone);
    expect_soon(L"CreateDoc", {}, "ui1 0", "Create Doc " + gone);
  }
  end_control();
}

TEST_F(OutlookSession, StartsAnewAfterOutlookHasEnded) {
  const Registered registered;
  for (int times = 0; times < 2; ++times) {
    expect(L"StartOutlook", {}, "bool -1");
    expect(L"InitItems", {L"Appointment", L""}, "bool -1");
    expect(L"GetFirstItem", {L"Appointment"}, "bool -1");
    kill_process(call(L"GetAppointmentProperty", {L"Subject"}));
    expect_soon(L"GetItemCount", {L"Appointment"}, "i2 0");
    expect(L"GetLastErrorNumber", {}, "i2 462");
    expect_soon(L"StopOutlook", {true}, "bool 0");
  }
  end_control();
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 2 && arguments[1] == std::string("--serve")) return serve(arguments[2]);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
