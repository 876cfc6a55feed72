#include "ScriptDriver.h"

#include "WindowCapture.h"
#include "com/WideText.h"
#include "dlgkit/ColorPicker.h"
#include "xml/StrFormat.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>

namespace orv::host_app {
namespace {

constexpr UINT kTickMilliseconds = 25;
// The sheet's first paint takes tens of milliseconds under Wine; a user doesn't click sooner.
constexpr DWORD kSettleMilliseconds = 150;
constexpr DWORD kSheetTimeoutMilliseconds = 15000;
// A command that opens a window of its own (a message box) and waits on it this long is stuck.
constexpr DWORD kStuckMilliseconds = 5000;
// A colour button's drop-down closes within this after a cell is clicked.
constexpr DWORD kColorCloseMilliseconds = 10000;

ScriptDriver* g_running = nullptr;  // the timer callback carries no context

std::string ClassOf(HWND window) {
  char name[64] = {};
  GetClassNameA(window, name, sizeof(name));
  return name;
}

bool Elapsed(DWORD now, DWORD since, DWORD span) { return now - since >= span; }

BOOL CALLBACK FindSheetProc(HWND window, LPARAM found) {
  // Only a property sheet answers PSM_GETTABCONTROL.
  if (IsWindowVisible(window) && SendMessageW(window, PSM_GETTABCONTROL, 0, 0) != 0) {
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  }
  return TRUE;
}

// A control of the current page that a user could operate, or an error text.
std::string UsableControl(HWND sheet, int id, HWND& control) {
  const auto page = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
  if (page == nullptr) return "the sheet has no current page";
  control = GetDlgItem(page, id);
  if (control == nullptr) return StrFormat("the current page has no control %d", id);
  if (!IsWindowVisible(control)) return StrFormat("control %d is hidden", id);
  if (!IsWindowEnabled(control)) return StrFormat("control %d is disabled", id);
  return {};
}

// A row of a list box of several selections clicked as a user clicks it: the left button pressed
// and released on the middle of the row (scrolled into view first, as a user would), so the list
// itself toggles the row and notifies its parent as it does on a click. A list of extended
// selections toggles a row on a click with Ctrl held. The button messages go to the list
// directly, not through the input queue: there two clicks on one spot in quick succession make
// a double click, which toggles nothing, and a script's clicks are always single ones.
std::string ClickListRow(HWND list, int id, int row) {
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(list, GWL_STYLE));
  if ((style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) == 0) {
    return StrFormat("control %d is a list box of one selection: select its rows", id);
  }
  const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
  if (row >= count) return StrFormat("control %d has %ld items, no item %d", id, static_cast<long>(count), row);
  RECT client{}, item{};
  GetClientRect(list, &client);
  SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  if (item.top < client.top || item.bottom > client.bottom) {
    SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  POINT at{(item.left + std::min(item.right, client.right)) / 2, (item.top + item.bottom) / 2};
  POINT onScreen = at;
  ClientToScreen(list, &onScreen);
  if (WindowFromPoint(onScreen) != list) return StrFormat("row %d of control %d is covered by another window", row, id);
  const WPARAM keys = (style & LBS_EXTENDEDSEL) != 0 ? MK_CONTROL : 0;
  const LPARAM point = MAKELPARAM(at.x, at.y);
  SendMessageW(list, WM_LBUTTONDOWN, keys | MK_LBUTTON, point);
  SendMessageW(list, WM_LBUTTONUP, keys, point);
  return {};
}

// The colour drop-down of this thread that is shown: a window of template 311 (its grid takes the
// placeholder's id, beside the "Line Colors" switch and the "Hide" check).
BOOL CALLBACK FindColorPopupProc(HWND window, LPARAM found) {
  if (IsWindowVisible(window) && GetDlgItem(window, kIdcColorGrid) != nullptr &&
      GetDlgItem(window, kIdcColorListMode) != nullptr && GetDlgItem(window, kIdcNoColor) != nullptr) {
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  }
  return TRUE;
}

HWND FindColorPopup() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindColorPopupProc, reinterpret_cast<LPARAM>(&found));
  return found;
}

// A colour chosen as a user chooses it: a click on the button drops its grid down, a left click on
// the middle of a cell (placed as the grid places its cells, at the screen's scale) picks it, and
// the drop-down closes by its own posted messages, which run here until it has.
std::string PickGridColor(HWND button, int id, int cell) {
  SendMessageW(button, BM_CLICK, 0, 0);
  const HWND popup = FindColorPopup();
  if (popup == nullptr) return StrFormat("control %d opened no colour drop-down", id);
  // The grid takes the placeholder's place and id, right behind it: the child of that id that
  // isn't the placeholder's static.
  HWND grid = nullptr;
  for (HWND child = GetWindow(popup, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if (GetDlgCtrlID(child) == kIdcColorGrid && _stricmp(ClassOf(child).c_str(), "Static") != 0) grid = child;
  }
  if (grid == nullptr) return StrFormat("the drop-down of control %d has no colour grid", id);
  RECT client{};
  GetClientRect(grid, &client);
  const HDC screen = GetDC(nullptr);
  const double scale = GetDeviceCaps(screen, LOGPIXELSY) / 96.0;
  ReleaseDC(nullptr, screen);
  ColorGrid geometry(NewerColorPalette(), scale);
  geometry.Layout(client.right, client.bottom);
  const WindowRect r = geometry.CellRect(cell);
  const LPARAM point = MAKELPARAM((r.left + r.right) / 2, (r.top + r.bottom) / 2);
  SendMessageW(grid, WM_LBUTTONDOWN, MK_LBUTTON, point);
  SendMessageW(grid, WM_LBUTTONUP, 0, point);
  const DWORD since = GetTickCount();
  while (IsWindowVisible(popup)) {
    if (Elapsed(GetTickCount(), since, kColorCloseMilliseconds)) {
      SendMessageW(popup, WM_COMMAND, IDCANCEL, 0);
      return StrFormat("the drop-down of control %d stayed open (cell %d holds the button's colour?)", id, cell);
    }
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&msg);
      DispatchMessageW(&msg);
    }
    if (IsWindowVisible(popup)) Sleep(10);
  }
  return {};
}

std::string WindowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return Narrow(text, CP_UTF8);
}

std::string ItemText(HWND control, bool combo, WPARAM index) {
  const LRESULT length = SendMessageW(control, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, index, 0);
  if (length < 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const LRESULT got =
      SendMessageW(control, combo ? CB_GETLBTEXT : LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()));
  text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return Narrow(text, CP_UTF8);
}

// What a control shows, as a user reads it: a combo box its selected item; a list box its
// selected rows, joined by ", "; a check box or radio button "checked", "unchecked" or
// "indeterminate"; any other control its text.
std::string ShownText(HWND control) {
  const std::string kind = ClassOf(control);
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(control, GWL_STYLE));
  if (_stricmp(kind.c_str(), "ComboBox") == 0) {
    const LRESULT selected = SendMessageW(control, CB_GETCURSEL, 0, 0);
    return selected < 0 ? std::string() : ItemText(control, true, static_cast<WPARAM>(selected));
  }
  if (_stricmp(kind.c_str(), "ListBox") == 0) {
    std::string shown;
    if ((style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) == 0) {
      const LRESULT selected = SendMessageW(control, LB_GETCURSEL, 0, 0);
      return selected < 0 ? shown : ItemText(control, false, static_cast<WPARAM>(selected));
    }
    const LRESULT count = SendMessageW(control, LB_GETCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
      if (SendMessageW(control, LB_GETSEL, static_cast<WPARAM>(row), 0) <= 0) continue;
      if (!shown.empty()) shown += ", ";
      shown += ItemText(control, false, static_cast<WPARAM>(row));
    }
    return shown;
  }
  if (_stricmp(kind.c_str(), "Button") == 0) {
    switch (style & BS_TYPEMASK) {
      case BS_CHECKBOX:
      case BS_AUTOCHECKBOX:
      case BS_3STATE:
      case BS_AUTO3STATE:
      case BS_RADIOBUTTON:
      case BS_AUTORADIOBUTTON: {
        const LRESULT state = SendMessageW(control, BM_GETCHECK, 0, 0);
        return state == BST_CHECKED ? "checked" : state == BST_INDETERMINATE ? "indeterminate" : "unchecked";
      }
      default:
        break;
    }
  }
  return WindowText(control);
}

// A text as the script's messages quote it: line breaks and tabs as \r \n \t.
std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\r')
      quoted += "\\r";
    else if (c == '\n')
      quoted += "\\n";
    else if (c == '\t')
      quoted += "\\t";
    else
      quoted += c;
  }
  return quoted + "\"";
}

}  // namespace

HWND FindThreadSheet() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindSheetProc, reinterpret_cast<LPARAM>(&found));
  return found;
}

std::string CaptionOf(HWND window) {
  std::string caption(256, '\0');
  caption.resize(static_cast<std::size_t>(GetWindowTextA(window, caption.data(), 256)));
  return caption;
}

ScriptDriver::ScriptDriver(std::vector<ScriptStep> steps) : steps_(std::move(steps)) {}

ScriptDriver::~ScriptDriver() { KillTimerNow(); }

bool ScriptDriver::Start() {
  if (g_running != nullptr) return false;
  timer_ = SetTimer(nullptr, 0, kTickMilliseconds, &ScriptDriver::OnTimer);
  if (timer_ == 0) return false;
  g_running = this;
  started_ = GetTickCount();
  return true;
}

void ScriptDriver::Stop() {
  KillTimerNow();
  if (sheetSeen_ && next_ < steps_.size() && error_.empty()) {
    error_ = StrFormat("the sheet closed before command %d (\"%s\")", static_cast<int>(next_ + 1),
                       steps_[next_].source.c_str());
  }
}

void ScriptDriver::KillTimerNow() {
  if (timer_ != 0) KillTimer(nullptr, timer_);
  timer_ = 0;
  if (g_running == this) g_running = nullptr;
}

void CALLBACK ScriptDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  // No exception leaves a timer callback.
  try {
    if (g_running != nullptr) g_running->Tick();
  } catch (...) {
    if (g_running != nullptr) g_running->Fail("unexpected failure while running the script", FindThreadSheet());
  }
}

void ScriptDriver::Tick() {
  const DWORD now = GetTickCount();
  if (busy_) {
    // A command is still running: it opened a modal window of its own and waits on it.
    if (Elapsed(now, busySince_, kStuckMilliseconds)) {
      const HWND stuck = GetActiveWindow();
      if (stuck != nullptr && stuck != FindThreadSheet()) {
        if (error_.empty()) {
          error_ = StrFormat("command %d (\"%s\") left a window open (\"%s\")", static_cast<int>(next_ + 1),
                             steps_[next_].source.c_str(), CaptionOf(stuck).c_str());
        }
        PostMessageW(stuck, WM_COMMAND, IDCANCEL, 0);
        busySince_ = now;
      }
    }
    return;
  }
  if (!error_.empty()) {
    // A command failed while it ran (it left a window open): the sheet is cancelled too.
    Fail(error_, FindThreadSheet());
    return;
  }
  if (next_ >= steps_.size()) {
    KillTimerNow();
    return;
  }
  const HWND sheet = FindThreadSheet();
  if (sheet == nullptr) {
    if (sheetSeen_) {
      // The sheet closed before the script's end: say so after the modal call returns.
      Fail(StrFormat("the sheet closed before command %d (\"%s\")", static_cast<int>(next_ + 1),
                     steps_[next_].source.c_str()),
           nullptr);
    } else if (Elapsed(now, started_, kSheetTimeoutMilliseconds)) {
      Fail("no sheet appeared within 15 seconds", nullptr);
    }
    return;
  }
  if (!sheetSeen_) {
    sheetSeen_ = true;
    notBefore_ = now + kSettleMilliseconds;
    return;
  }
  if (static_cast<LONG>(now - notBefore_) < 0) return;

  const ScriptStep& step = steps_[next_];
  busy_ = true;
  busySince_ = now;
  std::string why;
  try {
    why = Run(step, sheet);
  } catch (...) {
    busy_ = false;
    throw;
  }
  busy_ = false;
  if (!why.empty()) {
    Fail(StrFormat("command %d (\"%s\"): %s", static_cast<int>(next_ + 1), step.source.c_str(), why.c_str()),
         FindThreadSheet());
    return;
  }
  // The command opened a window that had to be closed for it (a message box nobody answered): the
  // script fails there, also when it was the last command, and the sheet is cancelled.
  if (!error_.empty()) {
    Fail(error_, FindThreadSheet());
    return;
  }
  ++next_;
  if (step.op == ScriptOp::Wait) notBefore_ = GetTickCount() + static_cast<DWORD>(step.milliseconds);
  if (next_ == steps_.size()) KillTimerNow();
}

void ScriptDriver::Fail(std::string why, HWND sheet) {
  if (error_.empty()) error_ = std::move(why);
  KillTimerNow();
  // The user's way out of a dialog that can't be driven further.
  if (sheet != nullptr) SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
}

std::string ScriptDriver::Run(const ScriptStep& step, HWND sheet) {
  HWND control = nullptr;
  std::string why;
  switch (step.op) {
    case ScriptOp::Text: {
      if (!(why = UsableControl(sheet, step.id, control)).empty()) return why;
      const std::wstring text = Widen(step.text, CP_UTF8);
      SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
      SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(step.id, EN_CHANGE), reinterpret_cast<LPARAM>(control));
      return {};
    }
    case ScriptOp::Click:
      if (!(why = UsableControl(sheet, step.id, control)).empty()) return why;
      SendMessageW(control, BM_CLICK, 0, 0);
      return {};
    case ScriptOp::Select: {
      if (!(why = UsableControl(sheet, step.id, control)).empty()) return why;
      const std::string kind = ClassOf(control);
      const bool combo = _stricmp(kind.c_str(), "ComboBox") == 0;
      const bool list = _stricmp(kind.c_str(), "ListBox") == 0;
      if (!combo && !list) return StrFormat("control %d is a %s, not a combo or list box", step.id, kind.c_str());
      if (list && (GetWindowLongPtrW(control, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0) {
        return StrFormat("control %d is a list box of several selections: toggle its rows", step.id);
      }
      const LRESULT count = SendMessageW(control, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
      if (step.index >= count)
        return StrFormat("control %d has %ld items, no item %d", step.id, static_cast<long>(count), step.index);
      SendMessageW(control, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(step.index), 0);
      SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(step.id, combo ? CBN_SELCHANGE : LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(control));
      return {};
    }
    case ScriptOp::Toggle: {
      if (!(why = UsableControl(sheet, step.id, control)).empty()) return why;
      if (_stricmp(ClassOf(control).c_str(), "ListBox") != 0)
        return StrFormat("control %d is a %s, not a list box", step.id, ClassOf(control).c_str());
      return ClickListRow(control, step.id, step.index);
    }
    case ScriptOp::Expect: {
      // A user reads what is shown, enabled or not.
      const auto page = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
      control = page != nullptr ? GetDlgItem(page, step.id) : nullptr;
      if (control == nullptr) return StrFormat("the current page has no control %d", step.id);
      if (!IsWindowVisible(control)) return StrFormat("control %d is hidden", step.id);
      const std::string shown = ShownText(control);
      if (shown != step.text) {
        return StrFormat("control %d shows %s, not %s", step.id, Quoted(shown).c_str(), Quoted(step.text).c_str());
      }
      return {};
    }
    case ScriptOp::Spin: {
      if (!(why = UsableControl(sheet, step.id, control)).empty()) return why;
      if (ClassOf(control) != UPDOWN_CLASSA)
        return StrFormat("control %d is a %s, not an up-down", step.id, ClassOf(control).c_str());
      // What the control sends when an arrow is clicked; the page may take the move or refuse it.
      NMUPDOWN move{};
      move.hdr.hwndFrom = control;
      move.hdr.idFrom = static_cast<UINT_PTR>(step.id);
      move.hdr.code = UDN_DELTAPOS;
      move.iPos = static_cast<int>(SendMessageW(control, UDM_GETPOS32, 0, 0));
      move.iDelta = step.index;
      SendMessageW(GetParent(control), WM_NOTIFY, static_cast<WPARAM>(step.id), reinterpret_cast<LPARAM>(&move));
      return {};
    }
    case ScriptOp::Color:
      if (!(why = UsableControl(sheet, step.id, control)).empty()) return why;
      return PickGridColor(control, step.id, step.index);
    case ScriptOp::Tab: {
      const auto tabs = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
      const LRESULT count = tabs != nullptr ? SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0) : 0;
      if (step.index >= count)
        return StrFormat("the sheet has %ld tabs, no tab %d", static_cast<long>(count), step.index);
      if (!SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(step.index), 0)) {
        return StrFormat("the sheet refused to show tab %d", step.index);
      }
      return {};
    }
    case ScriptOp::Apply:
      SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_APPLYNOW, 0);
      return {};
    case ScriptOp::Ok:
      SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
      return {};
    case ScriptOp::Cancel:
      SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
      return {};
    case ScriptOp::Next:
      SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
      return {};
    case ScriptOp::Back:
      SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_BACK, 0);
      return {};
    case ScriptOp::Finish:
      SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_FINISH, 0);
      return {};
    case ScriptOp::Wait:
      return {};
    case ScriptOp::Screenshot: {
      const HRESULT hr = apps::CaptureWindowToPng(sheet, Widen(step.text, CP_UTF8));
      if (FAILED(hr)) return StrFormat("cannot write %s (0x%08lX)", step.text.c_str(), static_cast<unsigned long>(hr));
      return {};
    }
  }
  return "unknown command";
}

}  // namespace orv::host_app
