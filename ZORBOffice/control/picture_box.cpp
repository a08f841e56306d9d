#include "ZORBOffice/control/picture_box.h"

#include <cstddef>
#include <cstring>

#include "ZORBOffice/module.h"

namespace zorboffice {
namespace {

// A bitmap resource of 16 colours as StretchDIBits takes it: no handle is made that could be left behind.
struct Picture {
  BITMAPINFOHEADER header;
  RGBQUAD colors[16];
  const BYTE* bits;

  const BITMAPINFO* information() const { return reinterpret_cast<const BITMAPINFO*>(this); }
};

// By the custom of toolbox bitmaps the colour of the lower left corner is the background. Returns false where
// the resource is damaged.
bool load(int bitmap, COLORREF background, Picture& picture) {
  HRSRC resource = FindResourceW(module_handle(), MAKEINTRESOURCEW(bitmap), RT_BITMAP);
  HGLOBAL content = resource ? LoadResource(module_handle(), resource) : nullptr;
  const auto* bytes = content ? static_cast<const BYTE*>(LockResource(content)) : nullptr;
  constexpr std::size_t head = offsetof(Picture, bits);
  if (!bytes || SizeofResource(module_handle(), resource) <= head) return false;
  std::memcpy(&picture, bytes, head);
  picture.bits = bytes + head;
  const int lower_left = picture.bits[0] >> 4;
  picture.colors[lower_left] = {GetBValue(background), GetGValue(background), GetRValue(background), 0};
  return picture.header.biBitCount == 4;
}

// Draws in pixels of the box, whatever the units and the direction of the device context.
class Canvas {
 public:
  Canvas(HDC dc, const RECT& bounds, SIZE size) : dc_(dc), bounds_(bounds), size_(size) {}

  RECT all() const { return {0, 0, size_.cx, size_.cy}; }

  void fill(const RECT& area, HBRUSH brush) const {
    if (area.left >= area.right || area.top >= area.bottom) return;
    const RECT units = units_of(area);
    FillRect(dc_, &units, brush);
  }

  // Fills what lies between two rectangles. Nothing is painted twice: that would flicker.
  void fill_between(const RECT& outer, const RECT& inner, HBRUSH left_and_top,
                    HBRUSH right_and_bottom) const {
    fill({outer.left, outer.top, outer.right, inner.top}, left_and_top);
    fill({outer.left, inner.top, inner.left, outer.bottom}, left_and_top);
    fill({inner.right, inner.top, outer.right, outer.bottom}, right_and_bottom);
    fill({inner.left, inner.bottom, inner.right, outer.bottom}, right_and_bottom);
  }

  // Draws an edge one pixel wide along a rectangle, and makes the rectangle what is within.
  void edge(RECT& area, int left_and_top, int right_and_bottom) const {
    const RECT outer = area;
    InflateRect(&area, -1, -1);
    fill_between(outer, area, GetSysColorBrush(left_and_top), GetSysColorBrush(right_and_bottom));
  }

  // Draws a picture, of which only what lies in clip is seen.
  void stretch(const Picture& picture, const RECT& area, const RECT& clip) const {
    const RECT seen = units_of(clip);
    const RECT units = units_of(area);
    SaveDC(dc_);
    IntersectClipRect(dc_, seen.left, seen.top, seen.right, seen.bottom);
    SetStretchBltMode(dc_, COLORONCOLOR);
    StretchDIBits(dc_, units.left, units.top, units.right - units.left, units.bottom - units.top, 0, 0,
                  picture.header.biWidth, picture.header.biHeight, picture.bits, picture.information(),
                  DIB_RGB_COLORS, SRCCOPY);
    RestoreDC(dc_, -1);  // in a metafile a level by its number would be the player's
  }

 private:
  RECT units_of(const RECT& area) const { return {x(area.left), y(area.top), x(area.right), y(area.bottom)}; }
  LONG x(LONG pixel) const { return bounds_.left + MulDiv(pixel, bounds_.right - bounds_.left, size_.cx); }
  LONG y(LONG pixel) const { return bounds_.top + MulDiv(pixel, bounds_.bottom - bounds_.top, size_.cy); }

  HDC dc_;
  RECT bounds_;
  SIZE size_;
};

RECT centred(const BITMAPINFOHEADER& bitmap, const RECT& area) {
  const LONG left = (area.left + area.right - bitmap.biWidth) / 2;
  const LONG top = (area.top + area.bottom - bitmap.biHeight) / 2;
  return {left, top, left + bitmap.biWidth, top + bitmap.biHeight};
}

}  // namespace

void draw_picture_box(HDC dc, const RECT& bounds, SIZE size, int bitmap, COLORREF background) noexcept {
  if (size.cx <= 0 || size.cy <= 0) return;
  const Canvas canvas(dc, bounds, size);
  RECT inside = canvas.all();
  canvas.edge(inside, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
  canvas.edge(inside, COLOR_3DDKSHADOW, COLOR_3DLIGHT);
  if (inside.left >= inside.right || inside.top >= inside.bottom) return;
  Picture picture;
  const bool loaded = load(bitmap, background, picture);
  const RECT position = loaded ? centred(picture.header, inside) : RECT{};
  RECT seen = {};
  IntersectRect(&seen, &position, &inside);
  if (HBRUSH brush = CreateSolidBrush(background)) {
    canvas.fill_between(inside, seen, brush, brush);
    DeleteObject(brush);
  }
  if (loaded) canvas.stretch(picture, position, inside);
}

}  // namespace zorboffice
