// An object of an office application, driven by member name.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <concepts>
#include <initializer_list>

#include "ZORBOffice/common/argument.h"
#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/common/variant.h"

namespace zorboffice {

class Result;

// Arguments are positional unless named; positional ones come first. Every operation throws Failure.
class AutomationObject {
 public:
  AutomationObject() = default;  // no object
  explicit AutomationObject(IDispatch* object) : object_(object) {}

  // Creates an object of a class, named by its identifier or by a program identifier. Always a new one.
  static AutomationObject create(const wchar_t* program_id);
  static AutomationObject create(const CLSID& class_id);

  // Reads a property, or calls a method and takes its result.
  template <std::convertible_to<Argument>... Arguments>
  Result get(const wchar_t* name, Arguments&&... arguments) const;

  // Writes a property; the value keeps its variant kind.
  void put(const wchar_t* name, const Argument& value) const;

  // Calls a method and takes no result.
  template <std::convertible_to<Argument>... Arguments>
  void call(const wchar_t* name, Arguments&&... arguments) const {
    call_with(name, {Argument(arguments)...});
  }

  // Calls visit with every element of a collection, in the collection's order.
  template <class Visit>
  void for_each(Visit&& visit) const;

  // This object; throws "Object variable … not set" where there is none. Without it, an operation on no
  // object throws "Object required", as it does for a variable without a type.
  const AutomationObject& typed() const;

  explicit operator bool() const { return static_cast<bool>(object_); }
  bool operator==(const AutomationObject& other) const { return dispatch() == other.dispatch(); }
  IDispatch* dispatch() const { return object_.get(); }  // not counted

  // This object as a variable that a call gets by reference: the called side may put another object into it.
  IDispatch** variable() { return object_.receive(); }

 private:
  Result get_with(const wchar_t* name, std::initializer_list<Argument> arguments) const;
  void call_with(const wchar_t* name, std::initializer_list<Argument> arguments) const;

  ComPtr<IDispatch> object_;
};

// What a get returned.
class Result {
 public:
  Result() = default;
  Result(Result&&) = default;
  Result& operator=(Result&&) = default;

  // The object in it: "Object required" where it holds none, "Object variable … not set" where it is Nothing.
  AutomationObject object() const;

  // The same, where Nothing gives no object.
  AutomationObject object_or_nothing() const;

  // The value, converted as the platform converts; an object's is its default property.
  Bstr text() const;
  LONG int32() const;
  SHORT int16() const;
  float single() const;
  DATE date() const;
  bool flag() const;  // null counts as false

  // Chains go on without a step between.
  template <class... Arguments>
  Result get(const wchar_t* name, Arguments&&... arguments) const {
    return object().get(name, arguments...);
  }
  template <class... Arguments>
  void call(const wchar_t* name, Arguments&&... arguments) const {
    object().call(name, arguments...);
  }
  void put(const wchar_t* name, const Argument& value) const { object().put(name, value); }

  const VARIANT& value() const { return value_.get(); }
  VARIANT* receive() { return value_.receive(); }

 private:
  Variant converted_to(VARTYPE type) const;

  Variant value_;
};

// Walks a collection as For Each does, one element a step.
class Enumerator {
 public:
  // Throws "Object not a collection" where there is nothing to walk.
  explicit Enumerator(const AutomationObject& collection);

  // Returns whether there was a further element, and stores it.
  bool next(Result& element) const;

 private:
  ComPtr<IEnumVARIANT> elements_;
};

template <std::convertible_to<Argument>... Arguments>
Result AutomationObject::get(const wchar_t* name, Arguments&&... arguments) const {
  return get_with(name, {Argument(arguments)...});
}

template <class Visit>
void AutomationObject::for_each(Visit&& visit) const {
  const Enumerator elements(*this);
  for (Result element; elements.next(element);) visit(element);
}

}  // namespace zorboffice
