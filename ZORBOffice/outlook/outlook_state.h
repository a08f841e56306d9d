// What one ZORBOutlook instance holds.
#pragma once

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/member_frame.h"

namespace zorboffice {

// Nothing empties a field again; a newer reference replaces it. They are released last to first, so that what
// came from an object goes before the object.
struct OutlookState {
  AutomationObject OutlookApp;
  AutomationObject OutlookNamespace;
  AutomationObject AppointmentItems;
  AutomationObject CurrentAppointment;
  AutomationObject CurrentRecurrencePattern;
  AutomationObject ContactItems;
  AutomationObject CurrentContact;
  AutomationObject TaskItems;
  AutomationObject CurrentTask;
  AutomationObject EmailItems;
  AutomationObject CurrentEmail;
  AutomationObject NoteItems;
  AutomationObject CurrentNote;
  LastError last_error;
};

}  // namespace zorboffice
