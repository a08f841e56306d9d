// The container as the control knows it: its client site, and the ambient properties that it shares.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <ocidl.h>

#include "ZORBOffice/common/com_ptr.h"

namespace zorboffice {

class Site {
 public:
  // Takes a client site, or null for none; the ambient properties are the defaults until they are read.
  void set(IOleClientSite* site) noexcept;

  // The client site; empty where there is none.
  const ComPtr<IOleClientSite>& client() const { return client_; }

  // Another interface of the client site; empty where there is no site, or it has no such interface.
  template <class Interface>
  ComPtr<Interface> as(REFIID id) const {
    ComPtr<Interface> found;
    // A copy: the site may take itself back during the call.
    const ComPtr<IOleClientSite> client = client_;
    if (client && FAILED(client->QueryInterface(id, found.receive_void()))) return {};
    return found;
  }

  // Reads the ambient properties that show: the others (foreground colour, font) have nothing to apply to in
  // a picture. One that the container does not share keeps its value.
  void read_ambient_properties() noexcept;

  // Sets what a container hands over at once instead of being asked.
  void set_ambient_properties(bool user_mode, OLE_COLOR background) noexcept;

  bool user_mode() const { return user_mode_; }
  COLORREF background() const noexcept;

 private:
  void set_defaults() noexcept;

  ComPtr<IOleClientSite> client_;
  bool user_mode_ = true;
  OLE_COLOR background_ = 0x80000000 | COLOR_BTNFACE;
};

}  // namespace zorboffice
