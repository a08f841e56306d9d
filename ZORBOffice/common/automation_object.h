// An object of an office application, driven by member name.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <concepts>
#include <initializer_list>
#include <utility>

#include "ZORBOffice/common/argument.h"
#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/common/member_names.h"
#include "ZORBOffice/common/variant.h"

namespace zorboffice {

class Result;

// An object for the length of one call, and what is known of its members. Whoever makes it holds both. Every
// operation throws Failure.
struct Callee {
  IDispatch* object;   // null: "Object required"
  MemberNames* names;  // null where nothing is to be kept

  Result get(const wchar_t* name, std::initializer_list<Argument> arguments) const;
  void put(const wchar_t* name, const Argument& value) const;
  void call(const wchar_t* name, std::initializer_list<Argument> arguments) const;
};

// Arguments are positional unless named; positional ones come first. Every operation throws Failure.
class AutomationObject {
 public:
  AutomationObject() = default;                  // no object
  explicit AutomationObject(IDispatch* object);  // of an unknown type

  // Creates an object of a class, named by its identifier or by a program identifier. Always a new one. Where
  // the application publishes its types, the names of all that comes from the object are taken from there.
  static AutomationObject create(const wchar_t* program_id);
  static AutomationObject create(const CLSID& class_id);

  // The same for an application whose objects number their members each by itself, whatever it publishes.
  static AutomationObject create_untyped(const wchar_t* program_id);

  // This object, known to be of the class of that name in its application's library.
  AutomationObject known_as(const wchar_t* class_name) const;

  // Reads a property, or calls a method and takes its result.
  template <std::convertible_to<Argument>... Arguments>
  Result get(const wchar_t* name, Arguments&&... arguments) const;

  // Reads a property that all types of the application's library number alike, whatever the object's own
  // type.
  Result get_common(const wchar_t* name) const;

  // Writes a property; the value keeps its variant kind.
  void put(const wchar_t* name, const Argument& value) const { callee().put(name, value); }

  // Calls a method and takes no result.
  template <std::convertible_to<Argument>... Arguments>
  void call(const wchar_t* name, Arguments&&... arguments) const {
    callee().call(name, {Argument(arguments)...});
  }

  // Calls visit with every element of a collection, in the collection's order.
  template <class Visit>
  void for_each(Visit&& visit) const;

  // This object; throws "Object variable … not set" where there is none. Without it, an operation on no
  // object throws "Object required", as it does for a variable without a type.
  const AutomationObject& typed() const;

  explicit operator bool() const { return static_cast<bool>(object_); }
  bool operator==(const AutomationObject& other) const { return object_.get() == other.object_.get(); }
  IDispatch* dispatch() const { return object_.get(); }  // not counted

  // This object as a variable that a call gets by reference: the called side may put another object into it,
  // of whose members nothing is known.
  IDispatch** variable() {
    names_ = {};
    return object_.receive();
  }

  // This object, which keeps what it says of its members beside what its type's library says.
  AutomationObject keeping_names() &&;

 private:
  friend class Enumerator;
  friend class Result;

  AutomationObject(ComPtr<IDispatch> object, ComPtr<MemberNames> names)
      : object_(std::move(object)), names_(std::move(names)) {}

  Callee callee() const { return {object_.get(), names_.get()}; }

  ComPtr<IDispatch> object_;
  ComPtr<MemberNames> names_;
};

// An object that a control keeps from call to call, with what the object says of its members. A member works
// on a reference of its own: while an office call waits, the host may run a member that replaces the field.
class KeptObject {
 public:
  KeptObject() = default;
  KeptObject(AutomationObject object) : object_(std::move(object).keeping_names()) {}

  operator AutomationObject() const { return object_; }
  AutomationObject typed() const { return object_.typed(); }
  bool operator==(const AutomationObject& other) const { return object_ == other; }

 private:
  AutomationObject object_;
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

  // The value, converted as the platform converts; an object's is its default property. A text is handed
  // over.
  Bstr text() &&;
  LONG int32() const;
  SHORT int16() const;
  float single() const;
  DATE date() const;
  bool flag() const;  // null counts as false

  // Chains go on without a step between, and keep nothing of what an object says of its members.
  template <class... Arguments>
  Result get(const wchar_t* name, Arguments&&... arguments) const {
    ComPtr<IDispatch> room;
    return callee(room).get(name, {Argument(arguments)...});
  }
  template <class... Arguments>
  void call(const wchar_t* name, Arguments&&... arguments) const {
    ComPtr<IDispatch> room;
    callee(room).call(name, {Argument(arguments)...});
  }
  void put(const wchar_t* name, const Argument& value) const {
    ComPtr<IDispatch> room;
    callee(room).put(name, value);
  }

  const VARIANT& value() const { return value_.get(); }
  VARIANT* receive() { return value_.receive(); }

  // Says what is known of an object in it: its type, null for none, of the session's types, which may be
  // null.
  void set_type(MemberNames* type, PublishedTypes* types) {
    type_ = ComPtr<MemberNames>(type);
    types_ = ComPtr<PublishedTypes>(type ? nullptr : types);
  }

 private:
  Variant converted_to(VARTYPE type) const;

  // The value as it is where it has the type already, otherwise converted into room: a conversion takes as
  // long as all the rest of a step.
  const VARIANT& as(VARTYPE type, Variant& room) const;

  // Null for Nothing; "Object required" where it holds none. room holds it where this does not.
  IDispatch* dispatch(ComPtr<IDispatch>& room) const;

  // The object for one step: "Object variable … not set" where it is Nothing.
  Callee callee(ComPtr<IDispatch>& room) const;

  Variant value_;
  ComPtr<MemberNames> type_;
  ComPtr<PublishedTypes> types_;  // where there is no type
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
  ComPtr<MemberNames> type_;  // of the elements
  ComPtr<PublishedTypes> types_;
};

template <std::convertible_to<Argument>... Arguments>
Result AutomationObject::get(const wchar_t* name, Arguments&&... arguments) const {
  return callee().get(name, {Argument(arguments)...});
}

template <class Visit>
void AutomationObject::for_each(Visit&& visit) const {
  const Enumerator elements(*this);
  for (Result element; elements.next(element);) visit(element);
}

}  // namespace zorboffice
