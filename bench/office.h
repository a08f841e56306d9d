// Office applications of the bench's own, which count what is asked of them and take a set time for it. They
// serve in the process that offers them, or as a local server.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include "bench/office_types.h"

namespace bench {

// What the office counts and how it answers, shared by all processes of the bench.
struct Settings {
  volatile LONG look_ups;   // names asked for
  volatile LONG questions;  // for type information, and what is asked of that
  volatile LONG calls;      // members invoked, elements fetched
  volatile LONG publishes;  // whether objects give their type information
  volatile LONG items;      // how many a collection of Outlook walks through
  volatile LONG cost;       // of each of the three, in nanoseconds
};
Settings& settings();

struct Trips {
  LONG look_ups, questions, calls;
};

// What was counted since the last time.
Trips take_counts();

// Time in the processor's ticks, and how many of them a nanosecond has. Measured against
// QueryPerformanceCounter, whose own ticks are too long for single calls.
unsigned long long ticks();
double ticks_in_nanosecond();

// One call as the office saw it. Objects and enumerators are known by a number of their own; 0 is none.
struct SeenCall {
  const Application* application;
  const Type* type;
  const MemberRow* member;  // null for a creation and for an element fetched
  LONG object;              // 0 for a creation
  LONG answer;              // the object in the answer
  DISPID id;
  WORD flags;
  const DISPPARAMS* parameters;
  bool wants_answer;
};

// Is told of every call while it is set; in this process only.
inline void (*on_call)(const SeenCall&) = nullptr;

// The same of every object that nobody holds any more.
inline void (*on_release)(LONG object) = nullptr;

// The number of an object of this process.
LONG number_of(IUnknown* object);

// Offers the classes to this process, or to all.
class ServedClasses {
 public:
  explicit ServedClasses(DWORD context);
  ~ServedClasses();
  ServedClasses(const ServedClasses&) = delete;
  ServedClasses& operator=(const ServedClasses&) = delete;

  // Keeps an object of each interface that other processes call ready for them. Where the last one goes, Wine
  // takes the interface back, and waits for ever for a call before that is just ending.
  void keep_interfaces() const;

 private:
  DWORD cookies_[2]{};
};

}  // namespace bench
