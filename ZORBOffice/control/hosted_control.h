// What a container sees of an instance: the parts of the control-hosting protocol, and what they share.
//
// A container may do anything during a call that the control makes to it: call back, take the site away, drop
// the last reference. So whoever calls out keeps the instance alive, calls through a copy of the pointer, and
// looks again at the state afterwards.
#pragma once

#include <windows.h>
#include <ole2.h>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/control/class_information.h"
#include "ZORBOffice/control/connection_points.h"
#include "ZORBOffice/control/data_object.h"
#include "ZORBOffice/control/in_place.h"
#include "ZORBOffice/control/ole_object.h"
#include "ZORBOffice/control/persistence.h"
#include "ZORBOffice/control/quick_activation.h"
#include "ZORBOffice/control/site.h"
#include "ZORBOffice/control/view.h"

namespace zorboffice {

struct ClassRow;

class HostedControl {
 public:
  HostedControl(const ClassRow& row, IUnknown& outer) noexcept;
  HostedControl(const HostedControl&) = delete;
  HostedControl& operator=(const HostedControl&) = delete;

  // The part that answers for an interface, not counted; null where none does.
  IUnknown* find(REFIID id) noexcept;

  const ClassRow& row() const { return row_; }
  Site& site() { return site_; }
  InPlace& in_place() { return in_place_; }
  OleObject& ole_object() { return ole_object_; }
  View& view() { return view_; }
  DataObject& data_object() { return data_object_; }
  ConnectionPoints& connection_points() { return connection_points_; }

  // Keeps the instance alive while the result is.
  ComPtr<IUnknown> alive() const { return ComPtr<IUnknown>(&outer_); }

  // The control's size on the form in HIMETRIC (1/100 mm). It is all that is ever saved.
  SIZEL extent() const { return extent_; }

  // Takes a size in HIMETRIC and tells everybody who shows the control. Returns E_INVALIDARG for a size that
  // nobody could see or draw, and keeps the earlier one.
  HRESULT set_extent(SIZEL extent) noexcept;

  // The size of a new control in HIMETRIC: the bitmap with some space around it.
  static SIZEL default_extent() noexcept;

  // Whether the extent has changed since it was loaded or saved.
  bool is_dirty() const { return dirty_; }
  void set_clean() { dirty_ = false; }

  // Draws the control into bounds, in the logical units of dc, at size, in pixels of 1/96 inch.
  void draw(HDC dc, const RECT& bounds, SIZE size) const noexcept;

  // Lets everybody who shows the control show it anew.
  void refresh() noexcept;

 private:
  const ClassRow& row_;
  IUnknown& outer_;
  Site site_;
  SIZEL extent_ = default_extent();
  bool dirty_ = false;
  OleObject ole_object_{*this, outer_};
  InPlace in_place_{*this, outer_};
  View view_{*this, outer_};
  DataObject data_object_{*this, outer_};
  Persistence persistence_{*this, outer_};
  ConnectionPoints connection_points_;
  ClassInformation class_information_{*this, outer_};
  QuickActivation quick_activation_{*this, outer_};
};

// Pixels of 1/96 inch, at least one, of a size in HIMETRIC.
SIZE pixels_of(SIZEL himetric) noexcept;

}  // namespace zorboffice
