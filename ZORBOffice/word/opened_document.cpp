#include "ZORBOffice/word/opened_document.h"

#include <string>

namespace zorboffice {
namespace {

constexpr LONG do_not_save_changes = 0;  // wdDoNotSaveChanges

bool equal_in_any_case(std::wstring_view one, std::wstring_view other) {
  return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(),
                              static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

// The absolute path, with neither "." nor ".." nor "/" in it; empty for no name.
std::wstring full_path(const Bstr& name) {
  if (name.view().empty()) return {};
  std::wstring path(GetFullPathNameW(name.get(), 0, nullptr, nullptr), L'\0');
  path.resize(GetFullPathNameW(name.get(), static_cast<DWORD>(path.size()), path.data(), nullptr));
  return path;
}

}  // namespace

Bstr template_path(const AutomationObject& application, BSTR name) {
  const bool is_normal = view(name).empty() || equal_in_any_case(view(name), L"Normal");
  return is_normal ? application.get(L"NormalTemplate").get(L"FullName").text() : Bstr(view(name));
}

bool name_the_same_file(const Bstr& one, const Bstr& other) {
  return equal_in_any_case(full_path(one), full_path(other));
}

OpenedDocument::OpenedDocument(const AutomationObject& application, const Bstr& path) {
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
