#include "ZORBOffice/control/quick_activation.h"

#include "ZORBOffice/control/hosted_control.h"
#include "ZORBOffice/surface/registration_values.h"

namespace zorboffice {

HRESULT QuickActivation::QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept {
  if (!container || !control) return E_POINTER;
  const auto kept = control_.alive();
  *control = {sizeof *control, misc_status, View::status, 0, 0, 0};
  control_.ole_object().SetClientSite(container->pClientSite);
  // What the site itself answers goes before the record, which not every container fills.
  control_.site().set_ambient_properties((container->dwAmbientFlags & QACONTAINER_USERMODE) != 0,
                                         container->colorBack);
  control_.site().read_ambient_properties();
  // Only what the oldest containers hand over is looked at: their record is shorter. A sink that cannot be
  // connected has the cookie 0; the control is activated all the same.
  ConnectionPoints& points = control_.connection_points();
  if (container->pAdviseSink) control_.view().SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
  if (container->pUnkEventSink) points.events().Advise(container->pUnkEventSink, &control->dwEventCookie);
  if (container->pPropertyNotifySink) {
    points.properties().Advise(container->pPropertyNotifySink, &control->dwPropNotifyCookie);
  }
  return S_OK;
}

HRESULT QuickActivation::SetContentExtent(LPSIZEL extent) noexcept {
  return extent ? control_.set_extent(*extent) : E_POINTER;
}

HRESULT QuickActivation::GetContentExtent(LPSIZEL extent) noexcept {
  if (!extent) return E_POINTER;
  *extent = control_.extent();
  return S_OK;
}

}  // namespace zorboffice
