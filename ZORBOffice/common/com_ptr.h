// A counted reference to a COM object.
#pragma once

#include <unknwn.h>

#include <utility>

namespace zorboffice {

template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;

  // Adds a reference.
  explicit ComPtr(Interface* object) : object_(object) {
    if (object_) object_->AddRef();
  }

  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~ComPtr() {
    if (object_) object_->Release();
  }

  // The earlier object is released last: its release may call back, and must then find the new state.
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  // For functions that store a counted reference. Must be empty, or that reference leaks.
  Interface** receive() { return &object_; }
  void** receive_void() { return reinterpret_cast<void**>(&object_); }

 private:
  Interface* object_ = nullptr;
};

}  // namespace zorboffice
