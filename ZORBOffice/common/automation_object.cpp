#include "ZORBOffice/common/automation_object.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "ZORBOffice/common/busy_server.h"
#include "ZORBOffice/common/failure.h"

namespace zorboffice {
namespace {

constexpr std::size_t max_arguments = 12;

using Arguments = std::initializer_list<Argument>;

// What an earlier call left in the thread's error information must not describe the next one's failure.
void forget_earlier_failure() { SetErrorInfo(0, nullptr); }

MemberId ask(IDispatch* object, Names names) {
  std::array<DISPID, max_named_arguments + 1> ids;
  ids.fill(DISPID_UNKNOWN);
  const HRESULT result = until_taken([&] {
    forget_earlier_failure();
    return object->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(names.data()),
                                 static_cast<UINT>(names.size()), LOCALE_USER_DEFAULT, ids.data());
  });
  if (result == DISP_E_UNKNOWNNAME && ids[0] != DISPID_UNKNOWN) {
    throw_runtime_error(runtime_error::named_argument_not_found);
  }
  check(result);
  MemberId id{ids[0]};
  std::copy(ids.begin() + 1, ids.end(), id.named_arguments.begin());
  return id;
}

// Every name that reaches an office application is looked up here: in what is known of the object, otherwise
// by asking it. was_known tells which.
MemberId look_up(const Callee& callee, Names names, bool& was_known) {
  const MemberId* const found = callee.names ? callee.names->find(names) : nullptr;
  was_known = found != nullptr;
  if (found) return *found;
  const MemberId asked = ask(callee.object, names);
  if (callee.names) callee.names->remember(names, asked);
  return asked;
}

HRESULT try_to_invoke(IDispatch* object, DISPID member, WORD flags, DISPPARAMS& parameters, VARIANT* result) {
  EXCEPINFO information{};
  UINT argument = 0;
  const HRESULT status = until_taken([&] {
    forget_earlier_failure();
    return object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &information,
                          &argument);
  });
  if (status == DISP_E_EXCEPTION) throw_exception_info(information);
  return status;
}

void invoke(IDispatch* object, DISPID member, WORD flags, DISPPARAMS& parameters, VARIANT* result) {
  check(try_to_invoke(object, member, flags, parameters, result));
}

// parameters: the named arguments' identifiers are filled in here where names holds any.
void invoke(const Callee& callee, Names names, WORD flags, DISPPARAMS& parameters, Result* result) {
  VARIANT* const answer = result ? result->receive() : nullptr;
  bool was_known = false;
  MemberId id = look_up(callee, names, was_known);
  const auto call = [&] {
    if (names.size() > 1) parameters.rgdispidNamedArgs = id.named_arguments.data();
    return try_to_invoke(callee.object, id.member, flags, parameters, answer);
  };
  HRESULT status = call();
  if (status == DISP_E_MEMBERNOTFOUND && was_known) {
    // Nothing has run. The object may number its members in a way of its own.
    const DISPID refused = std::exchange(id, ask(callee.object, names)).member;
    callee.names->remember(names, id);
    if (id.member != refused) status = call();
  }
  check(status);
  if (!result || !callee.names) return;
  // Arguments beyond those of a property go to the default member of what it answers.
  const bool goes_on = id.answer && parameters.cArgs > static_cast<UINT>(id.parameters);
  result->set_type(goes_on ? id.answer->element() : id.answer, callee.names->types());
}

// Named arguments stand before the positional ones, which stand last to first.
void invoke(const Callee& callee, const wchar_t* name, WORD flags, Arguments arguments, Result* result) {
  if (!callee.object) throw_runtime_error(runtime_error::object_required);
  std::array<const wchar_t*, max_named_arguments + 1> names{name};
  std::array<VARIANT, max_arguments> values;
  if (arguments.size() > max_arguments) throw_hresult(DISP_E_BADPARAMCOUNT);
  UINT named = 0;
  for (const Argument& argument : arguments) {
    if (!argument.name()) continue;
    if (named == max_named_arguments) throw_hresult(DISP_E_BADPARAMCOUNT);
    values[named++] = argument.value();
    names[named] = argument.name();
  }
  UINT count = named;
  for (std::size_t i = arguments.size(); i-- > 0;) {
    const Argument& argument = arguments.begin()[i];
    if (!argument.name()) values[count++] = argument.value();
  }
  DISPPARAMS parameters{values.data(), nullptr, count, named};
  invoke(callee, Names(names.data(), named + 1), flags, parameters, result);
}

ComPtr<IDispatch> created(const CLSID& class_id) {
  ComPtr<IDispatch> root;
  check(until_taken([&] {
    forget_earlier_failure();
    return CoCreateInstance(class_id, nullptr, CLSCTX_SERVER, IID_IDispatch, root.receive_void());
  }));
  return root;
}

CLSID class_of(const wchar_t* program_id) {
  forget_earlier_failure();
  CLSID class_id;
  check(CLSIDFromProgID(program_id, &class_id));
  return class_id;
}

}  // namespace

Result Callee::get(const wchar_t* name, Arguments arguments) const {
  Result result;
  invoke(*this, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, &result);
  return result;
}

void Callee::put(const wchar_t* name, const Argument& value) const {
  if (!object) throw_runtime_error(runtime_error::object_required);
  VARIANT stored = value.value();
  DISPID property_put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&stored, &property_put, 1, 1};
  invoke(*this, Names(&name, 1), DISPATCH_PROPERTYPUT, parameters, nullptr);
}

void Callee::call(const wchar_t* name, Arguments arguments) const {
  invoke(*this, name, DISPATCH_METHOD, arguments, nullptr);
}

AutomationObject::AutomationObject(IDispatch* object)
    : AutomationObject(ComPtr<IDispatch>(object), MemberNames::of_object(nullptr, nullptr)) {}

AutomationObject AutomationObject::create(const wchar_t* program_id) { return create(class_of(program_id)); }

AutomationObject AutomationObject::create(const CLSID& class_id) {
  AutomationObject root(created(class_id).get());
  if (const auto type = PublishedTypes::of_root(root.object_.get(), *root.names_.get())) root.names_ = type;
  return root;
}

AutomationObject AutomationObject::create_untyped(const wchar_t* program_id) {
  return AutomationObject(created(class_of(program_id)).get());
}

AutomationObject AutomationObject::known_as(const wchar_t* class_name) const {
  PublishedTypes* const types = names_ ? names_->types() : nullptr;
  MemberNames* const type = types ? types->type(class_name) : nullptr;
  if (!type) return *this;
  if (!names_->is_of_one_object()) return AutomationObject(object_, ComPtr<MemberNames>(type));
  names_->declare(type);
  return *this;
}

AutomationObject AutomationObject::keeping_names() && {
  if (names_ && !names_->is_of_one_object()) names_ = MemberNames::of_object(names_->types(), names_.get());
  return std::move(*this);
}

const AutomationObject& AutomationObject::typed() const {
  if (!object_) throw_runtime_error(runtime_error::object_variable_not_set);
  return *this;
}

Result AutomationObject::get_common(const wchar_t* name) const {
  PublishedTypes* const types = names_ ? names_->types() : nullptr;
  const DISPID id = types ? types->common_id(name) : DISPID_UNKNOWN;
  if (id != DISPID_UNKNOWN) names_->remember(Names(&name, 1), MemberId{id});
  return get(name);
}

IDispatch* Result::dispatch(ComPtr<IDispatch>& room) const {
  const VARIANT& value = value_.get();
  if (V_VT(&value) == VT_DISPATCH) return V_DISPATCH(&value);
  if (V_VT(&value) != VT_UNKNOWN) throw_runtime_error(runtime_error::object_required);
  if (V_UNKNOWN(&value))
    check(until_taken([&] { return V_UNKNOWN(&value)->QueryInterface(IID_IDispatch, room.receive_void()); }));
  return room.get();
}

Callee Result::callee(ComPtr<IDispatch>& room) const {
  IDispatch* const object = dispatch(room);
  if (!object) throw_runtime_error(runtime_error::object_variable_not_set);
  return {object, type_.get()};
}

AutomationObject Result::object() const {
  AutomationObject object = object_or_nothing();
  if (!object) throw_runtime_error(runtime_error::object_variable_not_set);
  return object;
}

AutomationObject Result::object_or_nothing() const {
  ComPtr<IDispatch> room;
  IDispatch* const object = dispatch(room);
  if (!object) return {};
  return AutomationObject(ComPtr<IDispatch>(object),
                          type_ ? type_ : MemberNames::of_object(types_.get(), nullptr));
}

Variant Result::converted_to(VARTYPE type) const {
  Result default_property;
  const Result* source = this;
  if (value_.type() == VT_DISPATCH) {
    DISPPARAMS none{};
    ComPtr<IDispatch> room;
    invoke(callee(room).object, DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none,
           default_property.receive());
    // The platform's conversion has a failure of its own for Nothing.
    if (default_property.value_.type() == VT_DISPATCH) default_property.callee(room);
    source = &default_property;
  }
  Variant converted;
  check(VariantChangeTypeEx(converted.receive(), const_cast<VARIANT*>(&source->value()), LOCALE_USER_DEFAULT,
                            VARIANT_ALPHABOOL, type));
  return converted;
}

Bstr Result::text() && {
  VARIANT converted = value_.type() == VT_BSTR ? value_.release() : converted_to(VT_BSTR).release();
  return Bstr::adopt(V_BSTR(&converted));
}

const VARIANT& Result::as(VARTYPE type, Variant& room) const {
  if (value_.type() == type) return value_.get();
  room = converted_to(type);
  return room.get();
}

LONG Result::int32() const {
  Variant room;
  return V_I4(&as(VT_I4, room));
}

SHORT Result::int16() const {
  const VARIANT& value = value_.get();
  if (V_VT(&value) == VT_I4 && V_I4(&value) == static_cast<SHORT>(V_I4(&value)))
    return static_cast<SHORT>(V_I4(&value));
  Variant room;
  return V_I2(&as(VT_I2, room));
}

float Result::single() const {
  Variant room;
  return V_R4(&as(VT_R4, room));
}

DATE Result::date() const {
  Variant room;
  return V_DATE(&as(VT_DATE, room));
}

bool Result::flag() const {
  Variant room;
  return value_.type() != VT_NULL && V_BOOL(&as(VT_BOOL, room)) != VARIANT_FALSE;
}

Enumerator::Enumerator(const AutomationObject& collection) {
  if (!collection) throw_runtime_error(runtime_error::object_required);
  Result enumerator;
  DISPPARAMS none{};
  const Callee callee = collection.callee();
  invoke(callee.object, DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none, enumerator.receive());
  const VARIANT& value = enumerator.value();
  if (V_VT(&value) != VT_UNKNOWN && V_VT(&value) != VT_DISPATCH) throw_hresult(DISP_E_NOTACOLLECTION);
  if (!V_UNKNOWN(&value)) throw_runtime_error(runtime_error::object_variable_not_set);
  const HRESULT asked = until_taken(
      [&] { return V_UNKNOWN(&value)->QueryInterface(IID_IEnumVARIANT, elements_.receive_void()); });
  if (FAILED(asked)) throw_hresult(asked == E_NOINTERFACE ? DISP_E_NOTACOLLECTION : asked);
  if (!callee.names) return;
  type_ = ComPtr<MemberNames>(callee.names->element());
  types_ = ComPtr<PublishedTypes>(callee.names->types());
}

bool Enumerator::next(Result& element) const {
  Result following;
  ULONG fetched = 0;
  const HRESULT status = until_taken([&] {
    forget_earlier_failure();
    return elements_->Next(1, following.receive(), &fetched);
  });
  check(status);
  if (status != S_OK || fetched != 1) return false;
  following.set_type(type_.get(), types_.get());
  element = std::move(following);
  return true;
}

}  // namespace zorboffice
