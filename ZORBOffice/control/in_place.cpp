#include "ZORBOffice/control/in_place.h"

#include <ocidl.h>

#include <algorithm>
#include <utility>

#include "ZORBOffice/control/hosted_control.h"

namespace zorboffice {

HRESULT InPlace::GetWindow(HWND* window) noexcept {
  if (!window) return E_POINTER;
  *window = window_.handle();
  return *window ? S_OK : E_FAIL;
}

HRESULT InPlace::InPlaceDeactivate() noexcept {
  deactivate();
  return S_OK;
}

HRESULT InPlace::UIDeactivate() noexcept {
  if (!std::exchange(ui_active_, false)) return S_OK;
  const auto kept = control_.alive();
  const ComPtr<IOleInPlaceSite> site = site_;
  const ComPtr<IOleInPlaceFrame> frame = frame_;
  const ComPtr<IOleInPlaceUIWindow> document = document_;
  if (document) document->SetActiveObject(nullptr, nullptr);
  if (frame) frame->SetActiveObject(nullptr, nullptr);
  if (site) site->OnUIDeactivate(FALSE);
  return S_OK;
}

HRESULT InPlace::SetObjectRects(LPCRECT position, LPCRECT clip) noexcept {
  if (!position) return E_POINTER;
  if (!is_measurable(*position)) return E_INVALIDARG;
  const auto kept = control_.alive();
  window_.place(*position, clip ? *clip : *position);
  return S_OK;
}

// The control uses no key: the container may have each, Tab first of all.
HRESULT InPlace::TranslateAccelerator(LPMSG message) noexcept {
  if (!message) return E_POINTER;
  const auto kept = control_.alive();
  const auto site = control_.site().as<IOleControlSite>(IID_IOleControlSite);
  if (!site) return S_FALSE;
  constexpr struct {
    int key;
    DWORD modifier;  // KEYMOD_SHIFT, KEYMOD_CONTROL, KEYMOD_ALT
  } modifiers[] = {{VK_SHIFT, 1}, {VK_CONTROL, 2}, {VK_MENU, 4}};
  DWORD pressed = 0;
  for (const auto& [key, modifier] : modifiers) pressed |= GetKeyState(key) < 0 ? modifier : 0;
  return site->TranslateAccelerator(message, pressed) == S_OK ? S_OK : S_FALSE;
}

HRESULT InPlace::activate(bool with_ui) noexcept {
  if (!has_window()) {
    if (const HRESULT status = make_window(); status != S_OK) return status;
  }
  const ComPtr<IOleInPlaceSite> site = site_;
  window_.show(true);
  if (const ComPtr<IOleClientSite> client = control_.site().client(); client) client->ShowObject();
  if (!is_active_in(site)) return OLEOBJ_S_CANNOT_DOVERB_NOW;
  if (!has_window()) {
    deactivate();
    return OLEOBJ_S_CANNOT_DOVERB_NOW;
  }
  return with_ui ? make_ui_active() : S_OK;
}

HRESULT InPlace::make_window() noexcept {
  deactivate();  // a window that the container destroyed leaves the control active without one
  const auto site = control_.site().as<IOleInPlaceSite>(IID_IOleInPlaceSite);
  if (!site) return OLEOBJ_S_CANNOT_DOVERB_NOW;
  if (const HRESULT status = site->CanInPlaceActivate(); status != S_OK) {
    return FAILED(status) ? status : OLEOBJ_S_CANNOT_DOVERB_NOW;
  }
  if (site_) return has_window() ? S_OK : OLEOBJ_S_CANNOT_DOVERB_NOW;  // activated by the container meanwhile
  site_ = site;
  HRESULT status = site->OnInPlaceActivate();
  if (FAILED(status)) {
    if (is_active_in(site)) site_ = {};
    return status;
  }
  HWND parent = nullptr;
  RECT position = {};
  RECT clip = {};
  OLEINPLACEFRAMEINFO keys = {};
  keys.cb = sizeof keys;
  ComPtr<IOleInPlaceFrame> frame;
  ComPtr<IOleInPlaceUIWindow> document;
  status = site->GetWindow(&parent);
  if (SUCCEEDED(status)) {
    status = site->GetWindowContext(frame.receive(), document.receive(), &position, &clip, &keys);
  }
  if (!is_active_in(site)) return OLEOBJ_S_CANNOT_DOVERB_NOW;
  if (SUCCEEDED(status) && !window_.create(parent, position, clip)) status = E_FAIL;
  if (FAILED(status)) {
    deactivate();
    return status;
  }
  if (!is_active_in(site)) return OLEOBJ_S_CANNOT_DOVERB_NOW;
  frame_ = std::move(frame);
  document_ = std::move(document);
  return S_OK;
}

HRESULT InPlace::make_ui_active() noexcept {
  const ComPtr<IOleInPlaceSite> site = site_;
  if (!ui_active_) {
    ui_active_ = true;
    if (const HRESULT status = site->OnUIActivate(); FAILED(status)) {
      ui_active_ = false;
      return status;
    }
  }
  const ComPtr<IOleInPlaceFrame> frame = frame_;
  const ComPtr<IOleInPlaceUIWindow> document = document_;
  const auto still = [&] { return ui_active_ && has_window() && is_active_in(site); };
  // Not the keyboard focus of another control in the same window.
  if (still()) window_.take_focus();
  if (still() && frame) frame->SetActiveObject(this, nullptr);
  if (still() && document) document->SetActiveObject(this, nullptr);
  // No tools around the document.
  if (still() && frame) frame->SetBorderSpace(nullptr);
  if (still() && document) document->SetBorderSpace(nullptr);
  return still() ? S_OK : OLEOBJ_S_CANNOT_DOVERB_NOW;
}

void InPlace::deactivate() noexcept {
  const auto kept = control_.alive();
  UIDeactivate();
  const ComPtr<IOleInPlaceSite> site = std::exchange(site_, {});
  frame_ = {};
  document_ = {};
  window_.destroy();
  if (site) site->OnInPlaceDeactivate();
}

HRESULT InPlace::hide() noexcept {
  UIDeactivate();
  window_.show(false);
  return S_OK;
}

void InPlace::redraw() noexcept { window_.redraw(); }

void InPlace::paint(HDC dc, const RECT& client, int dots_per_inch) noexcept {
  const auto pixels = [&](LONG dots) { return std::max(MulDiv(dots, 96, dots_per_inch), 1); };
  control_.draw(dc, client, {pixels(client.right), pixels(client.bottom)});
}

void InPlace::on_click() noexcept {
  // A form designer selects with the mouse; the control is not to take the click for itself.
  if (!control_.site().user_mode()) return;
  const auto kept = control_.alive();
  if (site_) make_ui_active();
}

void InPlace::on_focus(bool focused) noexcept {
  const auto kept = control_.alive();
  if (const auto site = control_.site().as<IOleControlSite>(IID_IOleControlSite)) site->OnFocus(focused);
}

}  // namespace zorboffice
