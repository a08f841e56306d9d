// A COM enumerator over a copy of some values.
#pragma once

#include <windows.h>
#include <unknwn.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <new>
#include <utility>
#include <vector>

#include "ZORBOffice/module.h"

namespace zorboffice {

// Holds values as Held, which keeps alive what they refer to, and gives each caller one of its own.
template <class Interface, class Held, class Given>
class CopyEnumerator final : public Interface {
 public:
  using Give = Given (*)(const Held&);

  CopyEnumerator(const IID& id, const std::vector<Held>& values, Give give)
      : id_(id), values_(values), give_(give) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    const bool known = id == IID_IUnknown || id == id_;
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

  HRESULT STDMETHODCALLTYPE Next(ULONG count, Given* values, ULONG* fetched) noexcept override {
    if (!values || (!fetched && count != 1)) return E_POINTER;
    ULONG given = 0;
    for (; given < count && next_ < values_.size(); ++given) values[given] = give_(values_[next_++]);
    if (fetched) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }

  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    const std::size_t skipped = std::min<std::size_t>(count, values_.size() - next_);
    next_ += skipped;
    return skipped == count ? S_OK : S_FALSE;
  }

  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    next_ = 0;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE Clone(Interface** clone) noexcept override {
    if (!clone) return E_POINTER;
    *clone = nullptr;
    try {
      auto* made = new CopyEnumerator(id_, values_, give_);
      made->next_ = next_;
      *clone = made;
      return S_OK;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }

 private:
  ~CopyEnumerator() = default;

  const IID& id_;
  const std::vector<Held> values_;
  const Give give_;
  std::size_t next_ = 0;
  std::atomic<ULONG> references_ = 1;
  ModuleReference module_reference_;
};

// Makes an enumerator of the interface with the identifier id. Throws std::bad_alloc.
template <class Interface, class Held, class Given>
Interface* make_enumerator(const IID& id, const std::vector<Held>& values, Given (*give)(const Held&)) {
  return new CopyEnumerator<Interface, Held, Given>(id, values, give);
}

}  // namespace zorboffice
