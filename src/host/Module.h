// The module's own state: its handle and the count of live objects and server locks
// that DllCanUnloadNow answers from.
#pragma once

#include <windows.h>

namespace orv::host {

// The DLL's instance handle, kept by DllMain; resources and registration paths come from it.
HINSTANCE ModuleInstance() noexcept;
void SetModuleInstance(HINSTANCE instance) noexcept;

// Every COM object of the module and every IClassFactory::LockServer(TRUE) holds one count.
void LockModule() noexcept;
void UnlockModule() noexcept;
long ModuleLockCount() noexcept;

// S_OK when nothing holds the module, S_FALSE otherwise.
HRESULT CanUnloadNow() noexcept;

// Held as a member by each COM object: the module stays loaded as long as the object lives.
class ModuleLock {
 public:
  ModuleLock() noexcept { LockModule(); }
  ~ModuleLock() { UnlockModule(); }
  ModuleLock(const ModuleLock&) noexcept { LockModule(); }
  ModuleLock& operator=(const ModuleLock&) noexcept = default;
};

}  // namespace orv::host
