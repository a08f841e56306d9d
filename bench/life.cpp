#include "bench/life.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <stdexcept>
#include <vector>

#include "bench/control.h"
#include "bench/office.h"

namespace bench {
namespace {

template <class Run>
double nanoseconds(const Run& run) {
  const auto begin = ticks();
  run();
  return static_cast<double>(ticks() - begin) / ticks_in_nanosecond();
}

void print_fact(const char* what, double value, const char* unit) {
  std::printf("fact\t%s\t%.1f\t%s\n", what, value, unit);
}

// The bytes of all blocks of the process's heaps, with what the heaps add to each.
std::size_t bytes_in_use() {
  HANDLE heaps[64];
  const DWORD count = GetProcessHeaps(64, heaps);
  std::size_t bytes = 0;
  for (DWORD i = 0; i < std::min<DWORD>(count, 64); ++i) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heaps[i], &entry)) {
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData + entry.cbOverhead;
    }
  }
  return bytes;
}

// Blocks of a known size must be found, or the figure would mean nothing.
void check_heap_walk() {
  constexpr std::size_t size = 100, count = 1000;
  std::vector<void*> blocks(count);
  const std::size_t before = bytes_in_use();
  for (void*& block : blocks) block = HeapAlloc(GetProcessHeap(), 0, size);
  const std::size_t grown = bytes_in_use() - before;
  for (void* const block : blocks) HeapFree(GetProcessHeap(), 0, block);
  if (grown < size * count || grown > 2 * size * count)
    throw std::runtime_error("the heaps cannot be counted");
}

// The library must not be loaded yet.
void measure_loading(const CLSID& class_id) {
  double load = std::numeric_limits<double>::max(), first = load, further = load;
  for (int round = 0; round < 20; ++round) {
    HMODULE module = nullptr;
    load = std::min(load, nanoseconds([&] { module = LoadLibraryW(L"ZORBOffice.ocx"); }));
    if (!module) throw std::runtime_error("the library cannot be loaded");
    zorboffice::ComPtr<IDispatch> one, other;
    first = std::min(first, nanoseconds([&] { one = create_from(module, class_id); }));
    further = std::min(further, nanoseconds([&] { other = create_from(module, class_id); }));
    one = {};
    other = {};
    FreeLibrary(module);
    if (GetModuleHandleW(L"ZORBOffice.ocx")) throw std::runtime_error("the library stays loaded");
  }
  print_fact("loading the library", load / 1e3, "us");
  print_fact("first creation", first / 1e3, "us");
  print_fact("further creation", further / 1e3, "us");
}

}  // namespace

void measure_life() {
  measure_loading(measured_classes()[0].class_id);
  wchar_t path[MAX_PATH] = {};
  GetModuleFileNameW(library(), path, MAX_PATH);
  WIN32_FILE_ATTRIBUTE_DATA file{};
  GetFileAttributesExW(path, GetFileExInfoStandard, &file);
  print_fact("size of the library", file.nFileSizeLow, "bytes");

  check_heap_walk();
  for (const MeasuredClass& measured : measured_classes()) {
    constexpr std::size_t count = 1000;
    std::vector<zorboffice::ComPtr<IDispatch>> instances(count);
    instances[0] = create(measured.class_id);  // what is made once is no instance's
    const std::size_t before = bytes_in_use();
    for (std::size_t i = 1; i < count; ++i) instances[i] = create(measured.class_id);
    const double each = static_cast<double>(bytes_in_use() - before) / (count - 1);
    print_fact((std::string("memory of one ") + measured.name).c_str(), each, "bytes");
  }
}

}  // namespace bench
