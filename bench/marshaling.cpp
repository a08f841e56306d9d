#include "bench/marshaling.h"

#include <windows.h>
#include <objbase.h>

#include <stdexcept>

#include "ZORBOffice/common/com_ptr.h"

namespace bench {
namespace {

// The platform's own interface by which a client lets go of an object; no header has its identifier.
constexpr IID remote_unknown_id = {0x131, 0, 0, {0xc0, 0, 0, 0, 0, 0, 0, 0x46}};

HRESULT offer(const IID& interface_id) {
  CLSID id{};
  zorboffice::ComPtr<IPSFactoryBuffer> factory;
  DWORD cookie = 0;
  HRESULT status = CoGetPSClsid(interface_id, &id);
  if (SUCCEEDED(status)) status = CoRegisterPSClsid(interface_id, id);
  if (SUCCEEDED(status)) {
    status =
        CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, IID_IPSFactoryBuffer, factory.receive_void());
  }
  if (FAILED(status)) return status;
  return CoRegisterClassObject(id, factory.get(), CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER,
                               REGCLS_MULTIPLEUSE, &cookie);
}

}  // namespace

void keep_proxies_and_stubs_at_hand() {
  for (const IID* id : {&IID_IDispatch, &remote_unknown_id}) {
    if (FAILED(offer(*id))) throw std::runtime_error("the class of proxies and stubs cannot be offered");
  }
}

}  // namespace bench
