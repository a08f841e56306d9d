// A document that a member opens for itself.
#pragma once

#include "ZORBOffice/common/automation_object.h"

namespace zorboffice {

// Closes what it opened, unsaved, however the member ends.
class OpenedDocument {
 public:
  // Opens the file; an empty name means the application's "Normal" template. Throws Failure.
  OpenedDocument(const AutomationObject& application, BSTR name);
  ~OpenedDocument();
  OpenedDocument(const OpenedDocument&) = delete;
  OpenedDocument& operator=(const OpenedDocument&) = delete;

  const AutomationObject& document() const { return document_; }

  // Closes without saving; throws Failure, and does not try again.
  void close();

 private:
  AutomationObject document_;
};

}  // namespace zorboffice
