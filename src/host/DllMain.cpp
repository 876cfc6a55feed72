// The exported entry points of OrvChartDlgs.dll. No exception may leave them.
#include <objbase.h>

#include <new>

#include "host/ClassFactory.h"
#include "host/ClassTable.h"
#include "host/Module.h"
#include "host/Registration.h"

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    orv::host::SetModuleInstance(instance);
    // No thread notifications needed: the module keeps no per-thread state.
    DisableThreadLibraryCalls(instance);
  }
  return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() { return orv::host::CanUnloadNow(); }

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* object) {
  return orv::host::GetClassObject(orv::host::ModuleClasses(), clsid, iid, object);
}

namespace {

// Both registration entry points read the scope anew: installers change "OrvInstallOpts"
// between runs.
template <typename Action>
HRESULT WithConfiguredScope(Action action) noexcept {
  try {
    return action(orv::host::ModuleClasses(), orv::host::ModuleInstance(), orv::host::ConfiguredRegistrationScope());
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() { return WithConfiguredScope(orv::host::RegisterServer); }

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() { return WithConfiguredScope(orv::host::UnregisterServer); }
