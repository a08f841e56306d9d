#include "ZORBOffice/registry.h"

#include <iterator>
#include <utility>

namespace zorboffice {
namespace {

bool is_absent(LONG status) { return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND; }

LONG create_key(HKEY root, const std::wstring& name) {
  HKEY key;
  const LONG status = RegCreateKeyExW(root, name.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
  if (status == ERROR_SUCCESS) RegCloseKey(key);
  return status;
}

bool is_empty(HKEY key) {
  DWORD keys = 1;
  DWORD values = 1;
  RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                   nullptr, nullptr);
  return keys == 0 && values == 0;
}

// Makes it the name of the key above.
void climb(std::wstring& name) {
  const std::size_t end = name.find_last_of(L'\\');
  name.resize(end == std::wstring::npos ? 0 : end);
}

// Those that are longer than the part of the name that is to stay.
LONG remove_empty_keys(HKEY root, std::wstring& name, std::size_t staying) {
  for (; name.size() > staying; climb(name)) {
    HKEY key;
    LONG status = RegOpenKeyExW(root, name.c_str(), 0, KEY_READ, &key);
    if (is_absent(status)) continue;
    if (status != ERROR_SUCCESS) return status;
    const bool empty = is_empty(key);
    RegCloseKey(key);
    if (!empty) break;
    status = RegDeleteKeyW(root, name.c_str());
    if (status != ERROR_SUCCESS) return status;
  }
  return ERROR_SUCCESS;
}

LONG remove_value(HKEY root, const RegistryEntry& entry) {
  const LONG status = entry.data ? RegDeleteKeyValueW(root, entry.key.c_str(), entry.value) : ERROR_SUCCESS;
  return is_absent(status) ? ERROR_SUCCESS : status;
}

}  // namespace

bool has_key(HKEY root, const std::wstring& name) noexcept {
  HKEY key;
  if (RegOpenKeyExW(root, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

LONG read_standing(HKEY root, const RegistryEntry& entry, StandingEntry& standing) {
  std::wstring there = entry.key;
  while (!there.empty() && !has_key(root, there)) climb(there);
  standing = {there.size(), {}};
  if (!entry.data) return ERROR_SUCCESS;
  constexpr DWORD as_it_is = RRF_RT_ANY | RRF_NOEXPAND;
  const wchar_t* key = entry.key.c_str();
  DWORD size = 0;
  LONG status = RegGetValueW(root, key, entry.value, as_it_is, nullptr, nullptr, &size);
  if (is_absent(status)) return ERROR_SUCCESS;
  if (status != ERROR_SUCCESS) return status;
  StandingEntry::Value value = {REG_NONE, std::vector<BYTE>(size)};
  status = RegGetValueW(root, key, entry.value, as_it_is, &value.type, value.data.data(), &size);
  if (status != ERROR_SUCCESS) return status;
  value.data.resize(size);
  standing.value = std::move(value);
  return ERROR_SUCCESS;
}

LONG write_entry(HKEY root, const RegistryEntry& entry) {
  const LONG status = create_key(root, entry.key);
  if (status != ERROR_SUCCESS || !entry.data) return status;
  const auto size = static_cast<DWORD>(entry.data->size() + 1) * static_cast<DWORD>(sizeof(wchar_t));
  return RegSetKeyValueW(root, entry.key.c_str(), entry.value, REG_SZ, entry.data->c_str(), size);
}

LONG restore_standing(HKEY root, RegistryEntry& entry, const StandingEntry& standing) {
  if (standing.value) {
    return RegSetKeyValueW(root, entry.key.c_str(), entry.value, standing.value->type,
                           standing.value->data.data(), static_cast<DWORD>(standing.value->data.size()));
  }
  const LONG status = remove_value(root, entry);
  return status != ERROR_SUCCESS ? status : remove_empty_keys(root, entry.key, standing.standing_key);
}

LONG remove_entry(HKEY root, RegistryEntry& entry) {
  const LONG status = remove_value(root, entry);
  return status != ERROR_SUCCESS ? status : remove_empty_keys(root, entry.key, std::size(classes_root) - 1);
}

}  // namespace zorboffice
