// A program of the build: writes the manifest with which hosts use the library unregistered. Usage:
// write_manifest LIBRARY MANIFEST, where LIBRARY is the library's file name without a folder.
#include <windows.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

#include "ZORBOffice/surface/registration_values.h"
#include "tools/class_list.h"
#include "tools/text.h"

namespace zorboffice {
namespace {

constexpr wchar_t dispatch_interface[] = L"{00020400-0000-0000-C000-000000000046}";  // IDispatch
constexpr const char* architecture = sizeof(void*) == 8 ? "amd64" : "x86";

// As the schema of manifests calls them.
struct MiscStatusName {
  DWORD flag;
  const char* name;
};
constexpr MiscStatusName misc_status_names[] = {
    {OLEMISC_RECOMPOSEONRESIZE, "recomposeonresize"},
    {OLEMISC_CANTLINKINSIDE, "cantlinkinside"},
    {OLEMISC_INSIDEOUT, "insideout"},
    {OLEMISC_ACTIVATEWHENVISIBLE, "activatewhenvisible"},
    {OLEMISC_SETCLIENTSITEFIRST, "setclientsitefirst"},
};
static_assert(type_library_flags == LIBFLAG_FCONTROL, "the manifest calls it \"CONTROL\"");

std::string attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + '"';
}

std::string misc_status_list() {
  std::string list;
  DWORD named = 0;
  for (const auto& [flag, name] : misc_status_names) {
    if (!(misc_status & flag)) continue;
    list += (list.empty() ? "" : ",") + std::string(name);
    named |= flag;
  }
  if (named != misc_status) throw std::runtime_error("a flag of the classes has no name");
  return list;
}

std::string version() {
  return std::to_string(type_library_major) + "." + std::to_string(type_library_minor);
}

std::string class_element(const PublishedClass& published) {
  const std::string program_id = ascii(program_id_prefix) + ascii(published.name);
  return "    <comClass" + attribute("clsid", text_of(published.class_id)) +
         attribute("tlbid", text_of(library_id)) + attribute("threadingModel", ascii(threading_model)) +
         attribute("progid", program_id + ascii(program_id_version)) + attribute("description", program_id) +
         attribute("miscStatusContent", misc_status_list()) + ">\n" + "      <progid>" + program_id +
         "</progid>\n    </comClass>\n";
}

std::string interface_element(const wchar_t* name, REFGUID id, const wchar_t* marshaller) {
  return "  <comInterfaceExternalProxyStub" + attribute("name", ascii(name)) + attribute("iid", text_of(id)) +
         attribute("baseInterface", ascii(dispatch_interface)) + attribute("tlbid", text_of(library_id)) +
         attribute("proxyStubClsid32", ascii(marshaller)) + "/>\n";
}

// The assembly has the type library's version: the file's own changes with every release, and hosts, which
// name the version, would then have to be changed too.
std::string manifest(const std::string& library) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
      "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n  <assemblyIdentity" +
      attribute("type", "win32") + attribute("name", "ZORBOffice") +
      attribute("version", version() + ".0.0") + attribute("processorArchitecture", architecture) +
      "/>\n  <file" + attribute("name", library) + ">\n    <typelib" +
      attribute("tlbid", text_of(library_id)) + attribute("version", version()) + attribute("helpdir", "") +
      attribute("flags", "CONTROL") + "/>\n";
  for (const Class& row : classes) text += class_element(row.published);
  text += "  </file>\n";
  for (const Class& row : classes) {
    const PublishedClass& published = row.published;
    text += interface_element(published.default_interface, row.default_interface_id, dual_marshaller);
    text += interface_element(published.event_interface, row.event_interface_id, dispatch_marshaller);
  }
  return text + "</assembly>\n";
}

}  // namespace
}  // namespace zorboffice

int main(int count, char** arguments) {
  if (count != 3) {
    (void)std::fputs("usage: write_manifest LIBRARY MANIFEST\n", stderr);
    return 2;
  }
  try {
    std::ofstream file(arguments[2], std::ios::binary);
    file << zorboffice::manifest(arguments[1]);
    file.close();
    if (!file) throw std::runtime_error("writing the manifest failed");
  } catch (const std::exception& failure) {
    (void)std::fprintf(stderr, "write_manifest: %s\n", failure.what());
    return 1;
  }
  return 0;
}
