// Invoke and the members' slots, with arguments in every form.
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
  const size_t count = called.types.size();
  std::vector<Variable> variables(count);
  std::vector<VARIANT> arguments(count);
  for (size_t i = 0; i < count; ++i) {
    const bool is_result = i == count - 1;
    const VARTYPE type = called.types[i] & ~VT_BYREF;
    if (!is_result) variables[i].value = life.value_of(type);
    if (is_result && type != VT_VARIANT) V_VT(&variables[i].value) = type;
    arguments[i] = variables[i].value;
    if (is_result || called.types[i] & VT_BYREF) arguments[i] = variables[i].refer(type);
    if (V_ISBYREF(&arguments[i]) && life.chance.one_in(25)) V_BYREF(&arguments[i]) = nullptr;
  }
  report.begin("slot " + utf8(called.member.signature));
  call_slot(life.raw<IDispatch>(outside::guid(life.ids->interface_id)), 7 + slot, arguments);
}

}  // namespace

void call_automation(Life& life) {
  static std::map<const ClassIds*, std::vector<Callable>> known;
  auto& members = known[life.ids];
  if (members.empty())
    for (const auto& row : outside::members_of(*life.ids))
      members.push_back({row, outside::types_of(row.signature)});
  const size_t slot = life.chance.below(members.size());
  life.chance.one_in(3) ? call_member(life, members[slot], slot) : invoke(life, members[slot]);
}
