#include "ZORBOffice/control/hosted_control.h"

#include <algorithm>

#include "ZORBOffice/control/picture_box.h"
#include "ZORBOffice/surface/class_row.h"

namespace zorboffice {
namespace {

constexpr LONG himetric_per_inch = 2540;
constexpr LONG pixels_per_inch = 96;
constexpr LONG largest_extent = 1'000'000;  // ten metres: beyond that, device coordinates overflow

constexpr bool is_sensible(LONG length) { return length >= 0 && length <= largest_extent; }

LONG himetric(LONG pixels) { return MulDiv(pixels, himetric_per_inch, pixels_per_inch); }
LONG pixels(LONG length) { return std::max(MulDiv(length, pixels_per_inch, himetric_per_inch), 1); }

}  // namespace

HostedControl::HostedControl(const ClassRow& row, IUnknown& outer) noexcept
    : row_(row), outer_(outer), connection_points_(*this, outer, row.event_interface_id) {}

IUnknown* HostedControl::find(REFIID id) noexcept {
  const struct {
    const IID& id;
    IUnknown* part;
  } parts[] = {
      {IID_IOleObject, static_cast<IOleObject*>(&ole_object_)},
      {IID_IOleControl, static_cast<IOleControl*>(&ole_object_)},
      {IID_IOleWindow, static_cast<IOleInPlaceObject*>(&in_place_)},
      {IID_IOleInPlaceObject, static_cast<IOleInPlaceObject*>(&in_place_)},
      {IID_IOleInPlaceActiveObject, static_cast<IOleInPlaceActiveObject*>(&in_place_)},
      {IID_IViewObject, &view_},
      {IID_IViewObject2, &view_},
      {IID_IViewObjectEx, &view_},
      {IID_IDataObject, &data_object_},
      {IID_IPersist, static_cast<IPersistStreamInit*>(&persistence_)},
      // The methods of IPersistStream are the first ones of IPersistStreamInit.
      {IID_IPersistStream, static_cast<IPersistStreamInit*>(&persistence_)},
      {IID_IPersistStreamInit, static_cast<IPersistStreamInit*>(&persistence_)},
      {IID_IPersistStorage, static_cast<IPersistStorage*>(&persistence_)},
      {IID_IPersistPropertyBag, static_cast<IPersistPropertyBag*>(&persistence_)},
      {IID_IConnectionPointContainer, &connection_points_},
      {IID_IProvideClassInfo, static_cast<IProvideClassInfo2*>(&class_information_)},
      {IID_IProvideClassInfo2, static_cast<IProvideClassInfo2*>(&class_information_)},
      {IID_ISpecifyPropertyPages, static_cast<ISpecifyPropertyPages*>(&class_information_)},
      {IID_ISupportErrorInfo, static_cast<ISupportErrorInfo*>(&class_information_)},
      // Not IObjectWithSite: script engines would hand over their site, and never take it back.
      {IID_IQuickActivate, &quick_activation_},
  };
  const auto* const found = std::ranges::find_if(parts, [&](const auto& part) { return part.id == id; });
  return found == std::end(parts) ? nullptr : found->part;
}

HRESULT HostedControl::set_extent(SIZEL extent) noexcept {
  if (!is_sensible(extent.cx) || !is_sensible(extent.cy)) return E_INVALIDARG;
  if (extent.cx == extent_.cx && extent.cy == extent_.cy) return S_OK;
  extent_ = extent;
  dirty_ = true;
  refresh();
  return S_OK;
}

SIZEL HostedControl::default_extent() noexcept { return {himetric(28), himetric(28)}; }

void HostedControl::draw(HDC dc, const RECT& bounds, SIZE size) const noexcept {
  draw_picture_box(dc, bounds, size, row_.toolbox_bitmap, site_.background());
}

void HostedControl::refresh() noexcept {
  const auto kept = alive();
  in_place_.redraw();
  view_.notify();
  data_object_.notify();
}

SIZE pixels_of(SIZEL himetric) noexcept { return {pixels(himetric.cx), pixels(himetric.cy)}; }

}  // namespace zorboffice
