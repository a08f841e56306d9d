// Collections of items, the walk through them, and the current items.
#include "ZORBOffice/outlook/zorb_outlook.h"

namespace zorboffice {
namespace {

// By name: early-bound item interfaces fail on machines whose office type library is damaged.
bool is_of_class(const EntryTypeRow& type, const AutomationObject& item) {
  return item.get_common(L"Class").int32() == type.item_class;
}

}  // namespace

HRESULT ZORBOutlook::InitItems(BSTR EntryType, BSTR Condition, VARIANT_BOOL* result) noexcept {
  const auto message_text = [&](const Failure& failure) {
    return concatenated(
        {L"init items ", view(EntryType), L" ", view(Condition), L" ", failure.description.view()});
  };
  const auto fill = [&](const EntryTypeRow& type) {
    KeptObject& field = state_.*type.items;
    AutomationObject items = session().get(L"GetDefaultFolder", type.folder).get(L"Items").object();
    field = items;
    if (!view(Condition).empty()) {
      items = items.get(L"Restrict", Argument::text(Condition)).object();
      field = items;
    }
    if (type.sort_key) items.call(L"Sort", Bstr(type.sort_key));
    return true;
  };
  return for_entry_type(EntryType, L"Init Items", result, both(composed_message(message_text), stored()),
                        fill, find_collection_word);
}

HRESULT ZORBOutlook::GetItemCount(BSTR EntryType, SHORT* result) noexcept {
  return for_entry_type(EntryType, L"Get Item Count", result, stored(),
                        [&](const EntryTypeRow& type) { return items(type).get(L"Count").int16(); });
}

HRESULT ZORBOutlook::GetFirstItem(BSTR EntryType, VARIANT_BOOL* result) noexcept {
  return for_entry_type(EntryType, L"Get First Item", result, shown_and_stored(L"first item "),
                        [&](const EntryTypeRow& type) {
                          const AutomationObject item = items(type).get(L"GetFirst").object_or_nothing();
                          if (!item) return false;
                          if (make_current(type, item)) return true;
                          // A failure from here on is the next item's, and shown as such.
                          VARIANT_BOOL found = VARIANT_FALSE;
                          check(GetNextItem(EntryType, &found));
                          return found != VARIANT_FALSE;
                        });
}

HRESULT ZORBOutlook::GetNextItem(BSTR EntryType, VARIANT_BOOL* result) noexcept {
  return for_entry_type(EntryType, L"Get Next Item", result, shown_and_stored(L"next item "),
                        [&](const EntryTypeRow& type) {
                          for (;;) {
                            const AutomationObject item = items(type).get(L"GetNext").object_or_nothing();
                            if (!item) return false;
                            if (make_current(type, item)) return true;
                          }
                        });
}

HRESULT ZORBOutlook::GetItem(BSTR EntryType, BSTR EntryId, VARIANT_BOOL* result) noexcept {
  return for_entry_type(EntryType, L"Get Item", result, stored(), [&](const EntryTypeRow& type) {
    const AutomationObject item = session().get(L"GetItemFromID", Argument::text(EntryId)).object();
    if (!make_current(type, item)) throw_runtime_error(runtime_error::type_mismatch);
    return true;
  });
}

HRESULT ZORBOutlook::OpenItem(BSTR EntryType, VARIANT_BOOL* result) noexcept {
  const auto message_text = [&](const Failure& failure) {
    return concatenated({L"open item ", view(EntryType), L" ", failure.description.view()});
  };
  return for_entry_type(EntryType, L"Open Item", result, both(composed_message(message_text), stored()),
                        [&](const EntryTypeRow& type) {
                          current_item(type).call(L"Display");
                          return true;
                        });
}

bool ZORBOutlook::make_current(const EntryTypeRow& type, const AutomationObject& item) {
  if (!is_of_class(type, item)) return false;
  state_.*type.current_item = item.known_as(type.item_name);
  return true;
}

}  // namespace zorboffice
