#pragma once
// One connection point of an object for one event dispinterface: any number of sinks in a
// dynamic array, cookie = slot + 1. Unadvise empties its slot (firing skips it) and Advise
// reuses the first empty slot. Lives inside its container and counts its references there.

#include <windows.h>
#include <ocidl.h>
#include <olectl.h>

#include <cstddef>
#include <vector>

#include "com/ComPtr.h"

namespace orv::host {

class ConnectionPoint final : public IConnectionPoint {
 public:
  // `container`: the object this point belongs to (its IUnknown counts for both).
  ConnectionPoint(IConnectionPointContainer& container, const IID& events) noexcept
      : container_(container), events_(events) {}
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return container_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return container_.Release(); }

  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override;
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

  const IID& events() const noexcept { return events_; }
  // Firing walks slots by index and re-reads the count each time, because a sink may Advise or
  // Unadvise from inside the event.
  size_t SlotCount() const noexcept { return sinks_.size(); }
  // The sink in a slot (null when empty), with a reference of its own for the call.
  ComPtr<IDispatch> SinkAt(size_t slot) const noexcept {
    return slot < sinks_.size() ? sinks_[slot] : ComPtr<IDispatch>();
  }

 private:
  IConnectionPointContainer& container_;
  IID events_;
  std::vector<ComPtr<IDispatch>> sinks_;
};

}  // namespace orv::host
