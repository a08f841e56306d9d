#include "ZORBOffice/control/ole_object.h"

#include <olectl.h>

#include <cwchar>

#include "ZORBOffice/control/hosted_control.h"
#include "ZORBOffice/surface/class_row.h"
#include "ZORBOffice/surface/registration_values.h"

namespace zorboffice {

HRESULT OleObject::SetClientSite(IOleClientSite* site) noexcept {
  const auto kept = control_.alive();
  const ComPtr<IOleClientSite> taken(site);
  if (control_.site().client().get() != site) control_.in_place().deactivate();
  control_.site().set(site);
  control_.site().read_ambient_properties();
  return S_OK;
}

HRESULT OleObject::GetClientSite(IOleClientSite** site) noexcept {
  if (!site) return E_POINTER;
  *site = control_.site().client().get();
  if (*site) (*site)->AddRef();
  return S_OK;
}

HRESULT OleObject::Close(DWORD save_option) noexcept {
  const auto kept = control_.alive();
  control_.in_place().deactivate();
  const ComPtr<IOleClientSite> client = control_.site().client();
  // There is nothing to ask a user about: prompting is saving.
  if (save_option != OLECLOSE_NOSAVE && control_.is_dirty() && client) client->SaveObject();
  control_.data_object().notify(ADVF_DATAONSTOP);
  const ComPtr<IOleAdviseHolder> advice = advice_;
  if (advice) advice->SendOnClose();
  return S_OK;
}

HRESULT OleObject::GetMoniker(DWORD, DWORD, IMoniker** moniker) noexcept {
  if (!moniker) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::GetClipboardData(DWORD, IDataObject** data) noexcept {
  if (!data) return E_POINTER;
  *data = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) noexcept {
  const auto kept = control_.alive();
  switch (verb) {
    case OLEIVERB_PRIMARY:
    case OLEIVERB_UIACTIVATE:
      return control_.in_place().activate(true);
    case OLEIVERB_SHOW:
    case OLEIVERB_OPEN:  // without a window of the object's own, opening is showing
    case OLEIVERB_INPLACEACTIVATE:
      return control_.in_place().activate(false);
    case OLEIVERB_HIDE:
      return control_.in_place().hide();
    case OLEIVERB_DISCARDUNDOSTATE:
      return S_OK;
    default: {
      if (verb < 0) return E_NOTIMPL;
      // The rule for a verb that the object does not know: the primary one, and the caller is told.
      const HRESULT status = control_.in_place().activate(true);
      return status == S_OK ? OLEOBJ_S_INVALIDVERB : status;
    }
  }
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** verbs) noexcept {
  if (!verbs) return E_POINTER;
  *verbs = nullptr;
  return OLEOBJ_E_NOVERBS;
}

HRESULT OleObject::GetUserClassID(CLSID* id) noexcept {
  if (!id) return E_POINTER;
  *id = control_.row().published.class_id;
  return S_OK;
}

HRESULT OleObject::GetUserType(DWORD form, LPOLESTR* name) noexcept {
  if (!name) return E_POINTER;
  constexpr wchar_t library[] = L"ZORBOffice";
  wchar_t text[64] = {};
  if (form != USERCLASSTYPE_SHORT) std::wcscpy(text, library);
  if (form == USERCLASSTYPE_FULL) std::wcscat(text, L".");
  if (form != USERCLASSTYPE_APPNAME) std::wcscat(text, control_.row().published.name);
  const std::size_t size = (std::wcslen(text) + 1) * sizeof *text;
  *name = static_cast<LPOLESTR>(CoTaskMemAlloc(size));
  if (!*name) return E_OUTOFMEMORY;
  std::wmemcpy(*name, text, size / sizeof *text);
  return S_OK;
}

HRESULT OleObject::SetExtent(DWORD aspect, SIZEL* extent) noexcept {
  if (!extent) return E_POINTER;
  return aspect == DVASPECT_CONTENT ? control_.set_extent(*extent) : DV_E_DVASPECT;
}

HRESULT OleObject::GetExtent(DWORD aspect, SIZEL* extent) noexcept {
  if (!extent) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *extent = control_.extent();
  return S_OK;
}

HRESULT OleObject::Advise(IAdviseSink* sink, DWORD* connection) noexcept {
  if (!connection) return E_POINTER;
  *connection = 0;
  const auto kept = control_.alive();
  if (!advice_) {
    if (const HRESULT status = CreateOleAdviseHolder(advice_.receive()); FAILED(status)) return status;
  }
  const ComPtr<IOleAdviseHolder> advice = advice_;
  return advice->Advise(sink, connection);
}

HRESULT OleObject::Unadvise(DWORD connection) noexcept {
  const auto kept = control_.alive();
  return advice_ ? advice_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** connections) noexcept {
  if (!connections) return E_POINTER;
  *connections = nullptr;
  return advice_ ? advice_->EnumAdvise(connections) : S_OK;
}

HRESULT OleObject::GetMiscStatus(DWORD aspect, DWORD* status) noexcept {
  if (!status) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? misc_status : 0;
  return S_OK;
}

HRESULT OleObject::GetControlInfo(CONTROLINFO* information) noexcept {
  if (!information) return E_POINTER;
  information->hAccel = nullptr;
  information->cAccel = 0;
  information->dwFlags = 0;
  return S_OK;
}

HRESULT OleObject::OnAmbientPropertyChange(DISPID) noexcept {
  const auto kept = control_.alive();
  control_.site().read_ambient_properties();
  control_.refresh();
  return S_OK;
}

void OleObject::notify_saved() noexcept {
  const ComPtr<IOleAdviseHolder> advice = advice_;
  if (advice) advice->SendOnSave();
}

}  // namespace zorboffice
