// The default interface of ZORBOutlook, as a vtable.
#pragma once

#include <windows.h>
#include <oaidl.h>

namespace zorboffice {

// docs/members/ZORBOutlook.md says of each member what it does, gives back, shows and how it fails; its
// parameters stand in outlook_members.cpp.
//
// All parameters are passed by value, but for NewEmail's. An entry type is "Appointment", "Contact", "Note",
// "Task" or "Email", compared exactly. A flag result is VARIANT_TRUE for success; a text result is "" on
// failure; failures are kept for GetLastErrorNumber and GetLastErrorDescription. A null result pointer gives
// E_POINTER.
//
// Property keys are compared exactly; docs/reference/properties.md lists them. An unknown key is said in a
// message box (GetExceptionProperty says nothing), and a setter that returns a flag then returns true all the
// same. Writing a property does not save the item. A date is read as day/month/year but written in the user's
// own order: never write back what was read; year-month-day is understood everywhere. A time alone is a time
// of 30 December 1899. A misspelt entry type is said in a message box.
//
// An answer of Nothing where an item, a collection or a pattern is due is the failure "Object variable … not
// set" (91), and the earlier object stays.
//
// Every trap records the failure; OpenItem, InitItems, SaveEmailAttachment, GetFirstItem, GetNextItem,
// NewEmail, SetRecurrenceProperty and the contact and task property members also show a message box. The
// boxes of SaveEmailAttachment and SetRecurrenceProperty show facts of the current item: where those cannot
// be read, as without a current item, that failure reaches the host instead, unseen and not recorded. The
// last two members have no trap.
struct OutlookInterface : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE StartOutlook(VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE StopOutlook(VARIANT_BOOL Force, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE NewEmail(BSTR* Template, BSTR* ToAddress, BSTR* CCAddress,
                                             BSTR* BCCAddress, BSTR* Subject, BSTR* Content,
                                             VARIANT_BOOL* UseHTML, VARIANT_BOOL* AutoSend, BSTR* Attachment,
                                             VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE OpenItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE InitItems(BSTR EntryType, BSTR Condition,
                                              VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetItem(BSTR EntryType, BSTR EntryId, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetAppointmentInstance(BSTR EntryDate, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveItemToFile(BSTR EntryType, BSTR FileName,
                                                   VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveEmailAttachment(SHORT AttachmentNo, BSTR FileName,
                                                        VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetItemCount(BSTR EntryType, SHORT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetFirstItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNextItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetAppointmentProperty(BSTR AppProp, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SetAppointmentProperty(BSTR AppProp, BSTR PropertyValue,
                                                           VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRecurrencePattern(VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE ClearRecurrencePattern(VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRecurrenceProperty(BSTR RecurProp, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SetRecurrenceProperty(BSTR RecurProp, BSTR PropertyValue,
                                                          BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetExceptionProperty(SHORT Instance, BSTR ExceptProp,
                                                         BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetContactProperty(BSTR ContactProp, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SetContactProperty(BSTR ContactProp, BSTR PropertyValue,
                                                       VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetTaskProperty(BSTR TaskProp, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SetTaskProperty(BSTR TaskProperty, BSTR PropertyValue,
                                                    VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetEmailProperty(BSTR EmailProp, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNoteProperty(BSTR NoteProperty, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SetNoteProperty(BSTR NoteProperty, BSTR PropertyValue,
                                                    VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetLastErrorNumber(SHORT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetLastErrorDescription(BSTR* result) noexcept = 0;
};

}  // namespace zorboffice
