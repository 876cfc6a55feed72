#pragma once
// Page driving: the notifications the platform sends a dialog or property page, as portable
// virtual operations. The Win32 dialog procedure (win32/DialogHost) and the headless runner
// (fake/HeadlessRunner) call them in the same order, so a page behaves the same in both.

#include <cstdint>

#include "dlgkit/Window.h"

namespace orv {

class Controls;
class WindowOps;

// PSN_APPLY results (PSNRET_*).
enum class ApplyResult : int {
  NoError = 0,              // PSNRET_NOERROR: accepted
  Invalid = 1,              // PSNRET_INVALID: refused; the sheet shows this page
  InvalidNoChangePage = 2,  // PSNRET_INVALID_NOCHANGEPAGE: refused; the sheet stays where it is
};

// Results of OnWizardBack / OnWizardNext other than a dialog id to jump to.
inline constexpr int kWizardDefault = 0;  // the neighbour in sheet order
inline constexpr int kWizardStay = -1;    // stay on this page

// PSWIZB_* for Controls::SetWizardButtons.
inline constexpr unsigned kWizBack = 1;
inline constexpr unsigned kWizNext = 2;
inline constexpr unsigned kWizFinish = 4;

// Command notification codes the kit delivers to OnCommand.
inline constexpr int kBnClicked = 0;
inline constexpr int kEnChange = 0x0300;
inline constexpr int kEnKillFocus = 0x0200;
inline constexpr int kCbnSelChange = 1;
inline constexpr int kLbnSelChange = 1;
inline constexpr int kIdOkButton = 1;
inline constexpr int kIdCancelButton = 2;

// A list view's item changed (LVN_ITEMCHANGED). For this code the kit hands OnNotify a
// ListViewItemChanged on every platform; for any other code the payload is the platform's
// own record (an NMHDR* on Windows, nullptr in the fakes) and portable pages don't read it.
inline constexpr int kLvnItemChanged = -101;
struct ListViewItemChanged {
  int item = -1;
  bool wasChecked = false;
  bool isChecked = false;
  bool wasSelected = false;
  bool isSelected = false;
};

// An up-down control is about to move (UDN_DELTAPOS). For this code the kit hands OnNotify an
// UpDownDeltaPos on every platform. A page that answers `result` non-zero keeps the control
// where it is (the page then sets the position itself).
inline constexpr int kUdnDeltaPos = -722;
struct UpDownDeltaPos {
  int pos = 0;    // the position before the move
  int delta = 0;  // the proposed change
};

// A date picker's calendar closed (DTN_CLOSEUP); no payload that portable pages read.
inline constexpr int kDtnCloseUp = -753;
// A date picker's date changed, by the calendar or the keyboard (DTN_DATETIMECHANGE).
inline constexpr int kDtnDateTimeChange = -759;

class Page {
 public:
  virtual ~Page() = default;

  // The page's dialog resource id: its template, its help topic, its code in kWmLsPageApply.
  virtual int DialogId() const = 0;

  // Offered every message before the typed operations below (theme painting: WM_ERASEBKGND,
  // WM_CTLCOLOR*, WM_DRAWITEM ...). Return true and set `result` to answer it; the typed
  // operation is then not called.
  virtual bool OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) {
    return false;
  }

  // WM_INITDIALOG: the page's controls exist. `controls` and `windowOps` stay valid until the
  // page's window is destroyed; `windowOps` may be null where no window operations exist.
  // Return true to let the platform put the focus on the first control, false when the page
  // set it itself.
  virtual bool OnInitDialog(Controls& controls, WindowHandle window, WindowOps* windowOps) { return true; }

  // PSN_SETACTIVE: false refuses to be shown (the sheet moves on in the same direction).
  virtual bool OnSetActive() { return true; }
  // PSN_KILLACTIVE: false keeps the user on the page (validation failed).
  virtual bool OnKillActive() { return true; }
  // PSN_APPLY: store what the user changed.
  virtual ApplyResult OnApply() { return ApplyResult::NoError; }
  // PSN_RESET: the sheet is cancelled.
  virtual void OnReset() {}
  // PSN_QUERYCANCEL: false refuses Cancel.
  virtual bool OnQueryCancel() { return true; }

  // PSN_WIZBACK / PSN_WIZNEXT: kWizardDefault, kWizardStay, or the dialog id of the page to go to.
  virtual int OnWizardBack() { return kWizardDefault; }
  virtual int OnWizardNext() { return kWizardDefault; }
  // PSN_WIZFINISH: false refuses to finish.
  virtual bool OnWizardFinish() { return true; }

  // WM_COMMAND from a control (id, notification code).
  virtual void OnCommand(int id, int code) {}
  // WM_NOTIFY other than the PSN_* above. Return true and set `result` when handled.
  virtual bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) { return false; }
  // WM_HELP / PSN_HELP. Dialogs answer with ShowHelp("CHARTX", DialogId()). True when handled.
  virtual bool OnHelp() { return false; }
  // Offered what the typed operations above left unhandled, and every WM_COMMAND after
  // OnCommand: this is where notifications are reflected to the owner-drawn controls that sent
  // them, after the page had its say. Return true and set `result` to answer it.
  virtual bool OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                                  std::intptr_t& result) {
    return false;
  }
};

}  // namespace orv
