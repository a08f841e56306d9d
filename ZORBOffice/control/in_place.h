// The control in place: its window on the container's form, and the focus.
#pragma once

#include <windows.h>
#include <ole2.h>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/control/part.h"
#include "ZORBOffice/control/window.h"

namespace zorboffice {

class InPlace final : public Part<IOleInPlaceObject, IOleInPlaceActiveObject>, private WindowOwner {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() noexcept override;
  HRESULT STDMETHODCALLTYPE UIDeactivate() noexcept override;
  HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT position, LPCRECT clip) noexcept override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() noexcept override { return INPLACE_E_NOTUNDOABLE; }

  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) noexcept override;
  HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) noexcept override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) noexcept override { return S_OK; }

  // Gives the control its window where the container wants it, with_ui also the focus and the container's
  // frame. Returns OLEOBJ_S_CANNOT_DOVERB_NOW where there is no container, or it wants none or took the
  // control back meanwhile, and the container's failure where it failed; there is no window then.
  HRESULT activate(bool with_ui) noexcept;

  // Takes the window away and tells the container.
  void deactivate() noexcept;

  HRESULT hide() noexcept;

  // Whether the control has a window; a container then asks for no other picture.
  bool has_window() const { return window_.handle() != nullptr; }

  void redraw() noexcept;

 private:
  void paint(HDC dc, const RECT& client, int dots_per_inch) noexcept override;
  void on_click() noexcept override;
  void on_focus(bool focused) noexcept override;

  HRESULT make_window() noexcept;
  HRESULT make_ui_active() noexcept;
  bool is_active_in(const ComPtr<IOleInPlaceSite>& site) const { return site && site_.get() == site.get(); }

  Window window_{*this};
  ComPtr<IOleInPlaceSite> site_;  // while active in place
  ComPtr<IOleInPlaceFrame> frame_;
  ComPtr<IOleInPlaceUIWindow> document_;
  bool ui_active_ = false;
};

}  // namespace zorboffice
