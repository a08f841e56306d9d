// Automation calls and failure traps, on a fake office: what the members are made of.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/member_frame.h"
#include "support/fake_object.h"
#include "support/message_boxes.h"
#include "support/text.h"

namespace {

using zorboffice::Argument;
using zorboffice::AutomationObject;
using zorboffice::Bstr;

class Automation : public testing::Test {
 protected:
  ~Automation() { EXPECT_EQ(office_.live, 0); }

  AutomationObject make(const char* name) {
    IDispatch* object = office_.make(name);
    const AutomationObject made(object);
    object->Release();
    return made;
  }

  std::string logged() {
    const std::string line = office_.log.empty() ? "" : office_.log.back();
    office_.log.clear();
    return line;
  }

  FakeOffice office_;
};

TEST_F(Automation, ArgumentsKeepTheirKind) {
  const AutomationObject object = make("O");
  SHORT int16 = 7;
  LONG int32 = 8;
  BYTE byte = 9;
  VARIANT_BOOL flag = 5;
  SAFEARRAY* never_dimensioned = nullptr;
  const Bstr text(L"t");
  BSTR string = text.get();
  _variant_t variant(2.5);
  const std::pair<Argument, const char*> rows[] = {
      {SHORT{-1}, "i2 -1"},
      {LONG{1}, "i4 1"},
      {BYTE{255}, "ui1 255"},
      {1.5F, "r4 1.5"},
      {true, "bool -1"},
      {false, "bool 0"},
      {text, "bstr \"t\""},
      {Argument::text(nullptr), "bstr \"\""},
      {Argument::variant(variant), "r8 2.5"},
      {Argument::reference(&int16), "&i2 7"},
      {Argument::reference(&int32), "&i4 8"},
      {Argument::reference(&byte), "&ui1 9"},
      {Argument::reference(&string), "&bstr \"t\""},
      {Argument::flag_reference(&flag), "&bool 5"},
      {Argument(LONG{3}).named(L"What"), "What:=i4 3"},
  };
  for (const auto& [argument, kind] : rows) {
    object.call(L"M", argument);
    EXPECT_EQ(logged(), std::string("call O.M(") + kind + ")");
  }

  VARIANT seen{};
  office_.answers["O.M"].effect = [&](const DISPPARAMS& parameters) { seen = parameters.rgvarg[0]; };
  object.call(L"M", Argument::missing());
  EXPECT_EQ(V_VT(&seen), VT_ERROR);
  EXPECT_EQ(V_ERROR(&seen), DISP_E_PARAMNOTFOUND);
  object.call(L"M", Argument::array_reference(&never_dimensioned));
  EXPECT_EQ(V_VT(&seen), VT_BYREF | VT_ARRAY | VT_VARIANT);
  EXPECT_EQ(V_ARRAYREF(&seen), &never_dimensioned);
}

TEST_F(Automation, PositionalArgumentsComeBeforeNamedOnes) {
  const AutomationObject object = make("O");
  object.get(L"M", SHORT{1}, LONG{2}, Argument(SHORT{3}).named(L"C"), Argument(SHORT{4}).named(L"D"));
  EXPECT_EQ(logged(), "get O.M(i2 1, i4 2, C:=i2 3, D:=i2 4)");
}

template <class Step>
std::string failure_of(const Step& step) {
  try {
    step();
  } catch (const zorboffice::Failure& failure) {
    return std::to_string(failure.number) + " " + utf8(failure.description.view());
  }
  return "none";
}

TEST_F(Automation, NamesWhatIsMissing) {
  const std::string required = "424 Object required";
  const std::string not_set = "91 Object variable or With block variable not set";
  const AutomationObject nothing;
  const AutomationObject object = make("O");
  office_.answers["O.Number"] = {1};
  office_.answers["O.Nothing"] = {_variant_t(static_cast<IDispatch*>(nullptr))};
  EXPECT_EQ(failure_of([&] { nothing.get(L"M"); }), required);
  EXPECT_EQ(failure_of([&] { nothing.put(L"M", true); }), required);
  EXPECT_EQ(failure_of([&] { nothing.typed().call(L"M"); }), not_set);
  EXPECT_EQ(failure_of([&] { object.get(L"Number").get(L"M"); }), required);
  EXPECT_EQ(failure_of([&] { object.get(L"Nothing").get(L"M"); }), not_set);
  EXPECT_EQ(failure_of([&] { object.get(L"Number").object().for_each([](const auto&) {}); }), required);
  office_.refused["O.M"] = DISP_E_UNKNOWNNAME;
  EXPECT_EQ(failure_of([&] { object.get(L"M"); }), "438 Object doesn't support this property or method");
  office_.answers["O.Big"] = {70000L};
  EXPECT_EQ(failure_of([&] { object.get(L"Big").int16(); }), "6 Overflow");
}

TEST(Frame, TrapsRecordAndShowInTheirOrder) {
  MessageBoxes boxes;
  zorboffice::LastError last_error;
  LONG recorded_when_shown = 0;
  const auto fails = [] { zorboffice::throw_runtime_error(13); };
  const auto shows = [&](const zorboffice::Failure& failure) {
    recorded_when_shown = last_error.LastErrorNumber;
    zorboffice::message(L"prefix ")(failure);
  };
  VARIANT_BOOL result = 7;

  EXPECT_EQ(zorboffice::trapped(&result, zorboffice::record(last_error), fails), S_OK);
  EXPECT_EQ(result, VARIANT_FALSE);
  EXPECT_EQ(last_error.LastErrorNumber, 13);
  EXPECT_EQ(utf8(last_error.LastErrorDescription.view()), "Type mismatch");
  EXPECT_TRUE(boxes.take().empty());

  last_error = {};
  zorboffice::trapped(&result, zorboffice::both(shows, zorboffice::record(last_error)), fails);
  EXPECT_EQ(recorded_when_shown, 0);
  EXPECT_EQ(last_error.LastErrorNumber, 13);
  zorboffice::trapped(&result, zorboffice::both(zorboffice::record(last_error), shows), fails);
  EXPECT_EQ(recorded_when_shown, 13);
  EXPECT_EQ(boxes.take().size(), 2U);

  // A failure inside the trap reaches the host, and nothing comes after it.
  last_error = {};
  const auto fails_again = [](const zorboffice::Failure&) { zorboffice::throw_runtime_error(91); };
  EXPECT_EQ(
      zorboffice::trapped(&result, zorboffice::both(fails_again, zorboffice::record(last_error)), fails),
      static_cast<HRESULT>(0x800A005B));
  EXPECT_EQ(last_error.LastErrorNumber, 0);
}

TEST(Frame, AFailedCallLeavesNoStringToFree) {
  BSTR result = nullptr;
  const auto fails = [] { zorboffice::throw_runtime_error(6); };
  EXPECT_EQ(zorboffice::trapped(&result, zorboffice::none, fails), static_cast<HRESULT>(0x800A0006));
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(zorboffice::trapped(&result, zorboffice::silent, fails), S_OK);
  EXPECT_NE(result, nullptr);
  SysFreeString(result);
}

// Last, because the process stays where nobody sees it.
TEST(Frame, ShowsNothingWhereNobodyCanPressOk) {
  const HWINSTA unseen = CreateWindowStationW(L"unseen", 0, WINSTA_ALL_ACCESS, nullptr);
  ASSERT_NE(unseen, nullptr);
  ASSERT_TRUE(SetProcessWindowStation(unseen));
  zorboffice::show_message(L"Would wait for ever.");
}

}  // namespace
