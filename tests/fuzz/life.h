// One control from its creation to its end, among a container, media and office objects that do anything.
#pragma once

#include <memory>

#include "chance.h"
#include "control/hosted.h"
#include "support/fake_offices.h"
#include "support/text.h"

// What is wrong is said with the seed and the number of the call under way, and counted.
struct Report {
  uint64_t seed = 0, call = 0;
  const char* what = "";  // the method under way, for a crash
  bool verbose = false;
  int faults = 0;

  void wrong(const char* why, unsigned long value = 0);
  void begin(const char* method, const wchar_t* member = L"", const std::string& arguments = "");
};
inline Report report;

// The host's reference is the only one: a method that does not keep the instance alive crashes when that is
// let go of.
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
  IDispatch* object();
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

 private:
  void begin();
  void any_call();
  void let_go();
  HRESULT failed(EXCEPINFO* info);

  int depth_ = 0;
  Outer outer_;
  std::unique_ptr<struct Medium> medium_;

 public:
  IStream* const stream;
  IStorage* const storage;
  IPropertyBag* const bag;
  static inline int objects = 0;  // that somebody still holds
  static inline Life* current = nullptr;
};

// What is called: a member late or by its slot or the names of some; any other method.
void call_automation(Life& life);
void call_hosting(Life& life);
