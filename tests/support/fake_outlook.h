// The mail and calendar client as a recording fake, creatable under its own program identifier.
#pragma once

#include "fake_application.h"

// A kind of item as the object model has it: its numbers as item, as new item and of its default folder.
struct ItemKind {
  const wchar_t* word;
  const char* name;   // of the objects that CreateItem makes
  const char* found;  // of the objects that collections and GetItemFromID answer; its identifier is `word`
  const char* items;  // of the default folder's collection
  const char* folder;
  int item_class, item_type, folder_number;
};
inline constexpr ItemKind item_kinds[] = {
    {L"Appointment", "Appointment", "FoundAppointment", "AppointmentItems", "Calendar", 26, 1, 9},
    {L"Contact", "Contact", "FoundContact", "ContactItems", "Contacts", 40, 2, 10},
    {L"Note", "Note", "FoundNote", "NoteItems", "Notes", 44, 5, 12},
    {L"Task", "Task", "FoundTask", "TaskItems", "Tasks", 48, 3, 13},
    {L"Email", "Email", "FoundEmail", "EmailItems", "Inbox", 43, 0, 6}};

// "Outlook.Application", with as much of the object model behind it as the members use. A collection's first
// and every next item is of the folder's kind; "Foreign" is an item of no kind, a distribution list.
class FakeOutlook final : public FakeApplication {
 public:
  FakeOutlook();
};
