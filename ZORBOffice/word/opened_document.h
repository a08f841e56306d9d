// A document that a member opens for itself.
#pragma once

#include "ZORBOffice/common/automation_object.h"

namespace zorboffice {

// The path behind a template's name: nothing, or "Normal" in any case, names the application's own template.
// Throws Failure.
Bstr template_path(const AutomationObject& application, BSTR name);

// Whether two paths name one file, as far as their text tells.
bool name_the_same_file(const Bstr& one, const Bstr& other);

// Closes what it opened, unsaved, however the member ends. A document that was open already stays open.
class OpenedDocument {
 public:
  // Opens the file; throws Failure.
  OpenedDocument(const AutomationObject& application, const Bstr& path);
  ~OpenedDocument();
  OpenedDocument(const OpenedDocument&) = delete;
  OpenedDocument& operator=(const OpenedDocument&) = delete;

  const AutomationObject& document() const { return document_; }

  // Closes without saving; throws Failure, and is tried once more at the end.
  void close();

 private:
  AutomationObject document_;
  bool must_close_ = false;
};

}  // namespace zorboffice
