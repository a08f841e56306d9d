// What a failed step leaves behind: a number and a description, as a Basic host's Err shows them.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include "ZORBOffice/common/bstr.h"

namespace zorboffice {

// Numbers of the Basic runtime that the members raise themselves.
namespace runtime_error {
inline constexpr LONG overflow = 6;
inline constexpr LONG out_of_memory = 7;
inline constexpr LONG type_mismatch = 13;
inline constexpr LONG object_variable_not_set = 91;
inline constexpr LONG object_required = 424;
inline constexpr LONG automation_error = 440;
inline constexpr LONG named_argument_not_found = 448;
}  // namespace runtime_error

// The one exception type inside the library. It never crosses the library's border.
struct Failure {
  LONG number;
  Bstr description;
};

// Throws the runtime failure of that number with the runtime's text.
[[noreturn]] void throw_runtime_error(LONG number);

// Throws what a directly returned HRESULT means: the runtime's number and text where it has one, otherwise
// the HRESULT itself with the thread's error information or the system's text.
[[noreturn]] void throw_hresult(HRESULT result);

// Throws what an object reported through DISP_E_EXCEPTION, and frees the strings.
[[noreturn]] void throw_exception_info(EXCEPINFO& info);

// Throws what a failed HRESULT means.
inline void check(HRESULT result) {
  if (FAILED(result)) throw_hresult(result);
}

// Inside a catch block: the failure being handled, whatever its type.
Failure current_failure() noexcept;

// The text of a failed HRESULT; empty only where there is no memory for one.
Bstr description_of(HRESULT result) noexcept;

// What a failure that reaches the host names as its source.
inline constexpr wchar_t failure_source[] = L"ZORBOffice";

// Hands a failure to the host: sets the thread's error information and returns the matching HRESULT, which is
// 0x800Axxxx for a runtime error.
HRESULT raise_to_host(const Failure& failure) noexcept;

}  // namespace zorboffice
