#pragma once
// An in-memory window tree for tests: a test builds a dialog's children (class, style, id, text)
// and reads what the code under test did to them: messages sent, windows subclassed and
// invalidated, style changes, brushes alive, painting calls. A call on a window that doesn't
// exist (or no longer does) is counted as misuse, never a crash.

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dlgkit/WindowOps.h"

namespace orv {

class FakeWindowTree final : public WindowOps {
 public:
  struct SentMessage {
    WindowHandle window;
    unsigned message;
    std::uintptr_t wParam;
    std::intptr_t lParam;
    // For WM_ORV_THEME_QUERY: the 32-bit value lParam pointed at when it was sent.
    std::uint32_t pointedValue;
  };
  struct Invalidation {
    WindowHandle window;
    bool erase;
  };
  struct StyleChange {
    WindowHandle window;
    std::int32_t before;
    std::int32_t after;
  };
  struct DcState {
    int bkMode = 0;
    std::uint32_t textColor = 0;
    std::uint32_t bkColor = 0;
    std::vector<std::pair<WindowRect, BrushHandle>> fills;
  };
  // Answers a message sent to one window; nullopt lets the tree answer (0 by default).
  using MessageHandler = std::function<std::optional<std::intptr_t>(unsigned, std::uintptr_t, std::intptr_t)>;

  FakeWindowTree();
  ~FakeWindowTree() override;

  // Building.
  WindowHandle CreateDialogWindow(WindowRect client = {0, 0, 300, 200});
  WindowHandle AddChild(WindowHandle parent, const std::string& className, std::int32_t style, int id,
                        const std::string& text = {});
  void SetMessageHandler(WindowHandle window, MessageHandler handler);
  void SetListBoxItems(WindowHandle listBox, std::vector<std::string> items);
  void SetDisplayLogPixelsY(int dpi) { dpi_ = dpi; }
  // Destroys a window and its children; a subclassing control is told (as by WM_NCDESTROY).
  void DestroyWindow(WindowHandle window);

  // Reading.
  bool IsWindow(WindowHandle window) const;
  const std::vector<SentMessage>& Sent() const { return sent_; }
  std::vector<SentMessage> SentTo(WindowHandle window) const;
  std::vector<WindowHandle> ReceiversOf(unsigned message) const;
  COrvThemedControl* SubclassedBy(WindowHandle window) const;
  const std::vector<Invalidation>& Invalidations() const { return invalidations_; }
  const std::vector<StyleChange>& StyleChanges() const { return styleChanges_; }
  std::int32_t StyleOf(WindowHandle window) const;
  int HorizontalExtentOf(WindowHandle window) const;  // -1 when never measured
  int LiveBrushCount() const { return static_cast<int>(liveBrushes_.size()); }
  bool IsBrushAlive(BrushHandle brush) const { return liveBrushes_.count(brush) != 0; }
  std::optional<std::uint32_t> BrushColor(BrushHandle brush) const;
  const DcState& Dc(DeviceContext dc) { return dcs_[dc]; }
  int DisplayQueries() const { return displayQueries_; }
  // Calls on unknown windows, deletes of unknown or dead brushes, unsubclassing a window that
  // another object (or none) subclassed.
  int Misuse() const { return misuse_; }

  // WindowOps.
  WindowHandle GetWindow(WindowHandle window, unsigned command) override;
  WindowHandle GetDlgItem(WindowHandle dialog, int id) override;
  int GetClassNameA(WindowHandle window, char* buffer, int bufferSize) override;
  int GetWindowTextA(WindowHandle window, char* buffer, int bufferSize) override;
  std::int32_t GetWindowLongA(WindowHandle window, int index) override;
  std::int32_t SetWindowLongA(WindowHandle window, int index, std::int32_t value) override;
  int GetDlgCtrlID(WindowHandle window) override;
  std::intptr_t SendMessageA(WindowHandle window, unsigned message, std::uintptr_t wParam,
                             std::intptr_t lParam) override;
  bool InvalidateRect(WindowHandle window, const WindowRect* rect, bool erase) override;
  bool GetClientRect(WindowHandle window, WindowRect& rect) override;
  BrushHandle CreateSolidBrush(std::uint32_t color) override;
  bool DeleteObject(BrushHandle brush) override;
  int FillRect(DeviceContext dc, const WindowRect& rect, BrushHandle brush) override;
  int SetBkMode(DeviceContext dc, int mode) override;
  std::uint32_t SetTextColor(DeviceContext dc, std::uint32_t color) override;
  std::uint32_t SetBkColor(DeviceContext dc, std::uint32_t color) override;
  int GetDisplayLogPixelsY() override;
  bool SubclassWindow(WindowHandle window, COrvThemedControl& control) override;
  void UnsubclassWindow(WindowHandle window, COrvThemedControl& control) override;
  int MeasureListBoxHorizontalExtent(WindowHandle listBox) override;

 private:
  struct Node;
  Node* Find(WindowHandle window) const;  // counts misuse when unknown

  std::vector<std::unique_ptr<Node>> nodes_;
  std::vector<SentMessage> sent_;
  std::vector<Invalidation> invalidations_;
  std::vector<StyleChange> styleChanges_;
  std::map<BrushHandle, std::uint32_t> liveBrushes_;
  std::map<DeviceContext, DcState> dcs_;
  std::uintptr_t nextBrush_ = 0x1000;
  int dpi_ = 96;
  int displayQueries_ = 0;
  mutable int misuse_ = 0;
};

}  // namespace orv
