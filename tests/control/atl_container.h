// The system's ATL container: a window class that holds a control.
#pragma once

#include "hosted.h"

namespace atl {

// Looks up a function of the container's library, which may be missing.
template <class Function>
Function function(const char* name) {
  static const HMODULE library = LoadLibraryW(L"atl100.dll");
  const auto found = reinterpret_cast<void*>(GetProcAddress(library, name));
  outside::require(found, name);
  return reinterpret_cast<Function>(found);
}

// Puts a control on a form.
inline HWND hold(IUnknown* control, HWND form, const RECT& position) {
  static const BOOL ready = function<BOOL(WINAPI*)()>("AtlAxWinInit")();
  const HWND holder = CreateWindowW(L"AtlAxWin100", L"", WS_CHILD | WS_VISIBLE, position.left, position.top,
                                    position.right - position.left, position.bottom - position.top, form,
                                    nullptr, nullptr, nullptr);
  outside::require(ready && holder, "ATL's window");
  using Attach = HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**);
  Microsoft::WRL::ComPtr<IUnknown> container;
  EXPECT_EQ(function<Attach>("AtlAxAttachControl")(control, holder, &container), S_OK);
  return holder;
}

}  // namespace atl
