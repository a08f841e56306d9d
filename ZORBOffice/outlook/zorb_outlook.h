// ZORBOutlook: drives Microsoft Outlook. surface/outlook_interface.h says what each member does.
#pragma once

#include "ZORBOffice/common/member_frame.h"
#include "ZORBOffice/control/control.h"
#include "ZORBOffice/outlook/entry_types.h"
#include "ZORBOffice/outlook/outlook_state.h"
#include "ZORBOffice/surface/outlook_interface.h"

namespace zorboffice {

class ZORBOutlook final : public Control<OutlookInterface> {
 public:
  using Control::Control;

  // session.cpp
  HRESULT STDMETHODCALLTYPE StartOutlook(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE StopOutlook(VARIANT_BOOL Force, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetLastErrorNumber(SHORT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetLastErrorDescription(BSTR* result) noexcept override;

  // new_email.cpp
  HRESULT STDMETHODCALLTYPE NewEmail(BSTR* Template, BSTR* ToAddress, BSTR* CCAddress, BSTR* BCCAddress,
                                     BSTR* Subject, BSTR* Content, VARIANT_BOOL* UseHTML,
                                     VARIANT_BOOL* AutoSend, BSTR* Attachment,
                                     VARIANT_BOOL* result) noexcept override;

  // cursor.cpp
  HRESULT STDMETHODCALLTYPE OpenItem(BSTR EntryType, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE InitItems(BSTR EntryType, BSTR Condition, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetItem(BSTR EntryType, BSTR EntryId, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetItemCount(BSTR EntryType, SHORT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetFirstItem(BSTR EntryType, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetNextItem(BSTR EntryType, VARIANT_BOOL* result) noexcept override;

  // item_lifecycle.cpp
  HRESULT STDMETHODCALLTYPE CreateItem(BSTR EntryType, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE DeleteItem(BSTR EntryType, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SaveItem(BSTR EntryType, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SaveItemToFile(BSTR EntryType, BSTR FileName,
                                           VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SaveEmailAttachment(SHORT AttachmentNo, BSTR FileName,
                                                VARIANT_BOOL* result) noexcept override;

  // properties.cpp
  HRESULT STDMETHODCALLTYPE GetAppointmentProperty(BSTR AppProp, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SetAppointmentProperty(BSTR AppProp, BSTR PropertyValue,
                                                   VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetContactProperty(BSTR ContactProp, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SetContactProperty(BSTR ContactProp, BSTR PropertyValue,
                                               VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTaskProperty(BSTR TaskProp, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SetTaskProperty(BSTR TaskProperty, BSTR PropertyValue,
                                            VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetEmailProperty(BSTR EmailProp, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetNoteProperty(BSTR NoteProperty, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SetNoteProperty(BSTR NoteProperty, BSTR PropertyValue,
                                            VARIANT_BOOL* result) noexcept override;

  // recurrence.cpp
  HRESULT STDMETHODCALLTYPE GetAppointmentInstance(BSTR EntryDate, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetRecurrencePattern(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ClearRecurrencePattern(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetRecurrenceProperty(BSTR RecurProp, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SetRecurrenceProperty(BSTR RecurProp, BSTR PropertyValue,
                                                  BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetExceptionProperty(SHORT Instance, BSTR ExceptProp,
                                                 BSTR* result) noexcept override;

 private:
  // Members work on references of their own: while an office call waits, the host may run a member that
  // replaces the field. Each throws "Object variable … not set" where the field is empty.
  AutomationObject application() const { return state_.OutlookApp.typed(); }
  AutomationObject session() const { return state_.OutlookNamespace.typed(); }
  AutomationObject items(const EntryTypeRow& type) const { return (state_.*type.items).typed(); }
  AutomationObject current_item(const EntryTypeRow& type) const {
    return (state_.*type.current_item).typed();
  }

  // Makes the item current where it is of the entry type's class, which it returns.
  bool make_current(const EntryTypeRow& type, const AutomationObject& item);

  // The title of the recurrence setter's boxes.
  std::wstring appointment_title() const;

  // Trap: the failure is stored as the last error.
  auto stored() { return record(state_.last_error); }

  // Trap: the prefix and the description in a message box, then stored.
  auto shown_and_stored(const wchar_t* prefix) { return both(message(prefix), stored()); }

  // Runs a member on the row of its entry type. A word that find does not know is said in a box with the
  // member's caption, and the result stays its failure value.
  template <class ResultType, class Trap, class Body>
  HRESULT for_entry_type(BSTR EntryType, const wchar_t* caption, ResultType* result, const Trap& trap,
                         const Body& body,
                         const EntryTypeRow* (*find)(std::wstring_view) = find_entry_type) noexcept {
    return trapped(result, trap, [&] {
      const EntryTypeRow* type = find(view(EntryType));
      if (type) return body(*type);
      show_message(concatenated({L"Unknown Entry Type ", view(EntryType)}), caption);
      return decltype(body(*type))();
    });
  }

  OutlookState state_;
};

}  // namespace zorboffice
