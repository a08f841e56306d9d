// What a program has allocated or opened, as numbers that rise when something is left behind. Wine counts no
// handles and no GDI objects, so the number of the next free one stands for them: it is the lowest.
#pragma once

#include <windows.h>

#include <algorithm>

struct Resources {
  size_t blocks = 0, bytes = 0, handles = 0, gdi_objects = 0, windows = 0;
};

inline BOOL CALLBACK count_windows(HWND window, LPARAM count) {
  ++*reinterpret_cast<size_t*>(count);
  if (GetAncestor(window, GA_PARENT) == GetDesktopWindow()) EnumChildWindows(window, count_windows, count);
  return TRUE;
}

inline Resources resources_in_use() {
  Resources in_use;
  const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  const HBRUSH brush = CreateSolidBrush(1);
  in_use.handles = reinterpret_cast<size_t>(handle) / 4;
  in_use.gdi_objects = LOWORD(brush);
  DeleteObject(brush);
  CloseHandle(handle);
  // Only its own windows: the numbers of new ones rise with those of all programs.
  EnumThreadWindows(GetCurrentThreadId(), count_windows, reinterpret_cast<LPARAM>(&in_use.windows));
  HANDLE heaps[64];
  for (DWORD i = 0, count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64); i < count; ++i) {
    for (PROCESS_HEAP_ENTRY entry = {}; HeapWalk(heaps[i], &entry);) {
      if (!(entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)) continue;
      ++in_use.blocks;
      in_use.bytes += entry.cbData;
    }
  }
  return in_use;
}
