// A control of the built library as a host drives it, alone or over a recording office application.
#pragma once

#include <algorithm>

#include "fake_object.h"
#include "faults.h"
#include "outside/members.h"
#include "short_memory.h"
#include "shown_boxes.h"

using Arguments = std::vector<_variant_t>;

// The path of a file of the project, which the library is built below.
inline std::wstring project_file(const std::wstring& name) {
  const auto path = outside::library_path();
  return path.substr(0, path.rfind(L"\\build\\") + 1) + name;
}

// Calls `member` of `object` by name and returns its result as the fakes' log shows values, or "raised NUMBER
// DESCRIPTION" with the failure that reached the host. The name is looked up in `bound_to` where that is
// given.
inline std::string late_call(IDispatch* object, const wchar_t* member, Arguments arguments = {},
                             IDispatch* bound_to = nullptr) {
  DISPID identifier = DISPID_UNKNOWN;
  auto* name = const_cast<wchar_t*>(member);
  (bound_to ? bound_to : object)->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &identifier);
  std::ranges::reverse(arguments);
  DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  _variant_t result;
  EXCEPINFO raised = {};
  const HRESULT called =
      object->Invoke(identifier, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                     &parameters, &result, &raised, nullptr);
  const auto description = utf8(outside::take(raised.bstrDescription));
  SysFreeString(raised.bstrSource);
  SysFreeString(raised.bstrHelpFile);
  if (called == S_OK) return describe(result);
  char number[16];
  snprintf(number, sizeof(number), "%08lX", called == DISP_E_EXCEPTION ? raised.scode : called);
  return std::string("raised ") + number + " " + description;
}

// The office's log since the last call, steps separated by " | ".
inline std::string taken_log(FakeOffice& office) {
  std::string all;
  for (const auto& line : std::exchange(office.log, {})) all += (all.empty() ? "" : " | ") + line;
  return all;
}

// The boxes since the last call, separated by " | ". A title that is not the library's stands in brackets
// before.
inline std::string taken_boxes(ShownBoxes& boxes) {
  std::string all;
  for (const auto& box : boxes.take()) {
    all += all.empty() ? "" : " | ";
    all += box.title == "ZORBOffice" ? box.text : "[" + box.title + "] " + box.text;
  }
  return all;
}

// Fails where what it stands in takes longer than a failure that the system reports may take: it is told at
// once, and the rest of the time is the busy machine's.
struct Soon {
  ~Soon() { EXPECT_LT(GetTickCount() - started, 5000U); }
  const DWORD started = GetTickCount();
};

// The members that were driven through everything that can go wrong, and what was tried: a program that
// drives members of a class has to drive each of them.
class Driven : public testing::Environment {
 public:
  static Driven& here() {
    static auto* const only = new Driven;
    static const auto* const added = testing::AddGlobalTestEnvironment(only);
    return static_cast<void>(added), *only;
  }

  void TearDown() override {
    printf("counted: %d steps, %d faults, %d demands\n", steps, faults, demands);
    if (testing::GTEST_FLAG(filter) != "*") return;
    for (const auto& [class_index, names] : members) {
      std::set<std::wstring> published;
      for (const auto& member : outside::members_of(outside::classes[class_index]))
        published.insert(member.name());
      EXPECT_EQ(names, published);
    }
  }

  std::map<int, std::set<std::wstring>> members;  // by class
  int steps = 0, faults = 0, demands = 0;
};

// A control and the boxes that it shows, none of which may be left unseen.
template <int class_index>
class HostTest : public testing::Test {
 protected:
  ~HostTest() { EXPECT_EQ(taken_boxes(boxes_), ""); }

  std::string call(const wchar_t* member, const Arguments& arguments = {}) {
    return late_call(control_.Get(), member, arguments);
  }

  // Calls `member`, which must give `result` and show the boxes `boxes`, as taken_boxes() has them.
  void expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
              const std::string& boxes = "") {
    EXPECT_EQ(call(member, arguments), result) << utf8(member);
    EXPECT_EQ(taken_boxes(boxes_), boxes) << utf8(member);
  }

  ShownBoxes boxes_;
  Microsoft::WRL::ComPtr<IDispatch> control_ = outside::create(outside::classes[class_index]);
};

template <class Office, int class_index>
class ControlTest : public HostTest<class_index> {
 protected:
  using HostTest<class_index>::control_;

  ~ControlTest() {
    end_control();
    EXPECT_EQ(office_.live, 0) << "objects of the office application are still held";
  }

  void end_control() {
    control_.Reset();
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
  }

  // Replaces the control by a fresh one, over an application that no step fails in.
  void renew() {
    control_.Reset();
    if (outside::call("DllCanUnloadNow") == S_OK) {
      EXPECT_EQ(office_.live, 0) << "objects are still held";
    }
    office_.fail_at = 0;
    control_ = outside::create(outside::classes[class_index]);
  }

  std::string log() { return taken_log(office_); }

  // Calls `attempt` with 0, all of the steps, which " | " separates, and no fault; then, with each step's
  // number and all steps as far as it, for everything that can go wrong there.
  template <class Attempt>
  void for_each_step(const std::string& steps, const Attempt& attempt) {
    attempt(0, steps, Fault{});
    const auto usual = office_.failure;
    each_step(steps, [&](size_t step, const std::string& reached, const std::string& line) {
      ++Driven::here().steps;
      for (const auto& fault : faults_where(due_at(step, line, steps.substr(reached.size())))) {
        SCOPED_TRACE(fault.description + " " + describe(fault.failure.answer));
        if (answers_too_.contains(line + ": " + describe(fault.failure.answer))) continue;
        office_.failure = fault.failure;
        ++Driven::here().faults;
        attempt(step, reached, fault);
      }
    });
    office_.failure = usual;
    office_.fail_at = 0;
  }

  // Calls the member, each time made ready anew, with every demand for memory refused in turn, alone and with
  // all that follow. It does what it usually does, or fails as `failed` says for a fault, or where not even
  // that can be told, with a failure that reaches the host. Then `kept` looks at what it left behind.
  template <class Ready, class Failed, class Kept>
  void run_short(const wchar_t* member, const Arguments& arguments, const Ready& make_ready,
                 const Failed& failed, const Kept& kept) {
    if (office_kind() != ::Office::plain) return;
    office_.forgets = true;
    std::string usual, usual_boxes;
    long held = 0;
    for (const bool lasting : {false, true}) {
      bool refused = true;
      // The first round takes what the system keeps, the second is undisturbed.
      for (long demand = lasting ? 1 : -1; refused; ++demand) {
        SCOPED_TRACE((lasting ? "from demand " : "demand ") + std::to_string(demand));
        make_ready();
        ShortMemory memory(demand ? std::abs(demand) : LONG_MAX, lasting);
        const auto result = this->call(member, arguments);
        refused = memory.end() || demand < 1;
        Driven::here().demands += refused && demand > 0;
        const auto boxes = taken_boxes(this->boxes_), outcome = result + " " + boxes;
        if (demand == 0) usual = outcome, usual_boxes = boxes;
        const auto is_told = [&](const char* text) { return failed(Fault{{}, 7, text}, result, boxes); };
        // Lasting, the boxes end early, and a failure that reaches the host has no text.
        const bool is_raised = result == "raised 8007000E " ||
                               (lasting && result.starts_with("raised 800A0007 ")) ||
                               (lasting && result.starts_with("raised ") && usual.starts_with(result));
        EXPECT_TRUE(demand < 0 || outcome == usual || is_told("Out of memory") || (lasting && is_told("")) ||
                    (is_raised && usual_boxes.starts_with(boxes)))
            << outcome;
        if (outcome != usual) kept();
        control_.Reset();
        if (demand < 1) held = blocks_in_use();
        EXPECT_EQ(blocks_in_use(), held);
        log();
      }
    }
    office_.forgets = false;
  }

  // Answers that are no failure although something else is due there, as "STEP: ANSWER".
  std::set<std::string> answers_too_;
  Office office_;

 private:
  // The type of the answer that a step should give. An object's default property is a text; an element that
  // no step is asked of may be anything.
  VARTYPE due_at(size_t step, const std::string& line, const std::string& following) {
    const auto next = following.substr(0, following.find(" | ", 3));
    if (next.ends_with(".[value]")) return VT_BSTR;
    if (next.starts_with(" | next ") && line.starts_with("next ")) return VT_EMPTY;
    const VARTYPE answered = office_.answered[{step, line}];
    return answered == VT_UNKNOWN && !line.ends_with("[newenum]") ? VARTYPE{VT_DISPATCH} : answered;
  }
  // Calls `visit` with each step's number, all steps as far as it, and its line.
  template <class Visit>
  static void each_step(const std::string& steps, const Visit& visit) {
    for (size_t step = 1, begin = 0; begin < steps.size(); ++step) {
      const size_t end = std::min(steps.find(" | ", begin), steps.size());
      const std::string line = steps.substr(begin, end - begin);
      SCOPED_TRACE(line);
      visit(step, steps.substr(0, end), line);
      begin = end + 3;
    }
  }
};
