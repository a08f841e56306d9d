#include "ZORBOffice/control/site.h"

#include <olectl.h>

#include "ZORBOffice/common/variant.h"

namespace zorboffice {
namespace {

// Returns false where the container does not share the property, or as something else.
bool read(IDispatch& container, DISPID property, VARTYPE type, Variant& value) {
  DISPPARAMS none = {};
  Variant shared;
  return SUCCEEDED(container.Invoke(property, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                    shared.receive(), nullptr, nullptr)) &&
         SUCCEEDED(VariantChangeType(value.receive(), &shared.get(), 0, type));
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
  Variant user_mode;
  if (read(*container.get(), DISPID_AMBIENT_USERMODE, VT_BOOL, user_mode)) {
    user_mode_ = V_BOOL(&user_mode.get()) != VARIANT_FALSE;
  }
  Variant background;
  if (read(*container.get(), DISPID_AMBIENT_BACKCOLOR, VT_I4, background)) {
    background_ = static_cast<OLE_COLOR>(V_I4(&background.get()));
  }
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
