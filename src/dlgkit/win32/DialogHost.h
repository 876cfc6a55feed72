#pragma once
// The one dialog procedure of the program: every dialog and property page window forwards its
// messages to its orv::Page through a DialogHost kept in DWLP_USER. No exception leaves it: the
// first one is stored, the modal run is ended, and the entry point rethrows it after the run.

#include <windows.h>

#include <exception>
#include <functional>
#include <memory>

#include "dlgkit/Page.h"
#include "dlgkit/win32/ControlsWin32.h"

namespace orv {

class WindowOps;

class DialogHost {
 public:
  // `endRun` ends the modal run after a failure (given the page's window); a plain dialog's is
  // EndDialog(window, -1), a sheet's runner passes its own. `windowOps` may be null.
  DialogHost(Page& page, WindowOps* windowOps, std::function<void(HWND)> endRun);
  DialogHost(const DialogHost&) = delete;
  DialogHost& operator=(const DialogHost&) = delete;

  // For DialogBox*Param: lParam of WM_INITDIALOG is the DialogHost*. The page is run as a plain
  // modal dialog: after OnInitDialog it gets OnSetActive; OK (IDOK clicked) runs OnKillActive
  // and OnApply and closes with IDOK when both accept; Cancel (IDCANCEL, Esc, the Close box)
  // asks OnQueryCancel, then OnReset, and closes with IDCANCEL.
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  // For PROPSHEETPAGEA::pfnDlgProc: lParam of WM_INITDIALOG is the PROPSHEETPAGEA*, whose lParam
  // is the DialogHost*. The sheet drives the page through PSN_* notifications.
  static INT_PTR CALLBACK PropertyPageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  // For CreateDialogParam of a page that a host's property frame shows as a child window: lParam
  // of WM_INITDIALOG is the DialogHost*. The frame drives the page itself (IPropertyPage); the
  // window has no OK or Cancel of its own and is not activated here.
  static INT_PTR CALLBACK ChildPageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  Page& page() { return page_; }
  HWND window() const { return window_; }
  bool failed() const { return static_cast<bool>(failure_); }
  // Rethrows the exception a handler threw during the run, if any.
  void RethrowFailure() const;

 private:
  static INT_PTR Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DialogHost* attaching);
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  // Offers what the typed handlers left to the page's OnUnhandledMessage (reflection).
  INT_PTR Unhandled(UINT message, WPARAM wParam, LPARAM lParam);
  bool HandleNotify(const NMHDR& header, LPARAM lParam, LRESULT& result);
  void HandleCommand(int id, int code);

  Page& page_;
  WindowOps* windowOps_;
  std::function<void(HWND)> endRun_;
  bool plainDialog_ = false;
  HWND window_ = nullptr;
  std::unique_ptr<Win32Controls> controls_;
  std::exception_ptr failure_;
};

// Runs `page` as a modal dialog from the template `templateId` in `module`, or from an in-memory
// template. Gives EndDialog's result (IDOK, IDCANCEL), -1 when the dialog couldn't be created;
// rethrows what a page handler threw, after the window is gone.
INT_PTR RunPageDialog(Page& page, HINSTANCE module, int templateId, HWND owner, WindowOps* windowOps = nullptr);
INT_PTR RunPageDialogIndirect(Page& page, const DLGTEMPLATE* dialogTemplate, HWND owner,
                              WindowOps* windowOps = nullptr);

}  // namespace orv
