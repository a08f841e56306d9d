// ZORBWord of the built library over the recording word processor, as each test of this folder drives it.
#pragma once

#include "support/control_test.h"
#include "support/fake_word.h"

class WordTest : public ControlTest<FakeWord, 0> {
 protected:
  // Replaces the control by a new one that has started the word processor and opened a document.
  void make_ready() {
    renew();
    expect(L"Start", {}, "ui1 1");
    expect(L"OpenDoc", {L"C:\\a.docx"}, "ui1 1");
    log();
  }
};
