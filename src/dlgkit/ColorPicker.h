#pragma once
// The colour pickers' portable half: the grid's two palettes, its geometry, hit test and
// selection (ColorWnd), what its mouse input asks for, the drop-down's choices
// (CSingleColorDlg), where the drop-down goes, and the colour button's and the colour static's
// figures. The windows, GDI+ and ChooseColorA are in win32/ColorPickerWin32.*.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "dlgkit/SettingsStore.h"
#include "dlgkit/ThemedControls.h"  // kNoColor
#include "dlgkit/WindowOps.h"       // WindowRect

namespace orv {

// The drop-down's dialog template and its controls.
inline constexpr int kIddColorPopup = 311;
inline constexpr int kIdcColorGrid = 210;      // a static whose place and id the grid takes
inline constexpr int kIdcColorList = 211;      // the host's theme colours, hidden at first
inline constexpr int kIdcColorListMode = 227;  // "Line Colors": grid or list
inline constexpr int kIdcNoColor = 4702;       // "Hide": the no-colour check

// Private messages between grid, drop-down and button.
inline constexpr unsigned kWmColorCellChanged = 1812;  // grid -> drop-down; wParam 0 left, 1 right button
inline constexpr unsigned kWmColorCheckActive = 1930;  // drop-down to itself: did it lose activation?
inline constexpr unsigned kWmColorClose = 1931;        // drop-down to itself; wParam 1 accept, 2 dismiss
inline constexpr unsigned kWmColorAccepted = 1932;     // drop-down -> button; lParam the colour
inline constexpr unsigned kWmColorDismissed = 1933;    // drop-down -> button
inline constexpr std::uintptr_t kColorAccept = 1;
inline constexpr std::uintptr_t kColorDismiss = 2;

// The grid's context menu: its one item.
inline constexpr int kIdCustomizeColor = 1;
inline constexpr char kCustomizeColorText[] = "Customize Color...";
inline constexpr unsigned kColorMenuFlags = 386;  // TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD
// ChooseColorA: start from the given colour, fully open.
inline constexpr std::uint32_t kChooseColorFlags = 3;  // CC_RGBINIT | CC_FULLOPEN
// The grid window's style: a visible child.
inline constexpr std::uint32_t kColorGridStyle = 0x50000000;
// The theme list: its extended style and the title of its second column.
inline constexpr std::uint32_t kColorListExStyle = 32;  // LVS_EX_FULLROWSELECT
inline constexpr char kThemeColorColumn[] = "Theme Color";
inline constexpr char kColorSwatchText[] = "   ";

inline constexpr int kColorGridColumns = 9;
inline constexpr int kColorGridRows = 9;
inline constexpr int kColorGridCells = kColorGridColumns * kColorGridRows;  // 81
inline constexpr int kColorGridPresets = 63;                                // the first custom cell

using ColorPalette = std::array<std::uint32_t, kColorGridPresets>;

// The grid's fixed colours, row by row (COLORREF, 0xBBGGRR).
const ColorPalette& NewerColorPalette();
const ColorPalette& OlderColorPalette();
// The palette the user's "UseOldPalette" chooses: the older one for a non-zero DWORD, else the newer.
const ColorPalette& ColorPaletteFor(SettingsStore& store);

// What ColorWnd's mouse input asks its window to do.
struct ColorGridAction {
  enum Kind {
    None,
    NotifyParent,    // send kWmColorCellChanged with `button` (0 left, 1 right) to the parent
    EditCell,        // run the colour editor on `cell`
    SendDoubleClick  // send WM_LBUTTONDBLCLK to the grid itself
  };
  Kind kind = None;
  int cell = -1;
  std::uintptr_t button = 0;
  // Cells whose rectangles need repainting (the old and the new selection); -1 for none.
  int invalidateOld = -1, invalidateNew = -1;
};

// The state of a ColorWnd: cells, selection, layout. No windows here.
class ColorGrid {
 public:
  // The first 63 cells take the palette, the other 18 are 0 (empty custom cells). The inset
  // between a cell's rectangle and its colour is 2 * displayScale, truncated.
  ColorGrid(const ColorPalette& palette, double displayScale);

  // Once, from the client size: cells square at the smaller of W/9 and H/9, the grid placed
  // at ((W % 9 + inset) / 2, (H % 9) / 2).
  void Layout(int clientWidth, int clientHeight);

  // The cell's rectangle; empty for a negative index or one past the end.
  WindowRect CellRect(int index) const;
  // The first cell from 0 whose rectangle holds the point; -1 for none.
  int HitTest(int x, int y) const;

  // Selects the first cell holding exactly `color`; with none, stores it in the next custom
  // cell while there is one (else the selection stays). Returns the cells to repaint.
  ColorGridAction SelectColor(std::uint32_t color);

  // Left button down at (x, y) at `nowTicks` (milliseconds); a second click on the selected
  // cell within `doubleClickMs` of the previous one there makes a double click by hand.
  ColorGridAction LeftButtonDown(int x, int y, std::uint64_t nowTicks, std::uint32_t doubleClickMs);
  // WM_LBUTTONDBLCLK: the colour editor when the hit cell is the selected one.
  ColorGridAction DoubleClick(int x, int y) const;
  // Right button down: select the hit cell (-1 outside them all), tell the parent.
  ColorGridAction RightButtonDown(int x, int y);
  // The colour editor's OK: the cell takes the colour; tell the parent as a left click does.
  ColorGridAction ColorEdited(int cell, std::uint32_t color);

  // A cell's colour; white for a negative index (as the cell is painted), 0 past the end.
  std::uint32_t CellColor(int index) const;
  int Selected() const { return selected_; }
  int CustomCount() const { return customCount_; }
  int CellCount() const { return cellCount_; }
  int PresetCount() const { return presetCount_; }
  int CellWidth() const { return cellWidth_; }
  int CellHeight() const { return cellHeight_; }
  int XOffset() const { return xOffset_; }
  int YOffset() const { return yOffset_; }
  int Inset() const { return inset_; }
  const std::array<std::uint32_t, kColorGridCells>& Cells() const { return cells_; }

 private:
  ColorGridAction Select(int cell);

  int selected_ = -1;
  int cellCount_ = kColorGridCells;
  int customCount_ = 0;
  int cellWidth_ = 0, cellHeight_ = 0;
  int xOffset_ = 0, yOffset_ = 0;
  int columns_ = kColorGridColumns, rows_ = kColorGridRows;
  int presetCount_ = kColorGridPresets;
  int inset_ = 0;
  std::uint64_t lastClick_ = 0;
  std::array<std::uint32_t, kColorGridCells> cells_{};
};

// What the drop-down asks its window to do after an event.
struct ColorPopupAction {
  enum Kind {
    None,
    PostClose,       // post kWmColorClose with `close` (kColorAccept, kColorDismiss)
    UncheckNoColor,  // clear the "Hide" check; the drop-down stays open
    SendAccepted,    // send kWmColorAccepted with `color` to the owner
    PostDismissed    // post kWmColorDismissed to the owner
  };
  Kind kind = None;
  std::uintptr_t close = 0;
  std::uint32_t color = 0;
};

// The choices of CSingleColorDlg, apart from its windows.
class ColorPopupState {
 public:
  // Before each drop-down: the button's colour becomes the working colour.
  void Begin(std::uint32_t buttonColor) { workingColor = buttonColor; }
  // Whether "Hide" shows checked when the drop-down appears.
  bool NoColorChecked() const { return workingColor == kNoColor; }

  // kWmColorCellChanged: the working colour becomes the selected cell's; a checked "Hide" is
  // cleared and nothing closes; otherwise the left button accepts, the right dismisses.
  ColorPopupAction CellChanged(std::uintptr_t button, std::uint32_t selectedCellColor, bool noColorChecked);
  // "Hide" clicked: checked is no colour, accepted at once; cleared is the selected cell's colour.
  ColorPopupAction NoColorClicked(bool checked, std::uint32_t selectedCellColor);
  // "Line Colors" clicked: the list shows while it is checked.
  void ListModeClicked(bool checked) { listMode = checked; }
  // A row of the list became selected (in list mode only); `rowColor` 0 when there is no row.
  ColorPopupAction ListRowSelected(std::uint32_t rowColor);
  ColorPopupAction Ok() const { return {ColorPopupAction::PostClose, kColorAccept, 0}; }
  ColorPopupAction Cancel() const { return {ColorPopupAction::PostClose, kColorDismiss, 0}; }
  // kWmColorClose: accept hands the working colour to the owner, anything else dismisses.
  ColorPopupAction Close(std::uintptr_t how) const;

  bool listMode = false;
  bool offerNoColor = false;
  std::uint32_t workingColor = 0;
};

// One row of the theme colour list: the swatch column's text, the tag, the row's data.
struct ColorListRow {
  std::string swatchText;
  std::string tag;
  std::uint32_t color = 0;
};
// The rows of the host's colour table (LoadColorTable), in the document's order.
std::vector<ColorListRow> ThemeColorRows();

// The theme list's column widths: the swatch 20 * scale, the tag 0.8 of what the vertical
// scroll bar leaves of the list, both truncated.
int ColorListSwatchColumnWidth(double displayScale);
int ColorListTagColumnWidth(int listWidth, int verticalScrollWidth);

// Where the drop-down goes (screen coordinates): under the button at its left edge; above it
// when it would pass the virtual screen's bottom; pulled left when it would pass its right.
struct PopupPlace {
  int x = 0, y = 0;
};
PopupPlace PlaceColorPopup(const WindowRect& button, int popupWidth, int popupHeight, int screenWidth,
                           int screenHeight);

// The colour button's figures inside its item rectangle.
struct ColorButtonFigures {
  int arrowBoxWidth = 0;  // 4 + 11 * scale, truncated
  WindowRect arrowStrip;  // the arrow's strip: ends 2 pixels from the right edge
  WindowRect swatch;      // left + 5, top + 4 to right - arrow box - 2, bottom - 4
  // The down-pointing triangle centred in the strip: left, right and bottom tip.
  struct Point {
    float x = 0, y = 0;
  } triangle[3];
};
ColorButtonFigures ColorButtonLayout(const WindowRect& item, double displayScale);

// The colour button's theme: which entries replace its four held colours.
struct ColorButtonColors {
  std::uint32_t body = 0, arrow = 0, focusFrame = 0, frame = 0;
};
ColorButtonColors ColorButtonThemeColors(const ThemeColors& theme);
// The grid's theme: background, outer frame and selection.
struct ColorGridColors {
  std::uint32_t background = 0, outerFrame = 0, selection = 0;
};
ColorGridColors ColorGridThemeColors(const ThemeColors& theme);

// CXColorStatic's DrawText format from its window style: centred (style 1), right (2), else
// left; SS_CENTERIMAGE (0x200) a single vertically centred line, else word break.
unsigned XColorStaticTextFormat(std::uint32_t style);
inline constexpr int kXColorStaticMaxText = 1024;

}  // namespace orv
