// The office applications as recording fakes, creatable under their own program identifiers.
#pragma once

#include "fake_object.h"

// While one lives, every creation of the class in this apartment gives a new object of the office, called
// `object`: a step "create LABEL", which fails as any other. Where it is `named`, its label is its program
// identifier; the machine's own classes are put back at the end. A process that serves others gives one
// object.
enum class Serving { named, unnamed, others };
class FakeClass : private IClassFactory {
 public:
  FakeClass(FakeOffice& office, const CLSID& class_id, const std::string& label, const char* object,
            Serving serving = Serving::named);
  ~FakeClass();
  FakeClass(const FakeClass&) = delete;

 private:
  HRESULT WINAPI QueryInterface(REFIID iid, void** object) override;
  ULONG WINAPI AddRef() override { return 1; }
  ULONG WINAPI Release() override { return 1; }
  HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }
  void name(const std::wstring& class_id) const;

  FakeOffice& office_;
  const std::string label_, object_;
  std::wstring program_key_, earlier_class_;
  DWORD registration_ = 0;
};

// "Word.Application", with as much of the object model behind it as the members use.
struct FakeWord : FakeOffice {
  explicit FakeWord(Serving serving = Serving::named);
  FakeClass class_;
};

// The office suite's service manager, "com.sun.star.ServiceManager" or under no name, and the word
// processor's class Global in this apartment. The service manager is called "Application", and it and the
// document "Document" answer the word processor's members too: what the two controls share must leave the
// same log.
struct FakeSuite : FakeOffice {
  explicit FakeSuite(Serving serving = Serving::named);
  FakeClass manager_, global_;
};

// A kind of Outlook's items as the object model has it: its numbers as item, as new item and of its folder.
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
struct FakeOutlook : FakeOffice {
  explicit FakeOutlook(Serving serving = Serving::named);
  FakeClass class_;
};
