// The session with Outlook and the last error.
#include "ZORBOffice/outlook/zorb_outlook.h"

namespace zorboffice {

HRESULT ZORBOutlook::StartOutlook(VARIANT_BOOL* result) noexcept {
  return trapped(result, stored(), [&] {
    const AutomationObject started = AutomationObject::create(L"Outlook.Application");
    state_.OutlookApp = started;
    state_.OutlookNamespace = started.get(L"GetNamespace", Bstr(L"MAPI")).object();
    return success;
  });
}

HRESULT ZORBOutlook::StopOutlook(VARIANT_BOOL Force, VARIANT_BOOL* result) noexcept {
  return trapped(result, stored(), [&] {
    if (Force != VARIANT_FALSE) application().call(L"Quit");
    return success;
  });
}

HRESULT ZORBOutlook::GetLastErrorNumber(SHORT* result) noexcept {
  return trapped(result, none, [&] {
    const LONG number = state_.last_error.LastErrorNumber;
    if (number < SHRT_MIN || number > SHRT_MAX) throw_runtime_error(runtime_error::overflow);
    return static_cast<SHORT>(number);
  });
}

HRESULT ZORBOutlook::GetLastErrorDescription(BSTR* result) noexcept {
  return trapped(result, none, [&] { return state_.last_error.LastErrorDescription; });
}

}  // namespace zorboffice
