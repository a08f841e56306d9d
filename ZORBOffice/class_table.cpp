#include "ZORBOffice/class_table.h"

#include <array>
#include <cstring>

#include "ZORBOffice/module.h"
#include "ZORBOffice/outlook/zorb_outlook.h"
#include "ZORBOffice/word/zorb_word.h"
#include "ZORBOffice/writer/open_writer.h"

namespace zorboffice {
namespace {

template <class Control>
IUnknown* create(const ClassRow& row, IUnknown* outer) {
  return (new Control(row, outer))->identity();
}

std::array rows = {
    ClassRow{zorb_word_class, 30000, create<ZORBWord>, {{}, zorb_word_members}, {}},
    ClassRow{zorb_outlook_class, 30001, create<ZORBOutlook>, {{}, zorb_outlook_members}, {}},
    ClassRow{open_writer_class, 30002, create<OpenWriter>, {{}, open_writer_members}, {}},
};
bool loaded = false;

bool read_identifier(const wchar_t* name, GUID& identifier) {
  HRSRC resource = FindResourceW(module_handle(), name, RT_RCDATA);
  if (!resource || SizeofResource(module_handle(), resource) != sizeof identifier) return false;
  HGLOBAL content = LoadResource(module_handle(), resource);
  if (!content) return false;
  std::memcpy(&identifier, LockResource(content), sizeof identifier);
  return true;
}

}  // namespace

std::span<const ClassRow> class_table() noexcept {
  return loaded ? std::span<const ClassRow>(rows) : std::span<const ClassRow>();
}

bool load_class_table() noexcept {
  loaded = true;
  for (ClassRow& row : rows) {
    loaded = loaded && read_identifier(row.published.default_interface, row.default_interface.id) &&
             read_identifier(row.published.event_interface, row.event_interface_id);
  }
  return loaded;
}

}  // namespace zorboffice
