// Writes the reference page of the property keys from the tables that the members read.
#include <cstdio>
#include <memory>
#include <string>

#include "ZORBOffice/outlook/property_tables.h"

namespace zorboffice {
namespace {

struct Section {
  const char* title;
  const char* object;
  std::span<const Property> properties;
};

const Section sections[] = {
    {"GetAppointmentProperty, SetAppointmentProperty", "the current appointment", appointment_properties},
    {"GetRecurrenceProperty, SetRecurrenceProperty", "the recurrence pattern", recurrence_properties},
    {"GetExceptionProperty", "one exception of the recurrence pattern", exception_properties},
    {"GetContactProperty, SetContactProperty", "the current contact", contact_properties},
    {"GetTaskProperty, SetTaskProperty", "the current task", task_properties},
    {"GetEmailProperty", "the current e-mail", email_properties},
    {"GetNoteProperty, SetNoteProperty", "the current note", note_properties},
};

constexpr char preface[] =
    "# Property keys of ZORBOutlook\n\n"
    "Written by the build from the tables that the members read. Keys are compared exactly, case included.\n"
    "`/` and `:` in a picture are the separators of the user's locale. A property without an entry under "
    "*written\n"
    "from* can only be read, one without an entry under *read as* only be written. Writing does not save the "
    "item:\n"
    "`SaveItem` does. `GetExceptionProperty` has one more key, `Get Appointment`: it makes the exception's\n"
    "appointment current and returns `Appointment Found`.\n\n"
    "- A date reads `dd/MM/yyyy` but is written in the order of the user's settings, so never write back what was\n"
    "  read: write year-month-day, `2026-11-23` or `2026-11-23 14:30`, which is understood everywhere.\n"
    "- A time alone is written as that time on 30 December 1899.\n"
    "- An empty text is no date: writing it fails (13, \"Type mismatch\") and clears nothing. A task's date that was\n"
    "  never set reads `01/01/4501`.\n"
    "- `ReminderDate` of a task sets the time of the reminder; no key switches the reminder on (`ReminderSet`).\n"
    "- Writing `PatternStartDate` changes `PatternEndDate`: Outlook keeps the length of the series.\n"
    "- A setter that returns a flag returns true for an unknown key too, after the box that says so.\n";

std::string narrow(std::wstring_view text) { return {text.begin(), text.end()}; }

std::string members(const wchar_t* names) {
  std::string listed = "`" + narrow(names) + "`";
  for (auto blank = listed.find(' '); blank != std::string::npos; blank = listed.find(' ', blank + 4))
    listed.replace(blank, 1, "`, `");
  return listed;
}

void write_section(std::FILE* page, const Section& section) {
  (void)std::fprintf(
      page, "\n## %s\n\nOf %s.\n\n| Key | Outlook's member | Read as | Written from |\n|---|---|---|---|\n",
      section.title, section.object);
  for (const Property& property : section.properties) {
    (void)std::fprintf(page, "| `%s` | %s | %s | %s |\n", narrow(property.key).c_str(),
                       members(property.member).c_str(), property.format ? property.format->description : "",
                       property.conversion ? property.conversion->description : "");
  }
}

}  // namespace
}  // namespace zorboffice

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    (void)std::fputs("usage: write_property_reference FILE\n", stderr);
    return 2;
  }
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> page(_wfopen(arguments[1], L"wb"), std::fclose);
  bool is_written = page && std::fputs(zorboffice::preface, page.get()) >= 0;
  if (is_written) {
    for (const zorboffice::Section& section : zorboffice::sections)
      zorboffice::write_section(page.get(), section);
    is_written = std::fflush(page.get()) == 0 && !std::ferror(page.get());
  }
  if (!is_written) (void)std::fputs("write_property_reference: the page cannot be written\n", stderr);
  return is_written ? 0 : 1;
}
