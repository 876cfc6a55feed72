// Creating the component's ChartPages object in the three ways a host can: registered,
// registration-free through an activation context, or straight from the DLL.
#pragma once

#include "Options.h"

#include <windows.h>

#include "OrvChartDlgs_h.h"
#include "com/ComPtr.h"

#include <string>
#include <utility>

namespace orv::host_app {

// The folder of the running program, with a trailing backslash.
std::wstring ProgramFolder();

// An activation context handle, released on destruction.
class ActCtx {
 public:
  ActCtx() = default;
  explicit ActCtx(HANDLE handle) : handle_(handle) {}
  ActCtx(ActCtx&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  ActCtx& operator=(ActCtx&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~ActCtx() {
    if (handle_ != INVALID_HANDLE_VALUE) ReleaseActCtx(handle_);
  }
  HANDLE get() const { return handle_; }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

// The context active on this thread while it lives.
class ActCtxActivation {
 public:
  ActCtxActivation() = default;
  ActCtxActivation(const ActCtxActivation&) = delete;
  ActCtxActivation& operator=(const ActCtxActivation&) = delete;
  ~ActCtxActivation() {
    if (active_) DeactivateActCtx(0, cookie_);
  }
  bool Activate(HANDLE context) {
    active_ = ActivateActCtx(context, &cookie_) != FALSE;
    return active_;
  }

 private:
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

// A loaded DLL, freed on destruction.
class Library {
 public:
  Library() = default;
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  ~Library() {
    if (module_ != nullptr) FreeLibrary(module_);
  }
  bool Load(const std::wstring& path) {
    module_ = LoadLibraryW(path.c_str());
    return module_ != nullptr;
  }
  HMODULE get() const { return module_; }

 private:
  HMODULE module_ = nullptr;
};

// ChartPages and what must outlive it: members are destroyed in reverse order, so the object
// goes first, then its DLL, then the activation context it was created in.
class ComponentInstance {
 public:
  // On failure `error` says what went wrong, for the user.
  bool Create(const Options& options, std::string& error);
  IChartPages* Pages() const { return pages_.get(); }
  // The component's DLL when created straight from it, else null.
  HMODULE Module() const { return library_.get(); }

 private:
  ActCtx context_;
  ActCtxActivation activation_;
  Library library_;
  ComPtr<IChartPages> pages_;
};

}  // namespace orv::host_app
