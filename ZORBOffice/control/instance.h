// The identity and the life of an instance, which may be part of another object (aggregation).
#pragma once

#include <windows.h>
#include <unknwn.h>

#include <atomic>

#include "ZORBOffice/control/hosted_control.h"
#include "ZORBOffice/module.h"

namespace zorboffice {

class Instance {
 public:
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  // The instance's own identity: the one reference that its creator gets.
  IUnknown* identity() { return &identity_; }

 protected:
  // outer: the object that the instance becomes a part of, or null.
  Instance(const ClassRow& row, IUnknown* outer)
      : identity_(*this), outer_(outer ? *outer : identity_), hosted_(row, outer_) {}
  virtual ~Instance() = default;

  // The object's interface pointer for automation.
  virtual IDispatch* automation() noexcept = 0;

  // Who counts and who answers for every interface.
  IUnknown& outer() { return outer_; }

 private:
  class Identity final : public IUnknown {
   public:
    explicit Identity(Instance& instance) : instance_(instance) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override;

   private:
    Instance& instance_;
    std::atomic<ULONG> references_ = 1;
  };

  ModuleReference module_reference_;
  Identity identity_;
  IUnknown& outer_;
  HostedControl hosted_;
};

}  // namespace zorboffice
