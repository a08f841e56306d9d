// The words that select a kind of Outlook item, and everything that hangs on each.
#pragma once

#include <windows.h>

#include <string_view>

#include "ZORBOffice/outlook/outlook_state.h"

namespace zorboffice {

struct EntryTypeRow {
  std::wstring_view word;
  LONG folder;              // an OlDefaultFolders value
  const wchar_t* sort_key;  // null leaves the folder's own order
  KeptObject OutlookState::*items;
  KeptObject OutlookState::*current_item = nullptr;  // null: a word for filling the collection only
  LONG item_class = 0;                               // an OlObjectClass value
  LONG item_type = 0;                                // an OlItemType value
  const wchar_t* item_name = nullptr;                // the items' class in Outlook's type library
};

// The row of an entry type, compared exactly; null where there is none.
const EntryTypeRow* find_entry_type(std::wstring_view word);

// The same among the entry types and the further words for filling a collection.
const EntryTypeRow* find_collection_word(std::wstring_view word);

}  // namespace zorboffice
