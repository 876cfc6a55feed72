#include "host/Module.h"

#include <atomic>

namespace orv::host {
namespace {

HINSTANCE g_instance = nullptr;
// Objects are apartment-threaded, but COM may ask DllCanUnloadNow from any apartment.
std::atomic<long> g_locks{0};

}  // namespace

HINSTANCE ModuleInstance() noexcept { return g_instance; }
void SetModuleInstance(HINSTANCE instance) noexcept { g_instance = instance; }

void LockModule() noexcept { g_locks.fetch_add(1, std::memory_order_relaxed); }

void UnlockModule() noexcept { g_locks.fetch_sub(1, std::memory_order_acq_rel); }

long ModuleLockCount() noexcept { return g_locks.load(std::memory_order_acquire); }

HRESULT CanUnloadNow() noexcept { return ModuleLockCount() == 0 ? S_OK : S_FALSE; }

}  // namespace orv::host
