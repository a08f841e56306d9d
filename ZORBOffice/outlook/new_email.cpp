// One mail, from plain parameters, sent or shown.
#include <new>

#include "ZORBOffice/outlook/zorb_outlook.h"

namespace zorboffice {
namespace {

constexpr LONG mail_item = 0;  // olMailItem

std::wstring_view without_blanks(std::wstring_view text) {
  const auto first = text.find_first_not_of(L' ');
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

// Calls add with each path of a list separated by ";", and leaves in the list what was examined last. A list
// without a ";" stays as it is. The list is written once: it may be long.
template <class Add>
void consume_paths(BSTR* list, const Add& add) {
  const Bstr whole{view(*list)};
  std::wstring_view remainder = whole.view();
  for (auto end = remainder.find(L';'); end != std::wstring_view::npos; end = remainder.find(L';')) {
    if (end > 0) add(remainder.substr(0, end));
    remainder = without_blanks(remainder.substr(end + 1));
  }
  if (remainder.size() != whole.view().size() &&
      !SysReAllocStringLen(list, remainder.data(), static_cast<UINT>(remainder.size())))
    throw std::bad_alloc();
  if (!remainder.empty()) add(without_blanks(remainder));
}

}  // namespace

HRESULT ZORBOutlook::NewEmail(BSTR*, BSTR* ToAddress, BSTR* CCAddress, BSTR* BCCAddress, BSTR* Subject,
                              BSTR* Content, VARIANT_BOOL* UseHTML, VARIANT_BOOL* AutoSend, BSTR* Attachment,
                              VARIANT_BOOL* result) noexcept {
  return trapped(result, none, [&] {
    const auto trap = shown_and_stored(L"New Email ");
    const auto step = [&](const auto& body) { resuming(trap, body); };

    AutomationObject application;
    AutomationObject session;
    AutomationObject mail;
    step([&] { application = AutomationObject::create(L"Outlook.Application"); });
    step([&] { session = application.get(L"GetNamespace", Bstr(L"MAPI")).object(); });
    step([&] { mail = application.get(L"CreateItem", mail_item).object().known_as(L"MailItem"); });

    const auto put = [&](const wchar_t* name, BSTR* value) {
      mail.typed().put(name, Argument::text(dereferenced(value)));
    };
    step([&] { put(flag(UseHTML) ? L"HTMLBody" : L"Body", Content); });
    step([&] { put(L"Subject", Subject); });
    step([&] { put(L"To", ToAddress); });
    step([&] { put(L"CC", CCAddress); });
    step([&] { put(L"BCC", BCCAddress); });

    const auto attach = [&](std::wstring_view path) {
      step([&] {
        mail.typed()
            .get(L"Attachments")
            .call(L"Add", Bstr(path), Argument::missing(), Argument::missing(), Argument::missing());
      });
    };
    step([&] { consume_paths(&dereferenced(Attachment), attach); });

    bool is_to_be_sent = false;
    step([&] { is_to_be_sent = flag(AutoSend); });
    if (is_to_be_sent) {
      step([&] { mail.typed().call(L"Send"); });
      step([&] { application.call(L"Quit"); });
    } else {
      step([&] { mail.typed().call(L"Display", Argument::missing()); });
    }
  });
}

}  // namespace zorboffice
