// Invoke, GetIDsOfNames and the slots of the vtable, with arguments in every form.
#include <algorithm>
#include <cstring>
#include <regex>

#include "life.h"
#include "outside/members.h"

namespace {

struct Callable {
  DISPID id;
  std::wstring name;
  std::vector<std::wstring> parameters;
  std::vector<VARTYPE> types;  // the result's is the last
};

const std::vector<Callable>& callables_of(const ClassIds& ids) {
  static std::map<const ClassIds*, std::vector<Callable>> known;
  auto& members = known[&ids];
  if (!members.empty()) return members;
  static const std::wregex pattern(L"[ (](\\w+)\\(|(\\w+) (&?)(short|long|byte|flag|string|variant)");
  for (const auto& row : outside::members_of(ids)) {
    const std::wstring signature = row.signature;
    Callable member = {
        row.id, signature.substr(signature.find(L' ') + 1), {}, outside::types_of(row.signature)};
    member.name.resize(member.name.find(L'('));
    for (std::wsregex_iterator i(signature.begin(), signature.end(), pattern), end; i != end; ++i)
      if ((*i)[2].matched) member.parameters.push_back((*i)[2]);
    members.push_back(member);
  }
  return members;
}

// A variable of the host's between two marks, which nobody may write over.
struct Variable {
  static constexpr uint64_t mark = 0xA5C3A5C3A5C3A5C3;
  uint64_t before = mark;
  VARIANT value = {};
  uint64_t after = mark;
  VARTYPE typed = VT_EMPTY;  // what it must stay where it was referred to by type
  VARIANT reference = {};    // a step on the way to it

  VARIANT refer(VARTYPE type) {
    typed = type == VT_VARIANT ? VARTYPE{VT_EMPTY} : type;
    VARIANT made = {};
    V_VT(&made) = VT_BYREF | type;
    V_BYREF(&made) = type == VT_VARIANT || type == VT_DECIMAL ? static_cast<void*>(&value) : &V_UI1(&value);
    return made;
  }
  ~Variable() {
    if (before != mark || after != mark) report.wrong("memory beside an argument was written");
    if (typed != VT_EMPTY && typed != VT_DECIMAL && V_VT(&value) != typed)
      report.wrong("an argument's type", V_VT(&value));
    if (V_VT(&value) == VT_BSTR && V_BSTR(&value)) {
      const BSTR text = V_BSTR(&value);
      if (text[SysStringLen(text)]) report.wrong("a text without its end");
    }
    VariantClear(&value);
  }
};

bool has_room(VARTYPE type) { return type != VT_EMPTY && type != VT_NULL && type < VT_RECORD; }

// One argument as hosts pass them: a value, a reference by type or variant, one behind others, or one that
// leads nowhere.
VARIANT form_of(Life& life, Variable& variable) {
  VARIANT argument = variable.value;
  size_t steps = life.chance.below(4);
  if (life.chance.one_in(40)) {
    V_VT(&argument) =
        VT_BYREF | life.chance.of<int>({VT_VARIANT, VT_I4, VT_BSTR, VT_DISPATCH, VT_I2 | VT_ARRAY});
    V_BYREF(&argument) = nullptr;
    return argument;
  }
  if (steps == 0) return argument;
  const VARTYPE type = V_VT(&variable.value) & VT_TYPEMASK;
  argument = variable.refer(steps == 1 && has_room(type) ? V_VT(&variable.value) : VARTYPE{VT_VARIANT});
  if (steps == 2) return argument;
  variable.reference = argument;
  V_VT(&argument) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&argument) = &variable.reference;
  if (life.chance.one_in(20)) variable.reference = argument;  // without an end
  return argument;
}

void check_text(const char* what, BSTR text) {
  if (!SysStringLen(text)) report.wrong(what);
  SysFreeString(text);
}

void check_result(VARTYPE expected, VARIANT& result, bool succeeded) {
  if (!succeeded) expected = VT_EMPTY;
  const bool right = V_VT(&result) == expected || (expected == VT_VARIANT && V_VT(&result) == VT_EMPTY);
  if (!right) report.wrong("the type of a result", V_VT(&result));
  if (V_VT(&result) == VT_BSTR && !V_BSTR(&result)) report.wrong("a result without its text");
  if (right) VariantClear(&result);
}

void invoke(Life& life, const Callable& member) {
  Chance& chance = life.chance;
  static constexpr HRESULT known[] = {S_OK,
                                      DISP_E_EXCEPTION,
                                      DISP_E_MEMBERNOTFOUND,
                                      DISP_E_BADPARAMCOUNT,
                                      DISP_E_PARAMNOTFOUND,
                                      DISP_E_TYPEMISMATCH,
                                      DISP_E_OVERFLOW,
                                      DISP_E_BADVARTYPE,
                                      DISP_E_PARAMNOTOPTIONAL};
  const bool proper = !chance.one_in(3);
  const size_t wanted = member.parameters.size(),
               count = proper && !chance.one_in(4) ? wanted : chance.below(16);
  std::vector<Variable> variables(count);
  std::vector<VARIANT> arguments(count);
  std::vector<DISPID> named(proper ? 0 : chance.below(count + 1));
  for (size_t i = 0; i < count; ++i) {
    const size_t position = count - 1 - i;
    variables[i].value = proper && position < wanted && !chance.one_in(20)
                             ? life.value_of(member.types[position] & VT_TYPEMASK)
                             : life.value();
    arguments[i] = form_of(life, variables[i]);
  }
  for (size_t i = 0; i < named.size(); ++i)
    named[i] =
        chance.one_in(10) ? chance.number() : static_cast<DISPID>((i + chance.one_in(9)) % (wanted + 1));
  const auto before = arguments;
  DISPPARAMS parameters = {arguments.data(), named.data(), static_cast<UINT>(count),
                           static_cast<UINT>(named.size())};
  VARIANT result;
  std::memset(&result, 0xCD, sizeof result);
  EXCEPINFO raised;
  std::memset(&raised, 0xCD, sizeof raised);
  UINT index = 99;
  const DISPID id = chance.one_in(30) ? member.id + chance.number() : member.id;
  const bool whole = !chance.one_in(6), wants_result = !chance.one_in(6);
  std::string kinds;
  for (const VARIANT& argument : arguments) kinds += " " + std::to_string(V_VT(&argument));
  report.begin("Invoke", member.name.c_str(), kinds);
  const HRESULT status = life.raw<IDispatch>()->Invoke(
      id, IID_NULL, chance.of<LCID>({0x409, 0x407, 0, 0x400, 0x800, 0xFFFF}),
      chance.of<WORD>({1, 2, 3, 3, 3, 3, 4, 0, 15}), &parameters, wants_result ? &result : nullptr,
      whole ? &raised : nullptr, whole ? &index : nullptr);
  if (std::ranges::find(known, status) == std::end(known)) report.wrong("Invoke's answer", status);
  if (wants_result && id == member.id) check_result(member.types.back(), result, status == S_OK);
  if (wants_result && id != member.id) VariantClear(&result);
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

// The slot itself, with null references, too.
void call_slot(Life& life, const Callable& member, size_t slot) {
  const size_t count = member.types.size();
  std::vector<Variable> variables(count);
  std::vector<VARIANT> arguments(count);
  std::vector<VARIANT*> places(count);
  auto types = member.types;
  types.back() |= VT_BYREF;
  for (size_t i = 0; i < count; ++i) {
    const VARTYPE type = types[i] & ~VT_BYREF;
    places[i] = &arguments[i];
    if (i + 1 < count) variables[i].value = life.value_of(type);
    arguments[i] = types[i] & VT_BYREF ? variables[i].refer(i + 1 < count ? type : VARTYPE{VT_VARIANT})
                                       : variables[i].value;
    if (types[i] & VT_BYREF && life.chance.one_in(25)) V_BYREF(&arguments[i]) = nullptr;
  }
  alignas(VARIANT) unsigned char result[sizeof(VARIANT)], zero[sizeof(VARIANT)] = {};
  std::memset(result, 0xCD, sizeof result);
  VARIANT code = {};
  const bool wants_result = V_BYREF(&arguments.back()) != nullptr;
  if (wants_result) V_BYREF(&arguments.back()) = result;
  life.set_error_info();
  report.begin("slot", member.name.c_str());
  DispCallFunc(life.raw<IDispatch>(outside::guid(life.ids->interface_id)), (7 + slot) * sizeof(void*),
               CC_STDCALL, VT_ERROR, static_cast<UINT>(count), types.data(), places.data(), &code);
  const bool failed = FAILED(V_ERROR(&code));
  ComPtr<IErrorInfo> information;
  BSTR source = nullptr, text = nullptr;
  if (failed && GetErrorInfo(0, &information) == S_OK)
    information->GetSource(&source), information->GetDescription(&text);
  if (failed && utf8({source, SysStringLen(source)}) != "ZORBOffice")
    report.wrong("another failure's information", V_ERROR(&code));
  if (failed) SysFreeString(source), check_text("a failure without a text", text);
  if (!wants_result) return;
  const VARTYPE type = member.types.back();
  const size_t size = type == VT_UI1       ? 1
                      : type == VT_I4      ? 4
                      : type == VT_BSTR    ? sizeof(BSTR)
                      : type == VT_VARIANT ? 8
                                           : 2;
  if (failed && std::memcmp(result, zero, type == VT_VARIANT ? 2 : size) != 0)
    report.wrong("a failed call's result");
  if (type != VT_VARIANT && result[size] != 0xCD) report.wrong("memory behind the result was written");
  if (type == VT_BSTR && !failed) {
    if (!*reinterpret_cast<BSTR*>(result)) report.wrong("a slot's result without its text");
    SysFreeString(*reinterpret_cast<BSTR*>(result));
  }
}

void find_names(Life& life, const Callable& member) {
  Chance& chance = life.chance;
  std::vector<std::wstring> texts = {member.name};
  for (size_t i = chance.below(5); i > 0; --i)
    texts.push_back(member.parameters.empty() || chance.one_in(5) ? chance.text()
                                                                  : chance.of(member.parameters));
  if (chance.one_in(4)) texts[0] = chance.text();
  if (chance.one_in(2)) CharUpperW(texts[0].data());
  std::vector<wchar_t*> names;
  for (auto& text : texts) names.push_back(chance.one_in(40) ? nullptr : text.data());
  constexpr DISPID unset = 0x5A5A5A5A;
  std::vector<DISPID> found(names.size() + 1, unset);
  report.begin("GetIDsOfNames", member.name.c_str());
  const HRESULT status = life.raw<IDispatch>()->GetIDsOfNames(
      IID_NULL, names.data(), static_cast<UINT>(names.size()), 0, found.data());
  const auto unknown = std::ranges::count(found, DISPID_UNKNOWN);
  if (status != (unknown ? DISP_E_UNKNOWNNAME : S_OK)) report.wrong("GetIDsOfNames' answer", status);
  if (std::ranges::count(found, unset) != 1 || found.back() != unset)
    report.wrong("identifiers were left unset");
}

}  // namespace

void call_automation(Life& life) {
  const auto& members = callables_of(*life.ids);
  const size_t slot = life.chance.below(members.size());
  const size_t way = life.chance.below(20);
  if (way == 0) return find_names(life, members[slot]);
  if (way < 7) return call_slot(life, members[slot], slot);
  invoke(life, members[slot]);
}
