#include "ZORBOffice/control/instance.h"

#include <oleauto.h>

#include "ZORBOffice/surface/class_row.h"

namespace zorboffice {

HRESULT Instance::Identity::QueryInterface(REFIID id, void** object) noexcept {
  if (!object) return E_POINTER;
  IUnknown* found = nullptr;
  if (id == IID_IUnknown) {
    found = this;
  } else if (id == IID_IDispatch || id == instance_.hosted_.row().default_interface.id) {
    found = instance_.automation();
  } else {
    found = instance_.hosted_.find(id);
  }
  *object = found;
  if (!found) return E_NOINTERFACE;
  found->AddRef();
  return S_OK;
}

ULONG Instance::Identity::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) {
    // Objects that the destructor releases may call back, which must not destroy the instance again.
    references_ = 1;
    // They may also clear the error information of the failed call that the instance ends with.
    ComPtr<IErrorInfo> information;
    GetErrorInfo(0, information.receive());
    delete &instance_;
    if (information) SetErrorInfo(0, information.get());
  }
  return left;
}

}  // namespace zorboffice
