// Stands in for parts of the compiler's run-time that would be half of the library's size: the terminate
// handler that prints the exception's demangled type (there is no console to print to), and the exceptions
// with a text of their own (the strings and vectors of this library can only ever be refused memory, and the
// member frame knows one answer to that).
#include <cstdlib>
#include <new>

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
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl50-cpp,cert-dcl51-cpp,cert-dcl58-cpp)
