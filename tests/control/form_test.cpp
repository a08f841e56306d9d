// The three controls on one form, seen on a screen.
#include <set>

#include "pictures.h"

namespace {

Pixels on_screen(int left, int top) {
  return drawn([&](HDC dc) {
    const HDC screen = GetDC(nullptr);
    BitBlt(dc, 0, 0, side, side, screen, left, top, SRCCOPY);
    ReleaseDC(nullptr, screen);
  });
}

// Lets the display catch up, for five seconds at most.
bool comes_to_show(const Pixels& expected, int left, int top) {
  for (int i = 0; i < 50; ++i) {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
    GdiFlush();
    if (on_screen(left, top) == expected) return true;
    Sleep(100);
  }
  return false;
}

void hold_by_atl(IUnknown* control, HWND form, int left, int top) {
  static const HMODULE atl = LoadLibraryW(L"atl100.dll");
  const auto start = reinterpret_cast<BOOL(WINAPI*)()>(GetProcAddress(atl, "AtlAxWinInit"));
  const auto attach = reinterpret_cast<HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**)>(
      GetProcAddress(atl, "AtlAxAttachControl"));
  static const BOOL started = start && start();
  require(started && attach, "ATL");
  const HWND holder = CreateWindowW(L"AtlAxWin100", L"", WS_CHILD | WS_VISIBLE, left, top, side, side, form,
                                    nullptr, nullptr, nullptr);
  ComPtr<IUnknown> container;
  EXPECT_EQ(attach(control, holder, &container), S_OK);
}

TEST(Screen, shows_the_three_controls_as_their_metafiles_draw_them) {
  const HWND form = CreateWindowW(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                                  nullptr, nullptr);
  std::vector<ComPtr<IDispatch>> controls;
  std::set<Pixels> pictures;
  for (const auto& ids : classes) {
    const int left = 10 + 50 * static_cast<int>(controls.size());
    controls.push_back(outside::create(ids));
    hold_by_atl(controls.back().Get(), form, left, 20);
    // Wine's container says the extent in another unit than HIMETRIC.
    EXPECT_EQ(resize(controls.back().Get(), side * 2540 / 96, side * 2540 / 96), S_OK);
    const auto expected = drawn([&](HDC dc) { play_metafile(controls.back().Get(), dc); });
    EXPECT_TRUE(comes_to_show(expected, left, 20)) << ids.name;
    pictures.insert(on_screen(left, 20));
  }
  EXPECT_EQ(pictures.size(), 3u);
  // Something covers the form, in the form's colour, and goes: the controls are painted again, alone.
  const Pixels shown = on_screen(60, 20), blank(side * side, on_screen(0, 0)[0]);
  const HWND cover = CreateWindowW(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                                   nullptr, nullptr);
  EXPECT_TRUE(comes_to_show(blank, 60, 20));
  DestroyWindow(cover);
  EXPECT_TRUE(comes_to_show(shown, 60, 20));
  DestroyWindow(form);
}

}  // namespace
