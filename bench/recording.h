// What a member asks of the office, written down, and clients that ask the same without the library.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "bench/office.h"

namespace bench {

// An argument as it was passed, with the value behind a reference.
struct PassedArgument {
  PassedArgument() = default;
  PassedArgument(const PassedArgument&) = delete;
  ~PassedArgument() { VariantClear(&value); }

  VARIANT value{};
  VARIANT passed{};
  int object = -1;  // the place of the object that it was
};

// A call, or the release of an object's last reference.
struct Step {
  Step() = default;
  Step(Step&&) = default;

  const Application* application = nullptr;
  const MemberRow* member = nullptr;  // null for a creation and for an element fetched
  int target = -1;                    // the place of the object asked; -1 for a creation
  int answer = -1;                    // the place of the object answered
  DISPID id = 0;
  WORD flags = 0;
  bool wants_answer = false;
  bool is_release = false;
  std::vector<LPCOLESTR> names;  // as a script looks them up; none for what has no name
  std::vector<std::wstring> parameter_names;
  std::vector<PassedArgument> arguments;
  std::vector<DISPID> named;
};
using Recording = std::vector<Step>;

// Writes down the calls of this process's office. Objects get places in the order in which they appear.
class Recorder {
 public:
  // What was asked while run ran.
  template <class Run>
  Recording record(const Run& run) {
    current_ = this;
    on_call = [](const SeenCall& call) { current_->add(call); };
    on_release = [](LONG object) { current_->add_release(object); };
    run();
    on_call = nullptr;
    on_release = nullptr;
    return std::exchange(recording_, Recording());
  }

 private:
  void add(const SeenCall& call);
  void add_release(LONG object);
  int place(LONG number);

  static inline Recorder* current_ = nullptr;
  Recording recording_;
  std::map<LONG, int> places_;
};

// The calls as text, the same for the same calls.
std::string described(const Recording& recording);

int count_of_calls(const Recording& recording);

// How many calls a script looks names up for.
int look_ups_of_script(const Recording& recording);

// Asks what was recorded. With remembered identifiers that is the least that any client can do.
class Client {
 public:
  explicit Client(bool looks_up) : looks_up_(looks_up) {}
  ~Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  // Asks it, and holds the objects answered as long as the library did. Throws std::runtime_error where a
  // call fails.
  void run(Recording& recording);

  // Puts the objects that the recording's calls left in the places of those that they replaced, so that it
  // can be run again.
  void turn(const Recording& recording);

 private:
  void let_go(int place);
  void take(Step& step);
  IUnknown*& object(int place);

  bool looks_up_;
  std::vector<IUnknown*> objects_;
};

}  // namespace bench
