#include "word_test.h"

#include <algorithm>
#include <utility>

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
  DISPID identifier = DISPID_UNKNOWN;
  auto* name = const_cast<wchar_t*>(member);
  control_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &identifier);
  std::ranges::reverse(arguments);
  DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  _variant_t result;
  EXCEPINFO raised = {};
  const HRESULT called =
      control_->Invoke(identifier, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                       &parameters, &result, &raised, nullptr);
  const auto description = utf8(outside::take(raised.bstrDescription));
  SysFreeString(raised.bstrSource);
  SysFreeString(raised.bstrHelpFile);
  if (called == S_OK) return describe(result);
  char number[16];
  snprintf(number, sizeof(number), "%08lX", called == DISP_E_EXCEPTION ? raised.scode : called);
  return std::string("raised ") + number + " " + description;
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
