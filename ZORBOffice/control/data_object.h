// The control's picture as data, for containers that keep a picture of what they hold.
#pragma once

#include <windows.h>
#include <ole2.h>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/control/part.h"

namespace zorboffice {

class DataObject final : public Part<IDataObject> {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) noexcept override;
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) noexcept override { return DATA_E_FORMATETC; }
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) noexcept override;
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) noexcept override;
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** enumerator) noexcept override;
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                                    DWORD* connection) noexcept override;
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD connection) noexcept override;
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** connections) noexcept override;

  // Tells everybody who asked for it that the picture has changed; flags: ADVF_DATAONSTOP when the control
  // closes, or 0.
  void notify(DWORD flags = 0) noexcept;

 private:
  ComPtr<IDataAdviseHolder> advice_;
};

}  // namespace zorboffice
