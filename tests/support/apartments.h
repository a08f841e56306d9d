// Other apartments than the test's own.
#pragma once

#include <functional>
#include <vector>

#include "outside/library.h"

struct Apartment {
  COINIT kind;
  std::function<void()> run;
};

// Runs each in a thread of its own while this apartment answers.
inline void run_in(const std::vector<Apartment>& apartments) {
  const auto start = [](void* context) WINAPI -> DWORD {
    const auto& [kind, run] = *static_cast<const Apartment*>(context);
    CoInitializeEx(nullptr, kind);
    run();
    CoUninitialize();
    return 0;
  };
  std::vector<HANDLE> threads;
  for (auto& apartment : apartments)
    threads.push_back(CreateThread(nullptr, 0, start, const_cast<Apartment*>(&apartment), 0, nullptr));
  for (HANDLE thread : threads) {
    DWORD index = 0;
    EXPECT_EQ(CoWaitForMultipleHandles(0, 30'000, 1, &thread, &index), S_OK);
    CloseHandle(thread);
  }
}
