#pragma once
// The component's UI activation context: comctl32 version 6 (visual styles) from the manifest
// the DLL carries as resource 2, whatever the host's own manifest says. Every UI entry point
// (a modal sheet, the date range dialog, a standalone page's Activate) holds a
// ScopedUiActivation around the code that creates windows; windows remember the context they
// were made in, so it need not be active while they merely run.

#include <windows.h>

namespace orv::host {

// The context, made on first use from the module that holds this code (the DLL; a test
// program that links the objects directly uses its own resource 2, if it has one).
// INVALID_HANDLE_VALUE when the module carries no such manifest or the system refuses it:
// the UI then runs in the host's context, without visual styles unless the host has them.
HANDLE UiActivationContext() noexcept;

// Activates UiActivationContext() for its lifetime, on the calling thread. Never fails:
// without a context it does nothing. Scopes nest; destroy them in reverse order (they are
// locals, so they are).
class ScopedUiActivation {
 public:
  ScopedUiActivation() noexcept;
  ~ScopedUiActivation();
  ScopedUiActivation(const ScopedUiActivation&) = delete;
  ScopedUiActivation& operator=(const ScopedUiActivation&) = delete;

  // True when the context was made and activated.
  bool active() const noexcept { return active_; }

 private:
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

}  // namespace orv::host
