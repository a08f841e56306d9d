#include "ZORBOffice/control/connection_points.h"

#include <olectl.h>

#include <algorithm>
#include <utility>

#include "ZORBOffice/control/enumerator.h"
#include "ZORBOffice/control/hosted_control.h"

namespace zorboffice {
namespace {

IConnectionPoint* counted(const ComPtr<IConnectionPoint>& point) {
  point->AddRef();
  return point.get();
}

}  // namespace

CONNECTDATA ConnectionPoint::counted(const Connection& connection) {
  connection.sink->AddRef();
  return {connection.sink.get(), connection.cookie};
}

HRESULT ConnectionPoint::QueryInterface(REFIID id, void** object) noexcept {
  if (!object) return E_POINTER;
  const bool known = id == IID_IUnknown || id == IID_IConnectionPoint;
  *object = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* id) noexcept {
  if (!id) return E_POINTER;
  *id = sink_id_;
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** owner) noexcept {
  if (!owner) return E_POINTER;
  *owner = &control_.connection_points();
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) noexcept {
  if (!sink || !cookie) return E_POINTER;
  *cookie = 0;
  const auto kept = control_.alive();
  ComPtr<IUnknown> taken;
  HRESULT status = sink->QueryInterface(sink_id_, taken.receive_void());
  // Script hosts' sinks know no other interface than dispatch.
  if (FAILED(status) && sink_id_ != IID_IPropertyNotifySink) {
    status = sink->QueryInterface(IID_IDispatch, taken.receive_void());
  }
  if (FAILED(status) || !taken) return CONNECT_E_CANNOTCONNECT;
  try {
    connections_.push_back({std::move(taken), ++last_cookie_});
    *cookie = last_cookie_;
    return S_OK;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) noexcept {
  const auto kept = control_.alive();
  const auto found = std::ranges::find(connections_, cookie, &Connection::cookie);
  if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
  // Released when the list is whole again: the sink may call back.
  const Connection ended = std::move(*found);
  connections_.erase(found);
  return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) noexcept {
  if (!connections) return E_POINTER;
  *connections = nullptr;
  try {
    *connections = make_enumerator<IEnumConnections>(IID_IEnumConnections, connections_, counted);
    return S_OK;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
  if (!points) return E_POINTER;
  *points = nullptr;
  try {
    const std::vector<ComPtr<IConnectionPoint>> both = {ComPtr<IConnectionPoint>(&events_),
                                                        ComPtr<IConnectionPoint>(&properties_)};
    *points = make_enumerator<IEnumConnectionPoints>(IID_IEnumConnectionPoints, both, counted);
    return S_OK;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT ConnectionPoints::FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept {
  if (!point) return E_POINTER;
  *point = nullptr;
  for (ConnectionPoint* candidate : {&events_, &properties_}) {
    if (candidate->sink_id() == id) *point = candidate;
  }
  if (!*point) return CONNECT_E_NOCONNECTION;
  (*point)->AddRef();
  return S_OK;
}

}  // namespace zorboffice
