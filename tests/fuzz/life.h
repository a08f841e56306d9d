// One control from its creation to its end, among a container and objects that do and answer anything.
#pragma once

#include "chance.h"
#include "control/hosted.h"
#include "support/text.h"

// What is wrong is said with the seed and the number of the call under way, and counted.
struct Report {
  uint64_t seed = 0, call = 0;
  std::string what;  // the method under way
  bool verbose = false;
  int faults = 0;

  void say(const char* why, size_t value = 0) const {
    printf("fuzz: seed %llu call %llu (%s): %s %08llX\n", seed, call, what.c_str(), why, 0ull + value);
    fflush(stdout);
  }
  void wrong(const char* why, unsigned long value = 0) { ++faults, say(why, value); }
  void begin(const std::string& method) {
    what = method;
    if (verbose) say("begins");
  }
};
inline Report report;

// The host's reference is the only one: a method that does not keep the instance alive uses what is freed.
class Life {
 public:
  Life(uint64_t seed, uint64_t number);
  ~Life();

  // The call of that number, on a new control where the last one is gone.
  void call(uint64_t seed, uint64_t number);

  // What happens in every call that the control makes: often nothing, or a failure (in `info`, where there is
  // one), a call back, or the end of the host's reference.
  HRESULT happen(EXCEPINFO* info = nullptr);

  // An owned value of any kind, and one of a parameter's type.
  VARIANT value();
  VARIANT value_of(VARTYPE type);
  void set_error_info();

  // An interface of the control, not counted.
  template <class Interface>
  Interface* raw(const IID& id = __uuidof(Interface)) {
    Interface* found = nullptr;
    control->QueryInterface(id, reinterpret_cast<void**>(&found));
    outside::require(found, "interface");
    found->Release();
    return found;
  }

  Chance chance;
  const outside::ClassIds* ids = nullptr;
  IUnknown* control = nullptr;  // null once the host has let go of it
  StrictContainer container;
  static inline int objects = 0;  // that somebody still holds
  static inline Life* current = nullptr;

 private:
  void begin();
  void any_call();
  void let_go();
  HRESULT failed(EXCEPINFO* info);

  int depth_ = 0;
  bool ends_ = false;  // with the first call that the control makes
  Outer outer_;
};

// What is called: a member late or by its slot; any other method.
void call_automation(Life& life);
void call_hosting(Life& life);
