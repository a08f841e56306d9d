#include "ZORBOffice/common/member_frame.h"

namespace zorboffice::detail {

HRESULT run_in_frame(CallableRef body, TrapRef trap) noexcept {
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
