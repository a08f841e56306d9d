#include "peer.h"

#include "call_error.h"
#include "values.h"

Peer& peer() {
  static Peer instance;
  return instance;
}

Peer::~Peer() {
  if (socket_ != INVALID_SOCKET) closesocket(socket_);
  if (reader_) CloseHandle(reader_);
  if (answered_) CloseHandle(answered_);
}

bool Peer::connect(unsigned short port) {
  WSADATA data;
  if (WSAStartup(MAKEWORD(2, 2), &data) != 0) return false;
  socket_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) return false;
  // Requests are small and each waits for its answer: collecting bytes would cost 40 ms a call.
  const BOOL at_once = TRUE;
  setsockopt(socket_, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&at_once), sizeof at_once);
  answered_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  reader_ = CreateThread(nullptr, 0, read_lines, this, 0, nullptr);
  return answered_ && reader_;
}

// Reads on a thread of its own, so that a peer that hangs up is noticed while no call is under way.
DWORD WINAPI Peer::read_lines(void* self) {
  Peer& peer = *static_cast<Peer*>(self);
  std::string line;
  char chunk[65536];
  for (int count; (count = recv(peer.socket_, chunk, sizeof chunk, 0)) > 0;) {
    line.append(chunk, count);
    if (line.back() != '\n') continue;  // One request is under way at most, so nothing follows its answer.
    peer.answer_.swap(line);
    line.clear();
    SetEvent(peer.answered_);
  }
  peer.gone_ = true;
  SetEvent(peer.answered_);
  return 0;
}

bool Peer::send_line(const std::string& line) {
  for (size_t sent = 0; sent < line.size();) {
    const int count = ::send(socket_, line.data() + sent, static_cast<int>(line.size() - sent), 0);
    if (count <= 0) return false;
    sent += count;
  }
  return true;
}

void Peer::send(const Json& request) {
  if (gone_ || !send_line(request.dump(-1, ' ', true, Json::error_handler_t::replace) + '\n')) {
    throw CallError{kPeerGone};
  }
}

void Peer::tell(const Json& request) {
  Locked turn(turn_);
  send(request);
}

Json Peer::ask(const Json& request) {
  std::string line;
  {
    Locked turn(turn_);
    send(request);
    WaitForSingleObject(answered_, INFINITE);
    if (gone_) {
      SetEvent(answered_);
      throw CallError{kPeerGone};
    }
    line.swap(answer_);
  }
  Json answer = Json::parse(line, nullptr, false);
  if (answer.is_discarded()) throw CallError{E_UNEXPECTED};
  if (!answer.contains("failure")) return answer.value("value", Json());
  const Json& failure = answer["failure"];
  CallError error{static_cast<HRESULT>(failure.value("code", static_cast<unsigned>(E_FAIL)))};
  error.has_text = failure.contains("text");
  error.text = wide(failure.value("text", std::string()));
  error.source = wide(failure.value("source", std::string()));
  throw error;
}

void Peer::wait_until_gone() { WaitForSingleObject(reader_, INFINITE); }
