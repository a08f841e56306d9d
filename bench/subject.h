// One measured member, made ready to be used again and again: on instances of the library and by clients that
// make its calls themselves.
#pragma once

#include <memory>
#include <string>

#include "bench/control.h"
#include "bench/recording.h"

namespace bench {

// A member on an instance of its own, with all that must have been called before it.
class Prepared {
 public:
  Prepared(const MeasuredClass& measured, const MeasuredMember& member);

  void get_ready();
  void before();

  IDispatch* instance() const { return instance_.get(); }
  ReadyCall& call() { return call_; }

 private:
  ReadyCall call_, start_;
  std::deque<ReadyCall> ready_, before_;
  zorboffice::ComPtr<IDispatch> instance_;
};

// The office calls behind a member's third use, with what led there.
struct RecordedMember {
  Recording setup, before, call;
};

// Uses a new instance three times and stores what the office counted at the first and the third use. The
// library must be given an office of this process.
RecordedMember record(const MeasuredClass& measured, const MeasuredMember& member, Trips& first,
                      Trips& third);

// The same without a recording, over whatever office there is.
void count(const MeasuredClass& measured, const MeasuredMember& member, Trips& first, Trips& third);

}  // namespace bench
