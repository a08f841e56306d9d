#include "ZORBOffice/outlook/entry_types.h"

#include <algorithm>
#include <iterator>

namespace zorboffice {
namespace {

using State = OutlookState;

// Numbers of the mail client's object model. Folders: olFolderDeletedItems 3, olFolderSentMail 5,
// olFolderInbox 6, olFolderCalendar 9, olFolderContacts 10, olFolderNotes 12, olFolderTasks 13. Classes:
// olAppointment 26, olContact 40, olMail 43, olNote 44, olTask 48. Types: olMailItem 0, olAppointmentItem 1,
// olContactItem 2, olTaskItem 3, olNoteItem 5.
constexpr EntryTypeRow rows[] = {
    {L"Appointment", 9, L"[Start]", &State::AppointmentItems, &State::CurrentAppointment, 26, 1,
     L"AppointmentItem"},
    {L"Contact", 10, L"[FullName]", &State::ContactItems, &State::CurrentContact, 40, 2, L"ContactItem"},
    {L"Note", 12, L"[Subject]", &State::NoteItems, &State::CurrentNote, 44, 5, L"NoteItem"},
    {L"Task", 13, L"[DueDate]", &State::TaskItems, &State::CurrentTask, 48, 3, L"TaskItem"},
    {L"Email", 6, L"[CreationTime]", &State::EmailItems, &State::CurrentEmail, 43, 0, L"MailItem"},
    {L"Sent Items", 5, L"[CreationTime]", &State::EmailItems},
    {L"Deleted Appointment", 3, nullptr, &State::AppointmentItems},
    {L"Deleted Contact", 3, nullptr, &State::ContactItems},
    {L"Deleted Note", 3, nullptr, &State::NoteItems},
    {L"Deleted Task", 3, nullptr, &State::TaskItems},
    {L"Deleted Email", 3, nullptr, &State::EmailItems},
};

}  // namespace

const EntryTypeRow* find_collection_word(std::wstring_view word) {
  const auto* row = std::ranges::find(rows, word, &EntryTypeRow::word);
  return row == std::end(rows) ? nullptr : row;
}

const EntryTypeRow* find_entry_type(std::wstring_view word) {
  const EntryTypeRow* row = find_collection_word(word);
  return row && row->current_item ? row : nullptr;
}

}  // namespace zorboffice
