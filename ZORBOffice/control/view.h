// The control's picture, drawn into any device context.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <ocidl.h>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/control/part.h"

namespace zorboffice {

class View final : public Part<IViewObjectEx> {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void*, DVTARGETDEVICE*, HDC target, HDC dc,
                                 LPCRECTL bounds, LPCRECTL window_bounds, BOOL(STDMETHODCALLTYPE*)(ULONG_PTR),
                                 ULONG_PTR) noexcept override;
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC,
                                        LOGPALETTE** colors) noexcept override;
  HRESULT STDMETHODCALLTYPE Freeze(DWORD, LONG, void*, DWORD*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept override;
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept override;

  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE*,
                                      LPSIZEL extent) noexcept override;

  HRESULT STDMETHODCALLTYPE GetRect(DWORD, LPRECTL) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetViewStatus(DWORD* status) noexcept override;
  HRESULT STDMETHODCALLTYPE QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG,
                                          DWORD* hit) noexcept override;
  HRESULT STDMETHODCALLTYPE QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT area, LONG,
                                         DWORD* hit) noexcept override;
  HRESULT STDMETHODCALLTYPE GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE*, HDC,
                                             DVEXTENTINFO* information, LPSIZEL extent) noexcept override;

  // The box covers all of its rectangle, the inside with one colour.
  static constexpr DWORD status = VIEWSTATUS_OPAQUE | VIEWSTATUS_SOLIDBKGND;

  // Tells the sink of SetAdvise that the picture has changed.
  void notify() noexcept;

 private:
  ComPtr<IAdviseSink> sink_;
  DWORD aspects_ = 0;
  DWORD flags_ = 0;
};

}  // namespace zorboffice
