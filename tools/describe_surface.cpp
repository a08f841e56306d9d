// A program of the build: writes the whole surface as JSON, from which the reference and the bindings are
// written. Usage: describe_surface FILE
#include <windows.h>

#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>
#include <string>

#include "ZORBOffice/outlook/property_tables.h"
#include "ZORBOffice/surface/registration_values.h"
#include "tools/class_list.h"
#include "tools/text.h"

namespace zorboffice {
namespace {

using Json = nlohmann::ordered_json;

struct Accessors {
  const char* item;
  const char* object;
  const wchar_t* getter;
  const wchar_t* setter;  // null where there is none
  std::span<const Property> properties;
};

const Accessors accessors[] = {
    {"Appointment", "the current appointment", L"GetAppointmentProperty", L"SetAppointmentProperty",
     appointment_properties},
    {"Recurrence", "the recurrence pattern", L"GetRecurrenceProperty", L"SetRecurrenceProperty",
     recurrence_properties},
    {"Exception", "one exception of the recurrence pattern", L"GetExceptionProperty", nullptr,
     exception_properties},
    {"Contact", "the current contact", L"GetContactProperty", L"SetContactProperty", contact_properties},
    {"Task", "the current task", L"GetTaskProperty", L"SetTaskProperty", task_properties},
    {"Email", "the current mail", L"GetEmailProperty", nullptr, email_properties},
    {"Note", "the current note", L"GetNoteProperty", L"SetNoteProperty", note_properties},
};

std::string sentence_of(const wchar_t* name, const char* sentence) {
  if (!sentence) throw std::runtime_error(ascii(name) + " has no sentence");
  return sentence;
}

const char* type_name(VARTYPE type) {
  switch (type) {
    case VT_BOOL:
      return "flag";
    case VT_UI1:
      return "byte";
    case VT_I2:
      return "int16";
    case VT_I4:
      return "int32";
    case VT_BSTR:
      return "text";
    case VT_VARIANT:
      return "variant";
    default:
      throw std::runtime_error("a type has no name");
  }
}

Json default_of(const Parameter& parameter) {
  if (parameter.type == VT_BOOL) return parameter.default_value != VARIANT_FALSE;
  if (parameter.type == VT_BSTR) return "";
  return parameter.default_value;
}

Json described(const Parameter& parameter) {
  constexpr const char* presences[] = {"required", "optional", "optional_with_value"};
  Json json = {{"name", ascii(parameter.name)},
               {"type", type_name(parameter.type)},
               {"by_reference", parameter.by_reference},
               {"presence", presences[static_cast<int>(parameter.presence)]},
               {"sentence", sentence_of(parameter.name, parameter.sentence)}};
  if (parameter.presence == Presence::optional_with_value) json["default"] = default_of(parameter);
  return json;
}

Json described(const Member& member) {
  Json parameters = Json::array();
  for (const Parameter& parameter : member.parameters) parameters.push_back(described(parameter));
  return {{"name", ascii(member.name)},
          {"id", static_cast<DWORD>(member.id)},
          {"kind", member.kind == MemberKind::method ? "method" : "property_get"},
          {"result", type_name(member.result)},
          {"sentence", sentence_of(member.name, member.sentence)},
          {"parameters", parameters}};
}

Json described(const Class& row) {
  const PublishedClass& published = row.published;
  Json members = Json::array();
  for (const Member& member : published.members) members.push_back(described(member));
  return {{"name", ascii(published.name)},
          {"program_id", ascii(program_id_prefix) + ascii(published.name)},
          {"class_id", text_of(published.class_id)},
          {"sentence", row.sentence},
          {"default_interface", ascii(published.default_interface)},
          {"interface_id", text_of(row.default_interface_id)},
          {"event_interface", ascii(published.event_interface)},
          {"event_interface_id", text_of(row.event_interface_id)},
          {"members", members}};
}

Json described(const Property& property) {
  Json members = Json::array();
  std::istringstream names(ascii(property.member));
  for (std::string name; names >> name;) members.push_back(name);
  const auto description = [](const auto* row) { return row ? Json(row->description) : Json(); };
  return {{"key", ascii(property.key)},
          {"members", members},
          {"sentence", sentence_of(property.member, property.sentence)},
          {"read", description(property.format)},
          {"write", description(property.conversion)}};
}

Json described(const Accessors& row) {
  Json keys = Json::array();
  for (const Property& property : row.properties) keys.push_back(described(property));
  return {{"item", row.item},
          {"object", row.object},
          {"getter", ascii(row.getter)},
          {"setter", row.setter ? Json(ascii(row.setter)) : Json()},
          {"keys", keys}};
}

Json surface() {
  Json json = {{"library",
                {{"name", ascii(type_library_name)},
                 {"id", text_of(library_id)},
                 {"major", type_library_major},
                 {"minor", type_library_minor}}}};
  for (const Class& row : classes) json["classes"].push_back(described(row));
  for (const Accessors& row : accessors) json["properties"].push_back(described(row));
  return json;
}

}  // namespace
}  // namespace zorboffice

int main(int count, char** arguments) {
  if (count != 2) {
    (void)std::fputs("usage: describe_surface FILE\n", stderr);
    return 2;
  }
  try {
    std::ofstream file(arguments[1], std::ios::binary);
    file << zorboffice::surface().dump(1) << '\n';
    file.close();
    if (!file) throw std::runtime_error("writing the file failed");
  } catch (const std::exception& failure) {
    (void)std::fprintf(stderr, "describe_surface: %s\n", failure.what());
    return 1;
  }
  return 0;
}
