// OpenWriter of the built library over the recording suite, as each test of this folder drives it.
#pragma once

#include "support/fake_offices.h"
#include "support/member_rows.h"

inline std::string loaded(const std::string& path) {
  return "get Desktop.loadComponentFromURL(bstr \"file:///" + path +
         "\", bstr \"_blank\", i2 0, &array never dimensioned)";
}

class WriterTest : public WordProcessorTest<FakeSuite, 2> {
 protected:
  void check_kept() override {
    expect(L"ReadText", {0, 0}, "bstr \"all of it\"");
    expect(L"OpenDoc", {L"b"}, "ui1 1");
    EXPECT_EQ(log(), "get Document.GetText | get GetText.GetString | " + loaded("b"));
  }
};
