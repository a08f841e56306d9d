// Pictures that a control draws, as pixels.
#pragma once

#include <functional>

#include "hosted.h"

using Pixels = std::vector<DWORD>;  // 0xRRGGBB, row by row
inline constexpr int side = 28;

inline DWORD as_pixel(COLORREF color) { return RGB(GetBValue(color), GetGValue(color), GetRValue(color)); }

// What `draw` draws into a picture of 28 by 28 pixels, at a saved level of the device context that is not its
// to restore.
inline Pixels drawn(const std::function<void(HDC)>& draw) {
  BITMAPINFO format = {};
  format.bmiHeader = {sizeof format.bmiHeader, side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC dc = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap = CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
  SaveDC(dc);
  SelectObject(dc, bitmap);
  SaveDC(dc);
  draw(dc);
  EXPECT_EQ(SaveDC(dc), 3);
  GdiFlush();
  Pixels pixels(static_cast<DWORD*>(bits), static_cast<DWORD*>(bits) + side * side);
  for (DWORD& pixel : pixels) pixel &= 0xFFFFFF;
  RestoreDC(dc, 1);
  DeleteObject(bitmap);
  DeleteDC(dc);
  return pixels;
}

inline void map(HDC dc, SIZE window) {
  SetMapMode(dc, MM_ANISOTROPIC);
  SetWindowExtEx(dc, window.cx, window.cy, nullptr);
  SetViewportExtEx(dc, side, side, nullptr);
}

inline STGMEDIUM data(IUnknown* control, CLIPFORMAT id, DWORD medium) {
  FORMATETC format = {id, nullptr, DVASPECT_CONTENT, -1, medium};
  STGMEDIUM taken = {};
  EXPECT_EQ(as<IDataObject>(control)->GetData(&format, &taken), S_OK);
  EXPECT_EQ(taken.tymed, medium);
  return taken;
}

inline void play_metafile(IUnknown* control, HDC dc) {
  STGMEDIUM taken = data(control, CF_METAFILEPICT, TYMED_MFPICT);
  const auto picture = static_cast<METAFILEPICT*>(GlobalLock(taken.hMetaFilePict));
  EXPECT_EQ(picture->mm, MM_ANISOTROPIC);
  EXPECT_NEAR(picture->xExt, side * 2540 / 96, 1);
  EXPECT_NEAR(picture->yExt, side * 2540 / 96, 1);
  map(dc, {1, 1});
  PlayMetaFile(dc, picture->hMF);
  GlobalUnlock(taken.hMetaFilePict);
  ReleaseStgMedium(&taken);
}
