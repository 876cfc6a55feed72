#include "dlgkit/win32/DialogHost.h"

#include <commctrl.h>
#include <prsht.h>

namespace orv {

namespace {

// Messages whose answer a dialog procedure returns itself instead of through DWLP_MSGRESULT.
bool AnswersDirectly(UINT message) {
  switch (message) {
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_QUERYDRAGICON:
    case WM_INITDIALOG:
      return true;
    default:
      return false;
  }
}

int StateImage(UINT state) { return static_cast<int>((state & LVIS_STATEIMAGEMASK) >> 12); }

}  // namespace

DialogHost::DialogHost(Page& page, WindowOps* windowOps, std::function<void(HWND)> endRun)
    : page_(page), windowOps_(windowOps), endRun_(std::move(endRun)) {}

void DialogHost::RethrowFailure() const {
  if (failure_) std::rethrow_exception(failure_);
}

INT_PTR CALLBACK DialogHost::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DialogHost* attaching = nullptr;
  if (message == WM_INITDIALOG) {
    attaching = reinterpret_cast<DialogHost*>(lParam);
    if (attaching) attaching->plainDialog_ = true;
  }
  return Dispatch(window, message, wParam, lParam, attaching);
}

INT_PTR CALLBACK DialogHost::PropertyPageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DialogHost* attaching = nullptr;
  if (message == WM_INITDIALOG && lParam) {
    attaching = reinterpret_cast<DialogHost*>(reinterpret_cast<const PROPSHEETPAGEA*>(lParam)->lParam);
  }
  return Dispatch(window, message, wParam, lParam, attaching);
}

INT_PTR CALLBACK DialogHost::ChildPageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DialogHost* attaching = message == WM_INITDIALOG ? reinterpret_cast<DialogHost*>(lParam) : nullptr;
  return Dispatch(window, message, wParam, lParam, attaching);
}

INT_PTR DialogHost::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DialogHost* attaching) {
  if (attaching) {
    attaching->window_ = window;
    ::SetWindowLongPtrA(window, DWLP_USER, reinterpret_cast<LONG_PTR>(attaching));
  }
  auto* host = reinterpret_cast<DialogHost*>(::GetWindowLongPtrA(window, DWLP_USER));
  // Messages before WM_INITDIALOG (WM_SETFONT ...) have no page yet; after a failure the page
  // hears nothing more: its state is not to be trusted.
  if (!host || host->failure_) return FALSE;
  INT_PTR answer = FALSE;
  try {
    answer = host->Handle(message, wParam, lParam);
  } catch (...) {
    // Nothing may leave a dialog procedure (x64 Windows would swallow it, Wine would unwind
    // through the system's frames). Keep the first failure and end the run; the entry point
    // rethrows it once the window is gone.
    host->failure_ = std::current_exception();
    if (host->endRun_) {
      try {
        host->endRun_(window);
      } catch (...) {
      }
    }
    answer = FALSE;
  }
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrA(window, DWLP_USER, 0);
    host->controls_.reset();
    host->window_ = nullptr;
  }
  return answer;
}

INT_PTR DialogHost::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  std::intptr_t result = 0;
  if (message != WM_INITDIALOG && page_.OnAnyMessage(message, wParam, lParam, result)) {
    if (AnswersDirectly(message)) return static_cast<INT_PTR>(result);
    ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, static_cast<LONG_PTR>(result));
    return TRUE;
  }
  switch (message) {
    case WM_INITDIALOG: {
      controls_ = std::make_unique<Win32Controls>(window_);
      const bool defaultFocus = page_.OnInitDialog(*controls_, window_, windowOps_);
      // A plain dialog is shown once, so it is activated once, right after its creation.
      if (plainDialog_ && !page_.OnSetActive()) ::EndDialog(window_, IDCANCEL);
      return defaultFocus ? TRUE : FALSE;
    }
    case WM_COMMAND:
      HandleCommand(LOWORD(wParam), HIWORD(wParam));
      // A command that a control sent is offered for reflection too (an owner-drawn control
      // may want its own clicks); the dialog has handled the command either way.
      if (window_ && lParam) page_.OnUnhandledMessage(message, wParam, lParam, result);
      return TRUE;
    case WM_NOTIFY: {
      const auto* header = reinterpret_cast<const NMHDR*>(lParam);
      if (!header) return FALSE;
      LRESULT answer = 0;
      if (!HandleNotify(*header, lParam, answer)) return Unhandled(message, wParam, lParam);
      ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, static_cast<LONG_PTR>(answer));
      return TRUE;
    }
    case WM_HELP:
      return page_.OnHelp() ? TRUE : FALSE;
    default:
      return Unhandled(message, wParam, lParam);
  }
}

INT_PTR DialogHost::Unhandled(UINT message, WPARAM wParam, LPARAM lParam) {
  std::intptr_t result = 0;
  if (!page_.OnUnhandledMessage(message, wParam, lParam, result)) return FALSE;
  if (AnswersDirectly(message)) return static_cast<INT_PTR>(result);
  ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, static_cast<LONG_PTR>(result));
  return TRUE;
}

void DialogHost::HandleCommand(int id, int code) {
  page_.OnCommand(id, code);
  if (!plainDialog_ || code != BN_CLICKED) return;
  if (id == IDOK) {
    if (page_.OnKillActive() && page_.OnApply() == ApplyResult::NoError) ::EndDialog(window_, IDOK);
  } else if (id == IDCANCEL) {
    if (!page_.OnQueryCancel()) return;
    page_.OnReset();
    ::EndDialog(window_, IDCANCEL);
  }
}

bool DialogHost::HandleNotify(const NMHDR& header, LPARAM lParam, LRESULT& result) {
  const int code = static_cast<int>(header.code);
  // The sheet's notifications count only from the sheet (the page's parent) or the page itself.
  const bool fromSheet = header.hwndFrom == ::GetParent(window_) || header.hwndFrom == window_;
  if (fromSheet) {
    // The polarity of the sheet's answers, written once. The platform reads the answer as
    // "refuse" for PSN_KILLACTIVE, PSN_QUERYCANCEL and PSN_WIZFINISH (TRUE keeps the page or
    // the sheet), as "accept = 0, refuse = -1" for PSN_SETACTIVE, as "0 = the neighbour,
    // -1 = stay, else the dialog id to go to" for PSN_WIZBACK / PSN_WIZNEXT, and as a PSNRET_*
    // for PSN_APPLY. The Page operations all answer "true = go ahead".
    switch (header.code) {
      case PSN_SETACTIVE:
        result = page_.OnSetActive() ? 0 : -1;
        return true;
      case PSN_KILLACTIVE:
        result = page_.OnKillActive() ? FALSE : TRUE;
        return true;
      case PSN_APPLY:
        result = static_cast<LRESULT>(page_.OnApply());
        return true;
      case PSN_RESET:
        page_.OnReset();
        result = 0;
        return true;
      case PSN_QUERYCANCEL:
        result = page_.OnQueryCancel() ? FALSE : TRUE;
        return true;
      case PSN_WIZBACK:
        result = page_.OnWizardBack();
        return true;
      case PSN_WIZNEXT:
        result = page_.OnWizardNext();
        return true;
      case PSN_WIZFINISH:
        result = page_.OnWizardFinish() ? FALSE : TRUE;
        return true;
      case PSN_HELP:
        page_.OnHelp();
        result = 0;
        return true;
      default:
        break;
    }
  }
  std::intptr_t answer = 0;
  bool handled = false;
  if (header.code == LVN_ITEMCHANGED) {
    // Portable pages see a list view's change in the kit's own terms.
    const auto& change = *reinterpret_cast<const NMLISTVIEW*>(lParam);
    if (!(change.uChanged & LVIF_STATE)) return false;
    ListViewItemChanged portable;
    portable.item = change.iItem;
    portable.wasChecked = StateImage(change.uOldState) == 2;
    portable.isChecked = StateImage(change.uNewState) == 2;
    portable.wasSelected = (change.uOldState & LVIS_SELECTED) != 0;
    portable.isSelected = (change.uNewState & LVIS_SELECTED) != 0;
    handled = page_.OnNotify(static_cast<int>(header.idFrom), kLvnItemChanged, &portable, answer);
  } else if (header.code == UDN_DELTAPOS) {
    // The same for an up-down's move: the page may answer non-zero to keep the control still.
    const auto& move = *reinterpret_cast<const NMUPDOWN*>(lParam);
    UpDownDeltaPos portable{move.iPos, move.iDelta};
    handled = page_.OnNotify(static_cast<int>(header.idFrom), kUdnDeltaPos, &portable, answer);
  } else {
    handled = page_.OnNotify(static_cast<int>(header.idFrom), code, &header, answer);
  }
  result = static_cast<LRESULT>(answer);
  return handled;
}

namespace {

template <class Create>
INT_PTR RunModal(Page& page, WindowOps* windowOps, Create create) {
  DialogHost host(page, windowOps, [](HWND window) { ::EndDialog(window, -1); });
  const INT_PTR result = create(host);
  host.RethrowFailure();
  return result;
}

}  // namespace

INT_PTR RunPageDialog(Page& page, HINSTANCE module, int templateId, HWND owner, WindowOps* windowOps) {
  return RunModal(page, windowOps, [&](DialogHost& host) {
    return ::DialogBoxParamA(module, MAKEINTRESOURCEA(templateId), owner, &DialogHost::DialogProc,
                             reinterpret_cast<LPARAM>(&host));
  });
}

INT_PTR RunPageDialogIndirect(Page& page, const DLGTEMPLATE* dialogTemplate, HWND owner, WindowOps* windowOps) {
  return RunModal(page, windowOps, [&](DialogHost& host) {
    return ::DialogBoxIndirectParamA(::GetModuleHandleA(nullptr), dialogTemplate, owner, &DialogHost::DialogProc,
                                     reinterpret_cast<LPARAM>(&host));
  });
}

}  // namespace orv
