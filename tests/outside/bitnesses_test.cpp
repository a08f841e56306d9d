// Both bitnesses registered side by side, as a 64-bit system has them.
#include <map>

#include "registry.h"

namespace outside {
namespace {

// But for the help's folder, which is the later one's.
Keys shared_registry() {
  Keys keys = registry(View::both_bitnesses);
  std::erase_if(keys, [](const auto& key) { return key.find(L"\\HELPDIR =") != key.npos; });
  return keys;
}

TEST(Registration, of_one_bitness_keeps_what_the_other_needs_until_both_are_gone) {
  const auto path = library_path(), folder = path.substr(0, path.rfind(L"\\win64\\"));
  const auto other = folder + L"\\win32\\ZORBOffice.ocx";
  if (GetFileAttributesW(other.c_str()) == INVALID_FILE_ATTRIBUTES)
    GTEST_SKIP() << "no 32-bit library is built";
  unregister_all();
  ASSERT_EQ(regsvr32(L"/u", other), 0u);
  // What there is whenever just this bitness is registered, or none; together they have what each has alone.
  std::map<std::string, Keys> seen = {{"", shared_registry()}};
  for (const auto& [options, library, registered] :
       {std::tuple<const wchar_t*, std::wstring, std::string>{L"", path, "64"},
        {L"/u", path, ""},
        {L"", other, "32"},
        {L"", path, "both"},
        {L"/u", other, "64"},
        {L"", other, "both"},
        {L"/u", path, "32"},
        {L"/u", other, ""}}) {
    ASSERT_EQ(regsvr32(options, library), 0u);
    const Keys now = shared_registry();
    Keys& expected = seen.try_emplace(registered, now).first->second;
    if (registered == "both") (expected = seen["32"]).insert(seen["64"].begin(), seen["64"].end());
    EXPECT_EQ(difference(expected, now), L"") << registered;
  }
}

}  // namespace
}  // namespace outside
