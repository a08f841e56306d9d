// What the instances of all three classes have in common: identity, reference count, dispatch and error
// information.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <atomic>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/common/member_frame.h"
#include "ZORBOffice/module.h"
#include "ZORBOffice/surface/binder.h"
#include "ZORBOffice/surface/type_information.h"

namespace zorboffice {

struct DefaultInterface {
  IID id;
  const MemberTable& members;
};

template <class Interface>
class Control : public Interface, public ISupportErrorInfo {
 public:
  explicit Control(const DefaultInterface& default_interface) : default_interface_(default_interface) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (id == IID_IUnknown || id == IID_IDispatch || id == default_interface_.id) {
      *object = static_cast<Interface*>(this);
    } else if (id == IID_ISupportErrorInfo) {
      *object = static_cast<ISupportErrorInfo*>(this);
    } else {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }

  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }

  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) {
      // Objects that the destructor releases may call back, which must not destroy the instance again.
      references_ = 1;
      delete this;
    }
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** information) noexcept override {
    if (!information) return E_POINTER;
    *information = nullptr;
    return index == 0 ? load_type_information(default_interface_.id, information) : DISP_E_BADINDEX;
  }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) noexcept override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    return get_ids_of_names(default_interface_.members, names, count, ids);
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* argument_error) noexcept override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    return invoke_member(this, default_interface_.members, id, locale, flags, parameters, result, exception,
                         argument_error);
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) noexcept override {
    return id == default_interface_.id ? S_OK : S_FALSE;
  }

 protected:
  virtual ~Control() = default;

  // The member frame, in which the instance stays alive: while an office call waits, the host may drop its
  // last reference.
  template <class ResultType, class Trap, class Body>
  HRESULT trapped(ResultType* result, const Trap& trap, const Body& body) noexcept {
    const ComPtr<Interface> alive(this);
    return zorboffice::trapped(result, trap, body);
  }

 private:
  const DefaultInterface& default_interface_;
  std::atomic<ULONG> references_ = 1;
  ModuleReference module_reference_;
};

}  // namespace zorboffice
