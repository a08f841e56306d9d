// A control of the built library as a host drives it, alone or over a recording office application.
#pragma once

#include <algorithm>

#include "fake_object.h"
#include "outside/library.h"
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
    outside::call("DllCanUnloadNow");
    office_.fail_at = 0;
    control_ = outside::create(outside::classes[class_index]);
  }

  std::string log() { return taken_log(office_); }

  // Calls `attempt` for each of the steps, which " | " separates, with its number and all steps as far as it,
  // and at last with 0 and all of them.
  template <class Attempt>
  static void for_each_step(const std::string& steps, const Attempt& attempt) {
    for (size_t step = 1, end = steps.empty() ? std::string::npos : 0; end != std::string::npos; ++step) {
      SCOPED_TRACE(step);
      end = steps.find(" | ", end + 1);
      attempt(step, steps.substr(0, end));
    }
    attempt(0, steps);
  }

  Office office_;
};
