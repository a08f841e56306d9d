// Values on their way between COM's variants and the peer's JSON.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <optional>
#include <string>

#include "json.h"

// What stands for the peer's objects among variants.
class Objects {
 public:
  // A new object in front of the peer's object `id`, with one reference held; it belongs to the caller.
  // Objects with the same class name share their members.
  virtual IDispatch* make(long id, std::string class_name) = 0;
  // The peer's object behind one that was made here, or nothing for any other.
  virtual std::optional<long> id_of(IUnknown& object) = 0;

 protected:
  ~Objects() = default;
};

// Turns a client's argument of any kind, by value or by reference, into what the peer reads. A null array is
// an empty one, a null object {"nothing"}, an omitted argument {"missing"}.
// Throws CallError: DISP_E_TYPEMISMATCH for an object that is not the bridge's, DISP_E_BADVARTYPE for a kind
// that has no counterpart, DISP_E_OVERFLOW for infinities.
Json to_json(const VARIANT& value, Objects& objects);

// Turns a value of the peer into a variant that the caller owns.
VARIANT to_variant(const Json& value, Objects& objects);
