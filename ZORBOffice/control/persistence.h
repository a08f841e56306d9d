// Saving and loading: the extent, and nothing else, in a stream, a storage or a property bag.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <ocidl.h>

#include "ZORBOffice/control/part.h"

namespace zorboffice {

// What cannot be loaded leaves the control as it was, and usable.
class Persistence final : public Part<IPersistStreamInit, IPersistStorage, IPersistPropertyBag> {
 public:
  using Part::Part;

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE IsDirty() noexcept override;
  HRESULT STDMETHODCALLTYPE InitNew() noexcept override;

  // IPersistStreamInit. A truncated stream gives STG_E_READFAULT, a damaged one STG_E_DOCFILECORRUPT.
  HRESULT STDMETHODCALLTYPE Load(IStream* stream) noexcept override;
  HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clear_dirty) noexcept override;
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) noexcept override;

  // IPersistStorage: the same stream, named "Contents".
  HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) noexcept override;
  HRESULT STDMETHODCALLTYPE Load(IStorage* storage) noexcept override;
  HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL same_as_load) noexcept override;
  HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) noexcept override;
  HRESULT STDMETHODCALLTYPE HandsOffStorage() noexcept override { return S_OK; }

  // IPersistPropertyBag: the properties "_ExtentX" and "_ExtentY". An empty bag means the default extent.
  HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) noexcept override;
  HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clear_dirty, BOOL all) noexcept override;

 private:
  HRESULT take(SIZEL extent) noexcept;

  bool saved_in_place_ = false;  // into the storage that it was loaded from, as yet uncompleted
};

}  // namespace zorboffice
