// The Windows half of the themed controls: painting with the theme's colours. Until a control
// has received a theme, every message goes to the control's own procedure untouched.
#include "dlgkit/win32/ThemedControlsWin32.h"

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>

#include "dlgkit/ThemedControls.h"
#include "dlgkit/win32/WindowSubclass.h"

namespace orv {
namespace {

struct GdiDeleter {
  void operator()(void* object) const { ::DeleteObject(static_cast<HGDIOBJ>(object)); }
};
using OwnedBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, GdiDeleter>;
using OwnedPen = std::unique_ptr<std::remove_pointer_t<HPEN>, GdiDeleter>;

OwnedBrush SolidBrush(COLORREF color) { return OwnedBrush(::CreateSolidBrush(color)); }

// Selects an object into a DC for a scope.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), old_(object ? ::SelectObject(dc, object) : nullptr) {}
  ~Selected() {
    if (old_) ::SelectObject(dc_, old_);
  }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ old_;
};

// BeginPaint/EndPaint, or the DC that WM_PRINTCLIENT hands over.
class PaintDc {
 public:
  PaintDc(HWND window, HDC given) : window_(window), dc_(given) {
    if (!dc_) dc_ = ::BeginPaint(window_, &ps_), painting_ = true;
  }
  ~PaintDc() {
    if (painting_) ::EndPaint(window_, &ps_);
  }
  PaintDc(const PaintDc&) = delete;
  PaintDc& operator=(const PaintDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
  PAINTSTRUCT ps_{};
  bool painting_ = false;
};

void Fill(HDC dc, const RECT& rect, COLORREF color) {
  OwnedBrush brush = SolidBrush(color);
  ::FillRect(dc, &rect, brush.get());
}

void Frame(HDC dc, const RECT& rect, COLORREF color) {
  OwnedBrush brush = SolidBrush(color);
  ::FrameRect(dc, &rect, brush.get());
}

std::string WindowText(HWND window) {
  int length = ::GetWindowTextLengthA(window);
  std::string text(static_cast<size_t>(length > 0 ? length : 0) + 1, '\0');
  int copied = ::GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<size_t>(copied > 0 ? copied : 0));
  return text;
}

HFONT FontOf(HWND window) { return reinterpret_cast<HFONT>(::SendMessageA(window, WM_GETFONT, 0, 0)); }

void DrawLabel(HDC dc, HWND window, const std::string& text, RECT rect, COLORREF color, UINT format) {
  Selected font(dc, FontOf(window));
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, color);
  // Mnemonics are shown as the system shows them; the underline follows the keyboard cue state.
  if (::SendMessageA(window, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL) format |= DT_HIDEPREFIX;
  ::DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &rect, format);
}

bool HasFocus(HWND window) { return ::GetFocus() == window; }

bool ShowFocusCue(HWND window) { return !(::SendMessageA(window, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS); }

void PaintPushButton(HWND window, HDC dc, const COrvButton& button) {
  RECT rect;
  ::GetClientRect(window, &rect);
  const LRESULT state = ::SendMessageA(window, BM_GETSTATE, 0, 0);
  const bool pushed = (state & BST_PUSHED) != 0;
  const bool enabled = ::IsWindowEnabled(window) != FALSE;
  const bool isDefault = (::GetWindowLongA(window, GWL_STYLE) & 15) == BS_DEFPUSHBUTTON;
  Fill(dc, rect, pushed ? button.selectedColor : button.faceColor);
  RECT edge = rect;
  if (isDefault) {
    Frame(dc, edge, button.textColor);
    ::InflateRect(&edge, -1, -1);
  }
  ::DrawEdge(dc, &edge, pushed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
  RECT textRect = rect;
  if (pushed) ::OffsetRect(&textRect, 1, 1);
  DrawLabel(dc, window, WindowText(window), textRect, enabled ? button.textColor : button.disabledColor,
            DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  if (HasFocus(window) && ShowFocusCue(window)) {
    RECT focus = rect;
    ::InflateRect(&focus, -4, -4);
    ::DrawFocusRect(dc, &focus);
  }
}

void PaintRadioOrCheck(HWND window, HDC dc, const COrvRadioOrCheck& button) {
  RECT rect;
  ::GetClientRect(window, &rect);
  const LONG style = ::GetWindowLongA(window, GWL_STYLE);
  const int kind = style & 15;
  const bool radio = kind == BS_RADIOBUTTON || kind == BS_AUTORADIOBUTTON;
  const LRESULT check = ::SendMessageA(window, BM_GETCHECK, 0, 0);
  const LRESULT state = ::SendMessageA(window, BM_GETSTATE, 0, 0);
  const bool enabled = ::IsWindowEnabled(window) != FALSE;
  Fill(dc, rect, button.backgroundColor);

  const int box = ::GetSystemMetrics(SM_CXMENUCHECK);
  const bool textLeft = (style & BS_LEFTTEXT) != 0;
  RECT boxRect;
  boxRect.top = rect.top + (rect.bottom - rect.top - box) / 2;
  boxRect.bottom = boxRect.top + box;
  boxRect.left = textLeft ? rect.right - box : rect.left;
  boxRect.right = boxRect.left + box;
  UINT frame = radio ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
  if (check == BST_INDETERMINATE)
    frame = DFCS_BUTTON3STATE | DFCS_CHECKED;
  else if (check == BST_CHECKED)
    frame |= DFCS_CHECKED;
  if (!enabled) frame |= DFCS_INACTIVE;
  if (state & BST_PUSHED) frame |= DFCS_PUSHED;
  ::DrawFrameControl(dc, &boxRect, DFC_BUTTON, frame);

  RECT textRect = rect;
  if (textLeft)
    textRect.right = boxRect.left - 4;
  else
    textRect.left = boxRect.right + 4;
  const std::string text = WindowText(window);
  UINT format = DT_VCENTER | DT_SINGLELINE | (textLeft ? DT_RIGHT : DT_LEFT);
  if (style & BS_MULTILINE) format = DT_WORDBREAK | (textLeft ? DT_RIGHT : DT_LEFT);
  DrawLabel(dc, window, text, textRect, enabled ? button.textColor : button.disabledColor, format);
  if (HasFocus(window) && ShowFocusCue(window) && !text.empty()) {
    RECT measured = textRect;
    Selected font(dc, FontOf(window));
    ::DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &measured, format | DT_CALCRECT);
    const int height = measured.bottom - measured.top;
    measured.top = textRect.top + (textRect.bottom - textRect.top - height) / 2;
    measured.bottom = measured.top + height;
    ::InflateRect(&measured, 1, 1);
    ::DrawFocusRect(dc, &measured);
  }
}

void PaintGroupBox(HWND window, HDC dc, const COrvGroupBox& group) {
  RECT rect;
  ::GetClientRect(window, &rect);
  const std::string text = WindowText(window);
  Selected font(dc, FontOf(window));
  TEXTMETRICA metrics{};
  ::GetTextMetricsA(dc, &metrics);
  RECT frame = rect;
  frame.top += metrics.tmHeight / 2;
  Frame(dc, frame, group.frameColor);
  if (text.empty()) return;
  RECT textRect{rect.left + 8, rect.top, rect.right - 8, rect.top + metrics.tmHeight};
  RECT measured = textRect;
  ::DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &measured, DT_SINGLELINE | DT_CALCRECT);
  measured.left -= 2;
  measured.right = std::min(measured.right + 2, textRect.right);
  // The label's gap in the frame takes the colour the dialog gives statics.
  HWND parent = ::GetParent(window);
  auto background = reinterpret_cast<HBRUSH>(
      ::SendMessageA(parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(window)));
  if (background) ::FillRect(dc, &measured, background);
  DrawLabel(dc, window, text, textRect, group.textColor, DT_SINGLELINE | DT_LEFT | DT_END_ELLIPSIS);
}

void DrawArrow(HDC dc, const RECT& area, bool up, bool horizontal, COLORREF color) {
  const int cx = (area.left + area.right) / 2, cy = (area.top + area.bottom) / 2;
  const int w = area.right - area.left, h = area.bottom - area.top;
  const int size = std::max(2, std::min(w, h) / 3);
  POINT points[3];
  if (!horizontal) {
    const int dir = up ? -1 : 1;
    points[0] = {cx - size, cy - dir * size / 2};
    points[1] = {cx + size, cy - dir * size / 2};
    points[2] = {cx, cy + dir * size / 2 + (up ? 0 : 0)};
  } else {
    const int dir = up ? 1 : -1;  // up = right
    points[0] = {cx - dir * size / 2, cy - size};
    points[1] = {cx - dir * size / 2, cy + size};
    points[2] = {cx + dir * size / 2, cy};
  }
  OwnedBrush brush = SolidBrush(color);
  OwnedPen pen(::CreatePen(PS_SOLID, 1, color));
  Selected b(dc, brush.get());
  Selected p(dc, pen.get());
  ::Polygon(dc, points, 3);
}

void PaintUpDown(HWND window, HDC dc, const COrvUpDownCtrl& upDown) {
  RECT rect;
  ::GetClientRect(window, &rect);
  const bool horizontal = (::GetWindowLongA(window, GWL_STYLE) & UDS_HORZ) != 0;
  const COLORREF arrow = ::IsWindowEnabled(window) ? upDown.arrowColor : upDown.disabledColor;
  Fill(dc, rect, upDown.backgroundColor);
  RECT first = rect, second = rect;
  if (horizontal)
    first.right = second.left = (rect.left + rect.right) / 2;
  else
    first.bottom = second.top = (rect.top + rect.bottom) / 2;
  Frame(dc, first, upDown.frameColor);
  Frame(dc, second, upDown.frameColor);
  // Vertical: up on top; horizontal: left then right.
  DrawArrow(dc, first, !horizontal, horizontal, arrow);
  DrawArrow(dc, second, horizontal, horizontal, arrow);
}

void PaintTab(HWND window, HDC dc, const COrvTabbyCtrl& tab) {
  RECT rect;
  ::GetClientRect(window, &rect);
  Fill(dc, rect, tab.backgroundColor);
  const int count = static_cast<int>(::SendMessageA(window, TCM_GETITEMCOUNT, 0, 0));
  const int selected = static_cast<int>(::SendMessageA(window, TCM_GETCURSEL, 0, 0));
  RECT page = rect;
  ::SendMessageA(window, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
  RECT pageFrame = rect;
  pageFrame.top = page.top - 2;
  Frame(dc, pageFrame, tab.faceColor);
  for (int i = 0; i < count; ++i) {
    RECT item{};
    if (!::SendMessageA(window, TCM_GETITEMRECT, i, reinterpret_cast<LPARAM>(&item))) continue;
    const bool isSelected = i == selected;
    if (isSelected) {
      ::InflateRect(&item, 2, 2);
      item.bottom -= 1;
    }
    Fill(dc, item, isSelected ? tab.backgroundColor : tab.faceColor);
    Frame(dc, item, tab.faceColor);
    if (isSelected) {
      RECT bar{item.left, item.top, item.right, item.top + 3};
      Fill(dc, bar, tab.selectedColor);
      RECT joint{item.left + 1, item.bottom - 1, item.right - 1, item.bottom + 1};
      Fill(dc, joint, tab.backgroundColor);
    }
    char text[128] = {};
    TCITEMA data{};
    data.mask = TCIF_TEXT;
    data.pszText = text;
    data.cchTextMax = sizeof text;
    ::SendMessageA(window, TCM_GETITEMA, i, reinterpret_cast<LPARAM>(&data));
    DrawLabel(dc, window, text, item, tab.textColor, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  }
}

void PaintHeader(HWND window, HDC dc, const COrvHeader& header) {
  RECT rect;
  ::GetClientRect(window, &rect);
  Fill(dc, rect, header.faceColor);
  const int count = static_cast<int>(::SendMessageA(window, HDM_GETITEMCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    RECT item{};
    if (!::SendMessageA(window, HDM_GETITEMRECT, i, reinterpret_cast<LPARAM>(&item))) continue;
    char text[128] = {};
    HDITEMA data{};
    data.mask = HDI_TEXT | HDI_FORMAT;
    data.pszText = text;
    data.cchTextMax = sizeof text;
    ::SendMessageA(window, HDM_GETITEMA, i, reinterpret_cast<LPARAM>(&data));
    RECT textRect = item;
    ::InflateRect(&textRect, -6, 0);
    UINT align = (data.fmt & HDF_JUSTIFYMASK) == HDF_RIGHT    ? DT_RIGHT
                 : (data.fmt & HDF_JUSTIFYMASK) == HDF_CENTER ? DT_CENTER
                                                              : DT_LEFT;
    DrawLabel(dc, window, text, textRect, header.textColor, align | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    RECT separator{item.right - 1, item.top + 3, item.right, item.bottom - 3};
    Fill(dc, separator, header.textColor);
  }
  RECT bottom{rect.left, rect.bottom - 1, rect.right, rect.bottom};
  Fill(dc, bottom, header.textColor);
}

// Paints the control in its theme; false for the kinds the dialog's WM_CTLCOLOR* answers colour.
bool Paint(HWND window, HDC given, COrvThemedControl& control) {
  switch (control.Kind()) {
    case ThemedControlKind::Button: {
      PaintDc dc(window, given);
      PaintPushButton(window, dc.get(), static_cast<COrvButton&>(control));
      return true;
    }
    case ThemedControlKind::RadioOrCheck: {
      PaintDc dc(window, given);
      PaintRadioOrCheck(window, dc.get(), static_cast<COrvRadioOrCheck&>(control));
      return true;
    }
    case ThemedControlKind::GroupBox: {
      PaintDc dc(window, given);
      PaintGroupBox(window, dc.get(), static_cast<COrvGroupBox&>(control));
      return true;
    }
    case ThemedControlKind::UpDown: {
      PaintDc dc(window, given);
      PaintUpDown(window, dc.get(), static_cast<COrvUpDownCtrl&>(control));
      return true;
    }
    case ThemedControlKind::Tab: {
      PaintDc dc(window, given);
      PaintTab(window, dc.get(), static_cast<COrvTabbyCtrl&>(control));
      return true;
    }
    case ThemedControlKind::Header: {
      PaintDc dc(window, given);
      PaintHeader(window, dc.get(), static_cast<COrvHeader&>(control));
      return true;
    }
    default:
      return false;
  }
}

bool PaintsItself(ThemedControlKind kind) {
  switch (kind) {
    case ThemedControlKind::Button:
    case ThemedControlKind::RadioOrCheck:
    case ThemedControlKind::GroupBox:
    case ThemedControlKind::UpDown:
    case ThemedControlKind::Tab:
    case ThemedControlKind::Header:
      return true;
    default:
      return false;
  }
}

// Messages on which a button's own procedure draws straight to the screen; our picture is put
// back right after.
bool ButtonDrawsOn(UINT message, HWND window) {
  switch (message) {
    case BM_SETSTATE:
    case BM_SETCHECK:
    case BM_SETSTYLE:
    case BM_CLICK:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_SETTEXT:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CAPTURECHANGED:
    case WM_UPDATEUISTATE:
      return true;
    case WM_MOUSEMOVE:
      return ::GetCapture() == window;
    default:
      return false;
  }
}

}  // namespace

LRESULT ThemedControlSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data) {
  auto& control = *static_cast<COrvThemedControl*>(data);
  if (message == WM_NCDESTROY) {
    // The subclass goes with the window.
    control.DetachWindow();
    return CallOriginalProc(window, message, wParam, lParam);
  }
  // No exception leaves a window procedure; a failure here falls back to the control's own.
  try {
    std::intptr_t result = 0;
    if (control.OnMessage(message, wParam, lParam, result)) return result;
    if (!control.IsThemed()) return CallOriginalProc(window, message, wParam, lParam);

    const ThemedControlKind kind = control.Kind();
    if (PaintsItself(kind)) {
      switch (message) {
        case WM_PAINT:
          if (Paint(window, reinterpret_cast<HDC>(wParam), control)) return 0;
          break;
        case WM_PRINTCLIENT:
          if (Paint(window, reinterpret_cast<HDC>(wParam), control)) return 0;
          break;
        case WM_ERASEBKGND:
          return 1;  // the paint covers everything
        default:
          break;
      }
      const bool button = kind == ThemedControlKind::Button || kind == ThemedControlKind::RadioOrCheck;
      if (button && ButtonDrawsOn(message, window)) {
        LRESULT answer = CallOriginalProc(window, message, wParam, lParam);
        if (::IsWindow(window)) ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return answer;
      }
      if (kind == ThemedControlKind::Tab && (message == TCM_SETCURSEL || message == WM_SETFOCUS)) {
        LRESULT answer = CallOriginalProc(window, message, wParam, lParam);
        ::InvalidateRect(window, nullptr, FALSE);
        return answer;
      }
    }
    if (kind == ThemedControlKind::ComboBox && message == WM_CTLCOLORLISTBOX) {
      auto& combo = static_cast<COrvComboBox&>(control);
      if (combo.listBrush.get()) {
        HDC dc = reinterpret_cast<HDC>(wParam);
        ::SetTextColor(dc, combo.listTextColor);
        ::SetBkColor(dc, combo.listColor);
        return reinterpret_cast<LRESULT>(combo.listBrush.get());
      }
    }
  } catch (...) {
  }
  return CallOriginalProc(window, message, wParam, lParam);
}

COrvThemedControl* ThemedControlOf(HWND window) {
  return static_cast<COrvThemedControl*>(WindowSubclassData(window, &ThemedControlSubclassProc));
}

}  // namespace orv
