// A thread's message filter, which turns calls away as an application does that shows a dialog.
#pragma once

#include <windows.h>
#include <objidl.h>

struct MessageFilter : IMessageFilter {
  MessageFilter() { CoRegisterMessageFilter(this, nullptr); }
  ~MessageFilter() { CoRegisterMessageFilter(nullptr, nullptr); }
  HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG WINAPI AddRef() override { return ++references; }
  ULONG WINAPI Release() override { return --references; }
  DWORD WINAPI HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO call) override {
    // Wine asks also about the counting of references.
    const bool turned_away = GetTickCount() < busy_until && call->iid == IID_IDispatch;
    return turned_away ? SERVERCALL_REJECTED : SERVERCALL_ISHANDLED;
  }
  DWORD WINAPI RetryRejectedCall(HTASK, DWORD, DWORD) override { return MAXDWORD; }
  DWORD WINAPI MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

  ULONG references = 1;
  DWORD busy_until = 0;
};
