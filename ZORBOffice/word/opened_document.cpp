#include "ZORBOffice/word/opened_document.h"

namespace zorboffice {
namespace {

constexpr LONG do_not_save_changes = 0;  // wdDoNotSaveChanges

}  // namespace

OpenedDocument::OpenedDocument(const AutomationObject& application, BSTR name) {
  const bool normal = view(name).empty();
  const Bstr path = normal ? application.get(L"NormalTemplate").get(L"FullName").text() : Bstr(view(name));
  const AutomationObject documents = application.get(L"Documents").object();
  const LONG open_before = documents.get(L"Count").int32();
  document_ = documents.get(L"Open", path).object();
  // The word processor answers a file that is open already with the document that shows it.
  must_close_ = documents.get(L"Count").int32() > open_before;
}

OpenedDocument::~OpenedDocument() {
  try {
    close();
  } catch (...) {
    // The failure that ends the member is the one to report.
  }
}

void OpenedDocument::close() {
  if (must_close_) document_.call(L"Close", do_not_save_changes);
  must_close_ = false;
}

}  // namespace zorboffice
