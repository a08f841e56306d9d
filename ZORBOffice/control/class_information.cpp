#include "ZORBOffice/control/class_information.h"

#include "ZORBOffice/control/hosted_control.h"
#include "ZORBOffice/surface/class_row.h"
#include "ZORBOffice/surface/type_information.h"

namespace zorboffice {

HRESULT ClassInformation::GetClassInfo(ITypeInfo** information) noexcept {
  if (!information) return E_POINTER;
  *information = nullptr;
  return load_type_information(control_.row().published.class_id, information);
}

HRESULT ClassInformation::GetGUID(DWORD kind, GUID* id) noexcept {
  if (!id) return E_POINTER;
  const bool known = kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID;
  *id = known ? control_.row().event_interface_id : GUID_NULL;
  return known ? S_OK : E_INVALIDARG;
}

HRESULT ClassInformation::GetPages(CAUUID* pages) noexcept {
  if (!pages) return E_POINTER;
  *pages = {};
  return S_OK;
}

HRESULT ClassInformation::InterfaceSupportsErrorInfo(REFIID id) noexcept {
  return id == control_.row().default_interface.id ? S_OK : S_FALSE;
}

}  // namespace zorboffice
