#include "dlgkit/ThemedControls.h"

COrvThemedControl::~COrvThemedControl() {
  if (ops_ && window_) ops_->UnsubclassWindow(window_, *this);
}

bool COrvThemedControl::SubclassWindow(orv::WindowOps& ops, orv::WindowHandle window) {
  if (window_ || !window) return false;
  if (!ops.SubclassWindow(window, *this)) return false;
  ops_ = &ops;
  window_ = window;
  return true;
}

bool COrvThemedControl::OnMessage(unsigned message, std::uintptr_t, std::intptr_t lParam, std::intptr_t& result) {
  if (message != WM_ORV_THEME) return false;
  result = 0;
  // A theme message without a record changes nothing.
  if (lParam == 0) return true;
  TakeThemeColors(*reinterpret_cast<const ThemeColors*>(lParam));
  themed_ = true;
  OnThemeTaken();
  return true;
}

void COrvThemedControl::OnThemeTaken() {
  if (ops_ && window_) ops_->InvalidateRect(window_, nullptr, true);
}

void COrvButton::TakeThemeColors(const ThemeColors& c) {
  textColor = c[3];
  faceColor = c[1];
  disabledColor = c[7];
  selectedColor = c[6];
}

void COrvRadioOrCheck::TakeThemeColors(const ThemeColors& c) {
  COrvButton::TakeThemeColors(c);
  backgroundColor = c[0];
}

void COrvComboBox::TakeThemeColors(const ThemeColors& c) {
  backgroundColor = c[4];
  listColor = c[0];
  textColor = c[3];
  disabledColor = c[7];
  listTextColor = c[3];
  comboThemed = true;
}

void COrvComboBox::OnThemeTaken() {
  if (auto* ops = GetWindowOps()) listBrush = orv::Brush(*ops, listColor);
  COrvThemedControl::OnThemeTaken();
}

void COrvEditCtrl::TakeThemeColors(const ThemeColors& c) {
  backgroundColor = c[4];
  textColor = c[3];
  disabledColor = c[7];
}

void COrvGroupBox::TakeThemeColors(const ThemeColors& c) {
  textColor = c[3];
  frameColor = c[3];
}

void COrvListBox::TakeThemeColors(const ThemeColors& c) {
  backgroundColor = c[4];
  textColor = c[3];
  selectedTextColor = c[3];
}

void COrvHeader::TakeThemeColors(const ThemeColors& c) {
  faceColor = c[1];
  textColor = c[3];
}

bool COrvListViewCtrl::SubclassWindow(orv::WindowOps& ops, orv::WindowHandle window) {
  if (!COrvThemedControl::SubclassWindow(ops, window)) return false;
  auto headerWindow = reinterpret_cast<orv::WindowHandle>(ops.SendMessageA(window, orv::kLvmGetHeader, 0, 0));
  if (headerWindow) {
    auto header = std::make_unique<COrvHeader>();
    if (header->SubclassWindow(ops, headerWindow)) {
      header->SetControlId(ops.GetDlgCtrlID(headerWindow));
      header_ = std::move(header);
    }
  }
  return true;
}

bool COrvListViewCtrl::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) {
  if (!COrvThemedControl::OnMessage(message, wParam, lParam, result)) return false;
  // The header is no theme target of its own: it follows its list.
  std::intptr_t ignored = 0;
  if (header_) header_->OnMessage(message, wParam, lParam, ignored);
  return true;
}

void COrvListViewCtrl::TakeThemeColors(const ThemeColors& c) {
  headerFaceColor = c[1];
  headerTextColor = c[3];
  backgroundColor = c[4];
  textBackgroundColor = c[4];
  textColor = c[3];
}

void COrvListViewCtrl::OnThemeTaken() {
  auto* ops = GetWindowOps();
  auto window = GetWindowHandle();
  if (!ops || !window) return;
  ops->SendMessageA(window, orv::kLvmSetBkColor, 0, static_cast<std::intptr_t>(backgroundColor));
  ops->SendMessageA(window, orv::kLvmSetTextBkColor, 0, static_cast<std::intptr_t>(textBackgroundColor));
  ops->SendMessageA(window, orv::kLvmSetTextColor, 0, static_cast<std::intptr_t>(textColor));
  COrvThemedControl::OnThemeTaken();
}

void COrvStaticText::TakeThemeColors(const ThemeColors& c) {
  textColor = c[3];
  disabledColor = c[7];
  backgroundColor = c[0];
}

void COrvTabbyCtrl::TakeThemeColors(const ThemeColors& c) {
  backgroundColor = c[0];
  textColor = c[3];
  selectedColor = c[6];
  faceColor = c[1];
}

void COrvUpDownCtrl::TakeThemeColors(const ThemeColors& c) {
  backgroundColor = c[4];
  arrowColor = c[3];
  frameColor = c[3];
  disabledColor = c[7];
}
