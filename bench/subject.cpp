#include "bench/subject.h"

namespace bench {
namespace {

// around(part, run) runs each part: 0 what leads to the first use, then what comes before each use, and the
// use itself.
template <class Around>
void use_three_times(Prepared& prepared, Trips& first, Trips& third, const Around& around) {
  around(0, [&] { prepared.get_ready(); });
  for (int use = 1; use <= 3; ++use) {
    around(2 * use - 1, [&] { prepared.before(); });
    take_counts();
    around(2 * use, [&] { prepared.call().require(prepared.instance()); });
    (use == 1 ? first : third) = take_counts();
  }
}

void append(Recording& all, Recording part) {
  for (Step& step : part) all.push_back(std::move(step));
}

}  // namespace

Prepared::Prepared(const MeasuredClass& measured, const MeasuredMember& member)
    : call_(measured, member.call), start_(measured, measured.start), instance_(create(measured.class_id)) {
  for (const HostCall& call : member.ready) ready_.emplace_back(measured, call);
  for (const HostCall& call : member.before) before_.emplace_back(measured, call);
}

void Prepared::get_ready() {
  start_.require(instance());
  for (ReadyCall& call : ready_) call.require(instance());
}

void Prepared::before() {
  for (ReadyCall& call : before_) call.require(instance());
}

RecordedMember record(const MeasuredClass& measured, const MeasuredMember& member, Trips& first,
                      Trips& third) {
  Prepared prepared(measured, member);
  Recorder recorder;
  RecordedMember recorded;
  use_three_times(prepared, first, third, [&](int part, const auto& run) {
    Recording steps = recorder.record(run);
    append(part < 5 ? recorded.setup : part == 5 ? recorded.before : recorded.call, std::move(steps));
  });
  return recorded;
}

void count(const MeasuredClass& measured, const MeasuredMember& member, Trips& first, Trips& third) {
  Prepared prepared(measured, member);
  use_three_times(prepared, first, third, [](int, const auto& run) { run(); });
}

}  // namespace bench
