#include "outlook_test.h"

#include <utility>

static OutlookTest* running;

OutlookTest::OutlookTest() {
  running = this;
  hook_ = SetWindowsHookExW(WH_CBT, window_event, nullptr, GetCurrentThreadId());
}

OutlookTest::~OutlookTest() { UnhookWindowsHookEx(hook_); }

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
  renew();
  expect(L"StopOutlook", {true}, "bool 0");
  expect(L"StartOutlook", {}, "bool -1");
  for (const auto& kind : item_kinds) {
    expect(L"InitItems", {kind.word, text({})}, "bool -1");
    expect(L"CreateItem", {kind.word}, "bool -1");
  }
  log();
}

void OutlookTest::expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
                         const std::string& boxes) {
  errors_at_boxes_.clear();
  ControlTest::expect(member, arguments, result, boxes);
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
  for (const auto& line : std::exchange(office_.log, {}))
    names += line.substr(line.find(' ') + 1, line.find('.') - line.find(' ') - 1) + "|";
  return names;
}

_variant_t OutlookTest::text(std::wstring_view text) {
  VARIANT value = {};
  value.vt = VT_BSTR;
  if (text.data()) value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return {value, false};
}
