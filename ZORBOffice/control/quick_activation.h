// Containers that introduce themselves in one call, and objects that pose as a site without being a
// container.
#pragma once

#include <windows.h>
#include <ocidl.h>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/control/part.h"

namespace zorboffice {

class QuickActivation final : public Part<IQuickActivate, IObjectWithSite> {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept override;
  HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL extent) noexcept override;
  HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL extent) noexcept override;

  HRESULT STDMETHODCALLTYPE SetSite(IUnknown* site) noexcept override;
  HRESULT STDMETHODCALLTYPE GetSite(REFIID id, void** site) noexcept override;

 private:
  ComPtr<IUnknown> site_;
};

}  // namespace zorboffice
