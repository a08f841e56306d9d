// Creating, deleting, saving and exporting the current item, and saving an e-mail's attachments.
#include "ZORBOffice/outlook/zorb_outlook.h"

namespace zorboffice {
namespace {

// An attachment that the body names stands in the text; it is not one of those that are counted.
bool is_inline(const AutomationObject& mail, const Result& attachment) {
  const Bstr body = mail.get(L"Body").text();
  const Bstr file_name = attachment.get(L"FileName").text();
  return !body.view().empty() && body.view().find(file_name.view()) != std::wstring_view::npos;
}

}  // namespace

HRESULT ZORBOutlook::CreateItem(BSTR EntryType, VARIANT_BOOL* result) noexcept {
  return for_entry_type(EntryType, L"Create Item", result, stored(), [&](const EntryTypeRow& type) {
    const AutomationObject created = application().get(L"CreateItem", type.item_type).object();
    state_.*type.current_item = created.known_as(type.item_name);
    return true;
  });
}

HRESULT ZORBOutlook::DeleteItem(BSTR EntryType, VARIANT_BOOL* result) noexcept {
  return for_entry_type(EntryType, L"Delete Item", result, stored(), [&](const EntryTypeRow& type) {
    current_item(type).call(L"Delete");
    return true;
  });
}

HRESULT ZORBOutlook::SaveItem(BSTR EntryType, VARIANT_BOOL* result) noexcept {
  return for_entry_type(EntryType, L"Save Item", result, stored(), [&](const EntryTypeRow& type) {
    current_item(type).call(L"Save");
    return true;
  });
}

HRESULT ZORBOutlook::SaveItemToFile(BSTR EntryType, BSTR FileName, VARIANT_BOOL* result) noexcept {
  return for_entry_type(EntryType, L"Save Item to File", result, stored(), [&](const EntryTypeRow& type) {
    current_item(type).call(L"SaveAs", Argument::text(FileName));
    return true;
  });
}

HRESULT ZORBOutlook::SaveEmailAttachment(SHORT AttachmentNo, BSTR FileName, VARIANT_BOOL* result) noexcept {
  // Reads further facts: where that fails, the second failure reaches the host, unseen and not stored.
  const auto message_text = [&](const Failure& failure) {
    const Result attachment = state_.CurrentEmail.typed().get(L"Attachments").get(L"Item", AttachmentNo);
    const Bstr block_level = attachment.get(L"BlockLevel").text();
    const Bstr type = attachment.get(L"Type").text();
    return concatenated({L"Couldn't save Attachment ", failure.description.view(), L" : ", block_level.view(),
                         L" : ", type.view()});
  };
  return trapped(result, both(composed_message(message_text), stored()), [&] {
    const AutomationObject mail = state_.CurrentEmail.typed();
    const Enumerator attachments(mail.get(L"Attachments").object());
    SHORT counted = 0;
    for (Result attachment; attachments.next(attachment);) {
      if (is_inline(mail, attachment)) continue;
      if (counted == SHRT_MAX) throw_runtime_error(runtime_error::overflow);
      if (++counted != AttachmentNo) continue;
      attachment.call(L"SaveAsFile", Argument::text(FileName));
      break;
    }
    return success;
  });
}

}  // namespace zorboffice
