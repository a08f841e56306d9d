// Stands in for parts of the compiler's run-time that would be half of the library's size: the terminate
// handler that prints the exception's demangled type (there is no console to print to), and the exceptions
// with a text of their own (the strings and vectors of this library can only ever be refused memory, and the
// member frame knows one answer to that); and for where a thread's exceptions are counted, which the
// compiler's run-time asks memory for at the thread's first one, and ends the process where it gets none.
#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

// The first two words of what the compilers' common convention calls __cxa_eh_globals, and all of it here.
struct Exceptions {
  void* caught;
  unsigned int uncaught;
};

// Freed with the thread.
class ThreadSlot {
 public:
  ThreadSlot() : index_(FlsAlloc([](void* exceptions) WINAPI -> void { std::free(exceptions); })) {}
  ~ThreadSlot() { FlsFree(index_); }
  Exceptions* get() const { return static_cast<Exceptions*>(FlsGetValue(index_)); }
  bool set(Exceptions* exceptions) const { return FlsSetValue(index_, exceptions); }

 private:
  DWORD index_;
};

ThreadSlot slot;

// For threads whose first exception came when there was no memory: each keeps its own.
struct Spare {
  std::atomic<DWORD> thread;
  Exceptions exceptions;
};
Spare spares[64];

// The thread's own; otherwise, where it takes one, the first that nobody has, or null.
Exceptions* find_spare(bool takes) {
  const DWORD own = GetCurrentThreadId();
  for (Spare& spare : spares) {
    DWORD owner = spare.thread;
    if (owner == 0 && !takes) return nullptr;
    if (owner == 0 && spare.thread.compare_exchange_strong(owner, own)) owner = own;
    if (owner == own) return &spare.exceptions;
  }
  return nullptr;
}

}  // namespace

// The names are the compiler's.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl50-cpp,cert-dcl51-cpp,cert-dcl58-cpp)
namespace __gnu_cxx {

void __verbose_terminate_handler() { std::abort(); }

}  // namespace __gnu_cxx

namespace std {

void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_alloc(); }
void __throw_length_error(const char*) { throw bad_alloc(); }
void __throw_logic_error(const char*) { throw bad_alloc(); }
void __throw_out_of_range_fmt(const char*, ...) { throw bad_alloc(); }

}  // namespace std

extern "C" Exceptions* __cxa_get_globals() noexcept {
  if (Exceptions* known = slot.get()) return known;
  if (Exceptions* known = find_spare(false)) return known;
  auto* made = static_cast<Exceptions*>(std::calloc(1, sizeof(Exceptions)));
  if (made && slot.set(made)) return made;
  std::free(made);
  Exceptions* spare = find_spare(true);
  return spare ? spare : (std::abort(), spare);
}

extern "C" Exceptions* __cxa_get_globals_fast() noexcept { return __cxa_get_globals(); }
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl50-cpp,cert-dcl51-cpp,cert-dcl58-cpp)
