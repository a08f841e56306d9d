#include "ZORBOffice/common/member_frame.h"

namespace zorboffice::detail {

HRESULT run_in_frame(CallableRef body, TrapRef trap) noexcept {
  // What an earlier call left in the thread's error information must not describe this one's failure.
  SetErrorInfo(0, nullptr);
  try {
    try {
      body();
    } catch (...) {
      trap(current_failure());
    }
    return S_OK;
  } catch (...) {
    return raise_to_host(current_failure());
  }
}

}  // namespace zorboffice::detail
