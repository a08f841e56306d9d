#include "fake_object.h"

#include <gtest/gtest.h>
#include <wrl/client.h>

#include <algorithm>

#include "office_model.h"
#include "text.h"

namespace {

const std::map<WORD, const char*> invocations = {{DISPATCH_METHOD | DISPATCH_PROPERTYGET, "get "},
                                                 {DISPATCH_METHOD, "call "},
                                                 {DISPATCH_PROPERTYPUT, "put "}};
const std::map<VARTYPE, const char*> kinds = {{VT_UI1, "ui1 "},   {VT_I2, "i2 "},    {VT_I4, "i4 "},
                                              {VT_INT, "int "},   {VT_R4, "r4 "},    {VT_R8, "r8 "},
                                              {VT_BOOL, "bool "}, {VT_DATE, "date "}};

std::string known_as(const auto& table, WORD key) {
  const auto found = table.find(key);
  return found == table.end() ? "[" + std::to_string(key) + "] " : found->second;
}

// The failure under way: a fill-in function is called after Invoke has returned and takes no context.
Failure due;

HRESULT WINAPI fill_in(EXCEPINFO* info) {
  info->scode = due.scode;
  info->wCode = due.code;
  info->bstrDescription = SysAllocString(due.description);
  return S_OK;
}

void change(const DISPPARAMS& parameters) {
  for (UINT i = 0; i < parameters.cArgs; ++i) {
    const VARIANT& argument = parameters.rgvarg[i];
    if (argument.vt == (VT_BYREF | VT_I2)) *argument.piVal *= 10;
    if (argument.vt == (VT_BYREF | VT_I4)) *argument.plVal *= 10;
    if (argument.vt == (VT_BYREF | VT_BSTR))
      SysReAllocString(argument.pbstrVal, (std::wstring(*argument.pbstrVal) + L"!").c_str());
  }
}

// Counts references and, with its office, living objects.
template <class Interface>
class Recorded : public Interface {
 public:
  Recorded(FakeOffice& office, std::string name) : office_(office), name_(std::move(name)) { ++office_.live; }
  virtual ~Recorded() { --office_.live; }

  HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == IID_IUnknown || iid == __uuidof(Interface);
    *object = known ? this : nullptr;
    if (known) this->AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG WINAPI AddRef() override { return ++references_; }
  ULONG WINAPI Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  FakeOffice& office_;
  const std::string name_;

 private:
  ULONG references_ = 1;
};

class FakeEnumerator final : public Recorded<IEnumVARIANT> {
 public:
  FakeEnumerator(FakeOffice& office, const std::string& name, const std::string& element,
                 std::vector<const char*> items)
      : Recorded(office, name), element_(element), items_(std::move(items)) {}

  HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
    if (const HRESULT turned_away = office_.gate(); FAILED(turned_away)) return turned_away;
    return Recorded::QueryInterface(iid, object);
  }
  HRESULT WINAPI Next(ULONG count, VARIANT* values, ULONG* fetched) override {
    if (const HRESULT turned_away = office_.gate(); FAILED(turned_away)) return turned_away;
    const std::string line = "next " + name_;
    if (const HRESULT failed = office_.step(line); FAILED(failed)) return failed;
    ULONG given = 0;
    for (; given < count && position_ < items_.size(); ++given)
      office_.answer(office_.log.size(), line, _variant_t(office_.make(items_[position_++], element_), false),
                     &values[given]);
    if (fetched) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT WINAPI Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT WINAPI Reset() override { return E_NOTIMPL; }
  HRESULT WINAPI Clone(IEnumVARIANT**) override { return E_NOTIMPL; }

 private:
  const std::string element_;
  const std::vector<const char*> items_;
  size_t position_ = 0;
};

class FakeObject final : public Recorded<IDispatch> {
 public:
  FakeObject(FakeOffice& office, const std::string& name, const std::string& type)
      : Recorded(office, name), type_(type) {
    static int made = 0;
    const bool by_type = office_kind() == Office::published || office_kind() == Office::unloadable;
    if (office_kind() != Office::plain) shift_ = shift_of(by_type ? type_ : std::to_string(++made));
    // The first name tells a library that is not the object's own.
    if (office_kind() == Office::stale && shift_ == shift_of(type_)) ++shift_;
  }

  HRESULT WINAPI GetTypeInfoCount(UINT* count) override {
    const auto refused = office_.refused.find(name_);
    *count = 0;
    return refused == office_.refused.end() ? S_OK : refused->second;
  }
  HRESULT WINAPI GetTypeInfo(UINT, LCID, ITypeInfo** information) override {
    if (const HRESULT turned_away = office_.gate(); FAILED(turned_away)) return turned_away;
    *information = published().Detach();
    return *information ? S_OK : E_NOTIMPL;
  }
  HRESULT WINAPI GetIDsOfNames(REFIID iid, LPOLESTR* asked, UINT count, LCID, DISPID* identifiers) override {
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (const HRESULT turned_away = office_.gate(); FAILED(turned_away)) return turned_away;
    const auto name = utf8(asked[0]);
    // The first name is what a session's root object is asked, to see whether the library is its own.
    const bool is_first = name == model_names().front() || refused_.contains(name);
    if (office_kind() == Office::published && !is_first)
      EXPECT_FALSE(published()) << name_ << " was asked for " << name;
    identifiers[0] = name == "_NewEnum" ? DISPID_NEWENUM : model_identifier(name, shift_);
    for (UINT i = 1; i < count; ++i) identifiers[i] = argument_identifier(name, utf8(asked[i]));
    const auto refused = office_.refused.find(name_ + "." + name);
    if (refused == office_.refused.end()) {
      // The one Global object of the process is called from every apartment: each call learns its names.
      EXPECT_TRUE(asked_.insert(name).second || type_ == "Global" || office_.forgets)
          << name_ << " was asked twice for " << name;
      return S_OK;
    }
    identifiers[0] = DISPID_UNKNOWN;
    return refused->second;
  }
  HRESULT WINAPI Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* info, UINT*) override {
    if (const HRESULT turned_away = office_.gate(); FAILED(turned_away)) return turned_away;
    const std::string own_name = name_of(member), path = name_ + "." + own_name;
    EXPECT_NE(own_name, "") << name_ << " was called by another object's number";
    if (const auto refused = office_.refused.find(path); refused != office_.refused.end())
      return refused->second;
    std::string arguments, put_value;
    const auto add = [&](const std::string& text) { arguments += (arguments.empty() ? "(" : ", ") + text; };
    // Named arguments come first in the array, positional ones after them from the last to the first.
    const UINT named = parameters->cNamedArgs;
    for (UINT i = parameters->cArgs; i-- > named;) add(describe(parameters->rgvarg[i]));
    for (UINT i = 0; i < named; ++i) {
      const DISPID name = parameters->rgdispidNamedArgs[i];
      const std::string value = "=" + describe(parameters->rgvarg[i]);
      if (name == DISPID_PROPERTYPUT) put_value = value;
      if (name != DISPID_PROPERTYPUT) add(argument_name(own_name, name) + ":" + value);
    }
    if (!arguments.empty()) arguments += ")";
    const auto& known = office_.answers;
    auto found = known.find(path + arguments);
    if (found == known.end()) found = known.find(path);
    Answer answer = found == known.end() ? Answer{} : found->second;
    if (!answer.object && answer.value.vt == VT_EMPTY && office_.objects.contains(own_name))
      answer.object = own_name.c_str();

    const std::string line = known_as(invocations, flags) + path + arguments + put_value;
    if (const HRESULT failed = office_.step(line, info); FAILED(failed)) {
      if (failed == DISP_E_MEMBERNOTFOUND) asked_.erase(own_name), refused_.insert(own_name);
      return failed;
    }
    const size_t number = office_.log.size();
    if (answer.effect) answer.effect(*parameters);
    if (office_.writes) change(*parameters);
    if (!result) return S_OK;
    _variant_t given = answer.value;
    if (answer.object) {
      const auto made = declared_answer(type_, own_name + arguments, 0);
      const auto declared = declared_answer(type_, own_name, parameters->cArgs);
      given = _variant_t(office_.make(answer.object, made.empty() ? declared : made), false);
    }
    if (member == DISPID_NEWENUM)
      given = _variant_t(static_cast<IUnknown*>(new FakeEnumerator(
                             office_, name_, declared_answer(type_, "[value]", 1), answer.items)),
                         false);
    office_.answer(number, line, std::move(given), result);
    return S_OK;
  }

 private:
  std::string name_of(DISPID identifier) const {
    if (identifier == DISPID_VALUE) return "[value]";
    if (identifier == DISPID_NEWENUM) return "[newenum]";
    return model_name(identifier, shift_);
  }
  Microsoft::WRL::ComPtr<ITypeInfo> published() const {
    return office_.publishes ? published_type(type_) : nullptr;
  }
  // A published type numbers a member's arguments by their places.
  bool numbers_places(const std::string& member) const {
    return published() && !argument_names(member).empty();
  }
  DISPID argument_identifier(const std::string& member, const std::string& name) const {
    const auto& names = argument_names(member);
    if (!numbers_places(member)) return model_identifier(name, shift_);
    return static_cast<DISPID>(std::ranges::find(names, name) - names.begin());
  }
  std::string argument_name(const std::string& member, DISPID identifier) const {
    return numbers_places(member) ? argument_names(member).at(identifier) : model_name(identifier, shift_);
  }

  const std::string type_;
  int shift_ = 0;
  std::set<std::string> asked_, refused_;  // names
};

// The type of an object that is declared as any: an item's by its class, otherwise its own.
std::string type_of(const FakeOffice& office, const std::string& name) {
  static const std::map<long, const char*> items = {
      {26, "AppointmentItem"}, {40, "ContactItem"}, {43, "MailItem"}, {44, "NoteItem"}, {48, "TaskItem"}};
  const auto answer = office.answers.find(name + ".Class");
  const auto item = answer == office.answers.end() ? items.end() : items.find(answer->second.value);
  return item == items.end() ? name : item->second;
}

}  // namespace

IDispatch* FakeOffice::make(const std::string& name, const std::string& type) {
  return new FakeObject(*this, name, type.empty() ? type_of(*this, name) : type);
}

HRESULT FakeOffice::step(const std::string& line, EXCEPINFO* info) {
  EXPECT_EQ(GetCurrentThreadId(), apartment) << line;
  log.push_back(line);
  if (log.size() != fail_at) return S_OK;
  due = failure;
  // Outside of Invoke a failure's text travels as the thread's error object.
  if (const auto* text = info ? due.error_info : due.description) {
    Microsoft::WRL::ComPtr<ICreateErrorInfo> description;
    Microsoft::WRL::ComPtr<IErrorInfo> error;
    CreateErrorInfo(&description);
    description->SetDescription(const_cast<wchar_t*>(text));
    description.As(&error);
    SetErrorInfo(0, error.Get());
  }
  if (due.result != DISP_E_EXCEPTION) return due.result;
  if (!info) return static_cast<HRESULT>(due.scode);
  *info = {};
  if (due.deferred) {
    info->pfnDeferredFillIn = fill_in;
  } else {
    fill_in(info);
  }
  return due.result;
}

void FakeOffice::answer(size_t number, const std::string& line, _variant_t value, VARIANT* result) {
  if (fail_at == 0) answered[{number, line}] = value.vt;
  *result = (number == fail_at ? _variant_t(failure.answer) : value).Detach();
}

std::string describe(const VARIANT& value) {
  VARIANT copy = {}, text = {};
  if (V_ISBYREF(&value)) {
    if (!value.byref) return "&null";
    if (value.vt == (VT_BYREF | VT_VARIANT)) return "&variant " + describe(*value.pvarVal);
    if (value.vt == (VT_BYREF | VT_ARRAY | VT_VARIANT))
      return *value.pparray ? "&array" : "&array never dimensioned";
    VariantCopyInd(&copy, const_cast<VARIANT*>(&value));
    return "&" + describe(_variant_t(copy, false));
  }
  if (value.vt == VT_EMPTY) return "empty";
  if (value.vt == VT_NULL) return "null";
  if (value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND) return "missing";
  if (value.vt == VT_DISPATCH) return value.pdispVal ? "object" : "nothing";
  if (value.vt == VT_BSTR) return "bstr \"" + utf8({value.bstrVal, SysStringLen(value.bstrVal)}) + "\"";
  copy = value;
  if (copy.vt == VT_BOOL) copy.vt = VT_I2;  // shows every bit: a flag must be 0 or -1
  VariantChangeTypeEx(&text, &copy, LOCALE_INVARIANT, 0, VT_BSTR);
  const _variant_t owner(text, false);
  return known_as(kinds, value.vt) + utf8({text.bstrVal, SysStringLen(text.bstrVal)});
}
