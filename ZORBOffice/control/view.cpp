#include "ZORBOffice/control/view.h"

#include "ZORBOffice/control/hosted_control.h"

namespace zorboffice {
namespace {

constexpr LONG whole_object = -1;

// An opaque object's opaque part is its content, and so is what is printed of it.
bool is_drawn(DWORD aspect) {
  return aspect == DVASPECT_CONTENT || aspect == DVASPECT_OPAQUE || aspect == DVASPECT_DOCPRINT;
}

// The content has no pages: containers ask for it by -1, by 0, or by whatever they have at hand.
HRESULT checked(DWORD aspect, LONG index) {
  if (!is_drawn(aspect)) return DV_E_DVASPECT;
  return aspect == DVASPECT_CONTENT || index == whole_object ? S_OK : DV_E_LINDEX;
}

}  // namespace

HRESULT View::Draw(DWORD aspect, LONG index, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds, LPCRECTL,
                   BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) noexcept {
  if (const HRESULT status = checked(aspect, index); FAILED(status)) return status;
  if (!dc || !bounds) return E_INVALIDARG;
  const RECT area = {bounds->left, bounds->top, bounds->right, bounds->bottom};
  if (!is_measurable(area)) return E_INVALIDARG;
  control_.draw(dc, area, pixels_of(control_.extent()));
  return S_OK;
}

HRESULT View::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors) noexcept {
  if (!colors) return E_POINTER;
  *colors = nullptr;
  return S_FALSE;  // any palette will do
}

HRESULT View::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept {
  const auto kept = control_.alive();
  sink_ = ComPtr<IAdviseSink>(sink);
  aspects_ = aspects;
  flags_ = flags;
  if (flags & ADVF_PRIMEFIRST) notify();
  return S_OK;
}

HRESULT View::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept {
  if (aspects) *aspects = aspects_;
  if (flags) *flags = flags_;
  if (sink) {
    *sink = sink_.get();
    if (*sink) (*sink)->AddRef();
  }
  return S_OK;
}

HRESULT View::GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE*, LPSIZEL extent) noexcept {
  if (!extent) return E_POINTER;
  if (const HRESULT status = checked(aspect, index); FAILED(status)) return status;
  *extent = control_.extent();
  return S_OK;
}

HRESULT View::GetViewStatus(DWORD* status) noexcept {
  if (!status) return E_POINTER;
  *status = View::status;
  return S_OK;
}

HRESULT View::QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG, DWORD* hit) noexcept {
  if (!bounds || !hit) return E_POINTER;
  if (!is_drawn(aspect)) return DV_E_DVASPECT;
  *hit = PtInRect(bounds, point) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
  return S_OK;
}

HRESULT View::QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT area, LONG, DWORD* hit) noexcept {
  if (!bounds || !area || !hit) return E_POINTER;
  if (!is_drawn(aspect)) return DV_E_DVASPECT;
  RECT common = {};
  *hit = IntersectRect(&common, bounds, area) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
  return S_OK;
}

HRESULT View::GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE*, HDC, DVEXTENTINFO* information,
                               LPSIZEL extent) noexcept {
  if (!information || !extent) return E_POINTER;
  if (const HRESULT status = checked(aspect, index); FAILED(status)) return status;
  if (information->dwExtentMode != DVEXTENT_CONTENT) return E_NOTIMPL;
  *extent = HostedControl::default_extent();
  return S_OK;
}

void View::notify() noexcept {
  const ComPtr<IAdviseSink> sink = sink_;
  if (!sink) return;
  if (flags_ & ADVF_ONLYONCE) sink_ = {};
  sink->OnViewChange(DVASPECT_CONTENT, whole_object);
}

}  // namespace zorboffice
