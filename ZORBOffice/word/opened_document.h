// A document that a member opens for itself.
#pragma once

#include "ZORBOffice/common/automation_object.h"

namespace zorboffice {

// Closes what it opened, unsaved, however the member ends. A document that was open already stays open.
class OpenedDocument {
 public:
  // Opens the file; an empty name means the application's "Normal" template. Throws Failure.
  OpenedDocument(const AutomationObject& application, BSTR name);
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
