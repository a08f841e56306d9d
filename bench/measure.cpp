// Measures the built library over the bench's own office, which bench_office must have registered. Writes
// lines of fields separated by tabs, the first of which says what the line is; bench/report.py reads them.
//   bench_measure trips | inside | outside | walk | life
#include <algorithm>
#include <cstdio>
#include <functional>
#include <numeric>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "bench/life.h"
#include "bench/marshaling.h"
#include "bench/subject.h"

namespace bench {
namespace {

struct Subject {
  const MeasuredClass* measured;
  const MeasuredMember* member;
  RecordedMember recorded;

  void print_name(const char* what, const char* where) const {
    std::printf("%s\t%s\t%s\t%ls\t%s\t%s\t%d", what, where, measured->name, member->call.member,
                member->variant, member->own_cost, member->begins_session);
  }
};

void progress(std::size_t done, std::size_t all) {
  std::printf("%u of %u members\n", static_cast<unsigned>(done), static_cast<unsigned>(all));
  std::fflush(stdout);
}

void print(const Trips& trips) {
  std::printf("\t%ld\t%ld\t%ld", trips.look_ups, trips.questions, trips.calls);
}

// What clients make of the recorded calls, as the office counts it.
Trips trips_of(RecordedMember& recorded, bool looks_up) {
  Client client(looks_up);
  client.run(recorded.setup);
  client.run(recorded.before);
  take_counts();
  client.run(recorded.call);
  return take_counts();
}

void print_trips(Subject& subject, const char* where, const Trips& first, const Trips& third) {
  subject.print_name("trips", where);
  print(first);
  print(third);
  print(trips_of(subject.recorded, true));
  print(trips_of(subject.recorded, false));
  std::puts("");
}

// Records all members over this process's office, and holds the calls against those that the library makes
// where nothing is published: they must be the same.
std::vector<Subject> record_all(bool prints) {
  const ServedClasses served(CLSCTX_INPROC_SERVER);
  settings().cost = 0;
  std::vector<Subject> subjects;
  for (const MeasuredClass& measured : measured_classes()) {
    for (const MeasuredMember& member : measured.members) {
      Trips first, third, untyped_first, untyped_third;
      settings().publishes = 0;
      const RecordedMember untyped = record(measured, member, untyped_first, untyped_third);
      settings().publishes = 1;
      Subject& subject =
          subjects.emplace_back(Subject{&measured, &member, record(measured, member, first, third)});
      if (described(untyped.call) != described(subject.recorded.call)) {
        std::fprintf(stderr, "bench_measure: %ls makes other calls where types are published:\n%s\n%s\n",
                     member.call.member, described(untyped.call).c_str(),
                     described(subject.recorded.call).c_str());
        throw std::runtime_error("other calls");
      }
      if (!prints) continue;
      print_trips(subject, "inside", first, third);
      print_trips(subject, "untyped", untyped_first, untyped_third);
    }
  }
  return subjects;
}

struct Way {
  std::function<void()> before;
  std::function<HRESULT()> call;
  std::vector<double> times = {};
};

// Times four ways in turn, a few calls of each: the library by vtable and by Invoke, the client that
// remembers identifiers and the one that looks names up. Prints what figure makes of each one's times, in
// nanoseconds.
void print_times(Subject& subject, const char* where, int rounds, int calls_in_turn,
                 double (*figure)(std::vector<double>& times)) {
  Prepared by_vtable(*subject.measured, *subject.member), by_invoke(*subject.measured, *subject.member);
  Client remembering(false), looking_up(true);
  RecordedMember& recorded = subject.recorded;
  const auto way_of = [&](Client& client) {
    client.run(recorded.setup);
    return Way{[&] { client.turn(recorded.call), client.run(recorded.before); },
               [&] { return client.run(recorded.call), S_OK; }};
  };
  for (Prepared* prepared : {&by_vtable, &by_invoke}) prepared->get_ready();
  Way ways[] = {
      {[&] { by_vtable.before(); }, [&] { return by_vtable.call().by_vtable(by_vtable.instance()); }},
      {[&] { by_invoke.before(); }, [&] { return by_invoke.call().by_invoke(by_invoke.instance()); }},
      way_of(remembering),
      way_of(looking_up)};

  for (int round = 0; round <= rounds; ++round) {
    for (Way& way : ways) {
      for (int i = 0; i < calls_in_turn; ++i) {
        way.before();
        const auto begin = ticks();
        const HRESULT status = way.call();
        const auto end = ticks();
        if (FAILED(status)) throw std::runtime_error("a measured call fails");
        // The first round warms up.
        if (round > 0) way.times.push_back(static_cast<double>(end - begin) / ticks_in_nanosecond());
      }
    }
  }
  subject.print_name("time", where);
  std::printf("\t%d", count_of_calls(recorded.call));
  for (Way& way : ways) std::printf("\t%.1f", figure(way.times));
  std::puts("");
}

// The time that a tenth of the calls stay below: other programs only add to what the processor does.
double tenth(std::vector<double>& times) {
  const auto found = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 10);
  std::ranges::nth_element(times, found);
  return *found;
}

// The mean without the slowest quarter: waking another process takes another time at each call.
double mean_of_most(std::vector<double>& times) {
  const auto end = times.end() - static_cast<std::ptrdiff_t>(times.size() / 4);
  std::ranges::nth_element(times, end);
  return std::accumulate(times.begin(), end, 0.0) / static_cast<double>(end - times.begin());
}

void measure_inside() {
  std::vector<Subject> subjects = record_all(false);
  const ServedClasses served(CLSCTX_INPROC_SERVER);
  settings().cost = 1000;
  for (std::size_t i = 0; i < subjects.size(); ++i) {
    progress(i, subjects.size());
    print_times(subjects[i], "inside", *subjects[i].member->own_cost ? 6 : 60, 10, tenth);
  }
  settings().cost = 0;
}

void measure_outside() {
  keep_proxies_and_stubs_at_hand();
  std::vector<Subject> subjects = record_all(false);
  for (std::size_t i = 0; i < subjects.size(); ++i) {
    progress(i, subjects.size());
    Subject& subject = subjects[i];
    Trips first, third;
    count(*subject.measured, *subject.member, first, third);
    print_trips(subject, "outside", first, third);
    print_times(subject, "outside", 24, 1, mean_of_most);
  }
}

// The best time an item of several walks through that many.
double time_of_walk(const MeasuredClass& outlook, LONG items) {
  settings().items = items;
  const auto instance = create(outlook.class_id);
  ReadyCall start(outlook, {L"StartOutlook"}), init(outlook, {L"InitItems", {L"Email", L""}});
  start.require(instance.get());
  init.require(instance.get());
  std::optional<double> best;
  for (int run = 0; run < 5; ++run) {
    ReadyCall first(outlook, {L"GetFirstItem", {L"Email"}}), next(outlook, {L"GetNextItem", {L"Email"}});
    const auto begin = ticks();
    first.require(instance.get());
    for (LONG i = 1; i < items; ++i) next.require(instance.get());
    const double each = static_cast<double>(ticks() - begin) / ticks_in_nanosecond() / items;
    best = std::min(best.value_or(each), each);
  }
  return *best;
}

void measure_walks() {
  const ServedClasses served(CLSCTX_INPROC_SERVER);
  settings().cost = 1000;
  for (const LONG items : {1000, 10000, 100000}) {
    std::printf("walk\t%ld\t%.1f\n", items, time_of_walk(measured_classes()[1], items));
  }
  settings().items = LONG_MAX;
  settings().cost = 0;
}

}  // namespace
}  // namespace bench

int main(int count, char** arguments) {
  const std::string_view command = count > 1 ? arguments[1] : "";
  CoInitialize(nullptr);
  try {
    if (command == "trips") {
      bench::record_all(true);
    } else if (command == "inside") {
      bench::measure_inside();
    } else if (command == "outside") {
      bench::measure_outside();
    } else if (command == "walk") {
      bench::measure_walks();
    } else if (command == "life") {
      bench::measure_life();
    } else {
      return 2;
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "bench_measure: %s\n", failure.what());
    return 1;
  }
  return 0;
}
