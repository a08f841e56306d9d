#include "ZORBOffice/common/busy_server.h"

#include <objbase.h>
#include <objidl.h>

#include <algorithm>

#include "ZORBOffice/common/com_ptr.h"

namespace zorboffice {
namespace {

// In milliseconds.
constexpr DWORD longest_wait = 10'000;
constexpr DWORD first_pause = 10;
constexpr DWORD longest_pause = 500;

// The only way to look at a thread's message filter is to take it out. Threads without windows of their own
// have none.
bool host_has_message_filter() {
  ComPtr<IMessageFilter> filter;
  if (FAILED(CoRegisterMessageFilter(nullptr, filter.receive())) || !filter) return false;
  CoRegisterMessageFilter(filter.get(), nullptr);
  return true;
}

// Waits as COM itself waits for the answer of a call: windows are painted and incoming calls answered, for
// which the host is prepared in this place, but no key and no mouse button reaches it.
void let_pass(DWORD milliseconds) {
  HANDLE never = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  DWORD index = 0;
  if (CoWaitForMultipleHandles(0, milliseconds, 1, &never, &index) != RPC_S_CALLPENDING) Sleep(milliseconds);
  CloseHandle(never);
}

}  // namespace

bool Pauses::next() {
  if (host_has_message_filter()) return false;
  const DWORD now = GetTickCount();
  if (duration_ == 0) started_ = now;
  const DWORD passed = now - started_;
  if (passed >= longest_wait) return false;
  duration_ = duration_ == 0 ? first_pause : std::min(duration_ * 2, longest_pause);
  let_pass(std::min(duration_, longest_wait - passed));
  return true;
}

}  // namespace zorboffice
