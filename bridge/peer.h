// The line to the process that holds LibreOffice's objects: one JSON line out, and one back where an answer
// is asked for.
#pragma once

#include <winsock2.h>
#include <windows.h>

#include <atomic>
#include <string>
#include <vector>

#include "json.h"
#include "locked.h"

// It lasts as long as the process: its threads never end.
class Peer {
 public:
  Peer() = default;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  // Connects to the peer on the loopback address; false when nobody listens at the port.
  bool connect(unsigned short port);
  // Sends one request and returns the "value" of its answer; callers of several threads take turns.
  // Throws CallError with the peer's failure, or with kPeerGone when the peer has hung up.
  Json ask(const Json& request);
  // Tells the peer that nobody holds the object any more: with the next request, or after a short while.
  void release(long object);
  // Returns when the peer has hung up.
  void wait_until_gone();

 private:
  static DWORD WINAPI read_lines(void* self);
  bool send_lines(const std::string& lines);
  static void CALLBACK send_released(PTP_CALLBACK_INSTANCE, void* self, PTP_TIMER);
  std::string take_released();

  SOCKET socket_ = INVALID_SOCKET;
  HANDLE reader_ = nullptr;
  Lock turn_;  // Held from a request to its answer.
  PTP_TIMER release_timer_ = nullptr;
  Lock lock_;  // Held for the fields below.
  Signal changed_;
  std::string answer_;
  std::vector<long> released_;
  std::atomic<bool> gone_ = false;
};
