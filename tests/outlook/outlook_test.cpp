#include "outlook_test.h"

#include <utility>

#include "support/late_call.h"
#include "support/text.h"

namespace {

OutlookTest* running;

}  // namespace

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
    expect(L"InitItems", {kind.word, L""}, "bool -1");
    expect(L"CreateItem", {kind.word}, "bool -1");
  }
  log();
}

void OutlookTest::expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
                         const std::string& shown) {
  errors_at_boxes_.clear();
  EXPECT_EQ(late_call(control_.Get(), member, arguments), result) << utf8(member);
  std::string seen;
  for (const auto& box : boxes_.take()) {
    if (!seen.empty()) seen += " | ";
    if (box.title != "ZORBOffice") seen += "[" + box.title + "] ";
    seen += box.text;
    EXPECT_EQ(box.buttons, std::vector<std::string>{"OK"});
  }
  EXPECT_EQ(seen, shown) << utf8(member);
}

std::string OutlookTest::last_error() {
  return late_call(control_.Get(), L"GetLastErrorNumber") + " " +
         late_call(control_.Get(), L"GetLastErrorDescription");
}

std::string OutlookTest::held() {
  log();
  for (const auto& kind : item_kinds)
    for (const auto* member : {L"SaveItem", L"GetItemCount"}) late_call(control_.Get(), member, {kind.word});
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

std::string OutlookTest::recorded(int number, const std::string& description) {
  return "i2 " + std::to_string(number) + " bstr \"" + description + "\"";
}

_variant_t OutlookTest::text(std::wstring_view text) {
  VARIANT value = {};
  value.vt = VT_BSTR;
  value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return {value, false};
}
