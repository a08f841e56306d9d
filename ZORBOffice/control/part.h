// A part of an instance: some of its interfaces, which share the instance's identity and life.
#pragma once

#include <unknwn.h>

namespace zorboffice {

class HostedControl;

template <class... Interfaces>
class Part : public Interfaces... {
 public:
  Part(HostedControl& control, IUnknown& outer) : control_(control), outer_(outer) {}
  Part(const Part&) = delete;
  Part& operator=(const Part&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    return outer_.QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return outer_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return outer_.Release(); }

 protected:
  ~Part() = default;

  HostedControl& control_;

 private:
  IUnknown& outer_;
};

}  // namespace zorboffice
