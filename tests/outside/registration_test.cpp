// What registration writes into the machine's classes, key by key, and that nothing of it stays.
#include <algorithm>
#include <set>
#include <vector>

#include "library.h"

namespace outside {
namespace {

using Keys = std::set<std::wstring>;
const std::wstring root = L"Software\\Classes";

// A key below `parent` and all below it, each with its values behind it: "path name=value name=value".
void dump(HKEY parent, const wchar_t* own_name, const std::wstring& path, Keys* keys) {
  HKEY key = nullptr;
  ASSERT_EQ(RegOpenKeyExW(parent, own_name, 0, KEY_READ, &key), ERROR_SUCCESS) << path;
  ASSERT_TRUE(path.size() < 2'000 && keys->size() < 500'000) << path;
  wchar_t name[512], data[4096] = {};
  Keys values;
  for (DWORD i = 0; i < 10'000; ++i) {
    DWORD length = 512, size = sizeof data, type = 0;
    const auto bytes = reinterpret_cast<BYTE*>(data);
    if (RegEnumValueW(key, i, name, &length, nullptr, &type, bytes, &size) == ERROR_NO_MORE_ITEMS) break;
    const std::wstring kind = type == REG_SZ ? L"=" : L"=type " + std::to_wstring(type) + L" ";
    const size_t count = std::min<size_t>(size, sizeof data) / sizeof(wchar_t);
    values.insert(L" " + (name + kind) + std::wstring(data, count - (count && type == REG_SZ)));
  }
  std::wstring row = path;
  for (const auto& value : values) row += value;
  keys->insert(row);
  for (DWORD i = 0; RegEnumKeyW(key, i, name, 512) == ERROR_SUCCESS; ++i) {
    // The 32-bit view of shared keys shows the same rows again.
    if (!wcscmp(name, L"Wow6432Node")) continue;
    dump(key, name, path + L"\\" + (wcscmp(name, L"Typelib") ? name : L"TypeLib"), keys);  // older spelling
  }
  RegCloseKey(key);
}

Keys registry() {
  Keys keys;
  dump(HKEY_LOCAL_MACHINE, root.c_str(), L"", &keys);
  return keys;
}

std::wstring difference(const Keys& before, const Keys& after) {
  std::wstring text;
  std::vector<std::wstring> changed;
  std::set_symmetric_difference(before.begin(), before.end(), after.begin(), after.end(),
                                std::back_inserter(changed));
  for (const auto& key : changed) text += (after.contains(key) ? L"+ " : L"- ") + key + L"\n";
  return text;
}

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

TEST(Registration, writes_exactly_its_own_keys_and_takes_them_back) {
  ASSERT_EQ(call("DllUnregisterServer"), S_OK) << "with nothing registered, or a leftover";
  const Keys before = registry();
  Keys registered = before;
  for (const ClassIds& ids : classes)
    for (const auto key : class_keys) registered.insert(filled(key, ids));
  for (const char* step : {"Register", "Register", "Unregister", "Unregister"}) {
    EXPECT_EQ(call(("Dll" + std::string(step) + "Server").c_str()), S_OK) << step;
    EXPECT_EQ(difference(*step == 'R' ? registered : before, registry()), L"") << step;
  }
}

TEST(Registration, that_fails_half_way_says_so_and_leaves_nothing) {
  const Keys before = registry();
  for (const auto place : {L"\\CLSID\\%c", L"\\TypeLib\\%l", L"\\Interface\\%e", L"\\ZORBOffice.%n"}) {
    // Below a volatile key no lasting one can be made.
    const std::wstring path = root + filled(place, classes[2]);
    HKEY obstacle = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, REG_OPTION_VOLATILE,
                              KEY_ALL_ACCESS, nullptr, &obstacle, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(obstacle);
    EXPECT_EQ(call("DllRegisterServer"), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE)) << path;
    RegDeleteKeyW(HKEY_LOCAL_MACHINE, path.c_str());
    EXPECT_EQ(difference(before, registry()), L"") << path;
  }
}

}  // namespace
}  // namespace outside
