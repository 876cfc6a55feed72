#pragma once
// Shared by the ChartPages tests: an apartment per test, creation, and a document made by the
// component's own XML layer and handed over as a live IXMLDOMNode, as a host does.

#include <gtest/gtest.h>

#include <windows.h>
#include <objbase.h>

#include <string>

#include "OrvChartDlgs_h.h"
#include "host/ChartPages.h"
#include "host/ChartPagesObject.h"
#include "host/Module.h"
#include "xml/Xml.h"
#include "com/ComPtr.h"
#include "xml/msxml/XmlMsxml.h"

namespace orv::host::testing {

class ChartPagesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    locksBefore_ = ModuleLockCount();
  }
  void TearDown() override {
    // Every object the test made is gone: the module could unload.
    EXPECT_EQ(ModuleLockCount(), locksBefore_);
    CoUninitialize();
  }

  static ComPtr<IChartPages> Create() {
    ComPtr<IChartPages> pages;
    EXPECT_EQ(CreateChartPages(nullptr, IID_IChartPages, reinterpret_cast<void**>(pages.put())), S_OK);
    return pages;
  }
  // The C++ object behind the interface (the sheets' owner).
  static CChartPages& Object(const ComPtr<IChartPages>& pages) { return *static_cast<CChartPages*>(pages.get()); }

  // A document parsed from `text` (guarded by the XML layer).
  static XmlNode Document(const char* text) {
    XmlNode document = XmlCreateDocument();
    EXPECT_TRUE(XmlLoadString(document, text)) << text;
    return document;
  }

  long locksBefore_ = 0;
};

inline ULONG RefCount(IUnknown* object) {
  object->AddRef();
  return object->Release();
}

}  // namespace orv::host::testing
