// The one kind of object that clients see: a dispatch interface in front of an object of the peer.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <optional>
#include <string>

#include "names.h"
#include "peer.h"
#include "values.h"

// Makes all objects of the process, and keeps what they share. It outlives them, and the peer outlives it.
class RemoteObjects final : public Objects {
 public:
  explicit RemoteObjects(Peer& peer) : peer(peer), names(peer) {}

  IDispatch* make(long id, std::string class_name) override;
  std::optional<long> id_of(IUnknown& object) override;

  Peer& peer;
  Names names;
};

class RemoteObject final : public IDispatch {
 public:
  // Asked of a client's argument, this identifier tells the bridge's own objects from all others.
  static const IID kIid;

  // Takes over the peer's object `id` with one reference held; the peer lets go of it when the last is gone.
  // The class name tells which objects share their members.
  RemoteObject(RemoteObjects& all, long id, std::string class_name)
      : all_(all), id_(id), class_name_(std::move(class_name)) {}

  long id() const { return id_; }

  STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return InterlockedIncrement(&references_); }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
  // Fails with DISP_E_UNKNOWNNAME for a member, or the name of a parameter, that the object does not have.
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* texts, UINT count, LCID, DISPID* ids) override;
  // Calls, reads or writes a member; either flag does for either kind of member. A failure of the office
  // program is DISP_E_EXCEPTION with its number and text.
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* failure, UINT* bad_argument) override;

 private:
  ~RemoteObject();
  VARIANT invoke(DISPID member, WORD flags, const DISPPARAMS& parameters, UINT* bad_argument);
  VARIANT enumerate() const;

  LONG references_ = 1;
  RemoteObjects& all_;
  const long id_;
  const std::string class_name_;
};

// The items of a collection, held from the moment the enumeration began.
class Enumeration final : public IEnumVARIANT {
 public:
  // Takes over an array of variants.
  explicit Enumeration(VARIANT items, ULONG next = 0) : items_(items), next_(next) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return InterlockedIncrement(&references_); }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP Next(ULONG count, VARIANT* items, ULONG* fetched) override;
  STDMETHODIMP Skip(ULONG count) override;
  STDMETHODIMP Reset() override;
  STDMETHODIMP Clone(IEnumVARIANT** copy) override;

 private:
  ~Enumeration() { VariantClear(&items_); }
  ULONG left() const { return items_.parray->rgsabound[0].cElements - next_; }

  LONG references_ = 1;
  VARIANT items_;
  ULONG next_;
};
