// Picture1: all that a container shows of a control.
#pragma once

#include <windows.h>

namespace zorboffice {

// Draws the sunken box, which fills bounds, with a bitmap in its middle. bounds is in the logical units of
// dc, any device's, a metafile's or a printer's, and may run against its axes; size says how many pixels of
// 1/96 inch it stands for. bitmap: resource number.
void draw_picture_box(HDC dc, const RECT& bounds, SIZE size, int bitmap, COLORREF background) noexcept;

}  // namespace zorboffice
