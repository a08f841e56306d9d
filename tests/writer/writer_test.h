// OpenWriter of the built library over the recording suite, as each test of this folder drives it.
#pragma once

#include "support/control_test.h"
#include "support/fake_suite.h"

using Microsoft::WRL::ComPtr;

class WriterTest : public ControlTest<FakeSuite, 2> {
 protected:
  // Replaces the control by a new one that has started the suite and opened a document.
  void make_ready() {
    renew();
    expect(L"Start", {}, "ui1 1");
    expect(L"OpenDoc", {L"C:\\a.odt"}, "ui1 1");
    log();
  }
};
