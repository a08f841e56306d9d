#include "ZORBOffice/common/member_frame.h"

namespace zorboffice::detail {

void run_step(CallableRef step, TrapRef trap) {
  try {
    step();
  } catch (...) {
    trap(current_failure());
  }
}

HRESULT run_in_frame(CallableRef body, TrapRef trap) noexcept {
  // What an earlier call left in the thread's error information must not describe this one's failure.
  SetErrorInfo(0, nullptr);
  try {
    run_step(body, trap);
    return S_OK;
  } catch (...) {
    return raise_to_host(current_failure());
  }
}

HRESULT refuse_result() noexcept {
  const auto refuse = [] { throw_hresult(E_POINTER); };
  return run_in_frame(CallableRef(refuse), TrapRef(none));
}

}  // namespace zorboffice::detail
