#include "peer.h"

#include "call_error.h"
#include "text.h"

namespace {

constexpr LONGLONG kReleaseDelay = 50LL * 10'000;  // In units of 100 ns.

}  // namespace

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
  release_timer_ = CreateThreadpoolTimer(send_released, this, nullptr);
  reader_ = CreateThread(nullptr, 0, read_lines, this, 0, nullptr);
  return release_timer_ && reader_;
}

// Reads on a thread of its own, so that a peer that hangs up is noticed while no call is under way.
DWORD WINAPI Peer::read_lines(void* self) {
  Peer& peer = *static_cast<Peer*>(self);
  std::string line;
  char chunk[65536];
  for (int count; (count = recv(peer.socket_, chunk, sizeof chunk, 0)) > 0;) {
    line.append(chunk, count);
    if (line.back() != '\n') continue;  // One request is under way at most, so nothing follows its answer.
    {
      Locked locked(peer.lock_);
      peer.answer_.swap(line);
    }
    line.clear();
    peer.changed_.give();
  }
  {
    Locked locked(peer.lock_);
    peer.gone_ = true;
  }
  peer.changed_.give();
  return 0;
}

bool Peer::send_lines(const std::string& lines) {
  for (size_t sent = 0; sent < lines.size();) {
    const int count = send(socket_, lines.data() + sent, static_cast<int>(lines.size() - sent), 0);
    if (count <= 0) return false;
    sent += count;
  }
  return true;
}

void Peer::release(long object) {
  Locked locked(lock_);
  released_.push_back(object);
  // A walk releases an object at each step, and its next request is on its way already: a message of its own
  // would cost as much as that request.
  if (released_.size() > 1) return;
  ULARGE_INTEGER due;
  due.QuadPart = static_cast<ULONGLONG>(-kReleaseDelay);
  FILETIME time{due.LowPart, due.HighPart};
  SetThreadpoolTimer(release_timer_, &time, 0, 0);
}

// Returns the line that names the released objects, or nothing.
std::string Peer::take_released() {
  Locked locked(lock_);
  if (released_.empty()) return {};
  const Json request = {{"do", "release"}, {"objects", released_}};
  released_.clear();
  return request.dump() + '\n';
}

void CALLBACK Peer::send_released(PTP_CALLBACK_INSTANCE, void* self, PTP_TIMER) {
  Peer& peer = *static_cast<Peer*>(self);
  Locked turn(peer.turn_);
  // Nobody is left to hear of a failure, and a peer that is gone holds nothing.
  peer.send_lines(peer.take_released());
}

Json Peer::ask(const Json& request) {
  std::string line = request.dump(-1, ' ', true, Json::error_handler_t::replace) + '\n';
  {
    Locked turn(turn_);
    if (gone_ || !send_lines(take_released() + line)) throw CallError{kPeerGone};
    line.clear();
    Locked locked(lock_);
    while (answer_.empty() && !gone_) changed_.wait(locked);
    if (answer_.empty()) throw CallError{kPeerGone};
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
