// The IUnknown of small COM objects: a QueryInterface table, one identity, a reference count that
// frees the object with its last reference.
#include <windows.h>
#include <objidl.h>

#include <gtest/gtest.h>

#include "com/ComObject.h"

namespace orv {
namespace {

// {6A1D3C0E-3F8B-4F0C-9C1B-8E1F4A3B2C10}: an interface id the object answers by its IPersist side.
constexpr IID kIidAlias = {0x6A1D3C0E, 0x3F8B, 0x4F0C, {0x9C, 0x1B, 0x8E, 0x1F, 0x4A, 0x3B, 0x2C, 0x10}};

// Two interfaces with vtables of their own, so the table must hand out the right base.
class TwoFaced final : public ComObject<TwoFaced, IPersist, IClassFactory> {
 public:
  explicit TwoFaced(bool& destroyed) : destroyed_(destroyed) {}
  ~TwoFaced() override { destroyed_ = true; }

  static std::span<const ComInterfaceEntry> Interfaces() {
    static constexpr ComInterfaceEntry table[] = {
        ComInterface<TwoFaced, IPersist>(IID_IPersist),
        ComInterface<TwoFaced, IClassFactory>(IID_IClassFactory),
        ComInterface<TwoFaced, IPersist>(kIidAlias),
    };
    return table;
  }

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override {
    *id = kIidAlias;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, void** object) override {
    *object = nullptr;
    return CLASS_E_CLASSNOTAVAILABLE;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_FALSE; }

 private:
  bool& destroyed_;
};

ULONG References(IUnknown* object) {
  object->AddRef();
  return object->Release();
}

TEST(ComObject, AnswersItsTableWithTheRightInterface) {
  bool destroyed = false;
  ComPtr<TwoFaced> object = TwoFaced::Make(destroyed);
  EXPECT_EQ(References(static_cast<IPersist*>(object.get())), 1u);

  ComPtr<IClassFactory> factory;
  ASSERT_EQ(object->QueryInterface(IID_IClassFactory, reinterpret_cast<void**>(factory.put())), S_OK);
  EXPECT_EQ(factory->LockServer(TRUE), S_FALSE);  // reaches the object through the IClassFactory vtable
  ComPtr<IPersist> persist;
  ASSERT_EQ(factory->QueryInterface(kIidAlias, reinterpret_cast<void**>(persist.put())), S_OK);
  CLSID id{};
  EXPECT_EQ(persist->GetClassID(&id), S_OK);
  EXPECT_TRUE(IsEqualGUID(id, kIidAlias));
  EXPECT_EQ(References(persist.get()), 3u);

  // One identity, whichever interface is asked.
  ComPtr<IUnknown> fromPersist, fromFactory;
  ASSERT_EQ(persist->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(fromPersist.put())), S_OK);
  ASSERT_EQ(factory->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(fromFactory.put())), S_OK);
  EXPECT_EQ(fromPersist.get(), fromFactory.get());
  EXPECT_EQ(static_cast<void*>(fromPersist.get()), static_cast<void*>(static_cast<IPersist*>(object.get())));
}

TEST(ComObject, RefusesWhatItsTableLacksAndNullOutParameters) {
  bool destroyed = false;
  ComPtr<TwoFaced> object = TwoFaced::Make(destroyed);
  void* out = reinterpret_cast<void*>(0x1234);
  EXPECT_EQ(object->QueryInterface(IID_IDispatch, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(object->QueryInterface(IID_IPersist, nullptr), E_POINTER);
  EXPECT_EQ(References(static_cast<IPersist*>(object.get())), 1u);  // no reference left behind
}

TEST(ComObject, TheLastReleaseFreesTheObject) {
  bool destroyed = false;
  ComPtr<IClassFactory> factory = TwoFaced::Make(destroyed);  // handed over as one of its interfaces
  ComPtr<IClassFactory> copy = factory;
  factory.reset();
  EXPECT_FALSE(destroyed);
  EXPECT_EQ(copy->Release(), 0u);
  EXPECT_TRUE(destroyed);
  copy.release();  // that reference is gone already
}

}  // namespace
}  // namespace orv
