#pragma once
// The IUnknown of a small COM object, written once: a reference count and a QueryInterface
// table. For plain single-threaded objects (no aggregation, no module lock), such as the ones a
// host hands to the component.
//
//   class Sink final : public ComObject<Sink, IDispatch> {
//    public:
//     static std::span<const ComInterfaceEntry> Interfaces() {
//       static constexpr ComInterfaceEntry table[] = {
//           ComInterface<Sink, IDispatch>(IID_IDispatch),
//           ComInterface<Sink, IDispatch>(DIID__IChartPagesEvents),
//       };
//       return table;
//     }
//     ...
//   };
//   ComPtr<Sink> sink = Sink::Make(...);
//
// IUnknown is answered with the first entry's pointer, so every query for it gives the same
// identity. An object starts with one reference, the creator's (`Make` hands it to a ComPtr).

#include <windows.h>
#include <unknwn.h>

#include <span>
#include <utility>

#include "com/ComPtr.h"

namespace orv {

// One row of a QueryInterface table: an interface id and how to reach that interface from the
// object.
struct ComInterfaceEntry {
  const IID* iid;
  void* (*from)(void* object);
};

// The row answering `iid` with the object's `Interface` base.
template <typename Object, typename Interface>
constexpr ComInterfaceEntry ComInterface(const IID& iid) {
  return {&iid, [](void* object) -> void* { return static_cast<Interface*>(static_cast<Object*>(object)); }};
}

// Object derives from ComObject<Object, Implemented...> and gives its table (at least one row) by
// `static std::span<const ComInterfaceEntry> Interfaces()`.
template <typename Object, typename... Implemented>
class ComObject : public Implemented... {
 public:
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  template <typename... Args>
  static ComPtr<Object> Make(Args&&... args) {
    return ComPtr<Object>::Attach(new Object(std::forward<Args>(args)...));
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    void* self = static_cast<Object*>(this);
    const std::span<const ComInterfaceEntry> table = Object::Interfaces();
    if (IsEqualIID(iid, IID_IUnknown)) {
      *object = table[0].from(self);
    } else {
      for (const ComInterfaceEntry& entry : table) {
        if (IsEqualIID(iid, *entry.iid)) {
          *object = entry.from(self);
          break;
        }
      }
    }
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  ComObject() = default;
  virtual ~ComObject() = default;

 private:
  ULONG references_ = 1;
};

}  // namespace orv
