// Placing the application's window.
#pragma once

#include "ZORBOffice/common/automation_object.h"

namespace zorboffice {

// Places the window of `application` 3 cm from the left and, but for version 8 and its like, lets it fill the
// screen less margins. `get_global` gives the object that converts units and knows the screen, and is called
// only when that is needed; `vertical` is what follows the count in PixelsToPoints. Throws Failure.
template <class GetGlobal, class... Vertical>
void place_window(const AutomationObject& application, const GetGlobal& get_global,
                  const Vertical&... vertical) {
  constexpr LONG normal_window = 0;  // wdWindowStateNormal

  application.put(L"WindowState", normal_window);
  const AutomationObject global = get_global();
  const auto points_of_centimeters = [&](float centimeters) {
    return global.get(L"CentimetersToPoints", centimeters).single();
  };
  const auto pixels = [&](const wchar_t* direction) { return global.get(L"System").get(direction).single(); };
  const auto points_of_pixels = [&](float count) {
    return global.get(L"PixelsToPoints", count, vertical...).single();
  };

  application.put(L"Left", points_of_centimeters(3.0F));
  application.put(L"Top", SHORT{1});
  if (application.get(L"Version").text().view().starts_with(L'8')) return;

  const float horizontal = pixels(L"HorizontalResolution");
  const double margin_left = points_of_centimeters(3.0F);
  const float vertical_count = pixels(L"VerticalResolution");
  const double margin_top = points_of_centimeters(0.5F);
  const auto width = static_cast<float>(points_of_pixels(horizontal) - margin_left);
  const auto height = static_cast<float>(points_of_pixels(vertical_count) - margin_top);
  application.call(L"Resize", Argument(width).named(L"Width"), Argument(height).named(L"Height"));
}

}  // namespace zorboffice
