#include "ZORBOffice/registration.h"

#include <olectl.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZORBOffice/class_table.h"
#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/module.h"

namespace zorboffice {
namespace {

// A registry entry below the classes' root. %words% stand for what differs between classes and interfaces;
// value null is the key's default value, data null is a key without a value.
struct Row {
  const wchar_t* key;
  const wchar_t* value;
  const wchar_t* data;
};

constexpr Row library_rows[] = {
    {L"TypeLib\\%library id%\\1.0", nullptr, L"ZORBOffice50"},
    {L"TypeLib\\%library id%\\1.0\\FLAGS", nullptr, L"2"},  // LIBFLAG_FCONTROL
    {L"TypeLib\\%library id%\\1.0\\HELPDIR", nullptr, L"%folder%"},
    {L"TypeLib\\%library id%\\1.0\\409\\%platform%", nullptr, L"%module%"},
    // Hosts that look for the neutral language only, as cross-apartment marshalling does, find it here.
    {L"TypeLib\\%library id%\\1.0\\0\\%platform%", nullptr, L"%module%"},
};

// 131473: OLEMISC_RECOMPOSEONRESIZE | CANTLINKINSIDE | INSIDEOUT | ACTIVATEWHENVISIBLE | SETCLIENTSITEFIRST.
constexpr Row class_rows[] = {
    {L"CLSID\\%class id%", nullptr, L"ZORBOffice.%class%"},
    {L"CLSID\\%class id%\\InprocServer32", nullptr, L"%module%"},
    {L"CLSID\\%class id%\\InprocServer32", L"ThreadingModel", L"Apartment"},
    {L"CLSID\\%class id%\\Control", nullptr, nullptr},
    {L"CLSID\\%class id%\\Implemented Categories\\%control category%", nullptr, nullptr},
    {L"CLSID\\%class id%\\MiscStatus", nullptr, L"0"},
    {L"CLSID\\%class id%\\MiscStatus\\1", nullptr, L"131473"},
    {L"CLSID\\%class id%\\ToolboxBitmap32", nullptr, L"%module%, %bitmap%"},
    {L"CLSID\\%class id%\\TypeLib", nullptr, L"%library id%"},
    {L"CLSID\\%class id%\\Version", nullptr, L"1.0"},
    {L"CLSID\\%class id%\\ProgID", nullptr, L"ZORBOffice.%class%.1"},
    {L"CLSID\\%class id%\\VersionIndependentProgID", nullptr, L"ZORBOffice.%class%"},
    {L"ZORBOffice.%class%", nullptr, L"ZORBOffice.%class%"},
    {L"ZORBOffice.%class%\\CLSID", nullptr, L"%class id%"},
    {L"ZORBOffice.%class%\\CurVer", nullptr, L"ZORBOffice.%class%.1"},
    {L"ZORBOffice.%class%.1", nullptr, L"ZORBOffice.%class%"},
    {L"ZORBOffice.%class%.1\\CLSID", nullptr, L"%class id%"},
};

constexpr Row interface_rows[] = {
    {L"Interface\\%interface id%", nullptr, L"%interface%"},
    {L"Interface\\%interface id%\\ProxyStubClsid32", nullptr, L"%marshaller%"},
    {L"Interface\\%interface id%\\TypeLib", nullptr, L"%library id%"},
    {L"Interface\\%interface id%\\TypeLib", L"Version", L"1.0"},
};

constexpr wchar_t control_category[] = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";     // CATID_Control
constexpr wchar_t dual_marshaller[] = L"{00020424-0000-0000-C000-000000000046}";      // PSOAInterface
constexpr wchar_t dispatch_marshaller[] = L"{00020420-0000-0000-C000-000000000046}";  // PSDispatch
constexpr wchar_t classes_root[] = L"Software\\Classes\\";
constexpr const wchar_t* platform = sizeof(void*) == 8 ? L"win64" : L"win32";

struct Entry {
  std::wstring key;
  const wchar_t* value;
  bool has_data;
  std::wstring data;
  bool key_is_foreign = false;  // it was there before registration
};

using Word = std::pair<std::wstring_view, std::wstring>;
using Words = std::vector<Word>;

std::wstring text_of(REFGUID id) {
  wchar_t buffer[39];
  StringFromGUID2(id, buffer, ARRAYSIZE(buffer));
  return buffer;
}

std::wstring with_words(const wchar_t* pattern, const Words& words) {
  std::wstring text(pattern);
  for (const auto& [word, meaning] : words) {
    if (const std::size_t position = text.find(word); position != std::wstring::npos) {
      text.replace(position, word.size(), meaning);
    }
  }
  return text;
}

void append(std::vector<Entry>& entries, std::span<const Row> rows, const Words& words) {
  for (const Row& row : rows) {
    entries.push_back({classes_root + with_words(row.key, words), row.value, row.data != nullptr,
                       with_words(row.data ? row.data : L"", words), false});
  }
}

// The one list that registers and unregisters.
std::vector<Entry> entries() {
  const std::wstring path = module_path();
  const Words common = {{L"%library id%", text_of(library_id)},
                        {L"%module%", path},
                        {L"%folder%", path.substr(0, path.find_last_of(L'\\'))},
                        {L"%platform%", platform},
                        {L"%control category%", control_category}};
  const auto with = [&](std::initializer_list<Word> own) {
    Words words(own);
    words.insert(words.end(), common.begin(), common.end());
    return words;
  };
  std::vector<Entry> list;
  append(list, library_rows, common);
  for (const ClassRow& row : class_table()) {
    append(list, class_rows,
           with({{L"%class id%", text_of(row.published.class_id)},
                 {L"%class%", row.published.name},
                 {L"%bitmap%", std::wstring(decimal(row.toolbox_bitmap).view())}}));
    append(list, interface_rows,
           with({{L"%interface id%", text_of(row.default_interface.id)},
                 {L"%interface%", row.published.default_interface},
                 {L"%marshaller%", dual_marshaller}}));
    append(list, interface_rows,
           with({{L"%interface id%", text_of(row.event_interface_id)},
                 {L"%interface%", row.published.event_interface},
                 {L"%marshaller%", dispatch_marshaller}}));
  }
  return list;
}

LONG write(Entry& entry) {
  HKEY key;
  DWORD disposition;
  LONG status = RegCreateKeyExW(HKEY_LOCAL_MACHINE, entry.key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                                &key, &disposition);
  if (status != ERROR_SUCCESS) return status;
  entry.key_is_foreign = disposition == REG_OPENED_EXISTING_KEY;
  if (entry.has_data) {
    status = RegSetValueExW(key, entry.value, 0, REG_SZ, reinterpret_cast<const BYTE*>(entry.data.c_str()),
                            static_cast<DWORD>(entry.data.size() + 1) * static_cast<DWORD>(sizeof(wchar_t)));
  }
  RegCloseKey(key);
  return status;
}

bool is_absent(LONG status) { return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND; }

LONG remove_value(const Entry& entry) {
  HKEY key;
  LONG status = RegOpenKeyExW(HKEY_LOCAL_MACHINE, entry.key.c_str(), 0, KEY_WRITE, &key);
  if (status != ERROR_SUCCESS) return status;
  status = RegDeleteValueW(key, entry.value);
  RegCloseKey(key);
  return status;
}

bool is_empty(HKEY key) {
  DWORD keys = 1;
  DWORD values = 1;
  RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                   nullptr, nullptr);
  return keys == 0 && values == 0;
}

// Removes the key and its parents up to the classes' root, as far as nothing is left in them.
LONG remove_empty_keys(std::wstring name) {
  for (; name.size() >= ARRAYSIZE(classes_root); name.resize(name.find_last_of(L'\\'))) {
    HKEY key;
    LONG status = RegOpenKeyExW(HKEY_LOCAL_MACHINE, name.c_str(), 0, KEY_READ, &key);
    if (is_absent(status)) continue;
    if (status != ERROR_SUCCESS) return status;
    const bool empty = is_empty(key);
    RegCloseKey(key);
    if (!empty) break;
    status = RegDeleteKeyW(HKEY_LOCAL_MACHINE, name.c_str());
    if (status != ERROR_SUCCESS) return status;
  }
  return ERROR_SUCCESS;
}

bool is_written(const Entry& entry) {
  return entry.has_data && RegGetValueW(HKEY_LOCAL_MACHINE, entry.key.c_str(), entry.value, RRF_RT_REG_SZ,
                                        nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

LONG remove(const Entry& entry) {
  const LONG status = entry.has_data ? remove_value(entry) : ERROR_SUCCESS;
  if (status != ERROR_SUCCESS && !is_absent(status)) return status;
  return entry.key_is_foreign ? ERROR_SUCCESS : remove_empty_keys(entry.key);
}

// Goes on after a failure, and returns the first one.
LONG remove(std::span<const Entry> list) {
  LONG first_failure = ERROR_SUCCESS;
  for (std::size_t i = list.size(); i-- > 0;) {
    const LONG status = remove(list[i]);
    if (first_failure == ERROR_SUCCESS) first_failure = status;
  }
  return first_failure;
}

}  // namespace

HRESULT register_library() noexcept {
  try {
    std::vector<Entry> list = entries();
    // An earlier registration goes first, so that a failure half-way leaves nothing of it either.
    if (std::ranges::any_of(list, is_written)) remove(list);
    for (std::size_t i = 0; i < list.size(); ++i) {
      if (const LONG status = write(list[i]); status != ERROR_SUCCESS) {
        remove(std::span<const Entry>(list).first(i + 1));
        return HRESULT_FROM_WIN32(status);
      }
    }
    return S_OK;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT unregister_library() noexcept {
  try {
    return HRESULT_FROM_WIN32(remove(entries()));
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace zorboffice
