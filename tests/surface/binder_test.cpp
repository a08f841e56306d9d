// The binder in front of a control of the test's own, with every form of an argument for every type of
// parameter, the members' frame, and how long a step waits for an application that stays busy.
#include <gtest/gtest.h>
#include <comutil.h>
#include <cstring>
#include <map>
#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/member_frame.h"
#include "ZORBOffice/control/control.h"
#include "support/fake_object.h"
#include "support/leaks.h"

namespace zorboffice {
namespace {

using enum MemberKind;
using Ids = std::vector<DISPID>;
using Texts = std::vector<std::string>;
using Values = std::vector<VARIANT>;

enum Slot : SHORT { text, int16, boolean, int32, byte, any, slots };  // the parameters, one of each type
constexpr WORD either = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
constexpr VARTYPE types[] = {VT_BSTR, VT_I2, VT_BOOL, VT_I4, VT_UI1, VT_VARIANT};

VARIANT of_kind(int type, auto content) {
  VARIANT made = {};
  V_VT(&made) = static_cast<VARTYPE>(type);
  std::memcpy(&V_UI1(&made), &content, sizeof content);
  return made;
}
VARIANT to(int type, void* variable) { return of_kind(VT_BYREF | type, variable); }
const VARIANT missing = of_kind(VT_ERROR, DISP_E_PARAMNOTFOUND), five = of_kind(VT_I4, 5L);

// Tells what its members received, and changes their parameters or fails as it is told to.
struct Probe final : Control<IDispatch> {
  Probe();
  Texts received;
  std::map<size_t, _variant_t> changes;  // what the parameters at these positions become
  void (*raise)() = nullptr;
  HRESULT bare = S_OK;  // what a member returns that has no frame

  void run(bool by_reference, std::initializer_list<void*> parameters) {
    received.clear();
    for (void* parameter : parameters) {
      const size_t slot = received.size(), sizes[] = {0, 2, 2, 4, 1, 0};
      const VARIANT seen = to(types[slot], parameter);
      received.push_back(describe(seen).substr(slot == any ? 9 : 1));
      if (!changes.contains(slot)) continue;
      std::memcpy(parameter, &changes[slot].bVal, sizes[slot]);
      if (slot == any && by_reference) VariantCopy(seen.pvarVal, &changes[slot]);
      const BSTR new_text = slot == text ? changes[slot].bstrVal : nullptr;
      if (slot == text && by_reference) SysReAllocStringLen(seen.pbstrVal, new_text, SysStringLen(new_text));
      if (slot == text && !by_reference && **seen.pbstrVal) **seen.pbstrVal = L'!';
    }
    if (raise) raise();
  }
  HRESULT WINAPI Refer(BSTR* a, SHORT* b, SHORT* c, LONG* d, BYTE* e, VARIANT* f, LONG* result) noexcept {
    return trapped(result, none, [&] { run(true, {a, b, c, d, e, f}); });
  }
  HRESULT WINAPI Copy(BSTR a, SHORT b, SHORT c, LONG d, BYTE e, VARIANT f, BSTR* result) noexcept {
    return trapped(result, none, [&] { return run(false, {&a, &b, &c, &d, &e, &f}), Bstr(L"copied"); });
  }
  HRESULT WINAPI Byte(BYTE* result) noexcept { return *result = 255, S_OK; }
  HRESULT WINAPI Flag(VARIANT_BOOL* result) noexcept { return *result = -1, bare; }
};

constexpr std::initializer_list<Parameter> parameters_by_reference = {
    by_ref(L"Text", VT_BSTR).defaults_to(0),  by_ref(L"Short", VT_I2).defaults_to(1),
    by_ref(L"Flag", VT_BOOL).defaults_to(-1), by_ref(L"Long", VT_I4).defaults_to(3),
    by_ref(L"Byte", VT_UI1).defaults_to(4),   by_ref(L"Any", VT_VARIANT).defaults_to(5)};
constexpr std::initializer_list<Parameter> parameters_by_value = {
    by_value(L"RequiredText", VT_BSTR),         by_value(L"Short", VT_I2).defaults_to(1),
    by_value(L"Flag", VT_BOOL).defaults_to(-1), by_value(L"Long", VT_I4).optional(),
    by_value(L"Byte", VT_UI1).defaults_to(4),   by_value(L"Any", VT_VARIANT).defaults_to(5)};
enum : DISPID { refer, copy, byte_result, flag_result };
constexpr Member members[] = {
    {L"Refer", refer, property_get, VT_I4, native_call<&Probe::Refer>, parameters_by_reference},
    {L"Copy", copy, method, VT_BSTR, native_call<&Probe::Copy>, parameters_by_value},
    {L"Byte", byte_result, method, VT_UI1, native_call<&Probe::Byte>, {}},
    {L"Flag", flag_result, method, VT_BOOL, native_call<&Probe::Flag>, {}}};
static_assert(agree_with_signatures(members));
constinit const MemberTable table = members;
const ClassRow row{zorb_word_class, 0, nullptr, {IID_IDispatch, table}, {}};
Probe::Probe() : Control(row, nullptr) {}

class Binder : public testing::Test {
 protected:
  ~Binder() override { EXPECT_EQ(probe_->Release(), 0u) << "an object argument is still held"; }

  // Arguments stand as Invoke takes them: named ones first, positional ones from last to first.
  HRESULT invoke(DISPID id, Values values = {}, Ids named = {}, LCID locale = 0x409, WORD flags = either) {
    DISPPARAMS given = {values.data(), named.data(), UINT(values.size()), UINT(named.size())};
    probe_->received.clear();
    VARIANT result = of_kind(VT_DISPATCH, 1);  // what stood there before is not the callee's to free
    const HRESULT status = probe_->Invoke(id, IID_NULL, locale, flags, &given, &result, &raised_, &index_);
    if (SUCCEEDED(status)) result_ = describe(_variant_t(result, false));
    return status;
  }
  // With nothing that a host may leave out.
  HRESULT invoke_bare(DISPPARAMS* given) {
    return probe_->Invoke(refer, IID_NULL, 0, DISPATCH_METHOD, given, nullptr, nullptr, nullptr);
  }
  void refuses(DISPID id, Values values, Ids named, HRESULT status, UINT index = 99) {
    EXPECT_EQ(invoke(id, values, named), status) << "argument " << index;
    EXPECT_EQ(index == 99 ? 99 : index_, index) << status;
    EXPECT_TRUE(probe_->received.empty()) << "the member was called";
  }

  Probe* const probe_ = new Probe;
  std::string result_;
  EXCEPINFO raised_ = {};
  UINT index_ = 0;
};

TEST_F(Binder, ConvertsEachFormAndWritesOnlyChangesBackWithoutALeak) {
  VARIANT array = of_kind(VT_ARRAY | VT_I4, SafeArrayCreateVector(VT_I4, 0, 3));
  const _variant_t empty, object(static_cast<IDispatch*>(probe_)), numbers(array, false);
  const struct {
    Slot slot;
    _variant_t host;
    const char* received;
    _variant_t change;
    const char* after;
    HRESULT refusal = S_OK;  // of a typed variable, which cannot become another type
    LCID locale = 0x409;
  } rows[] = {
      {text, L"a", "bstr \"a\"", L"b", "bstr \"b\""},
      {text, 5L, "bstr \"5\"", L"x", "bstr \"x\"", DISP_E_TYPEMISMATCH},
      {text, 1.5, "bstr \"1,5\"", L"2,5", "r8 2.5", S_OK, 0x407},
      {int16, BYTE{5}, "i2 5", short{300}, "i2 300", DISP_E_OVERFLOW},
      {int16, empty, "i2 0", short{7}, "i2 7"},
      {boolean, 5L, "bool -1", false, "i4 0"},
      {boolean, false, "bool 0", true, "bool -1"},
      {boolean, L"True", "bool -1", false, "bstr \"False\""},
      {int32, 70000L, "i4 70000", 7L, "i4 7"},
      {int32, short{5}, "i4 5", 70000L, "i4 70000", DISP_E_OVERFLOW},
      {int32, 5ll, "i4 5", 7L, "[20] 7"},
      {int32, L"1,5", "i4 2", 7L, "bstr \"7\"", S_OK, 0x407},
      {int32, L"1,5", "i4 15", 7L, "bstr \"7\""},
      {byte, BYTE{5}, "ui1 5", BYTE{255}, "ui1 255"},
      {any, empty, "empty", L"x", "bstr \"x\""},
      {any, numbers, "[8195] ", 7L, "i4 7", DISP_E_TYPEMISMATCH},
      {any, object, "object", 7L, "i4 7", DISP_E_TYPEMISMATCH},
  };
  const Ids orders[] = {{5, 4, 3, 2, 1, 0}, {4, 5, 3, 2, 1, 0}, {2, 5, 0, 4, 1, 3}};
  constexpr int ways = 15, cases = static_cast<int>(std::size(rows)) * ways;
  size_t blocks = 0;
  for (int i = 0; i < 30 * cases && (i <= cases || !HasFailure()); ++i) {
    if (i == cases) blocks = resources_in_use().blocks;
    const auto& row = rows[i / ways % std::size(rows)];
    const int form = i % ways / 3, naming = i % 3;
    const bool typed = form > 2;
    if (typed && row.host.vt == VT_EMPTY) continue;
    const std::string host = describe(row.host);
    SCOPED_TRACE(host + " as " + row.received + " way " + std::to_string(i % ways));
    _variant_t variable = row.host;
    VARIANT before = variable, own = to(variable.vt, &variable.bVal), whole = to(VT_VARIANT, &variable);
    const VARIANT forms[] = {before, whole, to(VT_VARIANT, &whole), own, to(VT_VARIANT, &own)};
    LONG other = 5;  // the variable behind every other argument
    Values values(slots, to(VT_I4, &other));
    const Ids& order = orders[naming];
    const auto place = std::ranges::find(order, row.slot) - order.begin();
    values[place] = forms[form];
    const auto run = [&](DISPID id, HRESULT expected) {
      const Ids named(order.begin(), order.begin() + (naming == 1 ? 2 : naming * 3));
      EXPECT_EQ(invoke(id, values, named, row.locale), expected);
      EXPECT_EQ(probe_->received.at(row.slot), row.received);
      EXPECT_EQ(other, 5);
    };
    probe_->changes.clear();
    run(refer, S_OK);
    probe_->changes[row.slot] = row.change;
    run(copy, S_OK);
    EXPECT_EQ(result_, "bstr \"copied\"");
    EXPECT_EQ(std::memcmp(&before, &variable, sizeof before), 0) << describe(variable);
    EXPECT_EQ(describe(variable), host);
    const HRESULT refusal = typed ? row.refusal : S_OK;
    run(refer, refusal);
    EXPECT_EQ(FAILED(refusal) ? index_ : place, UINT(place));
    EXPECT_EQ(describe(variable), form == 0 || FAILED(refusal) ? host : row.after);
  }
  EXPECT_LT(resources_in_use().blocks, blocks + 15);
}

TEST_F(Binder, OmittedArgumentsGetTheirDefaults) {
  VARIANT host = missing;
  probe_->changes[int32] = 70000L;
  for (const VARIANT& absent : {missing, to(VT_VARIANT, &host), to(VT_ERROR, &host.scode)}) {
    for (const size_t count : {0, 4, 6}) {
      EXPECT_EQ(invoke(refer, Values(count, absent)), S_OK) << absent.vt;
      EXPECT_EQ(probe_->received, (Texts{"bstr \"\"", "i2 1", "bool -1", "i4 3", "ui1 4", "i2 5"}));
      EXPECT_EQ(describe(host), "missing");
    }
    EXPECT_EQ(invoke(copy, {absent, five, absent, five}, {int32, byte}), S_OK);
    EXPECT_EQ(probe_->received, (Texts{"bstr \"5\"", "i2 1", "bool -1", "i4 0", "ui1 5", "i2 5"}));
  }
}

TEST_F(Binder, RefusesWhatItCannotBind) {
  const _variant_t word(L"x");
  const VARIANT minus = of_kind(VT_I2, -1), null = of_kind(VT_NULL, 0);
  VARIANT cycle = to(VT_VARIANT, &cycle), argument = five;
  refuses(refer, Values(7, five), {}, DISP_E_BADPARAMCOUNT);
  refuses(refer, {word, five, five}, {text}, DISP_E_BADPARAMCOUNT);
  refuses(refer, {five, five, five}, {int16, slots}, DISP_E_PARAMNOTFOUND, 1);
  refuses(refer, {five}, {DISPID_PROPERTYPUT}, DISP_E_PARAMNOTFOUND, 0);
  refuses(copy, {five, word, five}, {byte, int32}, DISP_E_TYPEMISMATCH, 1);
  refuses(refer, {five, five, null}, {}, DISP_E_TYPEMISMATCH, 2);
  refuses(refer, {five, minus}, {int16, byte}, DISP_E_OVERFLOW, 1);
  refuses(refer, {five, to(VT_BSTR, nullptr)}, {}, DISP_E_BADVARTYPE, 1);
  refuses(copy, {five, five, to(VT_VARIANT, nullptr)}, {}, DISP_E_BADVARTYPE, 2);
  refuses(refer, {cycle, five}, {}, DISP_E_BADVARTYPE, 0);
  refuses(copy, {five, missing}, {}, DISP_E_PARAMNOTOPTIONAL, 1);
  refuses(99, {}, {}, DISP_E_MEMBERNOTFOUND);
  DISPID name = 0;
  DISPPARAMS damaged[] = {{nullptr, &name, 1, 0}, {&argument, nullptr, 1, 1}, {&argument, &name, 0, 1}};
  for (DISPPARAMS& parameters : damaged) EXPECT_TRUE(FAILED(invoke_bare(&parameters)));
  EXPECT_EQ(invoke_bare(nullptr), E_INVALIDARG);
}

TEST_F(Binder, TakesEitherFlagAndReturnsEachTypeOfResult) {
  for (const WORD flags : {0, DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT})
    for (const DISPID id : {refer, byte_result})
      EXPECT_EQ(invoke(id, {}, {}, 0, flags), flags & either ? S_OK : DISP_E_MEMBERNOTFOUND) << flags;
  EXPECT_EQ(result_, "ui1 255");
  EXPECT_EQ(invoke(flag_result), S_OK);
  EXPECT_EQ(result_, "bool -1");
}

TEST_F(Binder, HandsFailuresToTheHost) {
  const std::pair<void (*)(), const char*> rows[] = {
      {[] { throw_runtime_error(6); }, "800A0006 Overflow"},
      {[] { throw std::bad_alloc(); }, "800A0007 Out of memory"},
      {[] { throw 1; }, "800A01B8 Automation error"}};
  const auto expect_raised = [&](const char* expected) {
    char raised[60];
    snprintf(raised, sizeof raised, "%08lX %ls", raised_.scode, Bstr::adopt(raised_.bstrDescription).get());
    EXPECT_STREQ(raised, expected);
    EXPECT_EQ(Bstr::adopt(raised_.bstrSource).view(), L"ZORBOffice");
  };
  DISPPARAMS nothing = {};
  EXPECT_EQ(invoke_bare(&nothing), S_OK);
  for (const auto& [raise, expected] : rows) {
    probe_->raise = raise;
    probe_->changes[int32] = 7L;
    LONG host = 5;
    EXPECT_EQ(invoke(refer, {to(VT_I4, &host)}, {int32}), DISP_E_EXCEPTION);
    EXPECT_EQ(host, 7) << "what the member changed before it failed";
    expect_raised(expected);
    EXPECT_EQ(invoke_bare(&nothing), DISP_E_EXCEPTION);
  }
  probe_->bare = E_ACCESSDENIED;
  EXPECT_EQ(invoke(flag_result), DISP_E_EXCEPTION);
  expect_raised("80070005 Permission denied");
}

TEST_F(Binder, FindsNamesInAnyCase) {
  const auto find = [&](std::vector<const wchar_t*> names) {
    Ids found(names.size() + 1, 42);
    const auto asked = const_cast<wchar_t**>(names.data());
    found.back() = probe_->GetIDsOfNames(IID_NULL, asked, UINT(names.size()), 0, found.data());
    return found;
  };
  EXPECT_EQ(find({L"cOPY", L"LONG", L"requiredtext"}), (Ids{copy, int32, text, S_OK}));
  EXPECT_EQ(find({L"Copy", L"Short", L"Longer"}), (Ids{copy, int16, -1, DISP_E_UNKNOWNNAME}));
  EXPECT_EQ(find({L"Ref", nullptr}), (Ids{-1, -1, DISP_E_UNKNOWNNAME}));
}

TEST(Frame, AFailedCallLeavesNoStringToFree) {
  BSTR result = nullptr;
  const auto fails = [] { throw_runtime_error(6); };
  EXPECT_EQ(trapped(&result, none, fails), static_cast<HRESULT>(0x800A0006));
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(trapped(&result, silent, fails), S_OK);
  EXPECT_NE(result, nullptr);
  SysFreeString(result);
}

TEST(Waiting, EndsAfterTenSeconds) {
  FakeOffice office;
  std::vector<DWORD> attempts;
  office.gate = [&] {
    attempts.push_back(GetTickCount());
    return RPC_E_SERVERCALL_RETRYLATER;
  };
  AutomationObject document;
  *document.variable() = office.make("Document");
  EXPECT_THROW(document.call(L"Save"), Failure);
  EXPECT_NEAR(attempts.back() - attempts.front(), 10'900, 1'000);
  EXPECT_LT(attempts[1] - attempts[0], 300U) << "the first pause is short";
  EXPECT_LT(attempts.size(), 40U) << "the others grow";
}

// Last, because the process stays where nobody sees it.
TEST(Frame, ShowsNothingWhereNobodyCanPressOk) {
  const HWINSTA unseen = CreateWindowStationW(L"unseen", 0, WINSTA_ALL_ACCESS, nullptr);
  ASSERT_NE(unseen, nullptr);
  ASSERT_TRUE(SetProcessWindowStation(unseen));
  show_message(L"Would wait for ever.");
}

}  // namespace
}  // namespace zorboffice
