#include "dlgkit/ColorPicker.h"

#include <algorithm>

#include "dlgkit/CxRegKey.h"
#include "dlgkit/Prompts.h"

namespace orv {

const ColorPalette& NewerColorPalette() {
  static constexpr ColorPalette kPalette = {
      0xCCCCFF, 0xB3DEF5, 0xD7FFFF, 0xCCFFCC, 0xDAEFE2, 0xFFCC99, 0xFF9999, 0xFF99FF, 0xFFFFFF,  //
      0x8080F0, 0x99CCFF, 0xADFFFF, 0x99FF99, 0xB4E0C6, 0xFFB266, 0xFF6666, 0xFF66FF, 0xD3D3D3,  //
      0x4763FF, 0x66B2FF, 0x85FFFF, 0x66FF66, 0x8ED0A9, 0xFF9933, 0xFF3333, 0xFF33FF, 0xA9A9A9,  //
      0x0000FF, 0x00A5FF, 0x00FFFF, 0x00FF00, 0x47AD70, 0xFF8000, 0xFF0000, 0xFF00C4, 0x808080,  //
      0x3C14DC, 0x0080FF, 0x00CCCC, 0x00CC00, 0x5BA07B, 0xCC6600, 0xCC0000, 0xFF66B2, 0x545454,  //
      0x2222B2, 0x0066CC, 0x009999, 0x009900, 0x358254, 0x994C00, 0x990000, 0xFF0080, 0x343434,  //
      0x000080, 0x13458B, 0x00607F, 0x006600, 0x235637, 0x663300, 0x660000, 0x99004C, 0x000000};
  return kPalette;
}

const ColorPalette& OlderColorPalette() {
  static constexpr ColorPalette kPalette = {
      0xC1B6FF, 0xB3DEF5, 0xCCF2FF, 0xC0FFC0, 0xDAEFE2, 0xF6EBDE, 0xE7C6B4, 0xFFC0FF, 0xFFFFFF,  //
      0x8080F0, 0x8CB4D2, 0x99E5FF, 0x2FFFAD, 0xB4E0C6, 0xEED7BD, 0xDBAA8E, 0xFF80FF, 0xD3D3D3,  //
      0x5C5CCD, 0x87B8DE, 0x65D9FF, 0x80FF80, 0x8ED0A9, 0xE6C29C, 0xC07000, 0xDDA0DD, 0xA9A9A9,  //
      0x0000FF, 0x00A5FF, 0x00FFFF, 0x00FF00, 0x47AD70, 0xF0B000, 0xFF0000, 0xFF00FF, 0x808080,  //
      0x3C14DC, 0x20A5DA, 0x00C0FF, 0x77DD77, 0x5BA07B, 0xE16941, 0x965430, 0xFF00C0, 0x545454,  //
      0x2222B2, 0x3F85CD, 0x0090BF, 0x00C000, 0x358254, 0xD59B5B, 0x64381F, 0x800080, 0x343434,  //
      0x00008B, 0x13458B, 0x00607F, 0x008000, 0x235637, 0xB5752F, 0x800000, 0x5A005A, 0x000000};
  return kPalette;
}

const ColorPalette& ColorPaletteFor(SettingsStore& store) {
  return UseOldPalette(store) ? OlderColorPalette() : NewerColorPalette();
}

// --- ColorGrid -------------------------------------------------------------------------------

ColorGrid::ColorGrid(const ColorPalette& palette, double displayScale) : inset_(static_cast<int>(2 * displayScale)) {
  std::copy(palette.begin(), palette.end(), cells_.begin());
}

void ColorGrid::Layout(int clientWidth, int clientHeight) {
  cellWidth_ = clientWidth / columns_;
  cellHeight_ = clientHeight / rows_;
  cellWidth_ = cellHeight_ = std::min(cellWidth_, cellHeight_);
  xOffset_ = (clientWidth % columns_ + inset_) / 2;
  yOffset_ = (clientHeight % rows_) / 2;
}

WindowRect ColorGrid::CellRect(int index) const {
  if (index < 0 || index >= cellCount_) return {};
  WindowRect rect;
  rect.left = (index % columns_) * cellWidth_ + xOffset_;
  rect.top = (index / columns_) * cellHeight_ + yOffset_;
  rect.right = rect.left + cellWidth_;
  rect.bottom = rect.top + cellHeight_;
  return rect;
}

int ColorGrid::HitTest(int x, int y) const {
  for (int i = 0; i < cellCount_; ++i) {
    const WindowRect r = CellRect(i);
    // PtInRect: the left and top edges belong to the rectangle, the right and bottom don't.
    if (x >= r.left && x < r.right && y >= r.top && y < r.bottom) return i;
  }
  return -1;
}

std::uint32_t ColorGrid::CellColor(int index) const {
  if (index < 0) return 0xFFFFFF;
  if (index >= cellCount_) return 0;
  return cells_[static_cast<std::size_t>(index)];
}

ColorGridAction ColorGrid::Select(int cell) {
  ColorGridAction action;
  action.invalidateOld = selected_;
  action.invalidateNew = cell;
  selected_ = cell;
  return action;
}

ColorGridAction ColorGrid::SelectColor(std::uint32_t color) {
  const auto found = std::find(cells_.begin(), cells_.begin() + cellCount_, color);
  if (found != cells_.begin() + cellCount_) return Select(static_cast<int>(found - cells_.begin()));
  const int place = presetCount_ + customCount_;
  if (place >= cellCount_) return Select(selected_);
  cells_[static_cast<std::size_t>(place)] = color;
  if (customCount_ != cellCount_) ++customCount_;
  return Select(place);
}

ColorGridAction ColorGrid::LeftButtonDown(int x, int y, std::uint64_t nowTicks, std::uint32_t doubleClickMs) {
  const int hit = HitTest(x, y);
  if (hit < 0) return {};
  if (hit != selected_) {
    ColorGridAction action = Select(hit);
    action.cell = hit;
    if (hit >= presetCount_ && cells_[static_cast<std::size_t>(hit)] == 0) {
      action.kind = ColorGridAction::EditCell;  // an empty custom cell is filled, not chosen
    } else {
      action.kind = ColorGridAction::NotifyParent;
      action.button = 0;
    }
    return action;
  }
  ColorGridAction action;
  action.cell = hit;
  if (nowTicks - lastClick_ <= doubleClickMs) action.kind = ColorGridAction::SendDoubleClick;
  lastClick_ = nowTicks;
  return action;
}

ColorGridAction ColorGrid::DoubleClick(int x, int y) const {
  const int hit = HitTest(x, y);
  ColorGridAction action;
  if (hit == selected_) {
    action.kind = ColorGridAction::EditCell;
    action.cell = hit;
  }
  return action;
}

ColorGridAction ColorGrid::RightButtonDown(int x, int y) {
  const int hit = HitTest(x, y);
  ColorGridAction action = Select(hit);
  action.kind = ColorGridAction::NotifyParent;
  action.cell = hit;
  action.button = 1;
  return action;
}

ColorGridAction ColorGrid::ColorEdited(int cell, std::uint32_t color) {
  ColorGridAction action;
  if (cell < 0 || cell >= cellCount_) return action;
  cells_[static_cast<std::size_t>(cell)] = color;
  action.kind = ColorGridAction::NotifyParent;
  action.cell = cell;
  action.button = 0;
  action.invalidateNew = cell;
  return action;
}

// --- ColorPopupState -------------------------------------------------------------------------

ColorPopupAction ColorPopupState::CellChanged(std::uintptr_t button, std::uint32_t selectedCellColor,
                                              bool noColorChecked) {
  workingColor = selectedCellColor;
  if (noColorChecked) return {ColorPopupAction::UncheckNoColor, 0, 0};
  return {ColorPopupAction::PostClose, button + 1, 0};
}

ColorPopupAction ColorPopupState::NoColorClicked(bool checked, std::uint32_t selectedCellColor) {
  if (checked) {
    workingColor = kNoColor;
    return {ColorPopupAction::PostClose, kColorAccept, 0};
  }
  workingColor = selectedCellColor;
  return {};
}

ColorPopupAction ColorPopupState::ListRowSelected(std::uint32_t rowColor) {
  if (!listMode) return {};
  workingColor = rowColor;
  return {ColorPopupAction::PostClose, kColorAccept, 0};
}

ColorPopupAction ColorPopupState::Close(std::uintptr_t how) const {
  if (how == kColorAccept) return {ColorPopupAction::SendAccepted, 0, workingColor};
  return {ColorPopupAction::PostDismissed, 0, 0};
}

// --- The list, the place, the figures --------------------------------------------------------

std::vector<ColorListRow> ThemeColorRows() {
  std::vector<ColorTableItem> table;
  LoadColorTable(table);
  std::vector<ColorListRow> rows;
  rows.reserve(table.size());
  for (ColorTableItem& item : table) rows.push_back({kColorSwatchText, std::move(item.tag), item.color});
  return rows;
}

int ColorListSwatchColumnWidth(double displayScale) { return static_cast<int>(displayScale * 20); }

int ColorListTagColumnWidth(int listWidth, int verticalScrollWidth) {
  return static_cast<int>((listWidth - verticalScrollWidth) * 0.8);
}

PopupPlace PlaceColorPopup(const WindowRect& button, int popupWidth, int popupHeight, int screenWidth,
                           int screenHeight) {
  PopupPlace place{button.left, button.bottom};
  if (place.y + popupHeight > screenHeight) place.y = button.top - popupHeight;
  if (place.x + popupWidth > screenWidth) place.x = screenWidth - popupWidth;
  return place;
}

ColorButtonFigures ColorButtonLayout(const WindowRect& item, double displayScale) {
  ColorButtonFigures f;
  f.arrowBoxWidth = 4 + static_cast<int>(11 * displayScale);
  f.arrowStrip = {item.right - 2 - f.arrowBoxWidth, item.top, item.right - 2, item.bottom};
  f.swatch = {item.left + 5, item.top + 4, item.right - f.arrowBoxWidth - 2, item.bottom - 4};
  // The triangle: half the strip wide, its height half its width, centred.
  const float stripWidth = static_cast<float>(f.arrowStrip.right - f.arrowStrip.left);
  const float half = stripWidth / 4;
  const float cx = static_cast<float>(f.arrowStrip.left) + stripWidth / 2;
  const float cy = static_cast<float>(item.top + item.bottom) / 2;
  f.triangle[0] = {cx - half, cy - half / 2};
  f.triangle[1] = {cx + half, cy - half / 2};
  f.triangle[2] = {cx, cy + half / 2};
  return f;
}

ColorButtonColors ColorButtonThemeColors(const ThemeColors& theme) { return {theme[1], theme[3], theme[6], theme[3]}; }

ColorGridColors ColorGridThemeColors(const ThemeColors& theme) { return {theme[0], theme[0], theme[6]}; }

unsigned XColorStaticTextFormat(std::uint32_t style) {
  const std::uint32_t align = style & 3u;
  unsigned format = align == 1 ? 1u : align == 2 ? 2u : 0u;  // DT_CENTER, DT_RIGHT, DT_LEFT
  format |= (style & 0x200u) ? 36u : 16u;                    // DT_SINGLELINE | DT_VCENTER, DT_WORDBREAK
  return format;
}

}  // namespace orv
