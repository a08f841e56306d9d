#include "ZORBOffice/word/opened_document.h"

#include <utility>

namespace zorboffice {
namespace {

constexpr LONG do_not_save_changes = 0;  // wdDoNotSaveChanges

}  // namespace

OpenedDocument::OpenedDocument(const AutomationObject& application, BSTR name) {
  const bool normal = view(name).empty();
  const Bstr path = normal ? application.get(L"NormalTemplate").get(L"FullName").text() : Bstr(view(name));
  document_ = application.get(L"Documents").get(L"Open", path).object();
}

OpenedDocument::~OpenedDocument() {
  if (!document_) return;
  try {
    close();
  } catch (...) {
    // The failure that ends the member is the one to report.
  }
}

void OpenedDocument::close() { std::exchange(document_, {}).call(L"Close", do_not_save_changes); }

}  // namespace zorboffice
