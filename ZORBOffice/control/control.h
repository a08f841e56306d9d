// What the instances of all three classes have in common.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/common/member_frame.h"
#include "ZORBOffice/control/instance.h"
#include "ZORBOffice/surface/binder.h"
#include "ZORBOffice/surface/class_row.h"
#include "ZORBOffice/surface/type_information.h"

namespace zorboffice {

// An instance as automation sees it. Its identity, its life and what containers see are the base class's.
template <class Interface>
class Control : public Interface, public Instance {
 public:
  Control(const ClassRow& row, IUnknown* outer)
      : Instance(row, outer), default_interface_(row.default_interface) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    return outer().QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return outer().AddRef(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return outer().Release(); }

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
    // Outside of the member's frame too the host's code runs: converting an argument asks an object for its
    // default property, and what is written back releases what stood there before.
    const ComPtr<Interface> alive(this);
    return invoke_member(this, default_interface_.members, id, locale, flags, parameters, result, exception,
                         argument_error);
  }

 protected:
  // The member frame, in which the instance stays alive: while an office call waits, the host may drop its
  // last reference.
  template <class ResultType, class Trap, class Body>
  HRESULT trapped(ResultType* result, const Trap& trap, const Body& body) noexcept {
    const ComPtr<Interface> alive(this);
    return zorboffice::trapped(result, trap, body);
  }

 private:
  IDispatch* automation() noexcept override { return this; }

  const DefaultInterface& default_interface_;
};

}  // namespace zorboffice
