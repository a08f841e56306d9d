// Both bitnesses registered side by side, as a 64-bit system has them.
#include <fstream>
#include <map>

#include "registry.h"

namespace outside {
namespace {

// Whether script hosts of both bitnesses create the controls as "32" and "64" in `bits` say.
void expect_hosts(const std::string& bits) {
  const std::wstring script = library_path() + L".vbs";
  // The script host answers 0 where a script breaks off.
  std::ofstream(std::string(script.begin(), script.end()))
      << "CreateObject(\"ZORBOffice.ZORBWord\").GetLastErrorNumber\nWScript.Quit 42\n";
  for (const auto& [own, folder] : {std::pair{"32", L"syswow64"}, {"64", L"system32"}})
    EXPECT_EQ(run(L"C:\\windows\\" + std::wstring(folder) + L"\\cscript.exe //nologo \"" + script + L"\""),
              bits.find(own) != bits.npos ? 42u : 0u)
        << own << "-bit host, registered: " << bits;
  DeleteFileW(script.c_str());
}

TEST(Registration, of_one_bitness_keeps_what_the_other_needs_until_both_are_gone) {
  const auto path = library_path(), folder = path.substr(0, path.rfind(L"\\win64\\"));
  const auto other = folder + L"\\win32\\ZORBOffice.ocx";
  if (GetFileAttributesW(other.c_str()) == INVALID_FILE_ATTRIBUTES)
    GTEST_SKIP() << "no 32-bit library is built";
  unregister_all();
  ASSERT_EQ(regsvr32(L"/u", other), 0u);
  // Wine's script hosts register a type library of their own when they first run.
  expect_hosts("");
  // What there is whenever just this bitness is registered, or none.
  std::map<std::string, Keys> seen = {{"", registry(HKEY_LOCAL_MACHINE, View::both_bitnesses)}};
  struct Step {
    const wchar_t* options;
    const std::wstring& library;
    std::string registered;
  };
  for (const Step& step : {Step{L"", path, "64"},
                           {L"/u", path, ""},
                           {L"", other, "32"},
                           {L"", path, "32 64"},
                           {L"/u", other, "64"},
                           {L"", other, "64 32"},
                           {L"/u", path, "32"},
                           {L"/u", other, ""}}) {
    SCOPED_TRACE(step.registered);
    ASSERT_EQ(regsvr32(step.options, step.library), 0u);
    expect_hosts(step.registered);
    if (step.registered.size() > 2) continue;  // The later one's folder is the help's.
    const Keys now = registry(HKEY_LOCAL_MACHINE, View::both_bitnesses);
    EXPECT_EQ(difference(seen.try_emplace(step.registered, now).first->second, now), L"");
  }
}

}  // namespace
}  // namespace outside
