// Single properties of Outlook's objects by a key given as text: a row names the key, the member behind it,
// and how its value becomes text and text its value.
#pragma once

#include <windows.h>

#include <span>
#include <string_view>

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/surface/sentence.h"

namespace zorboffice {

// The description is for the reference. Throws Failure.
struct Format {
  const char* description;
  Bstr (*read)(const AutomationObject& item, const wchar_t* member);
};

// Converts before it touches the item. Throws Failure.
struct Conversion {
  const char* description;
  void (*write)(const AutomationObject& item, const wchar_t* member, BSTR value);
};

struct Property {
  std::wstring_view key;
  const wchar_t* member;  // of Outlook's object model
  const char* sentence;
  const Format* format = nullptr;          // null: this row is not for reading
  const Conversion* conversion = nullptr;  // null: this row is not for writing
};

// A text that is read and written as it is, under Outlook's own name.
constexpr Property text_property(const wchar_t* name, const char* sentence);

extern const Format as_text, as_decimal, as_date_time, as_date, as_time;
extern const Format as_flag;                     // null counts as false
extern const Format as_name;                     // the Name of the object there
extern const Format as_count;                    // the Count of the collection there
extern const Format as_joined_values;            // members separated by blanks; their texts joined by a blank
extern const Format as_names, as_display_names;  // those of the collection's elements, joined by ";"
extern const Conversion from_text, from_flag, from_int16, from_date;

// What from_int16 does, for conversions of another description: rounds, and widens to the 32 bits that
// Outlook's members have.
void write_int16(const AutomationObject& item, const wchar_t* member, BSTR value);

// The first row with that key that can be read; null where there is none.
const Property* find_readable(std::span<const Property> properties, BSTR key);

// Reads or writes the property of that key. A key that no row has is said in a box, after the lead-in, before
// the item is looked at; reading it gives "". No item is the failure "Object variable … not set".
Bstr read_property(std::span<const Property> properties, const AutomationObject& item, BSTR key,
                   const wchar_t* unknown_key);
void write_property(std::span<const Property> properties, const AutomationObject& item, BSTR key, BSTR value,
                    const wchar_t* unknown_key);

constexpr Property text_property(const wchar_t* name, const char* sentence) {
  return {name, name, sentence, &as_text, &from_text};
}

}  // namespace zorboffice
