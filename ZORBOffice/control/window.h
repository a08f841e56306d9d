// The window of an activated control.
#pragma once

#include <windows.h>

namespace zorboffice {

// Who draws the window and hears of it.
class WindowOwner {
 public:
  virtual void paint(HDC dc, const RECT& client, int dots_per_inch) noexcept = 0;
  virtual void on_click() noexcept = 0;
  virtual void on_focus(bool focused) noexcept = 0;

 protected:
  ~WindowOwner() = default;
};

// Whether the distances within a rectangle, and sums of its coordinates, are numbers of 32 bits.
bool is_measurable(const RECT& area) noexcept;

// Gone without a word when its owner is, or when its parent is destroyed.
class Window {
 public:
  explicit Window(WindowOwner& owner) : owner_(owner) {}
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  ~Window();

  // Null where there is no window.
  HWND handle() const { return handle_; }

  // Makes the window, hidden, at position in the parent's pixels, of which clip is to be seen. Returns false
  // where Windows refuses, or where that cannot be measured.
  bool create(HWND parent, const RECT& position, const RECT& clip) noexcept;

  // The following do nothing where there is no window. A position has to be measurable.
  void destroy() noexcept;
  void place(const RECT& position, const RECT& clip) noexcept;
  void show(bool visible) noexcept;
  void take_focus() noexcept;
  void redraw() noexcept;

 private:
  static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM first, LPARAM second) noexcept;
  LRESULT receive(UINT message, WPARAM first, LPARAM second) noexcept;

  WindowOwner& owner_;
  HWND handle_ = nullptr;
  bool clipped_ = false;
};

}  // namespace zorboffice
