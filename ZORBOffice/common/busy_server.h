// Calls into an application that may be too busy to take them.
#pragma once

#include <windows.h>

namespace zorboffice {

// Whether a call was turned away before it ran. Only what the call itself returns tells; the same number as
// the code of a failure that the application describes tells nothing.
constexpr bool was_turned_away(HRESULT result) {
  return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
}

// The pauses between the attempts of one call: they grow, and end ten seconds after the first.
class Pauses {
 public:
  // Lets time pass for one more attempt. Returns false at once where there is to be none: the time is up, or
  // the host has a message filter, which was asked already and whose answer stands.
  bool next();

 private:
  DWORD started_ = 0;   // milliseconds of the system
  DWORD duration_ = 0;  // of the last one, in milliseconds
};

// Makes a call, again and again while it is turned away. Returns what the last attempt returned. Host code
// may run meanwhile, as in any call to another process.
template <class Call>
HRESULT until_taken(const Call& call) {
  HRESULT result = call();
  for (Pauses pauses; was_turned_away(result) && pauses.next();) result = call();
  return result;
}

}  // namespace zorboffice
