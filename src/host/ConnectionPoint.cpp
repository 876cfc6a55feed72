#include "host/ConnectionPoint.h"

#include <new>
#include <utility>

#include "host/ComEnumerator.h"

namespace orv::host {

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IConnectionPoint)) {
    *object = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) {
  if (iid == nullptr) return E_POINTER;
  *iid = events_;
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (container == nullptr) return E_POINTER;
  container_.AddRef();
  *container = &container_;
  return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (cookie == nullptr) return E_POINTER;
  *cookie = 0;
  if (sink == nullptr) return E_POINTER;
  // The sink must implement the event dispinterface itself (as VB, .NET and script sinks do).
  ComPtr<IDispatch> events;
  if (FAILED(sink->QueryInterface(events_, reinterpret_cast<void**>(events.put()))) || !events)
    return CONNECT_E_CANNOTCONNECT;
  size_t slot = 0;
  while (slot < sinks_.size() && sinks_[slot]) ++slot;
  if (slot >= MAXDWORD - 1) return CONNECT_E_ADVISELIMIT;
  try {
    if (slot == sinks_.size())
      sinks_.push_back(std::move(events));
    else
      sinks_[slot] = std::move(events);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  *cookie = static_cast<DWORD>(slot + 1);
  return S_OK;
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
  if (cookie == 0 || cookie > sinks_.size() || !sinks_[cookie - 1]) return CONNECT_E_NOCONNECTION;
  // The slot is empty before the sink's last reference goes: its Release may call back.
  ComPtr<IDispatch> leaving = std::exchange(sinks_[cookie - 1], nullptr);
  return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (connections == nullptr) return E_POINTER;
  *connections = nullptr;
  try {
    auto entries = std::make_shared<std::vector<ConnectionEntry>>();
    for (size_t slot = 0; slot < sinks_.size(); ++slot) {
      if (!sinks_[slot]) continue;
      entries->push_back({ComPtr<IUnknown>::Share(sinks_[slot].get()), static_cast<DWORD>(slot + 1)});
    }
    *connections = ConnectionEnumerator::Create(IID_IEnumConnections, std::move(entries));
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  return *connections != nullptr ? S_OK : E_OUTOFMEMORY;
}

}  // namespace orv::host
