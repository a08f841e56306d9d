// The one frame of every member: failure value first, success value last, and between them the failure trap.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <string>
#include <type_traits>

#include "ZORBOffice/common/argument.h"
#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/failure.h"
#include "ZORBOffice/common/message_box.h"

namespace zorboffice {

// What a member's body returns when it did its work: byte 1, flag true.
struct Success {};
inline constexpr Success success;

// A member's parameter by reference. A null reference is the failure of a null pointer.
template <class Value>
Value& dereferenced(Value* parameter) {
  if (!parameter) throw_hresult(E_POINTER);
  return *parameter;
}

// A flag parameter as a value: any number but 0 is true.
inline bool flag(VARIANT_BOOL* parameter) { return dereferenced(parameter) != VARIANT_FALSE; }

// A parameter passed on by reference: the office application may write into the host's variable.
template <class Value>
Argument by_ref(Value* parameter) {
  return Argument::reference(&dereferenced(parameter));
}

// The same for a flag, which is a 16-bit integer to the compiler.
inline Argument by_ref_flag(VARIANT_BOOL* parameter) {
  return Argument::flag_reference(&dereferenced(parameter));
}

// Trap: nothing is shown.
inline constexpr auto silent = [](const Failure&) {};

// Trap: the failure reaches the host.
inline constexpr auto none = [](const Failure& failure) { throw failure; };

// An instance's last error: never cleared, overwritten by the next recorded failure.
struct LastError {
  LONG LastErrorNumber = 0;
  Bstr LastErrorDescription;
};

// Trap: the failure is kept as the last error.
inline auto record(LastError& last_error) {
  return [&last_error](const Failure& failure) { last_error = {failure.number, failure.description}; };
}

// Trap: the prefix, immediately followed by the description, in a message box.
inline auto message(const wchar_t* prefix) {
  return [prefix](const Failure& failure) {
    show_message(std::wstring(prefix).append(failure.description.view()));
  };
}

// Trap: the text that compose makes of the failure, in a message box.
template <class Compose>
auto composed_message(Compose compose) {
  return [compose](const Failure& failure) { show_message(compose(failure)); };
}

// Trap: two traps, one after the other; a failure in the first leaves the second out.
template <class First, class Second>
auto both(First first, Second second) {
  return [first, second](const Failure& failure) {
    first(failure);
    second(failure);
  };
}

namespace detail {

inline void set_failure(BYTE* result) { *result = 0; }
inline void set_failure(VARIANT_BOOL* result) { *result = VARIANT_FALSE; }  // also a 16-bit 0
inline void set_failure(LONG* result) { *result = 0; }
inline void set_failure(BSTR* result) { *result = nullptr; }
inline void set_failure(VARIANT* result) { VariantInit(result); }

// An allocated empty string for no string: some hosts tell the two apart.
template <class ResultType>
void complete(ResultType*) {}
inline void complete(BSTR* result) {
  if (!*result) *result = SysAllocStringLen(nullptr, 0);
}

// A caller does not free what came with a failed call.
template <class ResultType>
void discard(ResultType*) {}
inline void discard(BSTR* result) {
  SysFreeString(*result);
  *result = nullptr;
}

inline void set_result(BYTE* result, Success) { *result = 1; }
inline void set_result(BYTE* result, bool value) { *result = value ? 1 : 0; }
inline void set_result(VARIANT_BOOL* result, Success) { *result = VARIANT_TRUE; }
inline void set_result(VARIANT_BOOL* result, bool value) { *result = value ? VARIANT_TRUE : VARIANT_FALSE; }
inline void set_result(SHORT* result, SHORT value) { *result = value; }
inline void set_result(LONG* result, LONG value) { *result = value; }
inline void set_result(BSTR* result, Bstr value) { *result = value.release(); }

// A callable by reference, so that the frame itself exists once and not once a member.
class CallableRef {
 public:
  template <class Callable>
  explicit CallableRef(const Callable& callable)
      : callable_(&callable), call_([](const void* target) { (*static_cast<const Callable*>(target))(); }) {}
  void operator()() const { call_(callable_); }

 private:
  const void* callable_;
  void (*call_)(const void*);
};

class TrapRef {
 public:
  template <class Trap>
  explicit TrapRef(const Trap& trap)
      : trap_(&trap), call_([](const void* target, const Failure& failure) {
          (*static_cast<const Trap*>(target))(failure);
        }) {}
  void operator()(const Failure& failure) const { call_(trap_, failure); }

 private:
  const void* trap_;
  void (*call_)(const void*, const Failure&);
};

// S_OK unless the trap itself threw.
HRESULT run_in_frame(CallableRef body, TrapRef trap) noexcept;

// The failure of a null pointer where the result belongs; no trap of the member's own hears of it.
HRESULT refuse_result() noexcept;

void run_step(CallableRef step, TrapRef trap);

}  // namespace detail

// Runs a member's body. A body that returns nothing leaves the result as its failure value, which for a
// variant is the empty one. Returns S_OK, also after a trapped failure; what a trap throws is raised to the
// host.
template <class ResultType, class Trap, class Body>
HRESULT trapped(ResultType* result, const Trap& trap, const Body& body) noexcept {
  if (!result) return detail::refuse_result();
  detail::set_failure(result);
  const auto run = [&] {
    if constexpr (std::is_void_v<decltype(body())>) {
      body();
    } else {
      detail::set_result(result, body());
    }
  };
  const HRESULT status = detail::run_in_frame(detail::CallableRef(run), detail::TrapRef(trap));
  if (FAILED(status)) {
    detail::discard(result);
  } else {
    detail::complete(result);
  }
  return status;
}

// Runs one step of a member whose trap resumes: after a failure and its trap the member goes on with the next
// step. What the trap throws ends the member.
template <class Trap, class Body>
void resuming(const Trap& trap, const Body& step) {
  detail::run_step(detail::CallableRef(step), detail::TrapRef(trap));
}

}  // namespace zorboffice
