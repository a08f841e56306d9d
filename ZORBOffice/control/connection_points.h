// Where a container can listen: the class's event interface, which has no event, and notices of changed
// properties, of which there are none either. Containers connect all the same, and count on it.
#pragma once

#include <windows.h>
#include <ocidl.h>

#include <vector>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/control/part.h"

namespace zorboffice {

// An object with an identity of its own that lives as long as the control.
class ConnectionPoint final : public IConnectionPoint {
 public:
  ConnectionPoint(HostedControl& control, IUnknown& outer, const IID& sink_id)
      : control_(control), outer_(outer), sink_id_(sink_id) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return outer_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return outer_.Release(); }

  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** owner) noexcept override;
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) noexcept override;

  const IID& sink_id() const { return sink_id_; }

 private:
  struct Connection {
    ComPtr<IUnknown> sink;
    DWORD cookie;
  };
  static CONNECTDATA counted(const Connection& connection);

  HostedControl& control_;
  IUnknown& outer_;
  const IID sink_id_;
  std::vector<Connection> connections_;
  DWORD last_cookie_ = 0;
};

class ConnectionPoints final : public Part<IConnectionPointContainer> {
 public:
  ConnectionPoints(HostedControl& control, IUnknown& outer, const IID& events_id)
      : Part(control, outer),
        events_(control, outer, events_id),
        properties_(control, outer, IID_IPropertyNotifySink) {}

  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept override;

  ConnectionPoint& events() { return events_; }
  ConnectionPoint& properties() { return properties_; }

 private:
  ConnectionPoint events_;
  ConnectionPoint properties_;
};

}  // namespace zorboffice
