#include "ZORBOffice/common/automation_object.h"

#include <array>
#include <cstddef>

#include "ZORBOffice/common/failure.h"

namespace zorboffice {
namespace {

constexpr std::size_t max_arguments = 12;

using Arguments = std::initializer_list<Argument>;

struct Identifiers {
  DISPID member = DISPID_UNKNOWN;
  std::array<DISPID, max_arguments> named_arguments;
};

// What an earlier call left in the thread's error information must not describe the next one's failure.
void forget_earlier_failure() { SetErrorInfo(0, nullptr); }

// Every name that reaches an office application is looked up here.
Identifiers look_up(IDispatch* object, const wchar_t* name, Arguments arguments) {
  std::array<wchar_t*, max_arguments + 1> names;
  std::array<DISPID, max_arguments + 1> ids;
  UINT count = 0;
  names[count++] = const_cast<wchar_t*>(name);
  for (const Argument& argument : arguments) {
    if (argument.name()) names[count++] = const_cast<wchar_t*>(argument.name());
  }
  ids.fill(DISPID_UNKNOWN);
  forget_earlier_failure();
  const HRESULT result =
      object->GetIDsOfNames(IID_NULL, names.data(), count, LOCALE_USER_DEFAULT, ids.data());
  if (result == DISP_E_UNKNOWNNAME && ids[0] != DISPID_UNKNOWN) {
    throw_runtime_error(runtime_error::named_argument_not_found);
  }
  check(result);

  Identifiers identifiers{ids[0], {}};
  for (UINT i = 1; i < count; ++i) identifiers.named_arguments[i - 1] = ids[i];
  return identifiers;
}

void invoke(IDispatch* object, DISPID member, WORD flags, DISPPARAMS& parameters, VARIANT* result) {
  forget_earlier_failure();
  EXCEPINFO information{};
  UINT argument = 0;
  const HRESULT status = object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result,
                                        &information, &argument);
  if (status == DISP_E_EXCEPTION) throw_exception_info(information);
  check(status);
}

// Named arguments stand before the positional ones, which stand last to first.
void invoke(const AutomationObject& holder, const wchar_t* name, WORD flags, Arguments arguments,
            VARIANT* result) {
  if (!holder) throw_runtime_error(runtime_error::object_required);
  // Counted: while the call waits, the holder may let go of the object.
  const ComPtr<IDispatch> held(holder.dispatch());
  IDispatch* object = held.get();
  if (arguments.size() > max_arguments) throw_hresult(DISP_E_BADPARAMCOUNT);
  Identifiers identifiers = look_up(object, name, arguments);
  std::array<VARIANT, max_arguments> values;
  UINT named = 0;
  for (const Argument& argument : arguments) {
    if (argument.name()) values[named++] = argument.value();
  }
  UINT count = named;
  for (std::size_t i = arguments.size(); i-- > 0;) {
    const Argument& argument = arguments.begin()[i];
    if (!argument.name()) values[count++] = argument.value();
  }
  DISPPARAMS parameters{values.data(), identifiers.named_arguments.data(), count, named};
  invoke(object, identifiers.member, flags, parameters, result);
}

}  // namespace

AutomationObject AutomationObject::create(const wchar_t* program_id) {
  forget_earlier_failure();
  CLSID class_id;
  check(CLSIDFromProgID(program_id, &class_id));
  return create(class_id);
}

AutomationObject AutomationObject::create(const CLSID& class_id) {
  forget_earlier_failure();
  AutomationObject created;
  check(CoCreateInstance(class_id, nullptr, CLSCTX_SERVER, IID_IDispatch, created.object_.receive_void()));
  return created;
}

const AutomationObject& AutomationObject::typed() const {
  if (!object_) throw_runtime_error(runtime_error::object_variable_not_set);
  return *this;
}

Result AutomationObject::get_with(const wchar_t* name, Arguments arguments) const {
  Result result;
  invoke(*this, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, result.receive());
  return result;
}

void AutomationObject::call_with(const wchar_t* name, Arguments arguments) const {
  invoke(*this, name, DISPATCH_METHOD, arguments, nullptr);
}

void AutomationObject::put(const wchar_t* name, const Argument& value) const {
  if (!object_) throw_runtime_error(runtime_error::object_required);
  const ComPtr<IDispatch> held(object_);
  VARIANT stored = value.value();
  DISPID property_put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&stored, &property_put, 1, 1};
  invoke(held.get(), look_up(held.get(), name, {}).member, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

AutomationObject Result::object() const {
  AutomationObject object = object_or_nothing();
  if (!object) throw_runtime_error(runtime_error::object_variable_not_set);
  return object;
}

AutomationObject Result::object_or_nothing() const {
  const VARIANT& value = value_.get();
  if (V_VT(&value) != VT_DISPATCH && V_VT(&value) != VT_UNKNOWN)
    throw_runtime_error(runtime_error::object_required);
  if (!V_UNKNOWN(&value)) return {};
  if (V_VT(&value) == VT_DISPATCH) return AutomationObject(V_DISPATCH(&value));
  ComPtr<IDispatch> object;
  check(V_UNKNOWN(&value)->QueryInterface(IID_IDispatch, object.receive_void()));
  return AutomationObject(object.get());
}

Variant Result::converted_to(VARTYPE type) const {
  Result default_property;
  const Result* source = this;
  if (value_.type() == VT_DISPATCH) {
    DISPPARAMS none{};
    invoke(object().dispatch(), DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none,
           default_property.receive());
    source = &default_property;
  }
  Variant converted;
  check(VariantChangeTypeEx(converted.receive(), const_cast<VARIANT*>(&source->value()), LOCALE_USER_DEFAULT,
                            VARIANT_ALPHABOOL, type));
  return converted;
}

Bstr Result::text() const {
  VARIANT converted = converted_to(VT_BSTR).release();
  return Bstr::adopt(V_BSTR(&converted));
}

LONG Result::int32() const { return V_I4(&converted_to(VT_I4).get()); }
SHORT Result::int16() const { return V_I2(&converted_to(VT_I2).get()); }
float Result::single() const { return V_R4(&converted_to(VT_R4).get()); }
DATE Result::date() const { return V_DATE(&converted_to(VT_DATE).get()); }
bool Result::flag() const {
  return value_.type() != VT_NULL && V_BOOL(&converted_to(VT_BOOL).get()) != VARIANT_FALSE;
}

Enumerator::Enumerator(const AutomationObject& collection) {
  if (!collection) throw_runtime_error(runtime_error::object_required);
  Result enumerator;
  DISPPARAMS none{};
  invoke(collection.dispatch(), DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none,
         enumerator.receive());
  const VARIANT& value = enumerator.value();
  if (V_VT(&value) != VT_UNKNOWN && V_VT(&value) != VT_DISPATCH) throw_hresult(DISP_E_NOTACOLLECTION);
  if (!V_UNKNOWN(&value)) throw_runtime_error(runtime_error::object_variable_not_set);
  if (FAILED(V_UNKNOWN(&value)->QueryInterface(IID_IEnumVARIANT, elements_.receive_void()))) {
    throw_hresult(DISP_E_NOTACOLLECTION);
  }
}

bool Enumerator::next(Result& element) const {
  Result following;
  ULONG fetched = 0;
  forget_earlier_failure();
  const HRESULT status = elements_->Next(1, following.receive(), &fetched);
  check(status);
  if (status != S_OK || fetched != 1) return false;
  element = std::move(following);
  return true;
}

}  // namespace zorboffice
