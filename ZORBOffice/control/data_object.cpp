#include "ZORBOffice/control/data_object.h"

#include <algorithm>
#include <iterator>

#include "ZORBOffice/control/enumerator.h"
#include "ZORBOffice/control/hosted_control.h"

namespace zorboffice {
namespace {

// A metafile of logical pixels, which its player stretches.
HGLOBAL draw_metafile(const HostedControl& control) {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
  HDC dc = memory ? CreateMetaFileW(nullptr) : nullptr;
  if (!dc) return GlobalFree(memory), nullptr;
  const SIZE size = pixels_of(control.extent());
  SetMapMode(dc, MM_ANISOTROPIC);
  SetWindowOrgEx(dc, 0, 0, nullptr);
  SetWindowExtEx(dc, size.cx, size.cy, nullptr);
  control.draw(dc, {0, 0, size.cx, size.cy}, size);
  HMETAFILE metafile = CloseMetaFile(dc);
  if (!metafile) return GlobalFree(memory), nullptr;
  auto* picture = static_cast<METAFILEPICT*>(GlobalLock(memory));
  *picture = {MM_ANISOTROPIC, control.extent().cx, control.extent().cy, metafile};
  GlobalUnlock(memory);
  return memory;
}

// An enhanced metafile's frame is in HIMETRIC, what is drawn into it in pixels of the screen, which has a
// size in millimetres of its own.
HENHMETAFILE draw_enhanced_metafile(const HostedControl& control) {
  const SIZEL extent = control.extent();
  const RECT frame = {0, 0, extent.cx, extent.cy};
  HDC dc = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
  if (!dc) return nullptr;
  const RECT bounds = {0, 0, MulDiv(extent.cx, GetDeviceCaps(dc, HORZRES), GetDeviceCaps(dc, HORZSIZE) * 100),
                       MulDiv(extent.cy, GetDeviceCaps(dc, VERTRES), GetDeviceCaps(dc, VERTSIZE) * 100)};
  control.draw(dc, bounds, pixels_of(extent));
  return CloseEnhMetaFile(dc);
}

constexpr FORMATETC formats[] = {
    {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT},
    {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF},
};

FORMATETC same(const FORMATETC& format) { return format; }

}  // namespace

HRESULT DataObject::GetData(FORMATETC* format, STGMEDIUM* medium) noexcept {
  if (!medium) return E_POINTER;
  *medium = {};
  if (const HRESULT status = QueryGetData(format); status != S_OK) return status;
  if (format->cfFormat == CF_METAFILEPICT) {
    medium->tymed = TYMED_MFPICT;
    medium->hMetaFilePict = draw_metafile(control_);
    return medium->hMetaFilePict ? S_OK : E_OUTOFMEMORY;
  }
  medium->tymed = TYMED_ENHMF;
  medium->hEnhMetaFile = draw_enhanced_metafile(control_);
  return medium->hEnhMetaFile ? S_OK : E_OUTOFMEMORY;
}

// Any lindex will do: there is one picture, and containers disagree about its number.
HRESULT DataObject::QueryGetData(FORMATETC* format) noexcept {
  if (!format) return E_POINTER;
  if (format->dwAspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  const auto* known = std::ranges::find(formats, format->cfFormat, &FORMATETC::cfFormat);
  if (known == std::end(formats)) return DV_E_FORMATETC;
  return format->tymed & known->tymed ? S_OK : DV_E_TYMED;
}

HRESULT DataObject::GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) noexcept {
  if (!format || !canonical) return E_POINTER;
  *canonical = *format;
  canonical->ptd = nullptr;  // the picture is the same for every device
  return format->ptd ? S_OK : DATA_S_SAMEFORMATETC;
}

HRESULT DataObject::EnumFormatEtc(DWORD direction, IEnumFORMATETC** enumerator) noexcept {
  if (!enumerator) return E_POINTER;
  *enumerator = nullptr;
  if (direction != DATADIR_GET) return E_NOTIMPL;
  try {
    const std::vector<FORMATETC> values(std::begin(formats), std::end(formats));
    *enumerator = make_enumerator<IEnumFORMATETC>(IID_IEnumFORMATETC, values, same);
    return S_OK;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT DataObject::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* connection) noexcept {
  if (!connection) return E_POINTER;
  *connection = 0;
  if (!format) return E_POINTER;  // the holder would read it
  const auto kept = control_.alive();
  if (!advice_) {
    if (const HRESULT status = CreateDataAdviseHolder(advice_.receive()); FAILED(status)) return status;
  }
  const ComPtr<IDataAdviseHolder> advice = advice_;
  return advice->Advise(this, format, flags, sink, connection);
}

HRESULT DataObject::DUnadvise(DWORD connection) noexcept {
  const auto kept = control_.alive();
  return advice_ ? advice_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT DataObject::EnumDAdvise(IEnumSTATDATA** connections) noexcept {
  if (!connections) return E_POINTER;
  *connections = nullptr;
  return advice_ ? advice_->EnumAdvise(connections) : S_OK;
}

void DataObject::notify(DWORD flags) noexcept {
  const ComPtr<IDataAdviseHolder> advice = advice_;
  if (advice) advice->SendOnDataChange(this, 0, flags);
}

}  // namespace zorboffice
