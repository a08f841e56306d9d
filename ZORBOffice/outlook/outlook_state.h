// What one ZORBOutlook instance holds.
#pragma once

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/member_frame.h"

namespace zorboffice {

// Nothing empties a field again; a newer reference replaces it. They are released last to first, so that what
// came from an object goes before the object.
struct OutlookState {
  KeptObject OutlookApp;
  KeptObject OutlookNamespace;
  KeptObject AppointmentItems;
  KeptObject CurrentAppointment;
  KeptObject CurrentRecurrencePattern;
  KeptObject ContactItems;
  KeptObject CurrentContact;
  KeptObject TaskItems;
  KeptObject CurrentTask;
  KeptObject EmailItems;
  KeptObject CurrentEmail;
  KeptObject NoteItems;
  KeptObject CurrentNote;
  LastError last_error;
};

}  // namespace zorboffice
