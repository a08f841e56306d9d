#include "ZORBOffice/control/instance.h"

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
    delete &instance_;
  }
  return left;
}

}  // namespace zorboffice
