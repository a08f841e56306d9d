// ZORBWord of the built library over the recording word processor, as each test of this folder drives it.
#pragma once

#include "support/fake_offices.h"
#include "support/member_rows.h"

class WordTest : public WordProcessorTest<FakeWord, 0> {
 protected:
  void check_kept() override {
    EXPECT_EQ(office_.live, 2);
    expect(L"SaveDoc", {}, "empty");
    expect(L"SetActive", {true}, "ui1 1");
    EXPECT_EQ(log(), "call Document.Save | call Application.Activate");
  }
};
