#pragma once
// The themed control objects that the child scan puts in front of a dialog's children. The
// portable half lives here: which theme colours each class takes, and what it does on
// WM_ORV_THEME. The painting with those colours is Windows-only (win32/ThemedControlsWin32.cpp).
// Until a control receives a theme it paints nothing itself: the system's colours stay.

#include <cstdint>
#include <memory>

#include "dlgkit/ThemeColors.h"
#include "dlgkit/Window.h"
#include "dlgkit/WindowOps.h"

namespace orv {

// No colour (the kit's colour convention); a control's colours before it receives a theme.
inline constexpr std::uint32_t kNoColor = 0xFF000000u;

// Which painting a control's window procedure does on Windows.
enum class ThemedControlKind {
  Button,
  RadioOrCheck,
  ComboBox,
  Edit,
  GroupBox,
  ListBox,
  ListView,
  Header,
  StaticText,
  Tab,
  UpDown
};

}  // namespace orv

class COrvThemedControl {
 public:
  COrvThemedControl() = default;
  COrvThemedControl(const COrvThemedControl&) = delete;
  COrvThemedControl& operator=(const COrvThemedControl&) = delete;
  // Gives the window its own procedure back when it still exists.
  virtual ~COrvThemedControl();

  virtual orv::ThemedControlKind Kind() const = 0;

  // Puts this object's procedure in front of the window's. Once per object.
  virtual bool SubclassWindow(orv::WindowOps& ops, orv::WindowHandle window);
  // The window is gone (or unsubclassed): forget it.
  void DetachWindow() noexcept { window_ = nullptr; }

  // The portable part of the window procedure: WM_ORV_THEME. Returns true when handled.
  virtual bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result);

  int GetControlId() const { return controlId_; }
  void SetControlId(int id) { controlId_ = id; }
  orv::WindowHandle GetWindowHandle() const { return window_; }
  orv::WindowOps* GetWindowOps() const { return ops_; }
  // True once a theme arrived; only then does the Windows half paint.
  bool IsThemed() const { return themed_; }

 protected:
  // Copies this class's indices from the record.
  virtual void TakeThemeColors(const ThemeColors& colors) = 0;
  // After the copy: most controls invalidate themselves; buttons wait for their next draw.
  virtual void OnThemeTaken();

 private:
  orv::WindowOps* ops_ = nullptr;
  orv::WindowHandle window_ = nullptr;
  int controlId_ = 0;
  bool themed_ = false;
};

class COrvButton : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::Button; }
  std::uint32_t textColor = orv::kNoColor, faceColor = orv::kNoColor, disabledColor = orv::kNoColor,
                selectedColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
  void OnThemeTaken() override {}
};

class COrvRadioOrCheck : public COrvButton {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::RadioOrCheck; }
  std::uint32_t backgroundColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};

class COrvComboBox : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::ComboBox; }
  std::uint32_t backgroundColor = orv::kNoColor, listColor = orv::kNoColor, textColor = orv::kNoColor,
                disabledColor = orv::kNoColor, listTextColor = orv::kNoColor;
  bool comboThemed = false;
  // Answers the dropped list's WM_CTLCOLORLISTBOX on Windows; made with the theme.
  orv::Brush listBrush;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
  void OnThemeTaken() override;
};

class COrvEditCtrl : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::Edit; }
  std::uint32_t backgroundColor = orv::kNoColor, textColor = orv::kNoColor, disabledColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};

class COrvGroupBox : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::GroupBox; }
  std::uint32_t textColor = orv::kNoColor, frameColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};

class COrvListBox : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::ListBox; }
  std::uint32_t backgroundColor = orv::kNoColor, textColor = orv::kNoColor, selectedTextColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};

class COrvHeader : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::Header; }
  std::uint32_t faceColor = orv::kNoColor, textColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};

class COrvListViewCtrl : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::ListView; }
  // The list's header, when it has one; subclassed together with the list.
  bool SubclassWindow(orv::WindowOps& ops, orv::WindowHandle window) override;
  COrvHeader* GetHeader() const { return header_.get(); }
  bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override;

  std::uint32_t headerFaceColor = orv::kNoColor, headerTextColor = orv::kNoColor, backgroundColor = orv::kNoColor,
                textBackgroundColor = orv::kNoColor, textColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
  // LVM_SETBKCOLOR / LVM_SETTEXTBKCOLOR / LVM_SETTEXTCOLOR, the header's colours, invalidate.
  void OnThemeTaken() override;

 private:
  std::unique_ptr<COrvHeader> header_;
};

class COrvStaticText : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::StaticText; }
  std::uint32_t textColor = orv::kNoColor, disabledColor = orv::kNoColor, backgroundColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};

class COrvTabbyCtrl : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::Tab; }
  std::uint32_t backgroundColor = orv::kNoColor, textColor = orv::kNoColor, selectedColor = orv::kNoColor,
                faceColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};

class COrvUpDownCtrl : public COrvThemedControl {
 public:
  orv::ThemedControlKind Kind() const override { return orv::ThemedControlKind::UpDown; }
  std::uint32_t backgroundColor = orv::kNoColor, arrowColor = orv::kNoColor, frameColor = orv::kNoColor,
                disabledColor = orv::kNoColor;

 protected:
  void TakeThemeColors(const ThemeColors& colors) override;
};
