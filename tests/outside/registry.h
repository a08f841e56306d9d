// The registry as text, and the program that registers.
#pragma once

#include <process.h>
#include <algorithm>
#include <set>
#include <vector>

#include "library.h"

namespace outside {

using Keys = std::set<std::wstring>;
inline const std::wstring root = L"Software\\Classes";

// Of the classes: what is below keys of the library's own, and of all others near the top the name, which
// takes a tenth of the time; the same with the 32-bit view, which shows shared keys again; or every key.
enum class View { own_keys, both_bitnesses, all_keys };

inline bool leads_to_own_keys(const std::wstring& path) {
  bool leads = path.find(L"\\ZORBOffice.") != path.npos || path.find(library_id) != path.npos;
  for (const auto& ids : classes)
    for (const auto id : {ids.class_id, ids.interface_id, ids.events_id}) leads |= path.find(id) != path.npos;
  for (const auto above : {L"\\CLSID", L"\\Interface", L"\\TypeLib", L"\\Wow6432Node"})
    leads |= path.ends_with(above);
  return leads;
}

// A key below `parent` and all below it, each with its values behind it: "path name=value name=value".
inline void dump(HKEY parent, const wchar_t* own_name, const std::wstring& path, View view, Keys* keys) {
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
    if (view != View::both_bitnesses && !wcscmp(name, L"Wow6432Node")) continue;
    // Some have the older spelling.
    const auto below = path + L"\\" + (wcscmp(name, L"Typelib") ? name : L"TypeLib");
    if (view == View::all_keys || leads_to_own_keys(below))
      dump(key, name, below, view, keys);
    else
      keys->insert(below);
  }
  RegCloseKey(key);
}

// The machine's classes, or all that is the user's.
inline Keys registry(View view = View::own_keys, HKEY of = HKEY_LOCAL_MACHINE) {
  Keys keys;
  if (of == HKEY_CURRENT_USER) view = View::all_keys;
  dump(of, of == HKEY_CURRENT_USER ? L"" : root.c_str(), L"", view, &keys);
  return keys;
}

inline std::wstring difference(const Keys& before, const Keys& after) {
  std::wstring text;
  std::vector<std::wstring> changed;
  std::set_symmetric_difference(before.begin(), before.end(), after.begin(), after.end(),
                                std::back_inserter(changed));
  for (const auto& key : changed) text += (after.contains(key) ? L"+ " : L"- ") + key + L"\n";
  return text;
}

inline DWORD regsvr32(const std::wstring& options, const std::wstring& path = library_path()) {
  const auto quoted = L"\"" + path + L"\"";
  return _wspawnlp(_P_WAIT, L"regsvr32", L"regsvr32", L"/s", options.c_str(), quoted.c_str(), nullptr);
}

// So that a test starts with nothing registered, whatever an interrupted run left.
inline void unregister_all() {
  // Windows has a user's classes from the beginning, Wine since the first entry.
  HKEY classes = nullptr;
  ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, root.c_str(), &classes), ERROR_SUCCESS);
  RegCloseKey(classes);
  ASSERT_EQ(call("DllUnregisterServer"), S_OK) << "with nothing registered, or a leftover";
  ASSERT_EQ(call("DllInstall", FALSE, L"user"), S_OK);
}

}  // namespace outside
