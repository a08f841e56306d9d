// What a published member is: the type library, GetIDsOfNames and Invoke read nothing else.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <span>

#include "ZORBOffice/surface/native_call.h"
#include "ZORBOffice/surface/sentence.h"

namespace zorboffice {

enum class MemberKind : BYTE { method, property_get };

enum class Presence : BYTE {
  required,
  optional,            // no default is published; a host that leaves it out gives zero, false or ""
  optional_with_value  // the default is published in the type library
};

struct Parameter {
  const wchar_t* name;
  const char* sentence;
  VARTYPE type;
  bool by_reference;
  Presence presence = Presence::required;
  SHORT default_value = 0;  // a string's default is always ""

  constexpr Parameter optional() const { return {name, sentence, type, by_reference, Presence::optional}; }
  constexpr Parameter defaults_to(SHORT value) const {
    return {name, sentence, type, by_reference, Presence::optional_with_value, value};
  }
};

// A parameter in and out.
constexpr Parameter by_ref(const wchar_t* name, VARTYPE type, const char* sentence = nullptr) {
  return {name, sentence, type, true};
}

constexpr Parameter by_value(const wchar_t* name, VARTYPE type, const char* sentence = nullptr) {
  return {name, sentence, type, false};
}

struct Member {
  const wchar_t* name;
  DISPID id;
  MemberKind kind;
  VARTYPE result;
  NativeCall call;
  std::initializer_list<Parameter> parameters;
  const char* sentence = nullptr;
};

// The members of one interface in slot order.
using MemberTable = std::span<const Member>;

inline constexpr std::size_t max_parameters = 14;

// Whether a row says of its parameters and result what the C++ method says of them.
constexpr bool agrees_with_signature(const Member& member) {
  const std::size_t count = member.parameters.size();
  if (count > max_parameters || member.call.arguments.size() != count + 1) return false;
  for (std::size_t i = 0; i < count; ++i) {
    const Parameter& parameter = member.parameters.begin()[i];
    if (!member.call.arguments[i].carries(parameter.type, parameter.by_reference)) return false;
  }
  return member.call.arguments[count].carries(member.result, true);
}

// Whether all rows of a table do; to be asserted at compile time.
constexpr bool agree_with_signatures(MemberTable members) {
  return std::all_of(members.begin(), members.end(), agrees_with_signature);
}

}  // namespace zorboffice
