#include "host/ActivationContext.h"

#include <memory>
#include <string>

namespace orv::host {
namespace {

// The module that holds this code: GetModuleHandleEx by address works before DllMain has
// stored the instance and in test programs that link the objects without the DLL.
HMODULE ThisModule() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisModule), &module);
  return module;
}

struct ActCtxDeleter {
  using pointer = HANDLE;
  void operator()(HANDLE context) const noexcept {
    if (context != INVALID_HANDLE_VALUE) ReleaseActCtx(context);
  }
};
using ActCtx = std::unique_ptr<void, ActCtxDeleter>;

ActCtx MakeContext() noexcept {
  HMODULE module = ThisModule();
  if (module == nullptr) return ActCtx(INVALID_HANDLE_VALUE);
  // lpSource names the module too: some systems read the resource through the path.
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) return ActCtx(INVALID_HANDLE_VALUE);
    if (length < path.size()) {
      path.resize(length);
      break;
    }
    if (path.size() >= 32768) return ActCtx(INVALID_HANDLE_VALUE);
    path.resize(path.size() * 2);
  }
  ACTCTXW request = {};
  request.cbSize = sizeof request;
  request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  request.lpSource = path.c_str();
  request.hModule = module;
  request.lpResourceName = MAKEINTRESOURCEW(2);  // ISOLATIONAWARE_MANIFEST_RESOURCE_ID
  return ActCtx(CreateActCtxW(&request));
}

}  // namespace

HANDLE UiActivationContext() noexcept {
  // Made once, on first use; a function-local static is made under a lock, so two threads
  // asking at once get one context. Released when the module unloads.
  static const ActCtx context = MakeContext();
  return context.get();
}

ScopedUiActivation::ScopedUiActivation() noexcept {
  HANDLE context = UiActivationContext();
  if (context != INVALID_HANDLE_VALUE) active_ = ActivateActCtx(context, &cookie_) != FALSE;
}

ScopedUiActivation::~ScopedUiActivation() {
  if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace orv::host
