// A container that counts every reference it hands out, writes down every call, and fails or interrupts the
// one it is told to.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <ocidl.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

class StrictContainer {
 public:
  StrictContainer();
  StrictContainer(const StrictContainer&) = delete;
  ~StrictContainer();

  IOleClientSite* site() const;
  IUnknown* sink() const;  // IAdviseSink, IPropertyNotifySink, and IDispatch for events
  // Drops the references on the active object, as a container does that goes away.
  void forget_active_object();
  HWND form() const { return form_; }

  // References that others hold on the container's objects.
  int held() const { return held_; }
  // The calls since the last time, by name.
  std::string log() { return std::exchange(log_, {}); }

  bool user_mode = true;
  OLE_COLOR background = 0x80000000 | COLOR_BTNFACE;
  RECT position = {10, 10, 38, 38};
  int calls = 0;
  int special_call = 0;                // this call, counted from 1,
  HRESULT failure = S_OK;              // fails with this, if it is a failure,
  std::function<void()> interruption;  // and does this first

 private:
  struct Site;
  struct Sink;
  struct Frame;
  HRESULT step(const char* name);

  HWND form_;
  int held_ = 0;
  std::string log_;
  std::unique_ptr<Site> site_;
  std::unique_ptr<Sink> sink_;
  std::unique_ptr<Frame> frame_, document_;
};
