// Calls a method of an interface with arguments that lie in variants.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <cstddef>
#include <span>
#include <type_traits>
#include <utility>

#include "ZORBOffice/surface/word_processor_interface.h"

namespace zorboffice {

// The C++ type of a method's argument.
struct NativeArgument {
  VARTYPE type;
  VARTYPE other_type;  // a flag and a 16-bit integer are one C++ type, and a choice is a flag or a byte
  bool by_reference;

  constexpr bool carries(VARTYPE wanted, bool wanted_by_reference) const {
    return by_reference == wanted_by_reference && (wanted == type || wanted == other_type);
  }
};

struct NativeCall {
  // One cell a parameter, of the parameter's variant type; the result's cell is the last.
  HRESULT (*invoke)(IDispatch* object, VARIANT* cells) noexcept;
  std::span<const NativeArgument> arguments;
};

namespace detail {

template <class T>
inline constexpr bool is_reference = std::is_pointer_v<T> && !std::is_same_v<T, BSTR>;

template <class T>
constexpr NativeArgument native_argument() {
  using Value = std::conditional_t<is_reference<T>, std::remove_pointer_t<T>, T>;
  constexpr bool by_reference = is_reference<T>;
  if constexpr (std::is_same_v<Value, SHORT>) {
    return {VT_I2, VT_BOOL, by_reference};
  } else if constexpr (std::is_same_v<Value, LONG>) {
    return {VT_I4, VT_I4, by_reference};
  } else if constexpr (std::is_same_v<Value, BYTE>) {
    return {VT_UI1, VT_UI1, by_reference};
  } else if constexpr (std::is_same_v<Value, BSTR>) {
    return {VT_BSTR, VT_BSTR, by_reference};
  } else if constexpr (std::is_same_v<Value, VARIANT>) {
    return {VT_VARIANT, VT_VARIANT, by_reference};
  } else {
    static_assert(std::is_same_v<Value, Choice>, "no automation type for this argument");
    return {VT_BOOL, VT_UI1, by_reference};
  }
}

template <class T>
T argument_in(VARIANT& cell) {
  if constexpr (std::is_same_v<T, VARIANT*>) {
    return &cell;
  } else if constexpr (std::is_same_v<T, VARIANT>) {
    return cell;
  } else if constexpr (is_reference<T>) {
    // The values of all other types lie at the start of the variant's union.
    return reinterpret_cast<T>(&V_UI1(&cell));
  } else {
    return *reinterpret_cast<T*>(&V_UI1(&cell));
  }
}

template <class... Arguments>
struct NativeArguments {
  static constexpr NativeArgument list[] = {native_argument<Arguments>()...};
};

template <auto method, class Interface, class... Arguments>
constexpr NativeCall native_call(HRESULT (STDMETHODCALLTYPE Interface::*)(Arguments...) noexcept) {
  return {[](IDispatch* object, VARIANT* cells) noexcept {
            return [&]<std::size_t... i>(std::index_sequence<i...>) {
              return (static_cast<Interface*>(object)->*method)(argument_in<Arguments>(cells[i])...);
            }
            (std::index_sequence_for<Arguments...>());
          },
          NativeArguments<Arguments...>::list};
}

}  // namespace detail

// The call of one interface method, for example native_call<&WordProcessorInterface::get_Start>.
template <auto method>
inline constexpr NativeCall native_call = detail::native_call<method>(method);

}  // namespace zorboffice
