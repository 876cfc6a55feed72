#include "host/ClassFactory.h"

#include <atomic>
#include <new>

#include "com/ComPtr.h"
#include "host/Module.h"

namespace orv::host {
namespace {

// One factory per DllGetClassObject; a live factory holds the module like any object, so a
// host that keeps a factory without LockServer never calls into an unloaded module.
class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(const ClassEntry& entry) noexcept : entry_(entry) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory)) {
      *object = static_cast<IClassFactory*>(this);
      AddRef();
      return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    // An aggregate hands out its inner IUnknown only; any other first interface would
    // delegate its QueryInterface to an outer object that cannot find the inner one.
    if (outer != nullptr && !IsEqualIID(iid, IID_IUnknown)) return CLASS_E_NOAGGREGATION;
    try {
      HRESULT hr = entry_.create(outer, iid, object);
      if (FAILED(hr)) *object = nullptr;
      return hr;
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    } catch (...) {
      return E_UNEXPECTED;
    }
  }

  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    if (lock)
      LockModule();
    else
      UnlockModule();
    return S_OK;
  }

 private:
  const ClassEntry& entry_;
  std::atomic<ULONG> references_{1};
  ModuleLock moduleLock_;
};

}  // namespace

HRESULT GetClassObject(std::span<const ClassEntry> table, REFCLSID clsid, REFIID iid, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  const ClassEntry* entry = FindClass(table, clsid);
  if (entry == nullptr || entry->create == nullptr) return CLASS_E_CLASSNOTAVAILABLE;
  // The query's reference is the caller's; a failed query frees the factory.
  const ComPtr<ClassFactory> factory = ComPtr<ClassFactory>::Attach(new (std::nothrow) ClassFactory(*entry));
  if (!factory) return E_OUTOFMEMORY;
  return factory->QueryInterface(iid, object);
}

}  // namespace orv::host
