// Office applications in processes of their own: this test program, started again by the system for each
// creation. What is typed into the word processor tells it what to do.
#pragma once

#include <string>

// While one lives, the system starts an office for each creation of its class, of the kind that ZORB_OFFICE
// names.
struct Registered {
  explicit Registered(const std::string& kind = "");
  ~Registered();
};

inline constexpr auto die = L"die";       // the process ends in the middle of the call
inline constexpr auto be_busy = L"busy";  // every call of the next third of a second is turned away

// In the new process: serves the application of that name until nothing of it is held.
int serve(const std::string& name);
