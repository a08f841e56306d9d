// The class objects, which create what clients ask for.
#pragma once

#include <windows.h>

#include "client_watch.h"
#include "peer.h"
#include "remote_object.h"
#include "served_classes.h"

class ClassFactory final : public IClassFactory {
 public:
  // All that is handed in outlives the class object.
  ClassFactory(const ServedClass& served, Peer& peer, ClientWatch& clients, RemoteObjects& objects)
      : served_(served), peer_(peer), clients_(clients), objects_(objects) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
  // Class objects live as long as the process.
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  // Every creation is a session of its own; fails with the peer's HRESULT.
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** result) override;
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }

 private:
  const ServedClass& served_;
  Peer& peer_;
  ClientWatch& clients_;
  RemoteObjects& objects_;
};
