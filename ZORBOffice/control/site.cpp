#include "ZORBOffice/control/site.h"

#include <olectl.h>

#include <utility>

#include "ZORBOffice/common/variant.h"

namespace zorboffice {
namespace {

// Empty where the container does not share the property.
Variant ambient_property(IDispatch& container, DISPID property) {
  DISPPARAMS none = {};
  Variant value;
  const HRESULT status = container.Invoke(property, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                          &none, value.receive(), nullptr, nullptr);
  return FAILED(status) ? Variant() : std::move(value);
}

}  // namespace

void Site::set_defaults() noexcept {
  user_mode_ = true;
  background_ = 0x80000000 | COLOR_BTNFACE;
}

void Site::set(IOleClientSite* site) noexcept {
  client_ = ComPtr<IOleClientSite>(site);
  set_defaults();
}

void Site::read_ambient_properties() noexcept {
  const auto container = as<IDispatch>(IID_IDispatch);
  if (!container) return;
  Variant user_mode = ambient_property(*container.get(), DISPID_AMBIENT_USERMODE);
  if (user_mode.type() != VT_EMPTY &&
      SUCCEEDED(VariantChangeType(&user_mode.get(), &user_mode.get(), 0, VT_BOOL))) {
    user_mode_ = V_BOOL(&user_mode.get()) != VARIANT_FALSE;
  }
  // A colour has 32 bits; whether the highest is a sign, containers see differently.
  const Variant background = ambient_property(*container.get(), DISPID_AMBIENT_BACKCOLOR);
  if (background.type() == VT_I4 || background.type() == VT_UI4) background_ = V_UI4(&background.get());
}

void Site::set_ambient_properties(bool user_mode, OLE_COLOR background) noexcept {
  user_mode_ = user_mode;
  background_ = background;
}

COLORREF Site::background() const noexcept {
  COLORREF color;
  return SUCCEEDED(OleTranslateColor(background_, nullptr, &color)) ? color : GetSysColor(COLOR_BTNFACE);
}

}  // namespace zorboffice
