// Notices when a client's process has ended, however it ended.
#pragma once

#include <windows.h>

#include <set>

#include "locked.h"
#include "peer.h"

class ClientWatch {
 public:
  // Both the peer and the watch last as long as the process: a client may end at any time.
  explicit ClientWatch(Peer& peer) : peer_(peer) {}
  ClientWatch(const ClientWatch&) = delete;
  ClientWatch& operator=(const ClientWatch&) = delete;

  // Finds out which process makes the call that runs on this thread, and from then on tells the peer when
  // that process is gone, so that no document stays open for a client that crashed or never released. Returns
  // the process identifier, or 0 where the platform does not tell.
  DWORD watch_caller();

 private:
  struct Client {
    ClientWatch& watch;
    DWORD id;
  };
  static void CALLBACK client_ended(void* client, BOOLEAN);

  Peer& peer_;
  Lock lock_;
  std::set<DWORD> watched_;
};
