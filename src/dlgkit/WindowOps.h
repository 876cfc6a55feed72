#pragma once
// The window operations that the child scan, the theme and the painting need, named as the
// platform names them. Implemented over USER/GDI in win32/, in memory in fake/ for tests, and by
// a headless stand-in in native/ (no windows there; the display is 96 DPI).

#include <cstdint>
#include <utility>

#include "dlgkit/Window.h"

class COrvThemedControl;

namespace orv {

using BrushHandle = void*;    // an HBRUSH on Windows
using DeviceContext = void*;  // an HDC on Windows

struct WindowRect {
  std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};

// Values the platform gives these numbers (GW_*, GWL_STYLE, TRANSPARENT, messages).
inline constexpr unsigned kGwHwndNext = 2;
inline constexpr unsigned kGwChild = 5;
inline constexpr int kGwlStyle = -16;
inline constexpr int kBkModeTransparent = 1;

inline constexpr unsigned kWmEraseBkgnd = 0x0014;
inline constexpr unsigned kWmDrawItem = 0x002B;
inline constexpr unsigned kWmMeasureItem = 0x002C;
inline constexpr unsigned kWmDeleteItem = 0x002D;
inline constexpr unsigned kWmVKeyToItem = 0x002E;
inline constexpr unsigned kWmCharToItem = 0x002F;
inline constexpr unsigned kWmCompareItem = 0x0039;
inline constexpr unsigned kWmNotify = 0x004E;
inline constexpr unsigned kWmCommand = 0x0111;
inline constexpr unsigned kWmHScroll = 0x0114;
inline constexpr unsigned kWmVScroll = 0x0115;
inline constexpr unsigned kWmCtlColorMsgBox = 0x0132;
inline constexpr unsigned kWmCtlColorEdit = 0x0133;
inline constexpr unsigned kWmCtlColorListBox = 0x0134;
inline constexpr unsigned kWmCtlColorBtn = 0x0135;
inline constexpr unsigned kWmCtlColorDlg = 0x0136;
inline constexpr unsigned kWmCtlColorScrollBar = 0x0137;
inline constexpr unsigned kWmCtlColorStatic = 0x0138;
inline constexpr unsigned kWmParentNotify = 0x0210;
inline constexpr unsigned kWmCreate = 0x0001;
inline constexpr unsigned kWmDestroy = 0x0002;
// A reflected message is the original number plus this (OCM__BASE of the window libraries).
inline constexpr unsigned kReflectedMessageBase = 0x2000;

inline constexpr unsigned kLvmGetHeader = 0x101F;
inline constexpr unsigned kLvmSetBkColor = 0x1001;
inline constexpr unsigned kLvmSetTextColor = 0x1024;
inline constexpr unsigned kLvmSetTextBkColor = 0x1026;
inline constexpr std::int32_t kLbsNotify = 0x0001;

class WindowOps {
 public:
  virtual ~WindowOps() = default;

  virtual WindowHandle GetWindow(WindowHandle window, unsigned command) = 0;
  virtual WindowHandle GetDlgItem(WindowHandle dialog, int id) = 0;
  // Returns the length copied, 0 on failure; the buffer is always terminated when size > 0.
  virtual int GetClassNameA(WindowHandle window, char* buffer, int bufferSize) = 0;
  virtual int GetWindowTextA(WindowHandle window, char* buffer, int bufferSize) = 0;
  virtual std::int32_t GetWindowLongA(WindowHandle window, int index) = 0;
  virtual std::int32_t SetWindowLongA(WindowHandle window, int index, std::int32_t value) = 0;
  virtual int GetDlgCtrlID(WindowHandle window) = 0;
  virtual std::intptr_t SendMessageA(WindowHandle window, unsigned message, std::uintptr_t wParam,
                                     std::intptr_t lParam) = 0;
  virtual bool InvalidateRect(WindowHandle window, const WindowRect* rect, bool erase) = 0;
  virtual bool GetClientRect(WindowHandle window, WindowRect& rect) = 0;

  virtual BrushHandle CreateSolidBrush(std::uint32_t color) = 0;
  virtual bool DeleteObject(BrushHandle brush) = 0;
  virtual int FillRect(DeviceContext dc, const WindowRect& rect, BrushHandle brush) = 0;
  virtual int SetBkMode(DeviceContext dc, int mode) = 0;
  virtual std::uint32_t SetTextColor(DeviceContext dc, std::uint32_t color) = 0;
  virtual std::uint32_t SetBkColor(DeviceContext dc, std::uint32_t color) = 0;
  // LOGPIXELSY of a "DISPLAY" device context (CreateDCA, GetDeviceCaps, DeleteDC); needs no window.
  virtual int GetDisplayLogPixelsY() = 0;

  // Puts the control's window procedure in front of the window's own, which stays in the chain.
  // The control learns of the window's end (DetachWindow) and undoes this on destruction.
  virtual bool SubclassWindow(WindowHandle window, COrvThemedControl& control) = 0;
  virtual void UnsubclassWindow(WindowHandle window, COrvThemedControl& control) = 0;
  // Sets a list box's horizontal extent to its widest item (LB_SETHORIZONTALEXTENT); returns it.
  virtual int MeasureListBoxHorizontalExtent(WindowHandle listBox) = 0;
};

// The window operations a dialog uses unless it is given others: the Win32 ones on Windows,
// the headless stand-in natively.
WindowOps& DefaultWindowOps();

// A solid brush owned by whoever holds it; deleted through the same WindowOps that made it.
class Brush {
 public:
  Brush() = default;
  Brush(WindowOps& ops, std::uint32_t color) : ops_(&ops), handle_(ops.CreateSolidBrush(color)) {}
  Brush(Brush&& other) noexcept
      : ops_(std::exchange(other.ops_, nullptr)), handle_(std::exchange(other.handle_, nullptr)) {}
  Brush& operator=(Brush&& other) noexcept {
    if (this != &other) {
      Reset();
      ops_ = std::exchange(other.ops_, nullptr);
      handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
  }
  Brush(const Brush&) = delete;
  Brush& operator=(const Brush&) = delete;
  ~Brush() { Reset(); }

  void Reset() {
    if (ops_ && handle_) ops_->DeleteObject(handle_);
    handle_ = nullptr;
  }
  BrushHandle get() const { return handle_; }

 private:
  WindowOps* ops_ = nullptr;
  BrushHandle handle_ = nullptr;
};

}  // namespace orv
