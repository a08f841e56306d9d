#include "outlook_test.h"

#include <utility>

#include "support/late_call.h"
#include "support/text.h"

static OutlookTest* running;

OutlookTest::OutlookTest() {
  running = this;
  hook_ = SetWindowsHookExW(WH_CBT, window_event, nullptr, GetCurrentThreadId());
}

OutlookTest::~OutlookTest() {
  UnhookWindowsHookEx(hook_);
  control_.Reset();
  EXPECT_EQ(outlook_.live, 0) << "objects of the mail client are still held";
  EXPECT_TRUE(boxes_.take().empty());
}

LRESULT CALLBACK OutlookTest::window_event(int event, WPARAM window, LPARAM details) {
  wchar_t kind[8] = {};
  GetClassNameW(reinterpret_cast<HWND>(window), kind, 8);
  if (event == HCBT_CREATEWND && std::wstring_view(kind) == L"#32770") {
    running->errors_at_boxes_.push_back(running->last_error());
    if (running->at_box_) running->at_box_();
  }
  return CallNextHookEx(nullptr, event, window, details);
}

void OutlookTest::make_ready() {
  outlook_.fail_at = 0;
  control_ = outside::create(outside::classes[1]);
  expect(L"StopOutlook", {true}, "bool 0");
  expect(L"StartOutlook", {}, "bool -1");
  for (const auto& kind : item_kinds) {
    expect(L"InitItems", {kind.word, text({})}, "bool -1");
    expect(L"CreateItem", {kind.word}, "bool -1");
  }
  log();
}

std::string OutlookTest::call(const wchar_t* member, const Arguments& arguments) {
  return late_call(control_.Get(), member, arguments);
}

void OutlookTest::expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
                         const std::string& shown) {
  errors_at_boxes_.clear();
  EXPECT_EQ(call(member, arguments), result) << utf8(member);
  std::string seen;
  for (const auto& box : boxes_.take()) {
    seen += seen.empty() ? "" : " | ";
    seen += box.title == "ZORBOffice" ? box.text : "[" + box.title + "] " + box.text;
    EXPECT_EQ(box.buttons, std::vector<std::string>{"OK"});
  }
  EXPECT_EQ(seen, shown) << utf8(member);
}

std::string OutlookTest::last_error() {
  return call(L"GetLastErrorNumber") + " " + call(L"GetLastErrorDescription");
}

std::string OutlookTest::recorded(int number, const std::string& description) {
  return "i2 " + std::to_string(number) + " bstr \"" + description + "\"";
}

std::string OutlookTest::held() {
  log();
  for (const auto& kind : item_kinds)
    for (const auto* member : {L"SaveItem", L"GetItemCount"}) call(member, {kind.word});
  std::string names = "|";
  for (const auto& line : std::exchange(outlook_.log, {}))
    names += line.substr(line.find(' ') + 1, line.find('.') - line.find(' ') - 1) + "|";
  return names;
}

std::string OutlookTest::log() {
  std::string all;
  for (const auto& line : std::exchange(outlook_.log, {})) all += (all.empty() ? "" : " | ") + line;
  return all;
}

_variant_t OutlookTest::text(std::wstring_view text) {
  VARIANT value = {};
  value.vt = VT_BSTR;
  if (text.data()) value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return {value, false};
}
