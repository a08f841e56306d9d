#include "ZORBOffice/surface/type_information.h"

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/module.h"

namespace zorboffice {

HRESULT load_type_information(REFGUID id, ITypeInfo** information) noexcept {
  try {
    ComPtr<ITypeLib> library;
    const HRESULT loaded = LoadTypeLibEx(module_path().c_str(), REGKIND_NONE, library.receive());
    return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(id, information);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace zorboffice
