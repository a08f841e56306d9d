// ZORBOutlook of the built library over the recording mail client, as each test of this folder drives it.
#pragma once

#include "outside/library.h"
#include "support/fake_outlook.h"
#include "support/message_boxes.h"

class OutlookTest : public testing::Test {
 protected:
  using Arguments = std::vector<_variant_t>;

  OutlookTest();
  ~OutlookTest();

  // Replaces the control by a new one that has recorded `unset`, started a session, filled the collection of
  // every kind and created a current item of every kind.
  void make_ready();
  // Calls `member`, which must give `result`, or "raised NUMBER DESCRIPTION", and show the message boxes
  // `shown`, separated by " | ", "" for none. A title that is not the library's stands in brackets before.
  void expect(const wchar_t* member, const Arguments& arguments, const std::string& result,
              const std::string& shown = "");
  // The last error, number and description as the log shows values.
  std::string last_error();
  // Current item and collection of every kind, by their objects' names: "|Appointment|AppointmentItems|…|".
  std::string held();
  // The log since the last call, steps separated by " | ".
  std::string log();
  // A last error as last_error gives it.
  static std::string recorded(int number, const std::string& description);
  // A string that may hold nulls.
  static _variant_t text(std::wstring_view text);

  const std::string not_set = "Object variable or With block variable not set", unset = recorded(91, not_set);

  FakeOutlook outlook_;
  MessageBoxes boxes_;
  Microsoft::WRL::ComPtr<IDispatch> control_ = outside::create(outside::classes[1]);
  // What the host finds as the last error while each message box since the last expect comes up, and what it
  // does then.
  std::vector<std::string> errors_at_boxes_;
  std::function<void()> at_box_;

 private:
  static LRESULT CALLBACK window_event(int event, WPARAM window, LPARAM details);

  HHOOK hook_;
};
