#include "ZORBOffice/word/word_global.h"

#include <atomic>

#include "ZORBOffice/common/failure.h"

namespace zorboffice {
namespace {

// The coclass Global of the word processor's type library.
constexpr CLSID global_class_id = {0x000209f0, 0, 0, {0xc0, 0, 0, 0, 0, 0, 0, 0x46}};

// Where the object stands in the system's table of interfaces, which all apartments of the process share; 0
// is nowhere. A pointer would be good in one apartment only.
//
// Nothing here is destroyed with the library: while the system unloads it, a call into another process may
// never return. The entry goes when the library says that it may be unloaded. A host that frees the library
// without asking leaves the entry behind, which keeps the word processor running but leads to no code of this
// library.
//
// There is no lock: a thread that waits in a call may run another member, which would wait for its own
// thread.
std::atomic<DWORD> cookie = 0;

using InterfaceTable = ComPtr<IGlobalInterfaceTable>;

HRESULT open_interface_table(InterfaceTable& table) {
  return CoCreateInstance(CLSID_StdGlobalInterfaceTable, nullptr, CLSCTX_INPROC_SERVER,
                          IID_IGlobalInterfaceTable, table.receive_void());
}

// Asks something that costs nothing. A busy word processor refuses to answer, and is alive.
bool is_alive(IDispatch* object) {
  UINT count = 0;
  const HRESULT status = object->GetTypeInfoCount(&count);
  return SUCCEEDED(status) || status == RPC_E_CALL_REJECTED || status == RPC_E_SERVERCALL_RETRYLATER;
}

}  // namespace

AutomationObject word_global() {
  InterfaceTable table;
  check(open_interface_table(table));
  DWORD earlier = cookie;
  ComPtr<IDispatch> kept;
  if (earlier && SUCCEEDED(table->GetInterfaceFromGlobal(earlier, IID_IDispatch, kept.receive_void())) &&
      is_alive(kept.get())) {
    return AutomationObject(kept.get());
  }

  AutomationObject created = AutomationObject::create(global_class_id);
  DWORD own = 0;
  check(table->RegisterInterfaceInGlobal(created.dispatch(), IID_IDispatch, &own));
  // When another thread was faster its object stays, and this one serves this call only.
  const DWORD revoked = cookie.compare_exchange_strong(earlier, own) ? earlier : own;
  if (revoked) table->RevokeInterfaceFromGlobal(revoked);
  return created;
}

void release_word_global() noexcept {
  InterfaceTable table;
  if (!cookie || FAILED(open_interface_table(table))) return;
  if (const DWORD released = cookie.exchange(0)) table->RevokeInterfaceFromGlobal(released);
}

}  // namespace zorboffice
