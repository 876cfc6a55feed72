// orv_sample_pages.dll: the sample chart page served as a COM class, so that a host frame
// (orvhost --page) shows a page made by the same factory and IPropertyPage as the component's
// pages, before any of those is built. Class id {5E1F0C2A-7B3D-4C8E-9A61-0D2B4F6A8C13}.
#include <windows.h>

#include "SampleChartPage.h"
#include "host/ClassFactory.h"
#include "host/ClassTable.h"
#include "host/Module.h"
#include "host/PropertyPage.h"

namespace {

constexpr GUID kClsidSampleChartPage = {0x5E1F0C2A, 0x7B3D, 0x4C8E, {0x9A, 0x61, 0x0D, 0x2B, 0x4F, 0x6A, 0x8C, 0x13}};

const orv::host::ClassEntry kClasses[] = {
    {&kClsidSampleChartPage,
     L"SampleChartPage",
     L"SampleChartPage Class",
     false,
     {},
     {},
     &orv::host::CreateChartPage<CSampleChartPage>},
};

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    orv::host::SetModuleInstance(instance);
    DisableThreadLibraryCalls(instance);
  }
  return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
  return orv::host::GetClassObject(kClasses, clsid, iid, object);
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() { return orv::host::CanUnloadNow(); }
