// An office object, a collection, an argument with a default property, a sink, and what is saved to and
// loaded from: everything that answers, as it likes.
#pragma once

#include <algorithm>
#include <cstring>

#include "life.h"

// The first methods of IStorage, all of them that the control calls. Of IStream they are ISequentialStream's.
struct StorageHead : IUnknown {
  virtual HRESULT WINAPI CreateStream(LPCOLESTR, DWORD, DWORD, DWORD, IUnknown**) = 0;
  virtual HRESULT WINAPI OpenStream(LPCOLESTR, void*, DWORD, DWORD, IUnknown**) = 0;
};

class Thing final : public Counted<IDispatch, IEnumVARIANT, ISequentialStream, IPropertyBag>,
                    public StorageHead {
 public:
  explicit Thing(Life& life) : Counted(references_), life_(life), chance_(life.chance) { ++Life::objects; }

  HRESULT WINAPI QueryInterface(REFIID id, void** object) override {
    if (chance_.one_in(2)) life_.happen();
    if (id != IID_IUnknown && chance_.one_in(50)) return *object = nullptr, E_NOINTERFACE;
    return Counted::QueryInterface(id, object);
  }
  ULONG WINAPI AddRef() override { return ++references_; }
  ULONG WINAPI Release() override {
    const ULONG left = --references_;
    if (left > 0) return left;
    references_ = 1;
    if (chance_.one_in(20)) life_.happen();
    delete this;
    return 0;
  }
  HRESULT WINAPI GetTypeInfoCount(UINT* count) override { return *count = chance_.below(2), life_.happen(); }
  HRESULT WINAPI GetTypeInfo(UINT, LCID, ITypeInfo** information) override {
    *information = nullptr;
    const HRESULT status = life_.happen();
    if (FAILED(status) || !life_.control || chance_.one_in(2)) return FAILED(status) ? status : E_NOTIMPL;
    return life_.raw<IDispatch>()->GetTypeInfo(0, 0, information);  // another object's
  }
  HRESULT WINAPI GetIDsOfNames(REFIID, LPOLESTR*, UINT count, LCID, DISPID* ids) override {
    for (UINT i = 0; i < count; ++i) ids[i] = static_cast<DISPID>(chance_.below(200));
    return life_.happen();
  }
  HRESULT WINAPI Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result, EXCEPINFO* info,
                        UINT*) override {
    if (const HRESULT status = life_.happen(info); FAILED(status)) return status;
    for (UINT i = 0; i < given->cArgs; ++i)
      if (chance_.one_in(4)) write(given->rgvarg[i]);
    if (result) *result = id == DISPID_NEWENUM || chance_.one_in(2) ? object() : life_.value();
    return S_OK;
  }
  HRESULT WINAPI Next(ULONG, VARIANT* values, ULONG* fetched) override {
    const HRESULT status = chance_.one_in(4) ? S_FALSE : life_.happen();
    if (status == S_OK) *values = life_.value();
    if (fetched) *fetched = status == S_OK;
    return status;
  }
  HRESULT WINAPI Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT WINAPI Reset() override { return E_NOTIMPL; }
  HRESULT WINAPI Clone(IEnumVARIANT**) override { return E_NOTIMPL; }

  // Of a record that may be damaged; more is said to be read than was asked for, or less.
  HRESULT WINAPI Read(void* bytes, ULONG size, ULONG* read) override {
    const LONG record[] = {0x3142525A, chance_.number(), chance_.number()};
    *read = static_cast<ULONG>(chance_.one_in(3) ? chance_.below(size + 1) : size);
    if (size <= sizeof record) std::memcpy(bytes, &record[3] - size / 4, std::min<size_t>(*read, size));
    if (chance_.one_in(40)) *read = size + 1;
    return life_.happen();
  }
  HRESULT WINAPI Write(const void*, ULONG size, ULONG* written) override {
    *written = static_cast<ULONG>(chance_.one_in(8) ? chance_.below(size) : size);
    return life_.happen();
  }
  HRESULT WINAPI CreateStream(LPCOLESTR, DWORD, DWORD, DWORD, IUnknown** stream) override {
    const HRESULT status = life_.happen();
    *stream = FAILED(status) || chance_.one_in(10) ? nullptr : static_cast<ISequentialStream*>(this);
    if (*stream) AddRef();
    return status;
  }
  HRESULT WINAPI OpenStream(LPCOLESTR name, void*, DWORD, DWORD, IUnknown** stream) override {
    return CreateStream(name, 0, 0, 0, stream);
  }
  HRESULT WINAPI Read(LPCOLESTR, VARIANT* value, IErrorLog*) override {
    const HRESULT status = chance_.one_in(6) ? E_INVALIDARG : life_.happen();
    if (SUCCEEDED(status)) *value = life_.value();
    return status;
  }
  HRESULT WINAPI Write(LPCOLESTR, VARIANT*) override { return life_.happen(); }

 private:
  ~Thing() { --Life::objects; }
  VARIANT object() {
    VARIANT made = {};
    V_VT(&made) = VT_DISPATCH;
    V_DISPATCH(&made) = new Thing(life_);
    return made;
  }
  // Into an argument that is passed by reference, a value of its type.
  void write(VARIANT& argument) {
    const VARTYPE type = V_VT(&argument) & ~VT_BYREF;
    if (type == V_VT(&argument) || !(type == VT_BSTR || type == VT_I2 || type == VT_I4 || type == VT_BOOL))
      return;
    const VARIANT value = life_.value_of(type);
    if (type == VT_BSTR) SysFreeString(*V_BSTRREF(&argument));
    std::memcpy(V_BYREF(&argument), &V_UI1(&value), type == VT_BSTR ? sizeof(BSTR) : type == VT_I4 ? 4 : 2);
  }

  Life& life_;
  Chance& chance_;
  int references_ = 1;
};
