#include "client_watch.h"

#include <rpc.h>

#include <cstdint>
#include <set>

#include "call_error.h"
#include "locked.h"
#include "peer.h"

namespace {

Lock lock;
std::set<DWORD> watched;

void CALLBACK client_ended(void* process_id, BOOLEAN) {
  const DWORD id = static_cast<DWORD>(reinterpret_cast<uintptr_t>(process_id));
  {
    Locked locked(lock);
    watched.erase(id);
  }
  try {
    peer().ask({{"do", "client_ended"}, {"client", id}});
  } catch (const CallError&) {
    // A peer that is gone has let go of everything already.
  }
}

}  // namespace

DWORD watch_calling_client() {
  using InquireClient = RPC_STATUS(WINAPI*)(RPC_BINDING_HANDLE, unsigned long*);
  static const auto inquire = reinterpret_cast<InquireClient>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"rpcrt4.dll"), "I_RpcBindingInqLocalClientPID")));
  unsigned long id = 0;
  if (!inquire || inquire(nullptr, &id) != RPC_S_OK) return 0;
  Locked locked(lock);
  if (!watched.insert(id).second) return id;
  const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
  HANDLE wait =
      nullptr;  // Both handles are kept: one of each for a client is little, and closing races the call.
  if (!process || !RegisterWaitForSingleObject(&wait, process, client_ended, reinterpret_cast<void*>(id),
                                               INFINITE, WT_EXECUTEONLYONCE | WT_EXECUTELONGFUNCTION)) {
    if (process) CloseHandle(process);
    watched.erase(id);
    return 0;
  }
  return id;
}
