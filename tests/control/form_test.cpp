// The three controls on one form, seen on a screen.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>

#include "pictures.h"

namespace {

std::string screen_file() {
  const char* path = std::getenv("ZORB_SCREEN");
  outside::require(path, "ZORB_SCREEN: run this by script/on-display");
  return "Z:" + std::string(path);
}

// What is on the screen from (left, top) on, as the display's server keeps it: a header of numbers of four
// bytes, the highest first, a table of colours, and the pixels.
Pixels on_screen(int left, int top) {
  std::ifstream file(screen_file(), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const auto number = [&](size_t field) {
    DWORD value = 0;
    for (size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<BYTE>(bytes.at(field * 4 + i));
    return value;
  };
  outside::require(number(11) == 32, "32 bits a pixel");
  const size_t start = number(0) + number(19) * 12, row = number(12);
  Pixels pixels;
  for (int i = 0; i < side * side; ++i) {
    const char* pixel = &bytes.at(start + (top + i / side) * row + (left + i % side) * 4);
    pixels.push_back(*reinterpret_cast<const DWORD*>(pixel) & 0xFFFFFF);
  }
  return pixels;
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

TEST(Screen, shows_the_three_controls_as_their_metafiles_draw_them) {
  const HWND form = CreateWindowW(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                                  nullptr, nullptr);
  std::vector<ComPtr<IDispatch>> controls;
  std::set<Pixels> pictures;
  for (const auto& ids : classes) {
    const int left = 10 + 50 * static_cast<int>(controls.size());
    controls.push_back(outside::create(ids));
    hold_by_atl(controls.back().Get(), form, {left, 20, left + side, 20 + side});
    // Wine's container says the extent in another unit than HIMETRIC.
    EXPECT_EQ(resize(controls.back().Get(), side * 2540 / 96, side * 2540 / 96), S_OK);
    const auto expected = drawn([&](HDC dc) { play_metafile(controls.back().Get(), dc); });
    EXPECT_TRUE(comes_to_show(expected, left, 20)) << ids.name;
    pictures.insert(on_screen(left, 20));
  }
  EXPECT_EQ(pictures.size(), 3u);
  CopyFileA(screen_file().c_str(), "screen.xwd", FALSE);
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
