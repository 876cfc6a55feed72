// The DLL's entry points as a host sees them: loaded from disk, reached by GetProcAddress.
// Also its resources: the class list of the assembly manifest against what the DLL serves, and
// the UI activation context.
#include "host/ActivationContext.h"
#include "host/Module.h"

#include <gtest/gtest.h>

#include <objbase.h>
#include <oleauto.h>
#include <unknwn.h>

#include <string>
#include <vector>

#include "ModuleTesting.h"
#include "com/ComPtr.h"
#include "OrvChartDlgs_h.h"

namespace {

using namespace orv::host::testing;
using orv::ComPtr;

using GetClassObjectFn = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, LPVOID*);
using NoArgFn = HRESULT(STDAPICALLTYPE*)();

class Dll : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    library_.reset(LoadLibraryW(DllPath().c_str()));
    ASSERT_TRUE(library_) << "cannot load OrvChartDlgs.dll, error " << GetLastError();
    getClassObject_ = Export<GetClassObjectFn>("DllGetClassObject");
    canUnloadNow_ = Export<NoArgFn>("DllCanUnloadNow");
    ASSERT_TRUE(getClassObject_ && canUnloadNow_);
  }
  void TearDown() override {
    library_.reset();
    CoUninitialize();
  }
  template <typename F>
  F Export(const char* name) {
    auto proc = GetProcAddress(library_.get(), name);
    EXPECT_NE(proc, nullptr) << name << " is not exported";
    return reinterpret_cast<F>(reinterpret_cast<void*>(proc));
  }
  IClassFactory* Factory(REFCLSID clsid) {
    IClassFactory* factory = nullptr;
    EXPECT_EQ(getClassObject_(clsid, IID_IClassFactory, reinterpret_cast<void**>(&factory)), S_OK);
    return factory;
  }
  Library library_;
  GetClassObjectFn getClassObject_ = nullptr;
  NoArgFn canUnloadNow_ = nullptr;
};

TEST_F(Dll, ClassesNotServedAreRefusedAndTheOutPointerCleared) {
  // AnalyticsPpg and SznWzrdPgSeason are listed by the type library and never served.
  for (const CLSID* clsid : {&CLSID_AnalyticsPpg, &CLSID_SznWzrdPgSeason, &GUID_NULL, &IID_IChartPages}) {
    void* object = reinterpret_cast<void*>(0x1234);
    EXPECT_EQ(getClassObject_(*clsid, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE) << GuidText(*clsid);
    EXPECT_EQ(object, nullptr);
  }
  EXPECT_EQ(getClassObject_(CLSID_ChartPages, IID_IClassFactory, nullptr), E_POINTER);
  void* object = reinterpret_cast<void*>(0x1234);
  EXPECT_EQ(getClassObject_(CLSID_ChartPages, IID_IChartPages, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(canUnloadNow_(), S_OK);  // the refused factory did not stay behind
}

TEST_F(Dll, FactoryCreatesPlainAndAggregatedAndRefusesAggregationByAnotherInterface) {
  IClassFactory* factory = Factory(CLSID_ChartPages);
  ASSERT_NE(factory, nullptr);

  IChartPages* pages = nullptr;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IChartPages, reinterpret_cast<void**>(&pages)), S_OK);
  long result = 0;
  EXPECT_EQ(pages->TerminatePage(0, &result), S_OK);
  EXPECT_EQ(result, 1);
  pages->Release();

  // Any object will do as the outer one here: how the aggregate delegates to it is
  // ChartPagesTest.AggregatedObjectDelegatesToItsOuter's.
  ComPtr<IUnknown> outer;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(outer.put())), S_OK);
  void* object = reinterpret_cast<void*>(0x1234);
  EXPECT_EQ(factory->CreateInstance(outer.get(), IID_IChartPages, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory->CreateInstance(outer.get(), IID_IDispatch, &object), CLASS_E_NOAGGREGATION);
  IUnknown* inner = nullptr;
  ASSERT_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, reinterpret_cast<void**>(&inner)), S_OK);
  EXPECT_EQ(inner->Release(), 0u);

  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IChartPages, nullptr), E_POINTER);
  factory->Release();
}

TEST_F(Dll, UnloadWaitsForObjectsFactoriesAndServerLocks) {
  ASSERT_EQ(canUnloadNow_(), S_OK);
  IClassFactory* factory = Factory(CLSID_ChartPages);
  ASSERT_NE(factory, nullptr);
  EXPECT_EQ(canUnloadNow_(), S_FALSE);  // a live factory is code of the module

  IUnknown* object = nullptr;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(&object)), S_OK);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  factory->Release();
  EXPECT_EQ(canUnloadNow_(), S_FALSE);  // the object and the lock

  object->Release();
  EXPECT_EQ(canUnloadNow_(), S_FALSE);  // the lock alone

  factory = Factory(CLSID_ChartPages);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  factory->Release();
  EXPECT_EQ(canUnloadNow_(), S_OK);
}

// The DLL's assembly manifest (resource 1) lists exactly the classes it serves: walk the
// coclasses of its own type library and ask DllGetClassObject for each.
TEST_F(Dll, AssemblyManifestListsExactlyTheServedClasses) {
  HRSRC found = FindResourceW(library_.get(), MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
  ASSERT_NE(found, nullptr) << "no assembly manifest (resource 1)";
  const char* bytes = static_cast<const char*>(LockResource(LoadResource(library_.get(), found)));
  const std::string manifest(bytes, SizeofResource(library_.get(), found));
  EXPECT_NE(manifest.find("name=\"OrvChartDlgs\" version=\"1.0.0.0\""), std::string::npos);

  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(DllPath().c_str(), REGKIND_NONE, library.put()), S_OK);
  int served = 0;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    TYPEKIND kind{};
    ASSERT_EQ(library->GetTypeInfoType(i, &kind), S_OK);
    if (kind != TKIND_COCLASS) continue;
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(library->GetTypeInfo(i, info.put()), S_OK);
    TYPEATTR* attr = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attr), S_OK);
    const GUID clsid = attr->guid;
    info->ReleaseTypeAttr(attr);

    ComPtr<IClassFactory> factory;
    bool serves = getClassObject_(clsid, IID_IClassFactory, reinterpret_cast<void**>(factory.put())) == S_OK;
    std::wstring text = L"clsid=\"" + GuidText(clsid) + L"\"";
    bool listed = manifest.find(std::string(text.begin(), text.end())) != std::string::npos;
    EXPECT_EQ(serves, listed) << GuidText(clsid) << (serves ? " is served but not in" : " is not served but in")
                              << " the manifest";
    served += serves;
  }
  EXPECT_GE(served, 1);
}

// 6 when the active activation context redirects comctl32.dll to the common controls
// assembly version 6 (visual styles), else 5. Asked of the context itself: Wine serves both
// versions from one builtin DLL, so the loaded module's own version says nothing.
DWORD CommonControlsMajorVersion() {
  ACTCTX_SECTION_KEYED_DATA data{};
  data.cbSize = sizeof data;
  if (!FindActCtxSectionStringW(FIND_ACTCTX_SECTION_KEY_RETURN_HACTCTX, nullptr,
                                ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION, L"comctl32.dll", &data))
    return 5;
  ReleaseActCtx(data.hActCtx);
  return 6;
}

TEST_F(Dll, UiManifestResourceMakesAContextWithVisualStyles) {
  ACTCTXW request{};
  request.cbSize = sizeof request;
  request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  const std::wstring path = DllPath();
  request.lpSource = path.c_str();
  request.hModule = library_.get();
  request.lpResourceName = MAKEINTRESOURCEW(2);
  HANDLE context = CreateActCtxW(&request);
  ASSERT_NE(context, INVALID_HANDLE_VALUE) << "error " << GetLastError();
  ULONG_PTR cookie = 0;
  ASSERT_TRUE(ActivateActCtx(context, &cookie));
  EXPECT_EQ(CommonControlsMajorVersion(), 6u);
  DeactivateActCtx(0, cookie);
  ReleaseActCtx(context);
}

// This program carries the same UI manifest as its own resource 2 (see module.cmake), so the
// scope finds it in the module that holds the code, as the DLL's objects do.
TEST(UiActivation, ScopeActivatesTheModulesContextAndRestoresTheCallers) {
  ASSERT_NE(orv::host::UiActivationContext(), INVALID_HANDLE_VALUE);
  EXPECT_EQ(orv::host::UiActivationContext(), orv::host::UiActivationContext());  // made once
  const DWORD outside = CommonControlsMajorVersion();
  EXPECT_LT(outside, 6u);  // the program's own manifest asks for no common controls
  {
    orv::host::ScopedUiActivation ui;
    ASSERT_TRUE(ui.active());
    EXPECT_EQ(CommonControlsMajorVersion(), 6u);
    {
      orv::host::ScopedUiActivation nested;
      EXPECT_TRUE(nested.active());
    }
    EXPECT_EQ(CommonControlsMajorVersion(), 6u);
  }
  EXPECT_EQ(CommonControlsMajorVersion(), outside);
}

}  // namespace
