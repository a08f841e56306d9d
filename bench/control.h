// An instance of the built library, called as early-bound and as late-bound hosts call it.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <deque>
#include <string>
#include <vector>

#include "ZORBOffice/common/com_ptr.h"
#include "bench/members.h"

namespace bench {

// A host's call with its arguments ready, so that only the call itself is measured.
class ReadyCall {
 public:
  ReadyCall(const MeasuredClass& measured, const HostCall& call);
  ~ReadyCall();
  ReadyCall(const ReadyCall&) = delete;
  ReadyCall& operator=(const ReadyCall&) = delete;

  // Return how the call went; the result is freed.
  HRESULT by_vtable(IDispatch* object);
  HRESULT by_invoke(IDispatch* object);

  // Calls by vtable, and throws std::runtime_error where the member fails or answers failure.
  void require(IDispatch* object);

  std::string name() const;

 private:
  const zorboffice::Member* member_ = nullptr;
  std::vector<VARIANT> cells_;      // one a parameter, and the result's
  std::vector<VARIANT> arguments_;  // as given, the last first
};

// The library beside this program. Throws std::runtime_error.
HMODULE library();

// A new instance, of that library or of a loaded module.
zorboffice::ComPtr<IDispatch> create(const CLSID& class_id);
zorboffice::ComPtr<IDispatch> create_from(HMODULE module, const CLSID& class_id);

}  // namespace bench
