// What the bench's office applications are made of: types, their members, and what each answers.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <span>

namespace bench {

struct Answer {
  enum Kind {
    nothing,
    number,
    counted,  // one more each time
    real,
    flag,
    text,
    date,
    object,    // of the type `name`
    any,       // the same, declared as any object
    elements,  // an enumerator of three objects of that type
    folder,    // the folder of the argument's number
    created,   // an item of the argument's type
    found,     // the item whose identifier is its kind
    first,     // an item of the collection's kind, or Nothing
    next,
    item_class
  };
  Kind kind = nothing;
  const wchar_t* name = nullptr;
  double value = 0;
};

struct MemberRow {
  const wchar_t* name;
  bool is_method;
  Answer answer;
  const wchar_t* parameters = L"";  // separated by blanks
};

struct Type {
  const wchar_t* name;
  // A class's members are those of its default interface, which has an underscore before the name.
  bool is_class;
  std::span<const MemberRow> members;
};

struct ItemKind {
  const wchar_t* type;
  LONG folder;
  LONG item_type;
  LONG item_class;
};
inline constexpr ItemKind item_kinds[] = {{L"AppointmentItem", 9, 1, 26},
                                          {L"ContactItem", 10, 2, 40},
                                          {L"NoteItem", 12, 5, 44},
                                          {L"TaskItem", 13, 3, 48},
                                          {L"MailItem", 6, 0, 43}};

struct Application {
  const wchar_t* program_id;
  CLSID class_id;
  GUID library_id;
  std::span<const Type> types;  // the first is the root's
};
extern const std::span<const Application> applications;

// Equal names have other identifiers in other types, as in real offices; one type's numbers are other
// members' in the next. Only the default member, the enumerator and `Class` have the same everywhere.
DISPID member_id(const Application& application, const Type& type, const MemberRow& member);

// The row behind an identifier; null where there is none.
const MemberRow* find_member(const Application& application, const Type& type, DISPID id);

// The type of that name, which must be there.
const Type& find_type(const Application& application, const wchar_t* name);

// The type's own identifier: of its interface, or of the class.
GUID type_id(const Application& application, const Type& type, bool of_class);

// How many parameters a member is declared with.
int count_of_parameters(const MemberRow& member);

}  // namespace bench
