// Natively there are no windows: the headless stand-in answers as an empty desktop at 96 DPI,
// so a dialog object can be built and driven by the headless page runner.
#include "dlgkit/WindowOps.h"

namespace orv {
namespace {
class HeadlessWindowOps final : public WindowOps {
 public:
  WindowHandle GetWindow(WindowHandle, unsigned) override { return nullptr; }
  WindowHandle GetDlgItem(WindowHandle, int) override { return nullptr; }
  int GetClassNameA(WindowHandle, char* buffer, int size) override { return Empty(buffer, size); }
  int GetWindowTextA(WindowHandle, char* buffer, int size) override { return Empty(buffer, size); }
  std::int32_t GetWindowLongA(WindowHandle, int) override { return 0; }
  std::int32_t SetWindowLongA(WindowHandle, int, std::int32_t) override { return 0; }
  int GetDlgCtrlID(WindowHandle) override { return 0; }
  std::intptr_t SendMessageA(WindowHandle, unsigned, std::uintptr_t, std::intptr_t) override { return 0; }
  bool InvalidateRect(WindowHandle, const WindowRect*, bool) override { return false; }
  bool GetClientRect(WindowHandle, WindowRect& rect) override {
    rect = {};
    return false;
  }
  // A non-null token per brush, so owners can tell made from not made; nothing to free.
  BrushHandle CreateSolidBrush(std::uint32_t) override { return &token_; }
  bool DeleteObject(BrushHandle brush) override { return brush == &token_; }
  int FillRect(DeviceContext, const WindowRect&, BrushHandle) override { return 0; }
  int SetBkMode(DeviceContext, int) override { return 0; }
  std::uint32_t SetTextColor(DeviceContext, std::uint32_t) override { return 0; }
  std::uint32_t SetBkColor(DeviceContext, std::uint32_t) override { return 0; }
  int GetDisplayLogPixelsY() override { return 96; }
  bool SubclassWindow(WindowHandle, COrvThemedControl&) override { return false; }
  void UnsubclassWindow(WindowHandle, COrvThemedControl&) override {}
  int MeasureListBoxHorizontalExtent(WindowHandle) override { return 0; }

 private:
  static int Empty(char* buffer, int size) {
    if (buffer && size > 0) buffer[0] = '\0';
    return 0;
  }
  char token_ = 0;
};
}  // namespace

WindowOps& DefaultWindowOps() {
  static HeadlessWindowOps ops;
  return ops;
}

}  // namespace orv
