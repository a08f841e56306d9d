// The default interface of ZORBOutlook, as a vtable.
#pragma once

#include <windows.h>
#include <oaidl.h>

namespace zorboffice {

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
  // Starts a session with Outlook.
  virtual HRESULT STDMETHODCALLTYPE StartOutlook(VARIANT_BOOL* result) noexcept = 0;

  // Ends the work; quits Outlook only when Force (optional, default false) is true. No reference is let go.
  virtual HRESULT STDMETHODCALLTYPE StopOutlook(VARIANT_BOOL Force, VARIANT_BOOL* result) noexcept = 0;

  // Composes one mail, and sends (AutoSend) or shows it. Beware: AutoSend then quits Outlook, the user's own
  // too. Attachment is a list of paths separated by ";" and is used up through the reference: hand over a
  // copy. Template is not read. Always returns false: look at the last error.
  virtual HRESULT STDMETHODCALLTYPE NewEmail(BSTR* Template, BSTR* ToAddress, BSTR* CCAddress,
                                             BSTR* BCCAddress, BSTR* Subject, BSTR* Content,
                                             VARIANT_BOOL* UseHTML, VARIANT_BOOL* AutoSend, BSTR* Attachment,
                                             VARIANT_BOOL* result) noexcept = 0;

  // Shows the current item of the entry type in Outlook's own window.
  virtual HRESULT STDMETHODCALLTYPE OpenItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;

  // Fills the entry type's collection from its default folder, restricted by Condition unless that is empty,
  // sorted. Also knows "Sent Items" and, in the folder's own order and of all kinds, "Deleted " followed by
  // an entry type.
  virtual HRESULT STDMETHODCALLTYPE InitItems(BSTR EntryType, BSTR Condition,
                                              VARIANT_BOOL* result) noexcept = 0;

  // Makes a new, unsaved item current.
  virtual HRESULT STDMETHODCALLTYPE CreateItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;

  // Deletes the current item.
  virtual HRESULT STDMETHODCALLTYPE DeleteItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;

  // Makes the item with the identifier EntryId current.
  virtual HRESULT STDMETHODCALLTYPE GetItem(BSTR EntryType, BSTR EntryId, VARIANT_BOOL* result) noexcept = 0;

  // Makes the current appointment's occurrence of EntryDate (date text in the user's locale) current.
  virtual HRESULT STDMETHODCALLTYPE GetAppointmentInstance(BSTR EntryDate, VARIANT_BOOL* result) noexcept = 0;

  // Saves the current item.
  virtual HRESULT STDMETHODCALLTYPE SaveItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;

  // Exports the current item to FileName (path) in Outlook's default format.
  virtual HRESULT STDMETHODCALLTYPE SaveItemToFile(BSTR EntryType, BSTR FileName,
                                                   VARIANT_BOOL* result) noexcept = 0;

  // Saves an attachment of the current e-mail to FileName (path). AttachmentNo counts from 1 among the
  // attachments that the body does not name. Returns true also when there is no such attachment.
  virtual HRESULT STDMETHODCALLTYPE SaveEmailAttachment(SHORT AttachmentNo, BSTR FileName,
                                                        VARIANT_BOOL* result) noexcept = 0;

  // Returns the number of items in the entry type's collection, 0 on failure and above 32767.
  virtual HRESULT STDMETHODCALLTYPE GetItemCount(BSTR EntryType, SHORT* result) noexcept = 0;

  // Makes the collection's first item of the entry type's class current; false when there is none.
  virtual HRESULT STDMETHODCALLTYPE GetFirstItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;

  // Makes the collection's next item of the entry type's class current; false at the end.
  virtual HRESULT STDMETHODCALLTYPE GetNextItem(BSTR EntryType, VARIANT_BOOL* result) noexcept = 0;

  // Returns the current appointment's property AppProp as text.
  virtual HRESULT STDMETHODCALLTYPE GetAppointmentProperty(BSTR AppProp, BSTR* result) noexcept = 0;

  // Converts PropertyValue and writes it to the current appointment's property AppProp.
  virtual HRESULT STDMETHODCALLTYPE SetAppointmentProperty(BSTR AppProp, BSTR PropertyValue,
                                                           VARIANT_BOOL* result) noexcept = 0;

  // Takes the current appointment's recurrence pattern into the control.
  virtual HRESULT STDMETHODCALLTYPE GetRecurrencePattern(VARIANT_BOOL* result) noexcept = 0;

  // Makes the current appointment a single one.
  virtual HRESULT STDMETHODCALLTYPE ClearRecurrencePattern(VARIANT_BOOL* result) noexcept = 0;

  // Returns the recurrence pattern's property RecurProp as text.
  virtual HRESULT STDMETHODCALLTYPE GetRecurrenceProperty(BSTR RecurProp, BSTR* result) noexcept = 0;

  // Converts PropertyValue and writes it to the recurrence pattern's property RecurProp. Always returns "".
  // PatternStartDate writes the end of the series, as PatternEndDate does.
  virtual HRESULT STDMETHODCALLTYPE SetRecurrenceProperty(BSTR RecurProp, BSTR PropertyValue,
                                                          BSTR* result) noexcept = 0;

  // Returns the property ExceptProp of the pattern's exception Instance (counted from 1) as text.
  virtual HRESULT STDMETHODCALLTYPE GetExceptionProperty(SHORT Instance, BSTR ExceptProp,
                                                         BSTR* result) noexcept = 0;

  // Returns the current contact's property ContactProp as text.
  virtual HRESULT STDMETHODCALLTYPE GetContactProperty(BSTR ContactProp, BSTR* result) noexcept = 0;

  // Writes PropertyValue to the current contact's property ContactProp.
  virtual HRESULT STDMETHODCALLTYPE SetContactProperty(BSTR ContactProp, BSTR PropertyValue,
                                                       VARIANT_BOOL* result) noexcept = 0;

  // Returns the current task's property TaskProp as text. A date that was never set reads 01/01/4501.
  virtual HRESULT STDMETHODCALLTYPE GetTaskProperty(BSTR TaskProp, BSTR* result) noexcept = 0;

  // Converts PropertyValue and writes it to the current task's property TaskProperty. An empty text does not
  // clear a date; it is a type mismatch. ReminderDate sets the reminder's time; nothing sets ReminderSet.
  virtual HRESULT STDMETHODCALLTYPE SetTaskProperty(BSTR TaskProperty, BSTR PropertyValue,
                                                    VARIANT_BOOL* result) noexcept = 0;

  // Returns the current e-mail's property EmailProp as text.
  virtual HRESULT STDMETHODCALLTYPE GetEmailProperty(BSTR EmailProp, BSTR* result) noexcept = 0;

  // Returns the current note's property NoteProperty as text.
  virtual HRESULT STDMETHODCALLTYPE GetNoteProperty(BSTR NoteProperty, BSTR* result) noexcept = 0;

  // Converts PropertyValue and writes it to the current note's property NoteProperty.
  virtual HRESULT STDMETHODCALLTYPE SetNoteProperty(BSTR NoteProperty, BSTR PropertyValue,
                                                    VARIANT_BOOL* result) noexcept = 0;

  // Returns the number of the last recorded failure, 0 before any. A number outside 16 bits (every automation
  // error) is an overflow, which reaches the host as runtime error 6.
  virtual HRESULT STDMETHODCALLTYPE GetLastErrorNumber(SHORT* result) noexcept = 0;

  // Returns the description of the last recorded failure, "" before any.
  virtual HRESULT STDMETHODCALLTYPE GetLastErrorDescription(BSTR* result) noexcept = 0;
};

}  // namespace zorboffice
