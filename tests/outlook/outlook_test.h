// ZORBOutlook of the built library over the recording mail client, as each test of this folder drives it.
#pragma once

#include "support/control_test.h"
#include "support/fake_outlook.h"

class OutlookTest : public ControlTest<FakeOutlook, 1> {
 protected:
  OutlookTest();
  ~OutlookTest();

  // Replaces the control by a new one that has recorded `unset`, started a session, filled the collection of
  // every kind and created a current item of every kind.
  void make_ready();
  // Forgets what was seen at earlier boxes, and does what ControlTest's does.
  void expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
              const std::string& boxes = "");
  // The last error as the host reads it, and as it must read one of that number and description.
  std::string last_error();
  static std::string recorded(int number, const std::string& description);
  // Current item and collection of every kind, by their objects' names: "|Appointment|AppointmentItems|…|".
  std::string held();
  // A string, which may hold nulls; the null string for {}.
  static _variant_t text(std::wstring_view text);

  const std::string not_set = "Object variable or With block variable not set", unset = recorded(91, not_set);

  // The last error while each box of the last expect came up, and what the host does then.
  std::vector<std::string> errors_at_boxes_;
  std::function<void()> at_box_;

 private:
  static LRESULT CALLBACK window_event(int event, WPARAM window, LPARAM details);

  HHOOK hook_;
};
