// GetIDsOfNames, Invoke and the members' slots, with arguments in every form.
#include <algorithm>
#include <cstring>
#include <map>

#include "life.h"
#include "outside/members.h"

namespace {

struct Callable {
  outside::Member member;
  std::vector<VARTYPE> types;  // the result's is the last
};

// A variable of the host's. It stands beside others: what is written behind it changes their types.
struct Variable {
  VARIANT value = {};
  VARTYPE typed = VT_EMPTY;  // what it must stay where it was referred to by type

  VARIANT refer(VARTYPE type) {
    typed = type == VT_VARIANT || type == VT_DECIMAL ? VARTYPE{VT_EMPTY} : type;
    VARIANT made = {};
    V_VT(&made) = VT_BYREF | type;
    V_BYREF(&made) = type == VT_VARIANT || type == VT_DECIMAL ? static_cast<void*>(&value) : &V_UI1(&value);
    return made;
  }
  ~Variable() {
    if (typed != VT_EMPTY && V_VT(&value) != typed) report.wrong("an argument's type", V_VT(&value));
    if (V_VT(&value) == VT_BSTR && V_BSTR(&value) && V_BSTR(&value)[SysStringLen(V_BSTR(&value))])
      report.wrong("a text without its end");
    VariantClear(&value);
  }
};

// One argument as hosts pass them: a value, a reference by type or variant, or one that leads nowhere.
VARIANT form_of(Chance& chance, Variable& variable) {
  const VARTYPE type = V_VT(&variable.value) & VT_TYPEMASK;
  const bool has_room = type != VT_EMPTY && type != VT_NULL && type < VT_RECORD;
  VARIANT argument = variable.value;
  if (chance.one_in(3)) argument = variable.refer(VT_VARIANT);
  if (chance.one_in(3) && has_room) argument = variable.refer(V_VT(&variable.value));
  if (!chance.one_in(40)) return argument;
  V_VT(&argument) = VT_BYREF | chance.of<int>({VT_VARIANT, VT_I4, VT_BSTR, VT_DISPATCH, VT_I2 | VT_ARRAY});
  V_BYREF(&argument) = nullptr;
  return argument;
}

void check_text(const char* what, BSTR text) {
  if (!SysStringLen(text)) report.wrong(what);
  SysFreeString(text);
}

void invoke(Life& life, const Callable& called) {
  Chance& chance = life.chance;
  const bool proper = !chance.one_in(3), whole = !chance.one_in(6), wants_result = !chance.one_in(6);
  const size_t wanted = called.types.size() - 1,
               count = proper && !chance.one_in(4) ? wanted : chance.below(16);
  std::vector<Variable> variables(count);
  std::vector<VARIANT> arguments(count);
  std::vector<DISPID> named(proper ? 0 : chance.below(count + 1));
  std::string kinds;
  for (size_t i = 0; i < count; ++i) {
    const size_t position = count - 1 - i;
    const bool typed = proper && position < wanted && !chance.one_in(20);
    const VARTYPE type = !typed              ? VARTYPE{VT_VARIANT}
                         : chance.one_in(10) ? VARTYPE{VT_DISPATCH}  // with a default property
                                             : called.types[position] & VT_TYPEMASK;
    variables[i].value = life.value_of(type);
    arguments[i] = form_of(chance, variables[i]);
    kinds += " " + std::to_string(V_VT(&arguments[i]));
  }
  for (size_t i = 0; i < named.size(); ++i)
    named[i] = chance.one_in(10) ? chance.number() : DISPID((i + chance.one_in(9)) % (wanted + 1));
  const auto before = arguments;
  DISPPARAMS parameters = {arguments.data(), named.data(), UINT(count), UINT(named.size())};
  VARIANT result;
  EXCEPINFO raised;
  UINT index = 99;
  std::memset(&result, 0xCD, sizeof result);
  std::memset(&raised, 0xCD, sizeof raised);
  const DISPID id = called.member.id + (chance.one_in(30) ? chance.number() : 0);
  report.begin("Invoke " + utf8(called.member.signature) + kinds);
  const HRESULT status = life.raw<IDispatch>()->Invoke(
      id, IID_NULL, chance.of<LCID>({0x409, 0x407, 0, 0x400, 0x800, 0xFFFF}),
      chance.of<WORD>({1, 2, 3, 3, 3, 3, 4, 0, 15}), &parameters, wants_result ? &result : nullptr,
      whole ? &raised : nullptr, whole ? &index : nullptr);
  if (status != S_OK && HRESULT_FACILITY(status) != FACILITY_DISPATCH)
    report.wrong("Invoke's answer", status);
  if (wants_result) {
    const VARTYPE type = V_VT(&result), typed = called.types.back();
    const bool is_empty = status != S_OK || typed == VT_VARIANT;
    if (id == called.member.id && type != (is_empty ? VARTYPE{VT_EMPTY} : typed))
      report.wrong("the type of a result", type);
    if (type == VT_BSTR && !V_BSTR(&result)) report.wrong("a result without its text");
    VariantClear(&result);
  }
  if (count && std::memcmp(before.data(), arguments.data(), count * sizeof(VARIANT)) != 0)
    report.wrong("an argument was changed");
  if (whole && (status == DISP_E_TYPEMISMATCH || status == DISP_E_BADVARTYPE) && index >= count)
    report.wrong("the index of an argument", index);
  if (!whole || status != DISP_E_EXCEPTION) return;
  if (SUCCEEDED(raised.scode) || raised.pfnDeferredFillIn)
    report.wrong("an exception's number", raised.scode);
  check_text("an exception without a source", raised.bstrSource);
  check_text("an exception without a text", raised.bstrDescription);
}

// With null references, too.
void call_member(Life& life, const Callable& called, size_t slot) {
  const size_t count = called.types.size() - 1;
  std::vector<Variable> variables(count);
  std::vector<VARIANT> arguments(count + 1);
  for (size_t i = 0; i < count; ++i) {
    const VARTYPE type = called.types[i] & ~VT_BYREF;
    arguments[i] = variables[i].value = life.value_of(type);
    if (called.types[i] & VT_BYREF) arguments[i] = variables[i].refer(type);
    if (called.types[i] & VT_BYREF && life.chance.one_in(25)) V_BYREF(&arguments[i]) = nullptr;
  }
  const VARTYPE type = called.types[count];
  constexpr unsigned char zero[sizeof(VARIANT)] = {};
  alignas(VARIANT) unsigned char result[sizeof(VARIANT) + 1];
  std::memset(result, 0xCD, sizeof result);
  const bool wants_result = !life.chance.one_in(25);
  V_VT(&arguments[count]) = VT_BYREF | type;
  V_BYREF(&arguments[count]) = wants_result ? result : nullptr;
  life.set_error_info();
  report.begin("slot " + utf8(called.member.signature));
  const HRESULT status =
      call_slot(life.raw<IDispatch>(outside::guid(life.ids->interface_id)), 7 + slot, arguments);
  ComPtr<IErrorInfo> information;
  BSTR source = nullptr, text = nullptr;
  if (FAILED(status) && GetErrorInfo(0, &information) == S_OK)
    information->GetSource(&source), information->GetDescription(&text);
  if (FAILED(status)) check_text("a failure without a text", text);
  if (outside::take(source) != (FAILED(status) ? L"ZORBOffice" : L""))
    report.wrong("another failure's information", status);
  if (!wants_result) return;
  std::map<VARTYPE, size_t> sizes = {{VT_UI1, 1},
                                     {VT_I2, 2},
                                     {VT_BOOL, 2},
                                     {VT_I4, 4},
                                     {VT_BSTR, sizeof(BSTR)},
                                     {VT_VARIANT, sizeof(VARIANT)}};
  const size_t size = sizes[type];
  if (FAILED(status) && std::memcmp(result, zero, type == VT_VARIANT ? 2 : size) != 0)
    report.wrong("a failed call's result");
  if (result[size] != 0xCD) report.wrong("memory behind the result was written");
  if (type == VT_BSTR && SUCCEEDED(status)) {
    if (!*reinterpret_cast<BSTR*>(result)) report.wrong("a slot's result without its text");
    SysFreeString(*reinterpret_cast<BSTR*>(result));
  }
}

// Names of members, of nothing, and no name at all.
void find_names(Life& life, const Callable& called) {
  constexpr DISPID unset = 0x7EADBEEF;
  const std::wstring signature = called.member.signature;
  const size_t name = signature.find(L' ') + 1;
  std::vector<std::wstring> texts(1 + life.chance.below(5));
  for (auto& text : texts) text = life.chance.text();
  if (!life.chance.one_in(3)) texts[0] = signature.substr(name, signature.find(L'(') - name);
  std::vector<LPOLESTR> names;
  for (auto& text : texts) names.push_back(life.chance.one_in(20) ? nullptr : text.data());
  std::vector<DISPID> found(names.size() + 1, unset);
  report.begin("GetIDsOfNames " + utf8(signature));
  const HRESULT status = life.raw<IDispatch>()->GetIDsOfNames(
      IID_NULL, names.data(), static_cast<UINT>(names.size()), 0, found.data());
  const bool known = std::ranges::find(found, DISPID_UNKNOWN) == found.end();
  if (status != (known ? S_OK : DISP_E_UNKNOWNNAME)) report.wrong("GetIDsOfNames' answer", status);
  if (std::ranges::find(found, unset) != found.end() - 1) report.wrong("identifiers were left unset");
}

}  // namespace

void call_automation(Life& life) {
  static std::map<const ClassIds*, std::vector<Callable>> known;
  auto& members = known[life.ids];
  if (members.empty())
    for (const auto& row : outside::members_of(*life.ids))
      members.push_back({row, outside::types_of(row.signature)});
  const size_t slot = life.chance.below(members.size());
  if (life.chance.one_in(20)) return find_names(life, members[slot]);
  life.chance.one_in(3) ? call_member(life, members[slot], slot) : invoke(life, members[slot]);
}
