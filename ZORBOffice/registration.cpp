#include "ZORBOffice/registration.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/module.h"
#include "ZORBOffice/registry.h"
#include "ZORBOffice/surface/registration_values.h"

namespace zorboffice {
namespace {

// A registry entry below the classes' root. %words% stand for what differs between classes and interfaces;
// value null is the key's default value, data null is a key without a value.
struct Row {
  const wchar_t* key;
  const wchar_t* value;
  const wchar_t* data;
};

// On 64-bit Windows each bitness has identifiers of classes and interfaces of its own. Type libraries and
// program identifiers exist once: there the entries are shared, all but the paths of the two files.
constexpr Row shared_library_rows[] = {
    {L"TypeLib\\%library id%\\%version%", nullptr, L"%library name%"},
    {L"TypeLib\\%library id%\\%version%\\FLAGS", nullptr, L"%library flags%"},
    {L"TypeLib\\%library id%\\%version%\\HELPDIR", nullptr, L"%folder%"},
};

constexpr Row library_file_rows[] = {
    {L"TypeLib\\%library id%\\%version%\\409\\%platform%", nullptr, L"%module%"},
    // Hosts that look for the neutral language only, as cross-apartment marshalling does, find it here.
    {L"TypeLib\\%library id%\\%version%\\0\\%platform%", nullptr, L"%module%"},
};

constexpr Row class_rows[] = {
    {L"CLSID\\%class id%", nullptr, L"%program id%"},
    {L"CLSID\\%class id%\\InprocServer32", nullptr, L"%module%"},
    {L"CLSID\\%class id%\\InprocServer32", L"ThreadingModel", threading_model},
    {L"CLSID\\%class id%\\Control", nullptr, nullptr},
    {L"CLSID\\%class id%\\Implemented Categories\\%control category%", nullptr, nullptr},
    {L"CLSID\\%class id%\\MiscStatus", nullptr, L"0"},
    {L"CLSID\\%class id%\\MiscStatus\\1", nullptr, L"%misc status%"},  // DVASPECT_CONTENT
    {L"CLSID\\%class id%\\ToolboxBitmap32", nullptr, L"%module%, %bitmap%"},
    {L"CLSID\\%class id%\\TypeLib", nullptr, L"%library id%"},
    {L"CLSID\\%class id%\\Version", nullptr, L"%version%"},
    {L"CLSID\\%class id%\\ProgID", nullptr, L"%versioned program id%"},
    {L"CLSID\\%class id%\\VersionIndependentProgID", nullptr, L"%program id%"},
};

constexpr Row shared_class_rows[] = {
    {L"%program id%", nullptr, L"%program id%"},
    {L"%program id%\\CLSID", nullptr, L"%class id%"},
    {L"%program id%\\CurVer", nullptr, L"%versioned program id%"},
    {L"%versioned program id%", nullptr, L"%program id%"},
    {L"%versioned program id%\\CLSID", nullptr, L"%class id%"},
};

constexpr Row interface_rows[] = {
    {L"Interface\\%interface id%", nullptr, L"%interface%"},
    {L"Interface\\%interface id%\\ProxyStubClsid32", nullptr, L"%marshaller%"},
    {L"Interface\\%interface id%\\TypeLib", nullptr, L"%library id%"},
    {L"Interface\\%interface id%\\TypeLib", L"Version", L"%version%"},
};

constexpr wchar_t control_category[] = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";  // CATID_Control
constexpr bool is_64_bit = sizeof(void*) == 8;
constexpr const wchar_t* platform = is_64_bit ? L"win64" : L"win32";
constexpr const wchar_t* other_platform = is_64_bit ? L"win32" : L"win64";

using Word = std::pair<std::wstring_view, std::wstring>;
using Words = std::vector<Word>;

std::wstring text_of(REFGUID id) {
  wchar_t buffer[39];
  StringFromGUID2(id, buffer, ARRAYSIZE(buffer));
  return buffer;
}

std::wstring text_of(LONG number) { return std::wstring(decimal(number).view()); }

std::wstring with_words(const wchar_t* pattern, const Words& words) {
  std::wstring text(pattern);
  for (const auto& [word, meaning] : words) {
    if (const std::size_t position = text.find(word); position != std::wstring::npos) {
      text.replace(position, word.size(), meaning);
    }
  }
  return text;
}

std::wstring key_name(const wchar_t* pattern, const Words& words) {
  return std::wstring(classes_root) + L"\\" + with_words(pattern, words);
}

enum class Sharing { own, with_other_bitness };

struct Entry : RegistryEntry {
  Sharing sharing;
};

void append(std::vector<Entry>& entries, std::span<const Row> rows, Sharing sharing, const Words& words) {
  for (const Row& row : rows) {
    Entry entry = {{key_name(row.key, words), row.value, {}}, sharing};
    if (row.data) entry.data = with_words(row.data, words);
    entries.push_back(std::move(entry));
  }
}

Words common_words() {
  const std::wstring path = module_path();
  return {{L"%library id%", text_of(library_id)},
          {L"%library name%", type_library_name},
          {L"%library flags%", text_of(type_library_flags)},
          {L"%version%", text_of(type_library_major) + L"." + text_of(type_library_minor)},
          {L"%module%", path},
          {L"%folder%", path.substr(0, path.find_last_of(L'\\'))},
          {L"%platform%", platform},
          {L"%other platform%", other_platform},
          {L"%misc status%", text_of(static_cast<LONG>(misc_status))},
          {L"%control category%", control_category}};
}

// The one list that registers and unregisters.
std::vector<Entry> entries(std::span<const ClassRow> classes) {
  const Words common = common_words();
  const auto with = [&](std::initializer_list<Word> own) {
    Words words(own);
    words.insert(words.end(), common.begin(), common.end());
    return words;
  };
  std::vector<Entry> list;
  append(list, shared_library_rows, Sharing::with_other_bitness, common);
  append(list, library_file_rows, Sharing::own, common);
  for (const ClassRow& row : classes) {
    const std::wstring program_id = std::wstring(program_id_prefix) + row.published.name;
    const Words words = with({{L"%class id%", text_of(row.published.class_id)},
                              {L"%program id%", program_id},
                              {L"%versioned program id%", program_id + program_id_version},
                              {L"%bitmap%", text_of(row.toolbox_bitmap)}});
    append(list, class_rows, Sharing::own, words);
    append(list, shared_class_rows, Sharing::with_other_bitness, words);
    append(list, interface_rows, Sharing::own,
           with({{L"%interface id%", text_of(row.default_interface.id)},
                 {L"%interface%", row.published.default_interface},
                 {L"%marshaller%", dual_marshaller}}));
    append(list, interface_rows, Sharing::own,
           with({{L"%interface id%", text_of(row.event_interface_id)},
                 {L"%interface%", row.published.event_interface},
                 {L"%marshaller%", dispatch_marshaller}}));
  }
  return list;
}

// The path of the other bitness's file stands among the shared entries, where both see it.
bool other_bitness_is_registered(HKEY root) {
  constexpr wchar_t key[] = L"TypeLib\\%library id%\\%version%\\0\\%other platform%";
  return has_key(root, key_name(key, common_words()));
}

HKEY root_of(Scope scope) { return scope == Scope::user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE; }

LONG write_all(HKEY root, std::vector<Entry> list) {
  std::vector<StandingEntry> standing(list.size());
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (const LONG status = read_standing(root, list[i], standing[i]); status != ERROR_SUCCESS) return status;
  }
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (const LONG status = write_entry(root, list[i]); status != ERROR_SUCCESS) {
      for (std::size_t written = i + 1; written-- > 0;) {
        restore_standing(root, list[written], standing[written]);
      }
      return status;
    }
  }
  return ERROR_SUCCESS;
}

// Goes on after a failure, and returns the first one.
LONG remove_all(HKEY root, std::vector<Entry> list) {
  const bool keeps_shared = other_bitness_is_registered(root);
  LONG first_failure = ERROR_SUCCESS;
  for (std::size_t i = list.size(); i-- > 0;) {
    if (keeps_shared && list[i].sharing == Sharing::with_other_bitness) continue;
    const LONG status = remove_entry(root, list[i]);
    if (first_failure == ERROR_SUCCESS) first_failure = status;
  }
  return first_failure;
}

}  // namespace

HRESULT register_library(Scope scope, std::span<const ClassRow> classes) noexcept {
  try {
    const LONG status = write_all(root_of(scope), entries(classes));
    return HRESULT_FROM_WIN32(status);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT unregister_library(Scope scope, std::span<const ClassRow> classes) noexcept {
  try {
    const LONG status = remove_all(root_of(scope), entries(classes));
    return HRESULT_FROM_WIN32(status);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace zorboffice
