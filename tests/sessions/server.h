// Office applications in processes of their own: this test program, started again by the system for each
// creation. What the control's members type into the word processor tells it what to do.
#pragma once

#include <string>

// While one lives, the system starts an office for each creation of its class. `kind` is what ZORB_OFFICE
// says.
class Registered {
 public:
  explicit Registered(const std::string& kind = "");
  ~Registered();
  Registered(const Registered&) = delete;
};

inline constexpr auto die = L"die";       // typed: the process ends in the middle of the call
inline constexpr auto be_busy = L"busy";  // typed: every call of the next third of a second is turned away

// In the new process: serves the application of that name until nothing of it is held.
int serve(const std::string& name);
