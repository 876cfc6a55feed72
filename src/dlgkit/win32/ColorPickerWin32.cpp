// The colour pickers' windows. What a click, a key or a cell means is decided by the portable
// ColorGrid and ColorPopupState; here are the windows, their painting and the platform's
// colour editor and menu.
#include "dlgkit/win32/ColorPickerWin32.h"

#include <commctrl.h>
#include <commdlg.h>
#include <objidl.h>  // PROPID, which gdiplus.h needs under WIN32_LEAN_AND_MEAN
#include <gdiplus.h>

#include <algorithm>
#include <string>

#include "dlgkit/CxRegKey.h"
#include "dlgkit/win32/SheetRunnerWin32.h"  // KitModule
#include "dlgkit/win32/WindowSubclass.h"

namespace orv {

COLORREF* SharedCustomColors() {
  static COLORREF colors[16] = {};
  return colors;
}

namespace {

// One solid brush for one fill or frame.
void FillColor(HDC dc, const RECT& rect, COLORREF color) {
  HBRUSH brush = ::CreateSolidBrush(color);
  ::FillRect(dc, &rect, brush);
  ::DeleteObject(brush);
}

void FrameColor(HDC dc, const RECT& rect, COLORREF color) {
  HBRUSH brush = ::CreateSolidBrush(color);
  ::FrameRect(dc, &rect, brush);
  ::DeleteObject(brush);
}

RECT ToRect(const WindowRect& r) { return RECT{r.left, r.top, r.right, r.bottom}; }

// GDI+ is started on first use (never from DllMain) and left running until the process ends.
bool GdiplusReady() {
  static const bool ready = [] {
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput input;
    return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
  }();
  return ready;
}

// The button's arrow, anti-aliased through GDI+; a GDI path when GDI+ can't be had. The figure
// is drawn at four times the size into a bitmap and reduced, so its edges are smooth.
bool FillTriangleGdiplus(HDC dc, const ColorButtonFigures& figures, COLORREF color, COLORREF background) {
  namespace gp = Gdiplus::DllExports;
  if (!GdiplusReady()) return false;
  const RECT strip = ToRect(figures.arrowStrip);
  const int width = strip.right - strip.left, height = strip.bottom - strip.top;
  if (width <= 0 || height <= 0) return true;
  auto argb = [](COLORREF c) -> Gdiplus::ARGB {
    return 0xFF000000u | (GetRValue(c) << 16) | (GetGValue(c) << 8) | GetBValue(c);
  };
  Gdiplus::GpBitmap* bitmap = nullptr;
  constexpr int kSuper = 4;
  if (gp::GdipCreateBitmapFromScan0(width * kSuper, height * kSuper, 0, PixelFormat32bppARGB, nullptr, &bitmap) !=
      Gdiplus::Ok)
    return false;
  bool drawn = false;
  Gdiplus::GpGraphics* canvas = nullptr;
  if (gp::GdipGetImageGraphicsContext(bitmap, &canvas) == Gdiplus::Ok) {
    gp::GdipGraphicsClear(canvas, argb(background));
    gp::GdipSetSmoothingMode(canvas, Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::GpSolidFill* brush = nullptr;
    if (gp::GdipCreateSolidFill(argb(color), &brush) == Gdiplus::Ok) {
      Gdiplus::PointF points[3];
      for (int i = 0; i < 3; ++i)
        points[i] = Gdiplus::PointF((figures.triangle[i].x - static_cast<float>(strip.left)) * kSuper,
                                    (figures.triangle[i].y - static_cast<float>(strip.top)) * kSuper);
      drawn = gp::GdipFillPolygon(canvas, brush, points, 3, Gdiplus::FillModeAlternate) == Gdiplus::Ok;
      gp::GdipDeleteBrush(brush);
    }
    gp::GdipDeleteGraphics(canvas);
  }
  // Each pixel is the mean of its 4 x 4 samples: Wine's GDI+ neither smooths fills nor filters
  // when it scales an image, and this gives the same edges on every platform.
  Gdiplus::GpBitmap* small = nullptr;
  if (drawn && gp::GdipCreateBitmapFromScan0(width, height, 0, PixelFormat32bppARGB, nullptr, &small) == Gdiplus::Ok) {
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) {
        unsigned sum[3] = {0, 0, 0};
        for (int sy = 0; sy < kSuper; ++sy)
          for (int sx = 0; sx < kSuper; ++sx) {
            Gdiplus::ARGB sample = 0;
            gp::GdipBitmapGetPixel(bitmap, x * kSuper + sx, y * kSuper + sy, &sample);
            sum[0] += (sample >> 16) & 0xFF, sum[1] += (sample >> 8) & 0xFF, sum[2] += sample & 0xFF;
          }
        constexpr unsigned kSamples = kSuper * kSuper;
        gp::GdipBitmapSetPixel(
            small, x, y, 0xFF000000u | ((sum[0] / kSamples) << 16) | ((sum[1] / kSamples) << 8) | (sum[2] / kSamples));
      }
    Gdiplus::GpGraphics* screen = nullptr;
    if (gp::GdipCreateFromHDC(dc, &screen) == Gdiplus::Ok) {
      drawn = gp::GdipDrawImageRectI(screen, small, strip.left, strip.top, width, height) == Gdiplus::Ok;
      gp::GdipDeleteGraphics(screen);
    } else {
      drawn = false;
    }
    gp::GdipDisposeImage(small);
  } else {
    drawn = false;
  }
  gp::GdipDisposeImage(bitmap);
  return drawn;
}

void FillTriangle(HDC dc, const ColorButtonFigures& figures, COLORREF color, COLORREF background) {
  if (FillTriangleGdiplus(dc, figures, color, background)) return;
  POINT points[3];
  for (int i = 0; i < 3; ++i)
    points[i] = {static_cast<LONG>(figures.triangle[i].x + 0.5f), static_cast<LONG>(figures.triangle[i].y + 0.5f)};
  HBRUSH brush = ::CreateSolidBrush(color);
  HPEN pen = ::CreatePen(PS_SOLID, 1, color);
  HGDIOBJ oldBrush = ::SelectObject(dc, brush);
  HGDIOBJ oldPen = ::SelectObject(dc, pen);
  ::BeginPath(dc);
  ::Polygon(dc, points, 3);
  ::EndPath(dc);
  ::StrokeAndFillPath(dc);
  ::SelectObject(dc, oldPen);
  ::SelectObject(dc, oldBrush);
  ::DeleteObject(pen);
  ::DeleteObject(brush);
}

}  // namespace
}  // namespace orv

// --- ColorWnd --------------------------------------------------------------------------------

ColorWnd::ColorWnd(const orv::ColorPalette& palette, double displayScale)
    : background(::GetSysColor(15)),
      selectionColor(::GetSysColor(13)),
      outerFrameColor(::GetSysColor(15)),
      grid_(palette, displayScale),
      frameBrush_(::CreateSolidBrush(0xC0C0C0)) {}

ColorWnd::~ColorWnd() {
  if (window_ && ::IsWindow(window_)) ::DestroyWindow(window_);
  ::DeleteObject(frameBrush_);
}

bool ColorWnd::Create(HWND placeholder) {
  if (window_ || !placeholder) return false;
  const HINSTANCE module = orv::KitModule();
  WNDCLASSA existing{};
  if (!::GetClassInfoA(module, kClassName, &existing)) {
    WNDCLASSA wc{};
    wc.lpfnWndProc = &ColorWnd::WindowProc;  // no CS_DBLCLKS: double clicks are made by hand
    wc.hInstance = module;
    wc.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    wc.lpszClassName = kClassName;
    if (!::RegisterClassA(&wc)) return false;
  }
  HWND parent = ::GetParent(placeholder);
  RECT rect;
  ::GetWindowRect(placeholder, &rect);
  ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
  const int id = ::GetDlgCtrlID(placeholder);
  HWND created = ::CreateWindowExA(0, kClassName, "", orv::kColorGridStyle, rect.left, rect.top, rect.right - rect.left,
                                   rect.bottom - rect.top, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                   module, this);
  if (!created) return false;
  // Right behind the placeholder in the tab order.
  ::SetWindowPos(created, placeholder, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  RECT client;
  ::GetClientRect(created, &client);
  grid_.Layout(client.right, client.bottom);
  return true;
}

void ColorWnd::InvalidateCell(int cell) {
  if (!window_ || cell < 0) return;
  RECT r = orv::ToRect(grid_.CellRect(cell));
  ::InflateRect(&r, 1, 1);  // the selection's frame reaches one pixel past the cell
  ::InvalidateRect(window_, &r, FALSE);
}

void ColorWnd::SelectColor(std::uint32_t color) {
  const orv::ColorGridAction action = grid_.SelectColor(color);
  InvalidateCell(action.invalidateOld);
  InvalidateCell(action.invalidateNew);
}

LRESULT CALLBACK ColorWnd::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<ColorWnd*>(reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
    ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    self->window_ = window;
  }
  auto* self = reinterpret_cast<ColorWnd*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
  if (!self) return ::DefWindowProcA(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    self->window_ = nullptr;
    ::SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    return ::DefWindowProcA(window, message, wParam, lParam);
  }
  // No exception leaves a window procedure; the message then has its default handling.
  try {
    return self->Handle(message, wParam, lParam);
  } catch (...) {
    return ::DefWindowProcA(window, message, wParam, lParam);
  }
}

void ColorWnd::Apply(const orv::ColorGridAction& action) {
  InvalidateCell(action.invalidateOld);
  InvalidateCell(action.invalidateNew);
  switch (action.kind) {
    case orv::ColorGridAction::NotifyParent:
      ::SendMessageA(::GetParent(window_), orv::kWmColorCellChanged, action.button, 0);
      break;
    case orv::ColorGridAction::EditCell:
      ::UpdateWindow(window_);
      EditCell(action.cell);
      break;
    default:
      break;
  }
}

LRESULT ColorWnd::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const int x = static_cast<short>(LOWORD(lParam)), y = static_cast<short>(HIWORD(lParam));
  switch (message) {
    case WM_PAINT: {
      PAINTSTRUCT ps;
      HDC dc = ::BeginPaint(window_, &ps);
      Paint(dc);
      ::EndPaint(window_, &ps);
      return 0;
    }
    case WM_PRINTCLIENT:
      Paint(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_ERASEBKGND:
      return 1;  // the paint covers everything
    case WM_LBUTTONDOWN: {
      const orv::ColorGridAction action = grid_.LeftButtonDown(x, y, ::GetTickCount64(), ::GetDoubleClickTime());
      if (action.kind == orv::ColorGridAction::SendDoubleClick)
        ::SendMessageA(window_, WM_LBUTTONDBLCLK, wParam, lParam);
      else
        Apply(action);
      return 0;
    }
    case WM_LBUTTONDBLCLK:
      Apply(grid_.DoubleClick(x, y));
      return 0;
    case WM_RBUTTONDOWN:
      Apply(grid_.RightButtonDown(x, y));
      return 0;
    case WM_CONTEXTMENU: {
      // A right click has usually closed the drop-down by now: no menu for a hidden grid.
      if (!::IsWindowVisible(window_)) return 0;
      POINT at{x, y};
      if (lParam == -1) ::GetCursorPos(&at);
      ContextMenu(at.x, at.y);
      return 0;
    }
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS;
    case WM_KEYDOWN:
      // The drop-down runs in whatever loop its owner's dialog runs, which doesn't translate
      // the popup's keys: Esc and Enter are told to the popup as its buttons would.
      if (wParam == VK_ESCAPE || wParam == VK_RETURN) {
        ::SendMessageA(::GetParent(window_), WM_COMMAND, MAKEWPARAM(wParam == VK_ESCAPE ? IDCANCEL : IDOK, BN_CLICKED),
                       0);
        return 0;
      }
      break;
    case WM_ORV_THEME:
      if (lParam) {
        const orv::ColorGridColors colors = orv::ColorGridThemeColors(*reinterpret_cast<const ThemeColors*>(lParam));
        background = colors.background;
        outerFrameColor = colors.outerFrame;
        selectionColor = colors.selection;
        ::InvalidateRect(window_, nullptr, TRUE);
      }
      return 0;
    default:
      break;
  }
  return ::DefWindowProcA(window_, message, wParam, lParam);
}

void ColorWnd::Paint(HDC dc) {
  RECT client;
  ::GetClientRect(window_, &client);
  orv::FillColor(dc, client, background);
  if (framed) orv::FrameColor(dc, client, outerFrameColor);
  const int inset = grid_.Inset();
  for (int i = 0; i < grid_.CellCount(); ++i) {
    RECT r = orv::ToRect(grid_.CellRect(i));
    ::InflateRect(&r, -inset, -inset);
    orv::FillColor(dc, r, grid_.CellColor(i));
    if (i != grid_.Selected()) {
      ::InflateRect(&r, 1, 1);
      ::FrameRect(dc, &r, frameBrush_);
    } else {
      for (int ring = 0; ring < 3; ++ring) {
        if (ring) ::InflateRect(&r, 1, 1);
        orv::FrameColor(dc, r, selectionColor);
      }
    }
  }
}

void ColorWnd::EditCell(int cell) {
  if (cell < 0 || cell >= grid_.CellCount()) return;
  CHOOSECOLORA choose{};
  choose.lStructSize = sizeof(choose);
  choose.hwndOwner = ::GetParent(window_);
  choose.rgbResult = grid_.CellColor(cell);
  choose.lpCustColors = orv::SharedCustomColors();
  choose.Flags = orv::kChooseColorFlags;
  const bool disable = disableTarget_ && ::IsWindowEnabled(disableTarget_);
  if (disable) ::EnableWindow(disableTarget_, FALSE);
  const BOOL chosen = ::ChooseColorA(&choose);
  if (disable) ::EnableWindow(disableTarget_, TRUE);
  if (chosen) Apply(grid_.ColorEdited(cell, choose.rgbResult));
}

void ColorWnd::ContextMenu(int x, int y) {
  HMENU menu = ::CreatePopupMenu();
  if (!menu) return;
  ::AppendMenuA(menu, MF_STRING, orv::kIdCustomizeColor, orv::kCustomizeColorText);
  const bool disable = disableTarget_ && ::IsWindowEnabled(disableTarget_);
  if (disable) ::EnableWindow(disableTarget_, FALSE);
  const int command = static_cast<int>(::TrackPopupMenu(menu, orv::kColorMenuFlags, x, y, 0, window_, nullptr));
  if (disable) ::EnableWindow(disableTarget_, TRUE);
  ::DestroyMenu(menu);
  if (command == orv::kIdCustomizeColor) EditCell(grid_.Selected());
}

// --- CSingleColorDlg -------------------------------------------------------------------------

CSingleColorDlg::CSingleColorDlg() = default;

CSingleColorDlg::~CSingleColorDlg() {
  if (window_ && ::IsWindow(window_)) ::DestroyWindow(window_);
}

bool CSingleColorDlg::Create(HINSTANCE module, HWND owner, HWND disableTarget, int templateId) {
  if (window_) return true;
  owner_ = owner;
  disableTarget_ = disableTarget;
  failure_ = nullptr;
  HWND created = ::CreateDialogParamA(module, MAKEINTRESOURCEA(templateId), owner, &CSingleColorDlg::DialogProc,
                                      reinterpret_cast<LPARAM>(this));
  if (created && failure_) {
    ::DestroyWindow(created);
    created = nullptr;
  }
  window_ = created;
  return created != nullptr;
}

INT_PTR CALLBACK CSingleColorDlg::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    ::SetWindowLongPtrA(window, DWLP_USER, lParam);
    reinterpret_cast<CSingleColorDlg*>(lParam)->window_ = window;
  }
  auto* self = reinterpret_cast<CSingleColorDlg*>(::GetWindowLongPtrA(window, DWLP_USER));
  if (!self) return FALSE;
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrA(window, DWLP_USER, 0);
    self->window_ = nullptr;
    self->grid_.reset();
    return FALSE;
  }
  // No exception leaves a window procedure: the first is kept, and the drop-down closes.
  try {
    return self->Handle(message, wParam, lParam);
  } catch (...) {
    if (!self->failure_) self->failure_ = std::current_exception();
    if (message != WM_INITDIALOG) ::PostMessageA(window, orv::kWmColorClose, orv::kColorDismiss, 0);
    return FALSE;
  }
}

void CSingleColorDlg::OnInit() {
  AttachWindow(orv::DefaultWindowOps(), window_);
  auto store = orv::CreateUserSettingsStore();
  grid_ = std::make_unique<ColorWnd>(orv::ColorPaletteFor(*store), GetDisplayScale());
  grid_->Create(::GetDlgItem(window_, orv::kIdcColorGrid));
  grid_->SetDisableTarget(disableTarget_);
  grid_->SelectColor(state.workingColor);

  list_ = ::GetDlgItem(window_, orv::kIdcColorList);
  ListView_SetExtendedListViewStyle(list_, orv::kColorListExStyle);
  LVCOLUMNA column{};
  column.mask = LVCF_WIDTH | LVCF_TEXT;
  column.pszText = const_cast<char*>("");
  column.cx = orv::ColorListSwatchColumnWidth(GetDisplayScale());
  ::SendMessageA(list_, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
  RECT listRect{};
  ::GetClientRect(list_, &listRect);
  column.pszText = const_cast<char*>(orv::kThemeColorColumn);
  column.cx = orv::ColorListTagColumnWidth(listRect.right - listRect.left, ::GetSystemMetrics(SM_CXVSCROLL));
  ::SendMessageA(list_, LVM_INSERTCOLUMNA, 1, reinterpret_cast<LPARAM>(&column));
  FillList();
  SubclassControls();
  LoadTheme();
}

void CSingleColorDlg::FillList() {
  for (const orv::ColorListRow& row : orv::ThemeColorRows()) {
    LVITEMA item{};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = static_cast<int>(::SendMessageA(list_, LVM_GETITEMCOUNT, 0, 0));
    item.pszText = const_cast<char*>(row.swatchText.c_str());
    item.lParam = static_cast<LPARAM>(row.color);
    const int index = static_cast<int>(::SendMessageA(list_, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item)));
    if (index < 0) continue;
    LVITEMA tag{};
    tag.iSubItem = 1;
    tag.pszText = const_cast<char*>(row.tag.c_str());
    ::SendMessageA(list_, LVM_SETITEMTEXTA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tag));
  }
}

std::uint32_t CSingleColorDlg::SelectedCellColor() const {
  return grid_ ? grid_->Grid().CellColor(grid_->Grid().Selected()) : 0;
}

bool CSingleColorDlg::IsSelfOrChild(HWND other) const {
  return other && (other == window_ || ::IsChild(window_, other));
}

void CSingleColorDlg::ShowMode() {
  if (grid_ && grid_->Window()) ::ShowWindow(grid_->Window(), state.listMode ? SW_HIDE : SW_SHOW);
  ::ShowWindow(list_, state.listMode ? SW_SHOW : SW_HIDE);
}

void CSingleColorDlg::Show(std::uint32_t color) {
  if (!window_) return;
  state.Begin(color);
  if (grid_) grid_->SelectColor(color);
  HWND hide = ::GetDlgItem(window_, orv::kIdcNoColor);
  ::ShowWindow(hide, offerNoColor ? SW_SHOW : SW_HIDE);
  ::CheckDlgButton(window_, orv::kIdcNoColor, state.NoColorChecked() ? BST_CHECKED : BST_UNCHECKED);

  RECT button{}, popup{};
  ::GetWindowRect(owner_, &button);
  ::GetWindowRect(window_, &popup);
  const orv::PopupPlace place = orv::PlaceColorPopup(
      {button.left, button.top, button.right, button.bottom}, popup.right - popup.left, popup.bottom - popup.top,
      ::GetSystemMetrics(SM_CXVIRTUALSCREEN), ::GetSystemMetrics(SM_CYVIRTUALSCREEN));
  ::SetWindowPos(window_, HWND_TOP, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
  HWND focus = state.listMode ? list_ : (grid_ ? grid_->Window() : nullptr);
  if (focus) ::SetFocus(focus);
}

void CSingleColorDlg::Hide() {
  if (window_) ::ShowWindow(window_, SW_HIDE);
}

void CSingleColorDlg::Do(const orv::ColorPopupAction& action) {
  switch (action.kind) {
    case orv::ColorPopupAction::PostClose:
      ::PostMessageA(window_, orv::kWmColorClose, action.close, 0);
      break;
    case orv::ColorPopupAction::UncheckNoColor:
      ::CheckDlgButton(window_, orv::kIdcNoColor, BST_UNCHECKED);
      break;
    case orv::ColorPopupAction::SendAccepted:
      ::SendMessageA(owner_, orv::kWmColorAccepted, 0, static_cast<LPARAM>(action.color));
      break;
    case orv::ColorPopupAction::PostDismissed:
      ::PostMessageA(owner_, orv::kWmColorDismissed, 0, 0);
      break;
    default:
      break;
  }
}

bool CSingleColorDlg::OnNotify(const NMHDR& header, LRESULT& result) {
  if (header.idFrom != static_cast<UINT_PTR>(orv::kIdcColorList)) return false;
  switch (header.code) {
    case NM_CUSTOMDRAW: {
      auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(const_cast<NMHDR*>(&header));
      const DWORD stage = draw.nmcd.dwDrawStage;
      if (stage == CDDS_PREPAINT || stage == CDDS_ITEMPREPAINT) {
        result = CDRF_NOTIFYSUBITEMDRAW;
      } else if (stage == (CDDS_ITEMPREPAINT | CDDS_SUBITEM)) {
        if (draw.iSubItem != 0) {
          draw.clrText = m_colors[3];
          draw.clrTextBk = m_colors[0];
          result = CDRF_NEWFONT;
        } else {
          const auto color = static_cast<COLORREF>(draw.nmcd.lItemlParam);
          draw.clrText = draw.clrTextBk = color;
          draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);  // the swatch keeps its colour
          result = CDRF_NEWFONT | CDRF_NOTIFYPOSTPAINT;
        }
      } else if (stage == (CDDS_ITEMPOSTPAINT | CDDS_SUBITEM) && draw.iSubItem == 0) {
        RECT r{};
        r.top = 0;
        r.left = LVIR_LABEL;
        ::SendMessageA(list_, LVM_GETSUBITEMRECT, draw.nmcd.dwItemSpec, reinterpret_cast<LPARAM>(&r));
        orv::FrameColor(draw.nmcd.hdc, r, draw.clrTextBk);
        ::InflateRect(&r, -1, -1);
        orv::FrameColor(draw.nmcd.hdc, r, draw.clrText);
        result = CDRF_DODEFAULT;
      } else {
        result = CDRF_DODEFAULT;
      }
      return true;
    }
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
      if (state.listMode && (change.uChanged & LVIF_STATE) && (change.uNewState & LVIS_SELECTED) &&
          !(change.uOldState & LVIS_SELECTED)) {
        std::uint32_t color = 0;
        if (change.iItem >= 0) {
          LVITEMA item{};
          item.mask = LVIF_PARAM;
          item.iItem = change.iItem;
          if (::SendMessageA(list_, LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item)))
            color = static_cast<std::uint32_t>(item.lParam);
        }
        Do(state.ListRowSelected(color));
      }
      result = 0;
      return true;
    }
    case LVN_KEYDOWN:
      // As in the grid: Esc dismisses, whatever loop runs the drop-down.
      if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_ESCAPE) Do(state.Cancel());
      result = 0;
      return true;
    default:
      return false;
  }
}

INT_PTR CSingleColorDlg::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  std::intptr_t themed = 0;
  if (message != WM_INITDIALOG && ProcessThemeMessage(window_, message, wParam, lParam, themed)) {
    if (message == WM_ERASEBKGND) {
      ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, themed);
      return TRUE;
    }
    return static_cast<INT_PTR>(themed);  // WM_CTLCOLOR*: the brush
  }
  switch (message) {
    case WM_INITDIALOG:
      OnInit();
      return TRUE;
    case orv::kWmColorCellChanged:
      Do(state.CellChanged(wParam, SelectedCellColor(),
                           ::IsDlgButtonChecked(window_, orv::kIdcNoColor) == BST_CHECKED));
      return TRUE;
    case WM_COMMAND: {
      const int id = LOWORD(wParam), code = HIWORD(wParam);
      if (code == BN_CLICKED) {
        if (id == orv::kIdcNoColor) {
          Do(state.NoColorClicked(::IsDlgButtonChecked(window_, id) == BST_CHECKED, SelectedCellColor()));
          return TRUE;
        }
        if (id == orv::kIdcColorListMode) {
          state.ListModeClicked(::IsDlgButtonChecked(window_, id) == BST_CHECKED);
          ShowMode();
          return TRUE;
        }
        if (id == IDOK || id == IDCANCEL) {
          Do(id == IDOK ? state.Ok() : state.Cancel());
          return TRUE;
        }
      }
      break;
    }
    case WM_NOTIFY: {
      LRESULT result = 0;
      if (lParam && OnNotify(*reinterpret_cast<const NMHDR*>(lParam), result)) {
        ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, result);
        return TRUE;
      }
      break;
    }
    case WM_ACTIVATE:
      if (!(LOWORD(wParam) != WA_INACTIVE && IsSelfOrChild(reinterpret_cast<HWND>(lParam))))
        ::PostMessageA(window_, orv::kWmColorCheckActive, 0, 0);
      return FALSE;
    case WM_NCACTIVATE:
      if (wParam == 0 && ::IsWindowEnabled(window_)) ::PostMessageA(window_, orv::kWmColorClose, orv::kColorDismiss, 0);
      ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, 1);
      return TRUE;
    case orv::kWmColorCheckActive:
      if (::IsWindowEnabled(window_) && !IsSelfOrChild(::GetActiveWindow()))
        ::PostMessageA(window_, orv::kWmColorClose, orv::kColorDismiss, 0);
      return TRUE;
    case orv::kWmColorClose:
      Do(state.Close(wParam));
      return TRUE;
    default:
      break;
  }
  std::intptr_t reflected = 0;
  if (ReflectNotifications(window_, message, wParam, lParam, reflected)) {
    ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, reflected);
    return TRUE;
  }
  return FALSE;
}

// --- CWtlColorBtn ----------------------------------------------------------------------------

CWtlColorBtn::CWtlColorBtn(HINSTANCE module)
    : m_blackPen(::GetStockObject(7)),
      m_nullPen(::GetStockObject(8)),
      m_whitePen(::GetStockObject(6)),
      m_brush(::CreateSolidBrush(5)),
      m_faceBrush(::CreateSolidBrush(::GetSysColor(15))),
      m_grayPen(::CreatePen(PS_SOLID, 1, 0x808080)),
      m_bodyColor(::GetSysColor(1)),
      m_arrowColor(::GetSysColor(18)),
      m_focusFrameColor(::GetSysColor(21)),
      m_frameColor(::GetSysColor(20)),
      module_(module ? module : orv::KitModule()) {}

CWtlColorBtn::~CWtlColorBtn() {
  if (button_ && ::IsWindow(button_)) orv::RemoveWindowSubclassProc(button_, &CWtlColorBtn::ButtonProc);
  ::DeleteObject(m_brush);
  ::DeleteObject(m_faceBrush);
  ::DeleteObject(m_grayPen);
}

bool CWtlColorBtn::SubclassWindow(HWND button) {
  if (button_ || !button) return false;
  if (!orv::SubclassWindowProc(button, &CWtlColorBtn::ButtonProc, this)) return false;
  button_ = button;
  return true;
}

void CWtlColorBtn::TakeThemeColors(const ThemeColors& colors) {
  const orv::ColorButtonColors c = orv::ColorButtonThemeColors(colors);
  m_bodyColor = c.body;
  m_arrowColor = c.arrow;
  m_focusFrameColor = c.focusFrame;
  m_frameColor = c.frame;
}

void CWtlColorBtn::OnThemeTaken() {
  if (button_) ::InvalidateRect(button_, nullptr, TRUE);
}

bool CWtlColorBtn::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) {
  return COrvThemedControl::OnMessage(message, wParam, lParam, result);
}

void CWtlColorBtn::ShowPopup() {
  if (!created_) {
    // The popup disables the outermost enabled window above the button while a modal
    // sub-dialog of its own runs.
    HWND target = button_;
    for (HWND up = ::GetParent(button_); up && ::IsWindowEnabled(up); up = ::GetParent(up)) target = up;
    created_ = true;
    if (!popup_.Create(module_, button_, target)) {
      failure_ = popup_.Failure();
      created_ = false;
      return;
    }
  }
  popup_.Show(m_color);
}

LRESULT CWtlColorBtn::ButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data) {
  auto& self = *static_cast<CWtlColorBtn*>(data);
  if (message == WM_NCDESTROY) {
    self.button_ = nullptr;
    return orv::CallOriginalProc(window, message, wParam, lParam);
  }
  // No exception leaves a window procedure: it is kept, and the button goes on as a button.
  try {
    return self.Handle(window, message, wParam, lParam);
  } catch (...) {
    if (!self.failure_) self.failure_ = std::current_exception();
    return orv::CallOriginalProc(window, message, wParam, lParam);
  }
}

LRESULT CWtlColorBtn::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  std::intptr_t result = 0;
  if (OnMessage(message, wParam, lParam, result)) return result;
  switch (message) {
    case WM_COMMAND + orv::kReflectedMessageBase:
      if (HIWORD(wParam) == BN_CLICKED) ShowPopup();
      return 0;
    case WM_DRAWITEM + orv::kReflectedMessageBase:
      Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_MEASUREITEM + orv::kReflectedMessageBase: {
      auto& measure = *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
      if (measure.CtlType == ODT_MENU) {
        measure.itemHeight = static_cast<UINT>(::GetSystemMetrics(SM_CYMENU));
      } else {
        HDC dc = ::GetDC(window);
        HGDIOBJ old = ::SelectObject(dc, reinterpret_cast<HGDIOBJ>(::SendMessageA(window, WM_GETFONT, 0, 0)));
        TEXTMETRICA metrics{};
        ::GetTextMetricsA(dc, &metrics);
        ::SelectObject(dc, old);
        ::ReleaseDC(window, dc);
        measure.itemHeight = static_cast<UINT>(metrics.tmHeight);
      }
      return TRUE;
    }
    case orv::kWmColorAccepted:
      popup_.Hide();
      m_color = static_cast<COLORREF>(lParam);
      ::InvalidateRect(window, nullptr, TRUE);
      return 0;
    case orv::kWmColorDismissed:
      popup_.Hide();
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      // The click that closes an open drop-down doesn't open it again.
      if (popup_.Window() && ::IsWindowVisible(popup_.Window())) return 0;
      break;
    case WM_DESTROY:
      // The drop-down lives as long as its button.
      if (popup_.Window()) ::DestroyWindow(popup_.Window());
      break;
    default:
      break;
  }
  return orv::CallOriginalProc(window, message, wParam, lParam);
}

void CWtlColorBtn::Draw(const DRAWITEMSTRUCT& item) {
  HDC dc = item.hDC;
  const RECT& rect = item.rcItem;
  orv::FillColor(dc, rect, m_bodyColor);
  orv::FrameColor(dc, rect, (item.itemState & ODS_FOCUS) ? m_focusFrameColor : m_frameColor);
  const orv::ColorButtonFigures figures = orv::ColorButtonLayout({rect.left, rect.top, rect.right, rect.bottom},
                                                                 orv::DisplayScale(orv::DefaultWindowOps()));
  orv::FillTriangle(dc, figures, m_arrowColor, m_bodyColor);
  if (!(item.itemState & ODS_DISABLED)) orv::FillColor(dc, orv::ToRect(figures.swatch), m_color);
}

// --- CXColorStatic ---------------------------------------------------------------------------

CXColorStatic::CXColorStatic()
    : textColor(::GetSysColor(18)), backgroundColor(::GetSysColor(15)), brush_(::CreateSolidBrush(backgroundColor)) {}

CXColorStatic::~CXColorStatic() {
  if (window_ && ::IsWindow(window_)) orv::RemoveWindowSubclassProc(window_, &CXColorStatic::StaticProc);
  ::DeleteObject(brush_);
  if (font_) ::DeleteObject(font_);
}

void CXColorStatic::SetColors(COLORREF text, COLORREF background) {
  textColor = text;
  backgroundColor = background;
  ::DeleteObject(brush_);
  brush_ = ::CreateSolidBrush(background);
  if (window_) ::InvalidateRect(window_, nullptr, TRUE);
}

bool CXColorStatic::SubclassWindow(HWND window) {
  if (window_ || !window) return false;
  if (!orv::SubclassWindowProc(window, &CXColorStatic::StaticProc, this)) return false;
  window_ = window;
  TakeFont(window);
  return true;
}

void CXColorStatic::TakeFont(HWND window) {
  HGDIOBJ source = reinterpret_cast<HGDIOBJ>(::SendMessageA(window, WM_GETFONT, 0, 0));
  if (!source) source = ::GetStockObject(17);
  if (!source) source = ::GetStockObject(12);
  LOGFONTA font{};
  if (source && ::GetObjectA(source, sizeof font, &font) == sizeof font) font_ = ::CreateFontIndirectA(&font);
}

LRESULT CXColorStatic::StaticProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data) {
  auto& self = *static_cast<CXColorStatic*>(data);
  switch (message) {
    case WM_NCDESTROY:
      self.window_ = nullptr;
      break;
    case WM_ERASEBKGND: {
      RECT client;
      ::GetClientRect(window, &client);
      ::FillRect(reinterpret_cast<HDC>(wParam), &client, self.brush_);
      return 1;
    }
    case WM_PAINT:
      self.Paint(window);
      return 0;
    default:
      break;
  }
  return orv::CallOriginalProc(window, message, wParam, lParam);
}

void CXColorStatic::Paint(HWND window) {
  PAINTSTRUCT ps;
  HDC dc = ::BeginPaint(window, &ps);
  RECT client;
  ::GetClientRect(window, &client);
  if (icon_) {
    const int cx = ::GetSystemMetrics(SM_CXICON), cy = ::GetSystemMetrics(SM_CYICON);
    ::DrawIconEx(dc, (client.right - cx) / 2, (client.bottom - cy) / 2, icon_, cx, cy, 0, nullptr, DI_NORMAL);
  } else {
    ::SetBkMode(dc, OPAQUE);
    ::SetBkColor(dc, backgroundColor);
    ::SetTextColor(dc, textColor);
    RECT rect = client;
    ::OffsetRect(&rect, xOffset_, yOffset_);
    ::FillRect(dc, &rect, brush_);
    char text[orv::kXColorStaticMaxText + 1] = {};
    const int length = ::GetWindowTextA(window, text, sizeof text);
    HGDIOBJ old = font_ ? ::SelectObject(dc, font_) : nullptr;
    ::DrawTextA(dc, text, length, &rect,
                orv::XColorStaticTextFormat(static_cast<std::uint32_t>(::GetWindowLongA(window, GWL_STYLE))));
    if (old) ::SelectObject(dc, old);
  }
  ::EndPaint(window, &ps);
}
