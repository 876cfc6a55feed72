#pragma once
// The colour pickers' windows: CWtlColorBtn, the owner-drawn button that shows a colour and
// drops down CSingleColorDlg, a modeless popup (dialog template 311, ColorPicker.rc) holding
// the colour grid ColorWnd, the host's theme colour list and the "Hide" (no colour) check; and
// CXColorStatic, a small colour-aware static. The choices themselves are portable
// (dlgkit/ColorPicker.h); this is their platform half: windows, GDI, GDI+ and ChooseColorA.

#include <windows.h>

#include <cstdint>
#include <exception>
#include <memory>

#include "dlgkit/ColorPicker.h"
#include "dlgkit/OrvDialog.h"
#include "dlgkit/ThemedControls.h"

namespace orv {
// The sixteen custom colours of ChooseColorA, one array for the whole component (not guarded:
// the dialogs run on one thread).
COLORREF* SharedCustomColors();
}  // namespace orv

// The grid of fixed and custom colours: a child window of class "ColorWnd" made over a
// placeholder's rectangle, with its id. Hand-made double clicks (the class has no CS_DBLCLKS).
class ColorWnd {
 public:
  static constexpr const char* kClassName = "ColorWnd";

  ColorWnd(const orv::ColorPalette& palette, double displayScale);
  ~ColorWnd();
  ColorWnd(const ColorWnd&) = delete;
  ColorWnd& operator=(const ColorWnd&) = delete;

  // Creates the window over `placeholder` (same parent, rectangle and id) and lays the grid out.
  bool Create(HWND placeholder);
  HWND Window() const { return window_; }
  orv::ColorGrid& Grid() { return grid_; }
  const orv::ColorGrid& Grid() const { return grid_; }

  // Selects the cell of `color` (or stores it as a custom colour) and repaints what changed.
  void SelectColor(std::uint32_t color);
  // The window disabled while the context menu or the colour editor runs.
  void SetDisableTarget(HWND window) { disableTarget_ = window; }

  bool framed = true;
  COLORREF background;
  COLORREF selectionColor;
  COLORREF outerFrameColor;

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void Apply(const orv::ColorGridAction& action);
  void InvalidateCell(int cell);
  void Paint(HDC dc);
  void EditCell(int cell);
  void ContextMenu(int x, int y);

  orv::ColorGrid grid_;
  HWND window_ = nullptr;
  HWND disableTarget_ = nullptr;
  HBRUSH frameBrush_;
};

// The drop-down. Its owner is the colour button, which receives kWmColorAccepted with the
// colour or kWmColorDismissed.
class CSingleColorDlg : public COrvDialog<CSingleColorDlg> {
 public:
  CSingleColorDlg();
  ~CSingleColorDlg() override;

  // Creates the popup (hidden) from template `templateId` in `module`, owned by and parented
  // to `owner`. False when the platform refuses or initialisation failed (see Failure()).
  bool Create(HINSTANCE module, HWND owner, HWND disableTarget, int templateId = orv::kIddColorPopup);
  // Working colour = `color`, the grid's selection by it, then shown under the owner.
  void Show(std::uint32_t color);
  void Hide();
  HWND Window() const { return window_; }
  ColorWnd* Grid() { return grid_.get(); }
  // What an event handler threw (no exception leaves a window procedure).
  std::exception_ptr Failure() const { return failure_; }

  // Offer the "Hide" (no colour) check; set before the first drop-down.
  bool offerNoColor = false;
  orv::ColorPopupState state;

 private:
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void OnInit();
  void FillList();
  void Do(const orv::ColorPopupAction& action);
  bool IsSelfOrChild(HWND other) const;
  bool OnNotify(const NMHDR& header, LRESULT& result);
  std::uint32_t SelectedCellColor() const;
  void ShowMode();

  HWND owner_ = nullptr;
  HWND window_ = nullptr;
  HWND list_ = nullptr;
  HWND disableTarget_ = nullptr;
  std::unique_ptr<ColorWnd> grid_;
  std::exception_ptr failure_;
};

// The colour button: attach it to an owner-drawn button of a dialog whose notifications are
// reflected (COrvDialog::ReflectNotifications). Its colour is read and written directly.
class CWtlColorBtn : public COrvThemedControl {
 public:
  // The popup's template comes from `module`; null means the module holding the kit.
  explicit CWtlColorBtn(HINSTANCE module = nullptr);
  ~CWtlColorBtn() override;

  bool SubclassWindow(HWND button);
  HWND Window() const { return GetButtonWindow(); }
  virtual void ShowPopup();

  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::Button; }
  bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override;

  CSingleColorDlg& Popup() { return popup_; }
  // What the popup's creation or a handler threw; the popup then stays closed.
  std::exception_ptr Failure() const { return failure_; }

  COLORREF m_color = 0xFFFFFF;
  // Held as the button has always held them; the drawing itself uses the colours below.
  HGDIOBJ m_blackPen, m_nullPen, m_whitePen;
  HBRUSH m_brush, m_faceBrush;
  HPEN m_grayPen;
  COLORREF m_bodyColor, m_arrowColor, m_focusFrameColor, m_frameColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
  void OnThemeTaken() override;

 private:
  static LRESULT ButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data);
  LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Draw(const DRAWITEMSTRUCT& item);
  HWND GetButtonWindow() const { return button_; }

  HINSTANCE module_;
  HWND button_ = nullptr;
  bool created_ = false;
  CSingleColorDlg popup_;
  std::exception_ptr failure_;
};

// A static that paints its text (or an icon) in its own colours.
class CXColorStatic {
 public:
  CXColorStatic();
  ~CXColorStatic();
  CXColorStatic(const CXColorStatic&) = delete;
  CXColorStatic& operator=(const CXColorStatic&) = delete;

  bool SubclassWindow(HWND window);
  void SetIcon(HICON icon) { icon_ = icon; }
  void SetOffsets(int x, int y) { xOffset_ = x, yOffset_ = y; }
  void SetColors(COLORREF text, COLORREF background);

  COLORREF textColor;
  COLORREF backgroundColor;

 private:
  static LRESULT StaticProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data);
  void Paint(HWND window);
  void TakeFont(HWND window);

  HBRUSH brush_;
  HFONT font_ = nullptr;
  HICON icon_ = nullptr;
  int xOffset_ = 0, yOffset_ = 0;
  HWND window_ = nullptr;
};
