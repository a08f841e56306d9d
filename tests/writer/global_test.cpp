// The word processor's Global object: one for the process, whatever apartment asks for it.

#include "support/member_rows.h"

namespace {

class Global : public WriterTest {
 protected:
  static long created(const std::vector<std::string>& log) {
    return std::ranges::count(log, "create Global");
  }

  // Starts a control with placement in an apartment of its own with a suite of its own, while this apartment
  // answers; that one has ended when this returns. Returns what was asked of its suite.
  static std::vector<std::string> start_elsewhere() {
    std::vector<std::string> log;
    const auto start = [](void* context) WINAPI -> DWORD {
      FakeSuite suite(Serving::unnamed);
      EXPECT_EQ(late_call(outside::create(outside::classes[2]).Get(), L"Start", {true}), "ui1 1");
      *static_cast<std::vector<std::string>*>(context) = suite.log;
      return 0;
    };
    HANDLE thread = CreateThread(nullptr, 0, start, &log, 0, nullptr);
    DWORD index = 0;
    EXPECT_EQ(CoWaitForMultipleHandles(0, 30'000, 1, &thread, &index), S_OK);
    CloseHandle(thread);
    return log;
  }
};

TEST_F(Global, IsKeptUntilTheLibraryMayGo) {
  for (const long times : {1, 2}) {
    expect(L"Start", {true}, "ui1 1");
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_FALSE);
    control_ = outside::create(outside::classes[2]);
    expect(L"Start", {true}, "ui1 1");
    EXPECT_EQ(created(office_.log), times);
    end_control();
    EXPECT_EQ(office_.live, 0);
    control_ = outside::create(outside::classes[2]);
  }
}

TEST_F(Global, IsReplacedWhenItsWordProcessorHasEnded) {
  constexpr auto server_unavailable = static_cast<HRESULT>(0x800706BA);
  for (const auto& [status, times] :
       {std::pair{server_unavailable, 2}, {RPC_E_DISCONNECTED, 2}, {RPC_E_CALL_REJECTED, 1}}) {
    make_ready();
    expect(L"Start", {true}, "ui1 1");
    office_.refused["Global"] = status;
    expect(L"Start", {true}, "ui1 1");
    EXPECT_EQ(created(office_.log), times);
    EXPECT_EQ(office_.live, 5) << "the service manager, two services, a document and it";
  }
}

TEST_F(Global, ServesOtherApartments) {
  expect(L"Start", {true}, "ui1 1");
  taken_log(office_);
  EXPECT_EQ(created(start_elsewhere()), 0);
  EXPECT_EQ(std::ranges::count(office_.log, "get Global.CentimetersToPoints(r4 3)"), 2);
}

TEST_F(Global, IsReplacedWhenItsApartmentHasEnded) {
  EXPECT_EQ(created(start_elsewhere()), 1);
  expect(L"Start", {true}, "ui1 1");
  EXPECT_EQ(created(office_.log), 1);
}

}  // namespace
