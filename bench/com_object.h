// Identity and life of the office's objects.
#pragma once

#include <unknwn.h>

namespace bench {

// Of one interface and IUnknown; made with one reference.
template <class Interface>
class ComObject : public Interface {
 public:
  virtual ~ComObject() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = id == IID_IUnknown || id == __uuidof(Interface);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return InterlockedIncrement(&references_); }
  ULONG STDMETHODCALLTYPE Release() override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return left;
  }

 private:
  LONG references_ = 1;
};

}  // namespace bench
