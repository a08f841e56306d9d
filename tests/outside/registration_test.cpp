// What registration writes into the machine's classes or the user's, and that nothing of it stays.
#include <map>

#include "registry.h"
#include "support/import_table.h"

namespace outside {
namespace {

// %n is the class's name, %c %i %e its identifiers, %b its bitmap; %l is the library, %p its file,
// %f its folder.
constexpr const wchar_t* class_keys[] = {
    L"\\CLSID\\%c =ZORBOffice.%n",
    L"\\CLSID\\%c\\Control",
    L"\\CLSID\\%c\\Implemented Categories",
    L"\\CLSID\\%c\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}",
    L"\\CLSID\\%c\\InprocServer32 =%p ThreadingModel=Apartment",
    L"\\CLSID\\%c\\MiscStatus =0",
    L"\\CLSID\\%c\\MiscStatus\\1 =131473",
    L"\\CLSID\\%c\\ProgID =ZORBOffice.%n.1",
    L"\\CLSID\\%c\\ToolboxBitmap32 =%p, %b",
    L"\\CLSID\\%c\\TypeLib =%l",
    L"\\CLSID\\%c\\Version =1.0",
    L"\\CLSID\\%c\\VersionIndependentProgID =ZORBOffice.%n",
    L"\\Interface\\%e =__%n",
    L"\\Interface\\%e\\ProxyStubClsid32 ={00020420-0000-0000-C000-000000000046}",
    L"\\Interface\\%e\\TypeLib =%l Version=1.0",
    L"\\Interface\\%i =_%n",
    L"\\Interface\\%i\\ProxyStubClsid32 ={00020424-0000-0000-C000-000000000046}",
    L"\\Interface\\%i\\TypeLib =%l Version=1.0",
    L"\\ZORBOffice.%n =ZORBOffice.%n",
    L"\\ZORBOffice.%n\\CLSID =%c",
    L"\\ZORBOffice.%n\\CurVer =ZORBOffice.%n.1",
    L"\\ZORBOffice.%n.1 =ZORBOffice.%n",
    L"\\ZORBOffice.%n.1\\CLSID =%c",
    L"\\TypeLib\\%l",
    L"\\TypeLib\\%l\\1.0 =ZORBOffice50",
    L"\\TypeLib\\%l\\1.0\\0",
    L"\\TypeLib\\%l\\1.0\\0\\%w =%p",
    L"\\TypeLib\\%l\\1.0\\409",
    L"\\TypeLib\\%l\\1.0\\409\\%w =%p",
    L"\\TypeLib\\%l\\1.0\\FLAGS =2",
    L"\\TypeLib\\%l\\1.0\\HELPDIR =%f"};

std::wstring filled(std::wstring row, const ClassIds& ids) {
  const std::wstring path = library_path(), folder = path.substr(0, path.rfind(L'\\'));
  const std::wstring bitmap = std::to_wstring(30000 + (&ids - classes));
  const std::wstring texts[] = {ids.name,      ids.class_id, ids.interface_id,
                                ids.events_id, library_id,   bitmap,
                                path,          folder,       sizeof(void*) == 4 ? L"win32" : L"win64"};
  for (size_t mark = 0; mark < std::size(texts); ++mark)
    for (size_t at; (at = row.find({L'%', L"ncielbpfw"[mark]})) != row.npos;) row.replace(at, 2, texts[mark]);
  return row;
}

// What is there once the library is registered among classes of which `before` was there.
Keys registered(HKEY among, const Keys& before) {
  Keys keys = before;
  const std::wstring above = among == HKEY_CURRENT_USER ? L"\\" + root : L"";
  if (!above.empty()) keys.insert({above, above + L"\\CLSID", above + L"\\Interface", above + L"\\TypeLib"});
  for (const ClassIds& ids : classes)
    for (const auto key : class_keys) keys.insert(above + filled(key, ids));
  return keys;
}

TEST(Registration, writes_exactly_its_own_keys_and_takes_them_back) {
  unregister_all();
  const Keys machine = registry(), user = registry(View::all_keys, HKEY_CURRENT_USER);
  const Keys whole_machine = registry(View::all_keys);
  // A scope is as DllInstall takes it; null is one of the other two entry points.
  for (const auto& [install, scope, for_machine, for_user] :
       {std::tuple<BOOL, LPCWSTR, bool, bool>{TRUE, nullptr, true, false},
        {TRUE, L"user", true, true},
        {FALSE, nullptr, false, true},
        {TRUE, L"", true, true},
        {FALSE, L"USER", true, false},
        {FALSE, L"", false, false},
        {TRUE, L"User", false, true},
        {FALSE, L"user", false, false}}) {
    SCOPED_TRACE(scope ? scope : L"none");
    const auto other_entry = install ? "DllRegisterServer" : "DllUnregisterServer";
    EXPECT_EQ(scope ? call("DllInstall", install, scope) : call(other_entry), S_OK);
    EXPECT_EQ(difference(for_machine ? registered(HKEY_LOCAL_MACHINE, machine) : machine, registry()), L"");
    EXPECT_EQ(difference(for_user ? registered(HKEY_CURRENT_USER, user) : user,
                         registry(View::all_keys, HKEY_CURRENT_USER)),
              L"");
  }
  ASSERT_EQ(regsvr32(L""), 0u);
  for (const LPCWSTR unknown : {L"users", L"use", L" user", L"machine"})
    for (const BOOL install : {TRUE, FALSE})
      EXPECT_EQ(call("DllInstall", install, unknown), E_INVALIDARG) << unknown;
  EXPECT_EQ(difference(registered(HKEY_LOCAL_MACHINE, whole_machine), registry(View::all_keys)), L"");
  unregister_all();
  EXPECT_EQ(difference(machine, registry()), L"");
}

// The key that may not be written, counted in those that the library writes, as all of the machine's may not
// by everybody but administrators.
int denied = 0;
LSTATUS WINAPI create_key(HKEY parent, LPCWSTR name, DWORD reserved, LPWSTR kind, DWORD options,
                          REGSAM access, LPSECURITY_ATTRIBUTES security, PHKEY key, LPDWORD made) {
  if (--denied == 0) return ERROR_ACCESS_DENIED;
  return RegCreateKeyExW(parent, name, reserved, kind, options, access, security, key, made);
}

// Registers with each key denied in turn.
void expect_all_or_nothing() {
  void* const usual = replace_import("RegCreateKeyExW", reinterpret_cast<void*>(create_key));
  const Keys before = registry();
  HRESULT status = E_FAIL;
  for (int key = 1; status != S_OK; ++key) {
    denied = key;
    status = call("DllRegisterServer");
    EXPECT_EQ(status, denied > 0 ? S_OK : E_ACCESSDENIED) << key;
    EXPECT_EQ(registry() == before, status != S_OK) << key;
  }
  replace_import("RegCreateKeyExW", usual);
}

TEST(Registration, that_fails_half_way_says_so_and_puts_everything_back) {
  unregister_all();
  const Keys unregistered = registry();
  expect_all_or_nothing();
  unregister_all();
  // Over an earlier registration, of which somebody else has written one value.
  const std::wstring older = library_path() + L".older.ocx";
  ASSERT_TRUE(CopyFileW(library_path().c_str(), older.c_str(), FALSE));
  ASSERT_EQ(regsvr32(L"", older), 0u);
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, (root + filled(L"\\TypeLib\\%l\\1.0\\HELPDIR", classes[0])).c_str(),
                  nullptr, REG_EXPAND_SZ, L"%windir%", 18);
  expect_all_or_nothing();
  EXPECT_EQ(difference(registered(HKEY_LOCAL_MACHINE, unregistered), registry()), L"");
  unregister_all();
  EXPECT_EQ(difference(unregistered, registry()), L"");
  DeleteFileW(older.c_str());
}

// But for the help's folder, which is the later one's.
Keys shared_registry() {
  Keys keys = registry(View::both_bitnesses);
  std::erase_if(keys, [](const auto& key) { return key.find(L"\\HELPDIR =") != key.npos; });
  return keys;
}

// A 64-bit system has both.
TEST(Registration, of_one_bitness_keeps_what_the_other_needs_until_both_are_gone) {
  const auto path = library_path(), folder = path.substr(0, path.rfind(L"\\win64\\"));
  const auto other = folder + L"\\win32\\ZORBOffice.ocx";
  if (sizeof(void*) == 4 || GetFileAttributesW(other.c_str()) == INVALID_FILE_ATTRIBUTES)
    GTEST_SKIP() << "this is the 32-bit library, or none is built";
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
