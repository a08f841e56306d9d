// A control over LibreOffice, and the files that the tests use there.
#pragma once

#include <gmock/gmock.h>

#include "support/control_test.h"

template <int class_index>
class OfficeHost : public HostTest<class_index> {
 protected:
  // Calls `member`, which must give `result` and show one box, whose text begins with `shown` and
  // tells `detail`.
  void expect_failure(const wchar_t* member, const Arguments& arguments, const std::string& result,
                      const std::string& shown, const std::string& detail = "") {
    EXPECT_EQ(this->call(member, arguments), result);
    EXPECT_THAT(taken_boxes(this->boxes_),
                testing::AllOf(testing::StartsWith(shown), testing::HasSubstr(detail)));
  }

  // The file of that name in the user's temporary folder.
  static _variant_t temporary(const std::wstring& name) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return (folder + (L"zorb " + name)).c_str();
  }

  // The demo's template, which has a header, a footer and a table.
  static _variant_t demo_template() {
    const auto path = outside::library_path();
    return (path.substr(0, path.rfind(L"\\build\\")) + L"\\examples\\letters.dotx").c_str();
  }
};
