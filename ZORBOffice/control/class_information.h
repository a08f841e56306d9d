// What a container can learn about the class: its type information, its property pages (none), its errors.
#pragma once

#include <windows.h>
#include <ocidl.h>

#include "ZORBOffice/control/part.h"

namespace zorboffice {

class ClassInformation final : public Part<IProvideClassInfo2, ISpecifyPropertyPages, ISupportErrorInfo> {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** information) noexcept override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) noexcept override;
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) noexcept override;
};

}  // namespace zorboffice
