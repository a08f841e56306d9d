#include "ZORBOffice/class_factory.h"

#include <atomic>
#include <new>

#include "ZORBOffice/module.h"

namespace zorboffice {
namespace {

class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(const ClassRow& row) : row_(row) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *object = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }

  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    // Only the outer object is to hold the identity, and through it the rest.
    if (outer && id != IID_IUnknown) return CLASS_E_NOAGGREGATION;
    try {
      IUnknown* instance = row_.create(row_, outer);
      const HRESULT status = instance->QueryInterface(id, object);
      instance->Release();
      return status;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }

  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
    lock_module(lock);
    return S_OK;
  }

 private:
  const ClassRow& row_;
  std::atomic<ULONG> references_ = 1;
  ModuleReference module_reference_;
};

}  // namespace

HRESULT get_class_factory(const ClassRow& row, REFIID id, void** factory) noexcept {
  auto* created = new (std::nothrow) ClassFactory(row);
  if (!created) return E_OUTOFMEMORY;
  const HRESULT status = created->QueryInterface(id, factory);
  created->Release();
  return status;
}

}  // namespace zorboffice
