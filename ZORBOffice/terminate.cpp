// The compiler's default terminate handler prints the exception's demangled type. A library has no console to
// print to, and demangler and printing would be a third of its size; so this takes the handler's place.
#include <cstdlib>

namespace __gnu_cxx {

// The name is the compiler's.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
void __verbose_terminate_handler() { std::abort(); }

}  // namespace __gnu_cxx
