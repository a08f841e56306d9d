// Entries among the machine's or the user's classes: written, put back as they were, removed.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zorboffice {

// Below the root that the functions take, HKEY_LOCAL_MACHINE or HKEY_CURRENT_USER.
inline constexpr wchar_t classes_root[] = L"Software\\Classes";

struct RegistryEntry {
  std::wstring key;                  // begins with the classes' root
  const wchar_t* value;              // null is the key's default value
  std::optional<std::wstring> data;  // none is a key without a value
};

// What stands in an entry's place.
struct StandingEntry {
  struct Value {
    DWORD type;
    std::vector<BYTE> data;
  };
  std::size_t standing_key = 0;  // how much of the key's name is there already
  std::optional<Value> value;
};

// Whether a key is there and may be read.
bool has_key(HKEY root, const std::wstring& name) noexcept;

// All of these return the registry's status. Only the first takes memory, and throws std::bad_alloc: once
// something was written or removed, nothing is left half done for want of memory.

// Reads what stands in the entry's place; nothing there is no failure.
LONG read_standing(HKEY root, const RegistryEntry& entry, StandingEntry& standing);

// Writes the entry over whatever stands there.
LONG write_entry(HKEY root, const RegistryEntry& entry);

// Puts back what stood in the entry's place. Uses up the entry's key.
LONG restore_standing(HKEY root, RegistryEntry& entry, const StandingEntry& standing);

// Removes the entry, and its key and that one's parents below the classes' root as far as nothing is left in
// them. An entry that is not there is no failure. Uses up its key.
LONG remove_entry(HKEY root, RegistryEntry& entry);

}  // namespace zorboffice
