#include "client_watch.h"

#include <rpc.h>

#include <memory>

#include "call_error.h"

void CALLBACK ClientWatch::client_ended(void* client, BOOLEAN) {
  const std::unique_ptr<Client> ended(static_cast<Client*>(client));
  ClientWatch& watch = ended->watch;
  {
    Locked locked(watch.lock_);
    watch.watched_.erase(ended->id);
  }
  try {
    watch.peer_.ask({{"do", "client_ended"}, {"client", ended->id}});
  } catch (const CallError&) {
    // A peer that is gone has let go of everything already.
  }
}

DWORD ClientWatch::watch_caller() {
  using InquireClient = RPC_STATUS(WINAPI*)(RPC_BINDING_HANDLE, unsigned long*);
  static const auto inquire = reinterpret_cast<InquireClient>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"rpcrt4.dll"), "I_RpcBindingInqLocalClientPID")));
  unsigned long id = 0;
  if (!inquire || inquire(nullptr, &id) != RPC_S_OK) return 0;
  Locked locked(lock_);
  if (!watched_.insert(id).second) return id;
  auto client = std::make_unique<Client>(Client{*this, id});
  const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
  // Both handles are kept: one of each for a client is little, and closing races the call.
  HANDLE wait = nullptr;
  if (!process || !RegisterWaitForSingleObject(&wait, process, client_ended, client.get(), INFINITE,
                                               WT_EXECUTEONLYONCE | WT_EXECUTELONGFUNCTION)) {
    if (process) CloseHandle(process);
    watched_.erase(id);
    return 0;
  }
  client.release();  // client_ended's from here on.
  return id;
}
