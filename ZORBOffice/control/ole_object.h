// The control as an embedded object: site, verbs, extent, advice, and what a container tells every control.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <ocidl.h>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/control/part.h"

namespace zorboffice {

class OleObject final : public Part<IOleObject, IOleControl> {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) noexcept override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) noexcept override;
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Close(DWORD save_option) noexcept override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) noexcept override;
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject** data) noexcept override;
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG message, IOleClientSite* active_site, LONG index,
                                   HWND parent, LPCRECT position) noexcept override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) noexcept override;
  HRESULT STDMETHODCALLTYPE Update() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* name) noexcept override;
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* extent) noexcept override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* extent) noexcept override;
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) noexcept override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) noexcept override;
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** connections) noexcept override;
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) noexcept override;
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) noexcept override { return S_OK; }

  HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* information) noexcept override;
  HRESULT STDMETHODCALLTYPE OnMnemonic(MSG*) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID property) noexcept override;
  HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL) noexcept override { return S_OK; }

  // Tells who takes part in the object's life that it was saved.
  void notify_saved() noexcept;

 private:
  ComPtr<IOleAdviseHolder> advice_;
};

}  // namespace zorboffice
