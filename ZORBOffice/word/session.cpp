// Starting and stopping the word application, its window and its settings.
#include "ZORBOffice/word/window_placement.h"
#include "ZORBOffice/word/word_members.h"

namespace zorboffice {

HRESULT WordMembers::get_Start(VARIANT_BOOL* Template, BYTE* result) noexcept {
  return trapped(result, silent, [&] {
    const AutomationObject started = AutomationObject::create(L"Word.Application");
    application_ = started;
    if (flag(Template)) {
      place_window(started, [&] { return AutomationObject(started); });
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
