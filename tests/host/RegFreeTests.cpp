// A host that uses OrvChartDlgs.dll registration-free: this program's manifest (resource 1)
// names the assembly OrvChartDlgs, whose manifest the DLL beside it carries as its resource 1.
#include <gtest/gtest.h>

#include <objbase.h>
#include <oleauto.h>

#include "ModuleTesting.h"
#include "OrvChartDlgs_h.h"
#include "com/ComPtr.h"

namespace {

using namespace orv::host::testing;
using orv::ComPtr;

class RegFree : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    // Nothing registered, or this proves nothing.
    HKEY key = nullptr;
    const std::wstring path = L"CLSID\\" + GuidText(CLSID_ChartPages);
    ASSERT_NE(RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_READ, &key), ERROR_SUCCESS)
        << "ChartPages is registered in this prefix; unregister it first";
    ASSERT_NE(RegOpenKeyExW(HKEY_CLASSES_ROOT, L"OrvChartDlgs.ChartPages", 0, KEY_READ, &key), ERROR_SUCCESS);
  }
  void TearDown() override { CoUninitialize(); }

  static void ExpectWorkingChartPages(REFCLSID clsid) {
    ComPtr<IChartPages> pages;
    ASSERT_EQ(
        CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IChartPages, reinterpret_cast<void**>(pages.put())),
        S_OK)
        << GuidText(clsid);
    long result = 0;
    EXPECT_EQ(pages->TerminatePage(0, &result), S_OK);
    EXPECT_EQ(result, 1);
    // Late binding, as a script host does: names through the type library.
    OLECHAR name[] = L"DoModal2";
    LPOLESTR names[] = {name};
    DISPID id = 0;
    EXPECT_EQ(pages->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    EXPECT_EQ(id, 3);
  }
};

TEST_F(RegFree, ChartPagesByClsid) { ExpectWorkingChartPages(CLSID_ChartPages); }

TEST_F(RegFree, ChartPagesByBothProgIds) {
  for (const wchar_t* progId : {L"OrvChartDlgs.ChartPages", L"OrvChartDlgs.ChartPages.1"}) {
    // The context may answer with an alias of the CLSID, as Windows does; it activates the class.
    CLSID clsid{};
    ASSERT_EQ(CLSIDFromProgID(progId, &clsid), S_OK) << "ProgID not found in the context";
    ExpectWorkingChartPages(clsid);
  }
  CLSID clsid{};
  EXPECT_NE(CLSIDFromProgID(L"OrvChartDlgs.AnalyticsPpg", &clsid), S_OK);
}

TEST_F(RegFree, TypeLibraryFromTheContext) {
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadRegTypeLib(LIBID_OrvChartDlgsLib, 1, 0, LOCALE_NEUTRAL, library.put()), S_OK);
  ComPtr<ITypeInfo> info;
  EXPECT_EQ(library->GetTypeInfoOfGuid(IID_IChartPages, info.put()), S_OK);
}

TEST_F(RegFree, ClassesNotInTheAssemblyStayUnknown) {
  IUnknown* object = nullptr;
  EXPECT_EQ(CoCreateInstance(CLSID_AnalyticsPpg, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                             reinterpret_cast<void**>(&object)),
            REGDB_E_CLASSNOTREG);
  EXPECT_EQ(object, nullptr);
}

}  // namespace
