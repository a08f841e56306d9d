// The property accessors of the five kinds of items.
#include "ZORBOffice/outlook/property_tables.h"
#include "ZORBOffice/outlook/zorb_outlook.h"

namespace zorboffice {
namespace {

constexpr wchar_t unknown_property[] = L"Unknown Property ";

// Trap: the prefix, the description and the key in a message box.
auto message_with_key(const wchar_t* prefix, BSTR key) {
  return composed_message([prefix, key](const Failure& failure) {
    return concatenated({prefix, failure.description.view(), L" : ", view(key)});
  });
}

}  // namespace

HRESULT ZORBOutlook::GetAppointmentProperty(BSTR AppProp, BSTR* result) noexcept {
  return trapped(result, stored(), [&] {
    return read_property(appointment_properties, state_.CurrentAppointment, AppProp, unknown_property);
  });
}

HRESULT ZORBOutlook::SetAppointmentProperty(BSTR AppProp, BSTR PropertyValue, VARIANT_BOOL* result) noexcept {
  return trapped(result, stored(), [&] {
    write_property(appointment_properties, state_.CurrentAppointment, AppProp, PropertyValue,
                   unknown_property);
    return success;
  });
}

HRESULT ZORBOutlook::GetContactProperty(BSTR ContactProp, BSTR* result) noexcept {
  return trapped(result, both(stored(), message_with_key(L"Get Contact prop ", ContactProp)), [&] {
    return read_property(contact_properties, state_.CurrentContact, ContactProp, unknown_property);
  });
}

HRESULT ZORBOutlook::SetContactProperty(BSTR ContactProp, BSTR PropertyValue, VARIANT_BOOL* result) noexcept {
  return trapped(result, both(stored(), message(L"Unable to create contact: ")), [&] {
    write_property(contact_properties, state_.CurrentContact, ContactProp, PropertyValue, unknown_property);
    return success;
  });
}

HRESULT ZORBOutlook::GetTaskProperty(BSTR TaskProp, BSTR* result) noexcept {
  return trapped(result, both(stored(), message_with_key(L"Get Task prop ", TaskProp)), [&] {
    return read_property(task_properties, state_.CurrentTask, TaskProp, L"Unknown Task Property ");
  });
}

HRESULT ZORBOutlook::SetTaskProperty(BSTR TaskProperty, BSTR PropertyValue, VARIANT_BOOL* result) noexcept {
  return trapped(result, both(stored(), message_with_key(L"Set Task prop ", TaskProperty)), [&] {
    write_property(task_properties, state_.CurrentTask, TaskProperty, PropertyValue, L"unknown property ");
    return success;
  });
}

HRESULT ZORBOutlook::GetEmailProperty(BSTR EmailProp, BSTR* result) noexcept {
  return trapped(result, stored(), [&] {
    return read_property(email_properties, state_.CurrentEmail, EmailProp, unknown_property);
  });
}

HRESULT ZORBOutlook::GetNoteProperty(BSTR NoteProperty, BSTR* result) noexcept {
  return trapped(result, stored(), [&] {
    return read_property(note_properties, state_.CurrentNote, NoteProperty, unknown_property);
  });
}

HRESULT ZORBOutlook::SetNoteProperty(BSTR NoteProperty, BSTR PropertyValue, VARIANT_BOOL* result) noexcept {
  return trapped(result, stored(), [&] {
    write_property(note_properties, state_.CurrentNote, NoteProperty, PropertyValue, unknown_property);
    return success;
  });
}

}  // namespace zorboffice
