// The line to the process that holds LibreOffice's objects: one JSON line out, and one back where an answer
// is asked for.
#pragma once

#include <winsock2.h>
#include <windows.h>

#include <atomic>
#include <nlohmann/json.hpp>
#include <string>

#include "locked.h"

using Json = nlohmann::json;

class Peer {
 public:
  Peer() = default;
  ~Peer();
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  // Connects to the peer on the loopback address; false when nobody listens at the port.
  bool connect(unsigned short port);
  // Sends one request and returns the "value" of its answer; callers of several threads take turns.
  // Throws CallError with the peer's failure, or with kPeerGone when the peer has hung up.
  Json ask(const Json& request);
  // Sends one request that has no answer, in its turn. Throws CallError with kPeerGone when the peer has hung
  // up.
  void tell(const Json& request);
  // Returns when the peer has hung up.
  void wait_until_gone();

 private:
  static DWORD WINAPI read_lines(void* self);
  bool send_line(const std::string& line);
  void send(const Json& request);

  SOCKET socket_ = INVALID_SOCKET;
  HANDLE reader_ = nullptr;
  HANDLE answered_ = nullptr;
  Lock turn_;
  std::string answer_;
  std::atomic<bool> gone_ = false;
};

// The process's only peer.
Peer& peer();
