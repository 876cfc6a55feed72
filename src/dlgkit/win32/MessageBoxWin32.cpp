// COrvMessageBox: the program's own message box, from a template built in memory at each use,
// themed like every dialog of the program, run by a message loop of its own (Ctrl+C copies the
// box, a button's mnemonic presses it) and modal to its owner.
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <string>
#include <vector>

#include "com/WideText.h"
#include "dlgkit/MessageBox.h"
#include "dlgkit/MessageBoxLayout.h"
#include "dlgkit/OrvDialog.h"

namespace {

using orv::MessageBoxStyle;

// A DLGTEMPLATE with its items, DWORD-aligned where the format asks.
class TemplateWriter {
 public:
  void Dialog(DWORD style, int items, const orv::DialogUnitRect& rect, const std::wstring& caption) {
    Dword(style);
    Dword(0);  // extended style
    Word(static_cast<WORD>(items));
    Rect(rect);
    Word(0);  // no menu
    Word(0);  // the dialog class
    Text(caption);
    Word(static_cast<WORD>(orv::kMessageBoxFontPoints));
    Text(orv::Widen(orv::kMessageBoxFontFace));
  }
  void Item(DWORD style, const orv::DialogUnitRect& rect, int id, WORD atom, const std::wstring& text) {
    Align();
    Dword(style | WS_CHILD | WS_VISIBLE);
    Dword(0);
    Rect(rect);
    Word(static_cast<WORD>(id));
    Word(0xFFFF);
    Word(atom);
    Text(text);
    Word(0);  // no creation data
  }
  const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  void Word(WORD w) { words_.push_back(w); }
  void Dword(DWORD d) { Word(LOWORD(d)), Word(HIWORD(d)); }
  void Rect(const orv::DialogUnitRect& r) {
    for (int v : {r.x, r.y, r.cx, r.cy}) Word(static_cast<WORD>(v));
  }
  void Text(const std::wstring& text) {
    for (wchar_t c : text) Word(static_cast<WORD>(c));
    Word(0);
  }
  void Align() {
    if (words_.size() % 2) Word(0);
  }
  std::vector<WORD> words_;  // vector storage is suitably aligned for DWORD
};

constexpr WORD kButtonAtom = 0x0080;
constexpr WORD kStaticAtom = 0x0082;

class COrvMessageBox : public COrvDialog<COrvMessageBox> {
 public:
  COrvMessageBox(std::string_view text, std::string_view caption, unsigned flags)
      : text_(orv::MessageBoxShownText(text)), caption_(caption), style_(orv::MessageBoxStyleFromFlags(flags)) {}

  int Run(HWND owner) {
    const orv::MessageBoxTemplate layout = orv::MessageBoxTemplateFor(style_);
    const bool icon = style_.iconResource != 0;
    TemplateWriter t;
    const int items = static_cast<int>(style_.buttons.size()) + 1 + (icon ? 1 : 0);
    t.Dialog(DS_SETFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU, items, {0, 0, layout.cx, layout.cy},
             orv::Widen(caption_));
    if (icon) t.Item(SS_ICON, layout.icon, orv::kMessageBoxIconId, kStaticAtom, L"");
    t.Item(SS_LEFT | SS_NOPREFIX, layout.text, orv::kMessageBoxTextId, kStaticAtom, L"");
    for (std::size_t i = 0; i < style_.buttons.size(); ++i) {
      const bool isDefault = static_cast<int>(i) == style_.defaultIndex;
      t.Item((isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | WS_TABSTOP | (i == 0 ? WS_GROUP : 0), layout.buttons[i],
             style_.buttons[i].id, kButtonAtom, orv::Widen(style_.buttons[i].text));
    }
    textRoom_ = layout.textRoom;

    HINSTANCE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&orv::MessageBoxStyleFromFlags), &module);
    HWND box =
        CreateDialogIndirectParamW(module, t.Get(), owner, &COrvMessageBox::Proc, reinterpret_cast<LPARAM>(this));
    if (box == nullptr) {
      if (failure_) std::rethrow_exception(failure_);
      return -1;
    }
    // Modal to the owner: disabled while the box is up.
    const bool disabledOwner = owner != nullptr && !EnableWindow(owner, FALSE);
    ShowWindow(box, SW_SHOW);

    result_ = -1;
    MSG msg;
    for (;;) {
      const BOOL got = GetMessageW(&msg, nullptr, 0, 0);
      if (got == 0) {
        if (msg.hwnd == box) break;                     // our own quit: the box is done
        PostQuitMessage(static_cast<int>(msg.wParam));  // the host's: hand it back to its loop
        if (result_ == -1) result_ = style_.cancelId;
        break;
      }
      if (got == -1) break;
      if (FilterKey(box, msg)) continue;
      if (!IsDialogMessageW(box, &msg)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
      }
    }
    // The owner comes back before the box goes, so activation returns to it.
    if (disabledOwner) EnableWindow(owner, TRUE);
    DestroyWindow(box);
    if (failure_) std::rethrow_exception(failure_);
    return result_;
  }

 private:
  static INT_PTR CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self =
        reinterpret_cast<COrvMessageBox*>(message == WM_INITDIALOG ? lParam : GetWindowLongPtrW(window, DWLP_USER));
    if (self == nullptr) return FALSE;
    if (message == WM_INITDIALOG) SetWindowLongPtrW(window, DWLP_USER, lParam);
    try {
      std::intptr_t result = 0;
      if (message == WM_INITDIALOG) return self->OnInit(window);
      if (message == WM_COMMAND && HIWORD(wParam) == 0) {
        self->OnButton(window, LOWORD(wParam));
        return TRUE;
      }
      if (self->ProcessThemeMessage(window, message, wParam, lParam, result) ||
          self->ReflectNotifications(window, message, wParam, lParam, result)) {
        SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
        // The colour messages answer with the brush itself.
        return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC ? static_cast<INT_PTR>(result) : TRUE;
      }
    } catch (...) {
      // No exception leaves a dialog procedure: the box ends, Run rethrows after it.
      if (!self->failure_) self->failure_ = std::current_exception();
      PostMessageW(window, WM_QUIT, 0, 0);
    }
    return FALSE;
  }

  BOOL OnInit(HWND window) {
    window_ = window;
    AttachWindow(orv::DefaultWindowOps(), window);
    SubclassControls();
    LoadTheme();
    if (style_.cancelId == -1) EnableMenuItem(GetSystemMenu(window, FALSE), SC_CLOSE, MF_BYCOMMAND | MF_GRAYED);
    if (style_.iconResource != 0) {
      SendDlgItemMessageW(window, orv::kMessageBoxIconId, STM_SETICON,
                          reinterpret_cast<WPARAM>(LoadIconW(nullptr, MAKEINTRESOURCEW(style_.iconResource))), 0);
    }
    SetDlgItemTextA(window, orv::kMessageBoxTextId, text_.c_str());
    FitText(window);
    CentreOnParent(window);
    // The focus goes to the button the flags name: the focused push button is the one Enter
    // presses. Having set the focus, init answers FALSE so the dialog manager leaves it there.
    // When the flags name a button the box doesn't have, the dialog manager's choice stands.
    if (style_.defaultIndex >= 0 && static_cast<std::size_t>(style_.defaultIndex) < style_.buttons.size()) {
      SetFocus(GetDlgItem(window, style_.buttons[static_cast<std::size_t>(style_.defaultIndex)].id));
      return FALSE;
    }
    return TRUE;
  }

  // Measures the text at the text control's width and grows the box around it.
  void FitText(HWND window) {
    HWND text = GetDlgItem(window, orv::kMessageBoxTextId);
    RECT textRect = Child(window, text);
    RECT room = {0, 0, 1, textRoom_};
    MapDialogRect(window, &room);
    RECT margin = {0, 0, 7, 0};
    MapDialogRect(window, &margin);
    RECT client;
    GetClientRect(window, &client);

    const std::wstring wide = orv::Widen(text_);
    RECT measured = {0, 0, textRect.right - textRect.left, 0};
    if (!wide.empty()) {
      HDC dc = GetDC(text);
      HGDIOBJ old = SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
      DrawTextW(dc, wide.c_str(), static_cast<int>(wide.size()), &measured, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
      SelectObject(dc, old);
      ReleaseDC(text, dc);
    }
    const int measuredHeight = measured.bottom - measured.top;
    const int measuredWidth = measured.right - measured.left;
    RECT iconRect{};
    HWND icon = GetDlgItem(window, orv::kMessageBoxIconId);
    if (icon) iconRect = Child(window, icon);
    const int besideButtons = client.right - textRect.left - margin.right;
    const orv::MessageBoxFit fit =
        orv::FitMessageBoxText(textRect.top, room.bottom, icon != nullptr, iconRect.top, iconRect.bottom - iconRect.top,
                               measuredWidth, measuredHeight, besideButtons);
    MoveWindow(text, textRect.left, fit.textTop, besideButtons + fit.growWidth, fit.textHeight, FALSE);
    if (fit.growWidth == 0 && fit.growHeight == 0) return;
    RECT frame;
    GetWindowRect(window, &frame);
    SetWindowPos(window, nullptr, 0, 0, frame.right - frame.left + fit.growWidth,
                 frame.bottom - frame.top + fit.growHeight, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (const orv::MessageBoxButton& button : style_.buttons) {
      HWND control = GetDlgItem(window, button.id);
      const RECT r = Child(window, control);
      SetWindowPos(control, nullptr, r.left + fit.growWidth, r.top + fit.growHeight, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
  }

  static RECT Child(HWND window, HWND child) {
    RECT r{};
    GetWindowRect(child, &r);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&r), 2);
    return r;
  }

  // Over the owner, or the work area without one; kept on the owner's monitor.
  static void CentreOnParent(HWND window) {
    RECT box, area;
    GetWindowRect(window, &box);
    HWND parent = GetWindow(window, GW_OWNER);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(parent ? parent : window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    if (parent == nullptr || !GetWindowRect(parent, &area)) area = monitor.rcWork;
    const int cx = box.right - box.left, cy = box.bottom - box.top;
    int x = area.left + ((area.right - area.left) - cx) / 2;
    int y = area.top + ((area.bottom - area.top) - cy) / 2;
    x = std::max<int>(monitor.rcWork.left, std::min<int>(x, monitor.rcWork.right - cx));
    y = std::max<int>(monitor.rcWork.top, std::min<int>(y, monitor.rcWork.bottom - cy));
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

  void OnButton(HWND window, int id) {
    const int result = orv::MessageBoxCommandResult(style_, id);
    if (result == 0) return;  // Esc or Close on a box that cannot be cancelled
    result_ = result;
    PostMessageW(window, WM_QUIT, 0, 0);
  }

  bool FilterKey(HWND box, const MSG& msg) {
    if (msg.hwnd != box && !IsChild(box, msg.hwnd)) return false;
    const bool ctrl = GetKeyState(VK_CONTROL) < 0;
    const bool alt = GetKeyState(VK_MENU) < 0;
    if (msg.message == WM_KEYDOWN && ctrl && msg.wParam == 'C') {
      CopyToClipboard(box);
      return true;
    }
    if (msg.message == WM_CHAR && !ctrl && !alt && msg.wParam < 0x80) {
      if (const int id = orv::MessageBoxMnemonic(style_, static_cast<char>(msg.wParam))) {
        OnButton(box, id);
        return true;
      }
    }
    return false;
  }

  void CopyToClipboard(HWND box) {
    const std::wstring text = orv::Widen(orv::MessageBoxClipboardText(caption_, text_, style_));
    if (!OpenClipboard(box)) return;
    EmptyClipboard();
    const SIZE_T bytes = (text.size() + 1) * sizeof(wchar_t);
    if (HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes)) {
      if (void* data = GlobalLock(memory)) {
        memcpy(data, text.c_str(), bytes);
        GlobalUnlock(memory);
        if (!SetClipboardData(CF_UNICODETEXT, memory)) GlobalFree(memory);
      } else {
        GlobalFree(memory);
      }
    }
    CloseClipboard();
  }

  std::string text_;
  std::string caption_;
  MessageBoxStyle style_;
  int textRoom_ = 0;
  int result_ = -1;
  HWND window_ = nullptr;
  std::exception_ptr failure_;
};

}  // namespace

int OrvMessageBox(orv::WindowHandle owner, std::string_view text, std::string_view caption, unsigned flags) {
  HWND ownerWindow = static_cast<HWND>(owner);
  if (ownerWindow && !(IsWindow(ownerWindow) && IsWindowVisible(ownerWindow))) ownerWindow = nullptr;
  COrvMessageBox box(text, caption, flags);
  return box.Run(ownerWindow);
}
