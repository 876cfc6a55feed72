#pragma once
// IEnumConnectionPoints / IEnumConnections over a snapshot taken when the enumerator is made:
// later Advise and Unadvise don't change what an enumerator (or its clones) gives.

#include <windows.h>
#include <ocidl.h>

#include <memory>
#include <new>
#include <vector>

#include "host/Module.h"
#include "com/ComPtr.h"

namespace orv::host {

struct ConnectionEntry {
  ComPtr<IUnknown> sink;
  DWORD cookie = 0;
};

// The item handed out by Next for each kind of entry, with one added reference.
inline void HandOut(const ComPtr<IConnectionPoint>& entry, IConnectionPoint** out) {
  *out = entry.get();
  (*out)->AddRef();
}
inline void HandOut(const ConnectionEntry& entry, CONNECTDATA* out) {
  out->pUnk = entry.sink.get();
  out->pUnk->AddRef();
  out->dwCookie = entry.cookie;
}

// IEnum is IEnumConnectionPoints (Item IConnectionPoint*, Entry ComPtr<IConnectionPoint>) or
// IEnumConnections (Item CONNECTDATA, Entry ConnectionEntry).
template <typename IEnum, typename Item, typename Entry>
class ComEnumerator final : public IEnum {
 public:
  using Entries = std::vector<Entry>;

  // Gives the new enumerator's interface with one reference, or null when out of memory.
  static IEnum* Create(const IID& iid, std::shared_ptr<const Entries> entries, size_t position = 0) {
    auto* enumerator = new (std::nothrow) ComEnumerator(iid, std::move(entries), position);
    return enumerator;
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, iid_)) {
      *object = static_cast<IEnum*>(this);
      AddRef();
      return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
  ULONG STDMETHODCALLTYPE Release() override {
    ULONG left = --refs_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE Next(ULONG count, Item* items, ULONG* fetched) override {
    if (fetched != nullptr) *fetched = 0;
    if (items == nullptr || (count != 1 && fetched == nullptr)) return E_POINTER;
    ULONG given = 0;
    while (given < count && position_ < entries_->size()) HandOut((*entries_)[position_++], &items[given++]);
    if (fetched != nullptr) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    size_t left = entries_->size() - position_;
    if (count > left) {
      position_ = entries_->size();
      return S_FALSE;
    }
    position_ += count;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    position_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnum** clone) override {
    if (clone == nullptr) return E_POINTER;
    *clone = Create(iid_, entries_, position_);
    return *clone != nullptr ? S_OK : E_OUTOFMEMORY;
  }

 private:
  ComEnumerator(const IID& iid, std::shared_ptr<const Entries> entries, size_t position)
      : iid_(iid), entries_(std::move(entries)), position_(position) {}
  ~ComEnumerator() = default;

  ModuleLock lock_;
  ULONG refs_ = 1;
  IID iid_;
  std::shared_ptr<const Entries> entries_;
  size_t position_;
};

using ConnectionPointEnumerator = ComEnumerator<IEnumConnectionPoints, IConnectionPoint*, ComPtr<IConnectionPoint>>;
using ConnectionEnumerator = ComEnumerator<IEnumConnections, CONNECTDATA, ConnectionEntry>;

}  // namespace orv::host
