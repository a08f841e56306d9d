#include "bench/control.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace bench {
namespace {

using zorboffice::ComPtr;
using zorboffice::Parameter;

VARIANT value_of(const std::variant<int, bool, const wchar_t*>& argument) {
  VARIANT value{};
  if (const auto* number = std::get_if<int>(&argument)) {
    V_VT(&value) = VT_I4;
    V_I4(&value) = *number;
  } else if (const auto* flag = std::get_if<bool>(&argument)) {
    V_VT(&value) = VT_BOOL;
    V_BOOL(&value) = *flag ? VARIANT_TRUE : VARIANT_FALSE;
  } else {
    V_VT(&value) = VT_BSTR;
    V_BSTR(&value) = SysAllocString(std::get<const wchar_t*>(argument));
  }
  return value;
}

VARIANT default_of(const Parameter& parameter) {
  VARIANT value{};
  V_VT(&value) = VT_I2;
  V_I2(&value) = parameter.default_value;
  if (parameter.type != VT_BSTR) return value;
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = SysAllocString(L"");
  return value;
}

bool is_failure(const VARIANT& result) {
  return (V_VT(&result) == VT_UI1 && V_UI1(&result) == 0) || (V_VT(&result) == VT_BOOL && !V_BOOL(&result));
}

}  // namespace

ReadyCall::ReadyCall(const MeasuredClass& measured, const HostCall& call) {
  const auto found =
      std::ranges::find(measured.table, std::wstring_view(call.member), &zorboffice::Member::name);
  if (found == measured.table.end()) throw std::logic_error("no such member");
  member_ = &*found;
  for (std::size_t i = 0; i < member_->parameters.size(); ++i) {
    const Parameter& parameter = member_->parameters.begin()[i];
    const bool given = i < call.arguments.size();
    if (given) arguments_.insert(arguments_.begin(), value_of(call.arguments[i]));
    VARIANT& cell = cells_.emplace_back(given ? value_of(call.arguments[i]) : default_of(parameter));
    if (parameter.type != VT_VARIANT) VariantChangeType(&cell, &cell, 0, parameter.type);
  }
  cells_.push_back({});
}

ReadyCall::~ReadyCall() {
  for (VARIANT& value : arguments_) VariantClear(&value);
  for (VARIANT& value : cells_) VariantClear(&value);
}

HRESULT ReadyCall::by_vtable(IDispatch* object) {
  VARIANT& result = cells_.back();
  V_VT(&result) = VT_EMPTY;
  const HRESULT status = member_->call.invoke(object, cells_.data());
  if (member_->result == VT_BSTR) SysFreeString(V_BSTR(&result));
  return status;
}

HRESULT ReadyCall::by_invoke(IDispatch* object) {
  DISPPARAMS parameters{arguments_.data(), nullptr, static_cast<UINT>(arguments_.size()), 0};
  VARIANT result{};
  EXCEPINFO information{};
  UINT argument = 0;
  const HRESULT status =
      object->Invoke(member_->id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                     &parameters, &result, &information, &argument);
  VariantClear(&result);
  return status;
}

void ReadyCall::require(IDispatch* object) {
  const HRESULT status = by_vtable(object);
  VARIANT result = cells_.back();
  if (member_->result != VT_VARIANT) V_VT(&result) = member_->result;
  // NewEmail answers false always, and there may be no printer for SaveDocAsPDF.
  const bool always_false = name() == "NewEmail" || name() == "SaveDocAsPDF";
  if (FAILED(status) || (is_failure(result) && !always_false)) throw std::runtime_error(name() + " fails");
}

std::string ReadyCall::name() const {
  const std::wstring_view wide = member_->name;
  return {wide.begin(), wide.end()};
}

HMODULE library() {
  static const HMODULE module = LoadLibraryW(L"ZORBOffice.ocx");
  if (!module) throw std::runtime_error("ZORBOffice.ocx does not stand beside this program");
  return module;
}

ComPtr<IDispatch> create(const CLSID& class_id) { return create_from(library(), class_id); }

ComPtr<IDispatch> create_from(HMODULE module, const CLSID& class_id) {
  using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
  const auto get = reinterpret_cast<GetClassObject>(GetProcAddress(module, "DllGetClassObject"));
  ComPtr<IClassFactory> factory;
  ComPtr<IDispatch> instance;
  if (!get || FAILED(get(class_id, IID_IClassFactory, factory.receive_void())) ||
      FAILED(factory->CreateInstance(nullptr, IID_IDispatch, instance.receive_void()))) {
    throw std::runtime_error("no instance");
  }
  return instance;
}

}  // namespace bench
