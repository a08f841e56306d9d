#include "ZORBOffice/control/window.h"

#include <utility>

#include "ZORBOffice/module.h"

namespace zorboffice {
namespace {

constexpr UINT dpi_changed = 0x02E3;  // WM_DPICHANGED_AFTERPARENT, which Windows 10 brought

// The class goes with the library: a class left behind would call code that is no longer there.
class WindowClass {
 public:
  ~WindowClass() {
    if (registered_) UnregisterClassW(name, module_handle());
  }

  void register_once(WNDPROC procedure) {
    // Apartments may make their first windows at the same time.
    AcquireSRWLockExclusive(&lock_);
    if (!registered_) registered_ = register_class(procedure);
    ReleaseSRWLockExclusive(&lock_);
  }

  static constexpr wchar_t name[] = L"ZORBOfficeControl";

 private:
  static bool register_class(WNDPROC procedure) {
    WNDCLASSW window_class = {};
    window_class.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = module_handle();
    window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    window_class.lpszClassName = name;
    return RegisterClassW(&window_class) != 0;
  }

  SRWLOCK lock_ = SRWLOCK_INIT;
  bool registered_ = false;
};

WindowClass window_class;

// Windows 10 knows the scale of the monitor that shows the window, earlier ones that of the system.
int dots_per_inch(HWND window, HDC dc) {
  using GetDpiForWindow = UINT(WINAPI*)(HWND);
  const auto of_window =
      reinterpret_cast<GetDpiForWindow>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow"));
  const UINT found = of_window ? of_window(window) : 0;
  return found ? static_cast<int>(found) : GetDeviceCaps(dc, LOGPIXELSX);
}

}  // namespace

bool is_measurable(const RECT& area) noexcept {
  constexpr LONG limit = 1 << 29;
  return area.left >= -limit && area.top >= -limit && area.left <= limit && area.top <= limit &&
         area.right >= -limit && area.bottom >= -limit && area.right <= limit && area.bottom <= limit;
}

Window::~Window() {
  if (!handle_) return;
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  DestroyWindow(handle_);
}

bool Window::create(HWND parent, const RECT& position, const RECT& clip) noexcept {
  if (handle_) return true;
  if (!is_measurable(position)) return false;
  window_class.register_once(procedure);
  clipped_ = false;
  CreateWindowExW(0, WindowClass::name, L"Picture1", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, parent, nullptr,
                  module_handle(), this);
  place(position, clip);
  return handle_ != nullptr;
}

void Window::destroy() noexcept {
  if (handle_) DestroyWindow(handle_);
}

void Window::place(const RECT& position, const RECT& clip) noexcept {
  if (!handle_) return;
  RECT seen = {};
  IntersectRect(&seen, &position, &clip);
  const bool was_clipped = std::exchange(clipped_, !EqualRect(&seen, &position));
  if (clipped_ || was_clipped) {
    OffsetRect(&seen, -position.left, -position.top);
    // The window owns its region, unless it has gone meanwhile.
    HRGN region = clipped_ ? CreateRectRgnIndirect(&seen) : nullptr;
    if (!SetWindowRgn(handle_, region, TRUE) && region) DeleteObject(region);
  }
  SetWindowPos(handle_, nullptr, position.left, position.top, position.right - position.left,
               position.bottom - position.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Window::show(bool visible) noexcept {
  if (handle_) ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE);
}

void Window::take_focus() noexcept {
  if (handle_ && GetFocus() != handle_) SetFocus(handle_);
}

void Window::redraw() noexcept {
  if (handle_) InvalidateRect(handle_, nullptr, FALSE);
}

LRESULT CALLBACK Window::procedure(HWND handle, UINT message, WPARAM first, LPARAM second) noexcept {
  auto* window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (message == WM_NCCREATE) {
    window = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(second)->lpCreateParams);
    window->handle_ = handle;
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
  } else if (message == WM_NCDESTROY && window) {
    window->handle_ = nullptr;
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
  } else if (window) {
    return window->receive(message, first, second);
  }
  return DefWindowProcW(handle, message, first, second);
}

LRESULT Window::receive(UINT message, WPARAM first, LPARAM second) noexcept {
  HWND handle = handle_;
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;  // painting fills the window; erasing it first would flicker
    case WM_PRINTCLIENT:
    case WM_PAINT: {
      PAINTSTRUCT paint;
      // Some containers send the device context to paint into with the message.
      auto* const sent = reinterpret_cast<HDC>(first);
      HDC dc = sent ? sent : BeginPaint(handle, &paint);
      if (!dc) return 0;
      RECT client = {};
      GetClientRect(handle, &client);
      owner_.paint(dc, client, dots_per_inch(handle, dc));
      if (!sent) EndPaint(handle, &paint);
      return 0;
    }
    case WM_SETTINGCHANGE:
    case WM_SYSCOLORCHANGE:
    case dpi_changed:
      redraw();
      break;
    case WM_LBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONDOWN:
      owner_.on_click();
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      owner_.on_focus(message == WM_SETFOCUS);
      break;
    default:
      break;
  }
  // The owner may be gone.
  return DefWindowProcW(handle, message, first, second);
}

}  // namespace zorboffice
