// The exported entry points of OrvChartDlgs.dll. No exception may leave them.
#include "host/Module.h"

#include <objbase.h>

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH) {
        orv::host::SetModuleInstance(instance);
        // No thread notifications needed: the module keeps no per-thread state.
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow()
{
    return orv::host::CanUnloadNow();
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID /*clsid*/, REFIID /*iid*/, LPVOID* object)
{
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    // The class table is still empty: no class is served by this module yet.
    return CLASS_E_CLASSNOTAVAILABLE;
}

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer()
{
    // Nothing to register until the class table has entries.
    return S_OK;
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer()
{
    return S_OK;
}
