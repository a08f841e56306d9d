// Starting and stopping the word application, its window and its settings.
#include "ZORBOffice/word/word_members.h"

namespace zorboffice {
namespace {

constexpr LONG normal_window = 0;  // wdWindowStateNormal

// Places the window 3 cm from the left and, but for version 8 and its like, lets it fill the screen less
// margins.
void place_window(const AutomationObject& application) {
  const auto points_of_centimeters = [&](float centimeters) {
    return application.get(L"CentimetersToPoints", centimeters).single();
  };
  const auto pixels = [&](const wchar_t* direction) {
    return application.get(L"System").get(direction).single();
  };
  const auto points_of_pixels = [&](float count) {
    return application.get(L"PixelsToPoints", count).single();
  };

  application.put(L"WindowState", normal_window);
  application.put(L"Left", points_of_centimeters(3.0F));
  application.put(L"Top", SHORT{1});
  if (application.get(L"Version").text().view().starts_with(L'8')) return;

  const float horizontal = pixels(L"HorizontalResolution");
  const double margin_left = points_of_centimeters(3.0F);
  const float vertical = pixels(L"VerticalResolution");
  const double margin_top = points_of_centimeters(0.5F);
  const auto width = static_cast<float>(points_of_pixels(horizontal) - margin_left);
  const auto height = static_cast<float>(points_of_pixels(vertical) - margin_top);
  application.call(L"Resize", Argument(width).named(L"Width"), Argument(height).named(L"Height"));
}

}  // namespace

HRESULT WordMembers::get_Start(VARIANT_BOOL* Template, BYTE* result) noexcept {
  return trapped(result, silent, [&] {
    const AutomationObject started = AutomationObject::create(L"Word.Application");
    application_ = started;
    if (flag(Template)) {
      place_window(started);
    } else {
      started.get(L"Options").put(L"AutoFormatAsYouTypeApplyNumberedLists", false);
    }
    return success;
  });
}

HRESULT WordMembers::get_SetVisible(VARIANT_BOOL* IsVisible, BYTE* result) noexcept {
  return trapped(result, message(L"SetVisible"), [&] {
    const AutomationObject held = application();
    held.put(L"Visible", flag(IsVisible));
    held.call(L"Activate");
    return success;
  });
}

HRESULT WordMembers::get_SetActive(VARIANT_BOOL*, BYTE* result) noexcept {
  return trapped(result, message(L"Set Active "), [&] {
    application().call(L"Activate");
    return success;
  });
}

HRESULT WordMembers::get_SetScreenUpdating(VARIANT_BOOL* Update, BYTE* result) noexcept {
  return trapped(result, message(L"Set Screen Updating "), [&] {
    application().put(L"ScreenUpdating", flag(Update));
    return success;
  });
}

HRESULT WordMembers::StopWord(VARIANT_BOOL* Force, VARIANT* result) noexcept {
  return trapped(result, none, [&] {
    const AutomationObject held = application();
    if (!flag(Force) && held.get(L"Documents").get(L"Count").int32() != 0) return;
    held.call(L"Quit");
    if (application_ == held) application_ = {};
  });
}

HRESULT WordMembers::GetDefaultPaths(SHORT* PathId, BSTR* result) noexcept {
  return trapped(result, message(L"GetDefaultPaths "), [&] {
    return application().get(L"Options").get(L"DefaultFilePath", by_ref(PathId)).text();
  });
}

HRESULT WordMembers::get_GetLastErrorNumber(LONG* result) noexcept {
  return trapped(result, none, [] { return LONG{0}; });
}

HRESULT WordMembers::get_GetLastErrorDescription(BSTR* result) noexcept {
  return trapped(result, none, [] { return Bstr(); });
}

}  // namespace zorboffice
