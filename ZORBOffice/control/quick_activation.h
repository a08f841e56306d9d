// Containers that introduce themselves in one call.
#pragma once

#include <windows.h>
#include <ocidl.h>

#include "ZORBOffice/control/part.h"

namespace zorboffice {

class QuickActivation final : public Part<IQuickActivate> {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept override;
  HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL extent) noexcept override;
  HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL extent) noexcept override;
};

}  // namespace zorboffice
