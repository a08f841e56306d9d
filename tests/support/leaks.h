// What a program has allocated or opened, as numbers that rise when something is left behind. Wine counts no
// handles and no GDI objects, so the number of the next free one stands for them: it is the lowest.
#pragma once

#include <windows.h>

#include <algorithm>

struct Resources {
  size_t blocks = 0, bytes = 0, handles = 0, gdi_objects = 0, windows = 0;
};

inline Resources resources_in_use() {
  Resources in_use;
  const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  const HBRUSH brush = CreateSolidBrush(1);
  const HWND window = CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  in_use.handles = reinterpret_cast<size_t>(handle) / 4;
  in_use.gdi_objects = LOWORD(brush);
  in_use.windows = LOWORD(window) / 2;
  DestroyWindow(window);
  DeleteObject(brush);
  CloseHandle(handle);
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
