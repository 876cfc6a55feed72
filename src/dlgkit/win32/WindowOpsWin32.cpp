#include "dlgkit/win32/WindowOpsWin32.h"

#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <string>

#include "dlgkit/ThemedControls.h"
#include "dlgkit/win32/ThemedControlsWin32.h"
#include "dlgkit/win32/WindowSubclass.h"

namespace orv {
namespace {

HWND H(WindowHandle window) { return static_cast<HWND>(window); }
HDC D(DeviceContext dc) { return static_cast<HDC>(dc); }
RECT ToRect(const WindowRect& r) { return RECT{r.left, r.top, r.right, r.bottom}; }

class Win32WindowOps final : public WindowOps {
 public:
  WindowHandle GetWindow(WindowHandle window, unsigned command) override { return ::GetWindow(H(window), command); }
  WindowHandle GetDlgItem(WindowHandle dialog, int id) override { return ::GetDlgItem(H(dialog), id); }
  int GetClassNameA(WindowHandle window, char* buffer, int size) override {
    if (size > 0) buffer[0] = '\0';
    return ::GetClassNameA(H(window), buffer, size);
  }
  int GetWindowTextA(WindowHandle window, char* buffer, int size) override {
    if (size > 0) buffer[0] = '\0';
    return ::GetWindowTextA(H(window), buffer, size);
  }
  std::int32_t GetWindowLongA(WindowHandle window, int index) override { return ::GetWindowLongA(H(window), index); }
  std::int32_t SetWindowLongA(WindowHandle window, int index, std::int32_t value) override {
    return ::SetWindowLongA(H(window), index, value);
  }
  int GetDlgCtrlID(WindowHandle window) override { return ::GetDlgCtrlID(H(window)); }
  std::intptr_t SendMessageA(WindowHandle window, unsigned message, std::uintptr_t wParam,
                             std::intptr_t lParam) override {
    return ::SendMessageA(H(window), message, wParam, lParam);
  }
  bool InvalidateRect(WindowHandle window, const WindowRect* rect, bool erase) override {
    RECT r{};
    if (rect) r = ToRect(*rect);
    return ::InvalidateRect(H(window), rect ? &r : nullptr, erase) != FALSE;
  }
  bool GetClientRect(WindowHandle window, WindowRect& rect) override {
    RECT r{};
    BOOL ok = ::GetClientRect(H(window), &r);
    rect = {r.left, r.top, r.right, r.bottom};
    return ok != FALSE;
  }
  BrushHandle CreateSolidBrush(std::uint32_t color) override { return ::CreateSolidBrush(color); }
  bool DeleteObject(BrushHandle brush) override { return ::DeleteObject(static_cast<HGDIOBJ>(brush)) != FALSE; }
  int FillRect(DeviceContext dc, const WindowRect& rect, BrushHandle brush) override {
    RECT r = ToRect(rect);
    return ::FillRect(D(dc), &r, static_cast<HBRUSH>(brush));
  }
  int SetBkMode(DeviceContext dc, int mode) override { return ::SetBkMode(D(dc), mode); }
  std::uint32_t SetTextColor(DeviceContext dc, std::uint32_t color) override { return ::SetTextColor(D(dc), color); }
  std::uint32_t SetBkColor(DeviceContext dc, std::uint32_t color) override { return ::SetBkColor(D(dc), color); }
  int GetDisplayLogPixelsY() override {
    // The system's DPI, which a process sees fixed from its start (a change takes a new logon):
    // the "DISPLAY" device is asked once, not at every dialog and theme load.
    static const int dpi = [] {
      HDC dc = ::CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
      if (!dc) return 96;
      const int answer = ::GetDeviceCaps(dc, LOGPIXELSY);
      ::DeleteDC(dc);
      return answer;
    }();
    return dpi;
  }
  bool SubclassWindow(WindowHandle window, COrvThemedControl& control) override {
    return SubclassWindowProc(H(window), &ThemedControlSubclassProc, &control);
  }
  void UnsubclassWindow(WindowHandle window, COrvThemedControl&) override {
    if (::IsWindow(H(window))) RemoveWindowSubclassProc(H(window), &ThemedControlSubclassProc);
  }
  int MeasureListBoxHorizontalExtent(WindowHandle listBox) override {
    HWND list = H(listBox);
    const LONG style = ::GetWindowLongA(list, GWL_STYLE);
    // An owner-drawn list without strings holds item data, not text: nothing to measure.
    if ((style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) && !(style & LBS_HASSTRINGS)) return 0;
    const LRESULT count = ::SendMessageA(list, LB_GETCOUNT, 0, 0);
    if (count <= 0) return 0;
    HDC dc = ::GetDC(list);
    if (!dc) return 0;
    HGDIOBJ oldFont = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageA(list, WM_GETFONT, 0, 0)));
    int widest = 0;
    std::string text;
    for (LRESULT i = 0; i < count; ++i) {
      LRESULT length = ::SendMessageA(list, LB_GETTEXTLEN, i, 0);
      if (length < 0) continue;
      text.assign(static_cast<size_t>(length) + 1, '\0');
      length = ::SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text.data()));
      if (length < 0) continue;
      SIZE size{};
      if (::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(length), &size))
        widest = std::max<int>(widest, size.cx);
    }
    ::SelectObject(dc, oldFont);
    ::ReleaseDC(list, dc);
    const int extent = widest + 2 * ::GetSystemMetrics(SM_CXEDGE) + 4;
    ::SendMessageA(list, LB_SETHORIZONTALEXTENT, extent, 0);
    return extent;
  }
};

}  // namespace

WindowOps& PlatformWindowOps() {
  static Win32WindowOps ops;
  return ops;
}

WindowOps& DefaultWindowOps() { return PlatformWindowOps(); }

}  // namespace orv
