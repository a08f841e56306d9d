// What registration, the class factory and the instances know of a class.
#pragma once

#include <windows.h>
#include <unknwn.h>

#include "ZORBOffice/surface/member_table.h"
#include "ZORBOffice/surface/published_classes.h"

namespace zorboffice {

struct DefaultInterface {
  IID id;
  const MemberTable& members;
};

struct ClassRow {
  const PublishedClass& published;
  int toolbox_bitmap;  // resource number
  // Makes an instance, as part of outer where that is not null, and returns its identity with one reference;
  // throws std::bad_alloc.
  IUnknown* (*create)(const ClassRow& row, IUnknown* outer);
  DefaultInterface default_interface;
  IID event_interface_id;
};

}  // namespace zorboffice
