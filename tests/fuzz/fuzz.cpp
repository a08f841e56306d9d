// Calls all that hosts can call, in any order and with any arguments, while the office and the container do
// anything, too.
//
//   fuzz [--seed S] [--first N] [--count C]
//
// A call is known by the seed and its number: --first N --count 1 makes it again, after those before it on
// the same control.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "life.h"
#include "support/import_table.h"
#include "support/leaks.h"

namespace {

constexpr uint64_t calls_of_a_life = 16;

// Stands where the library's message boxes would: a real one takes a thousand times as long, and Wine's
// server runs out of handles after some ten thousands that were taken back. While it is there the host may do
// anything.
int WINAPI answer_box(HWND, LPCWSTR, LPCWSTR, UINT) {
  Life::current->happen();
  return IDOK;
}

// The blocks that the library holds.
long blocks = 0;
void* allocate(size_t size) {
  void* const block = malloc(size);
  blocks += block != nullptr;
  return block;
}

// What the library frees, which is filled until the control's end: whoever still reads it crashes, and
// whoever wrote to it is told of.
constexpr unsigned char freed_byte = 0xDD;
std::vector<unsigned char*> freed;
void free_later(void* block) {
  if (!block) return;
  --blocks;
  std::memset(block, freed_byte, _msize(block));
  freed.push_back(static_cast<unsigned char*>(block));
}
void free_all() {
  for (unsigned char* block : std::exchange(freed, {})) {
    const auto is_other = [](unsigned char byte) { return byte != freed_byte; };
    if (std::any_of(block, block + _msize(block), is_other)) report.wrong("freed memory was written");
    free(block);
  }
}

LONG WINAPI crashed(EXCEPTION_POINTERS* exception) {
  const auto& record = *exception->ExceptionRecord;
  if (record.ExceptionCode >> 28 != 0xC) return EXCEPTION_CONTINUE_SEARCH;
  report.say("crash", record.ExceptionCode);
  report.say("at, counted from the library's begin,",
             static_cast<BYTE*>(record.ExceptionAddress) - reinterpret_cast<BYTE*>(outside::library()));
  TerminateProcess(GetCurrentProcess(), 2);
  return EXCEPTION_CONTINUE_SEARCH;
}

DWORD WINAPI watch(void*) {
  for (uint64_t seen = ~0ull;;) {
    Sleep(30'000);
    if (std::exchange(seen, report.call) != report.call) continue;
    report.say("hangs");
    TerminateProcess(GetCurrentProcess(), 3);
  }
}

void run(uint64_t first, uint64_t end) {
  for (uint64_t number = first / calls_of_a_life * calls_of_a_life; number < end;) {
    {
      Life life(report.seed, number);
      for (uint64_t i = 0; i < calls_of_a_life && number < end; ++i) life.call(report.seed, number++);
    }
    free_all();
  }
}

// What is left behind again each time that the same calls are made has leaked; what is not, the system has
// set aside. Some systems take a few blocks and handles more each time.
void run_without_leaks(uint64_t first, uint64_t end) {
  Resources before = resources_in_use(), after;
  for (int time = 0; time < 6; ++time, before = after) {
    const long held = blocks;
    run(first, end);
    after = resources_in_use();
    const bool more = blocks > held || after.blocks > before.blocks + 8 || after.windows > before.windows ||
                      after.handles > before.handles + 20 || after.gdi_objects > before.gdi_objects + 100;
    if (!more || report.faults) return;
  }
  report.wrong("a leak of memory, windows or handles in the calls up to this",
               static_cast<unsigned long>(end - first));
}

}  // namespace

int main(int count, char** arguments) {
  uint64_t first = 0, calls = 20'000;
  report.seed = 1;
  for (int i = 1; i + 1 < count; i += 2) {
    const uint64_t value = std::strtoull(arguments[i + 1], nullptr, 10);
    const std::string name = arguments[i];
    if (name == "--seed") report.seed = value;
    if (name == "--first") first = value;
    if (name == "--count") calls = value;
  }
  report.verbose = calls < 10;
  outside::library();
  OleInitialize(nullptr);
  AddVectoredExceptionHandler(1, crashed);
  CloseHandle(CreateThread(nullptr, 0, watch, nullptr, 0, nullptr));
  replace_import("MessageBoxW", reinterpret_cast<void*>(answer_box));
  replace_import("malloc", reinterpret_cast<void*>(allocate));
  replace_import("free", reinterpret_cast<void*>(free_later));
  constexpr uint64_t part = 10'000;
  for (uint64_t done = 0; done < calls && report.faults < 10; done += part) {
    report.verbose ? run(first, first + calls)
                   : run_without_leaks(first + done, first + std::min(done + part, calls));
    printf("%llu of %llu calls\n", std::min(done + part, calls), calls);
    fflush(stdout);
  }
  printf("fuzz: seed %llu, %llu calls, %d faults\n", report.seed, calls, report.faults);
  return report.faults ? 1 : 0;
}
