// The colour pickers without windows: the palettes and the registry's choice, the grid's
// geometry, hit test and selection, what a click asks for, the drop-down's choices and place,
// the button's figures and the colour static's text format.
#include "dlgkit/ColorPicker.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "dlgkit/CxRegKey.h"
#include "dlgkit/fake/FakeHostServices.h"
#include "xml/Xml.h"

namespace {

using orv::ColorGrid;
using orv::ColorGridAction;
using orv::ColorPopupAction;

bool SameRect(const orv::WindowRect& r, int left, int top, int right, int bottom) {
  return r.left == left && r.top == top && r.right == right && r.bottom == bottom;
}

// --- Palettes --------------------------------------------------------------------------------

TEST(ColorPaletteTest, GreyColumnIsSharedAndNoPaletteRepeatsAColour) {
  // The grey column is the same in both; no palette repeats a colour, so selecting by colour
  // finds one cell.
  for (int row = 0; row < 7; ++row)
    EXPECT_EQ(orv::NewerColorPalette()[row * 9 + 8], orv::OlderColorPalette()[row * 9 + 8]) << row;
  for (const orv::ColorPalette* palette : {&orv::NewerColorPalette(), &orv::OlderColorPalette()})
    for (std::size_t i = 0; i < palette->size(); ++i)
      for (std::size_t j = i + 1; j < palette->size(); ++j) EXPECT_NE((*palette)[i], (*palette)[j]) << i << " " << j;
}

TEST(ColorPaletteTest, RegistryChoosesTheOlderOnlyForANonZeroDword) {
  struct Case {
    const char* what;
    void (*fill)(orv::MemorySettingsStore&);
    bool older;
  } cases[] = {
      {"missing key", [](orv::MemorySettingsStore&) {}, false},
      {"zero", [](orv::MemorySettingsStore& s) { s.WriteDword(orv::kOrvaneKey, "UseOldPalette", 0); }, false},
      {"two", [](orv::MemorySettingsStore& s) { s.WriteDword(orv::kOrvaneKey, "UseOldPalette", 2); }, true},
      {"string \"1\"", [](orv::MemorySettingsStore& s) { s.WriteString(orv::kOrvaneKey, "UseOldPalette", "1"); },
       false},
      {"name in other case", [](orv::MemorySettingsStore& s) { s.WriteDword(orv::kOrvaneKey, "useoldpalette", 1); },
       true},
  };
  for (const Case& c : cases) {
    orv::MemorySettingsStore store;
    c.fill(store);
    EXPECT_EQ(&orv::ColorPaletteFor(store), c.older ? &orv::OlderColorPalette() : &orv::NewerColorPalette()) << c.what;
    ColorGrid grid(orv::ColorPaletteFor(store), 1.0);
    EXPECT_EQ(grid.CellColor(1 * 9 + 2), c.older ? 0x99E5FFu : 0xADFFFFu) << c.what;
  }
}

// --- Geometry --------------------------------------------------------------------------------

TEST(ColorGridTest, LayoutSquaresTheCellsAndCentresTheRemainder) {
  struct Case {
    int width, height;
    double scale;
    int inset, cell, xOffset, yOffset;
  } cases[] = {
      {180, 180, 1.0, 2, 20, 1, 0},   // exact: only the inset shifts x
      {185, 170, 1.0, 2, 18, 3, 4},   // 185 % 9 = 5, 170 % 9 = 8
      {200, 150, 1.5, 3, 16, 2, 3},   // 200 % 9 = 2, (2 + 3) / 2; 150 % 9 = 6
      {100, 250, 1.25, 2, 11, 1, 3},  // width decides; 2.5 truncates to 2
      {270, 270, 2.0, 4, 30, 2, 0},   // 200 %
      {8, 8, 1.0, 2, 0, 5, 4},        // smaller than the grid: empty cells
  };
  for (const Case& c : cases) {
    ColorGrid grid(orv::NewerColorPalette(), c.scale);
    grid.Layout(c.width, c.height);
    const std::string at = std::to_string(c.width) + "x" + std::to_string(c.height);
    EXPECT_EQ(grid.Inset(), c.inset) << at;
    EXPECT_EQ(grid.CellWidth(), c.cell) << at;
    EXPECT_EQ(grid.CellHeight(), c.cell) << at;
    EXPECT_EQ(grid.XOffset(), c.xOffset) << at;
    EXPECT_EQ(grid.YOffset(), c.yOffset) << at;
  }
}

TEST(ColorGridTest, CellRectanglesRunRowByRowAndOutOfRangeIsEmpty) {
  ColorGrid grid(orv::NewerColorPalette(), 1.0);
  grid.Layout(185, 170);  // cells of 18, origin (3, 4)
  struct Case {
    int index, left, top, right, bottom;
  } cases[] = {
      {0, 3, 4, 21, 22},        {8, 147, 4, 165, 22},  {9, 3, 22, 21, 40},
      {62, 147, 112, 165, 130}, {63, 3, 130, 21, 148}, {80, 147, 148, 165, 166},
      {-1, 0, 0, 0, 0},         {81, 0, 0, 0, 0},      {1000, 0, 0, 0, 0},
  };
  for (const Case& c : cases)
    EXPECT_TRUE(SameRect(grid.CellRect(c.index), c.left, c.top, c.right, c.bottom)) << c.index;
}

TEST(ColorGridTest, HitTestTakesLeftAndTopEdgesAndMissesOutside) {
  ColorGrid grid(orv::NewerColorPalette(), 1.0);
  grid.Layout(185, 170);
  struct Case {
    int x, y, cell;
  } cases[] = {
      {3, 4, 0},  {20, 21, 0}, {21, 4, 1},   {3, 22, 9},   {164, 165, 80}, {100, 100, 5 * 9 + 5},
      {2, 4, -1}, {3, 3, -1},  {165, 4, -1}, {3, 166, -1}, {-5, -5, -1},   {184, 169, -1},
  };
  for (const Case& c : cases) EXPECT_EQ(grid.HitTest(c.x, c.y), c.cell) << c.x << "," << c.y;
}

// --- Selection by colour ---------------------------------------------------------------------

TEST(ColorGridTest, SelectColorFindsTheFirstCellOrFillsTheNextCustomOne) {
  ColorGrid grid(orv::NewerColorPalette(), 1.0);
  ColorGridAction a = grid.SelectColor(0xFF0000);  // row 3, column 6
  EXPECT_EQ(grid.Selected(), 33);
  EXPECT_EQ(a.invalidateOld, -1);
  EXPECT_EQ(a.invalidateNew, 33);
  EXPECT_EQ(grid.CustomCount(), 0);

  // Black is the last preset, found before any empty (zero) custom cell.
  grid.SelectColor(0x000000);
  EXPECT_EQ(grid.Selected(), 62);

  a = grid.SelectColor(0x123456);
  EXPECT_EQ(grid.Selected(), 63);
  EXPECT_EQ(a.invalidateOld, 62);
  EXPECT_EQ(grid.CellColor(63), 0x123456u);
  grid.SelectColor(0x654321);
  EXPECT_EQ(grid.Selected(), 64);
  grid.SelectColor(0x123456);  // known now: no new cell
  EXPECT_EQ(grid.Selected(), 63);
  EXPECT_EQ(grid.CustomCount(), 2);

  // No colour is a colour like any other here: it takes a custom cell.
  grid.SelectColor(orv::kNoColor);
  EXPECT_EQ(grid.Selected(), 65);
  EXPECT_EQ(grid.CellColor(65), orv::kNoColor);
}

TEST(ColorGridTest, AfterEighteenCustomColoursTheSelectionStays) {
  ColorGrid grid(orv::OlderColorPalette(), 1.0);
  for (int i = 0; i < 18; ++i) {
    grid.SelectColor(0x010101u + static_cast<std::uint32_t>(i));
    EXPECT_EQ(grid.Selected(), 63 + i) << i;
  }
  EXPECT_EQ(grid.CustomCount(), 18);
  const ColorGridAction a = grid.SelectColor(0xABCDEF);
  EXPECT_EQ(grid.Selected(), 80);
  EXPECT_EQ(a.invalidateOld, 80);
  EXPECT_EQ(a.invalidateNew, 80);
  EXPECT_EQ(grid.CustomCount(), 18);
  for (int i = 0; i < orv::kColorGridCells; ++i) EXPECT_NE(grid.CellColor(i), 0xABCDEFu) << i;
}

// --- Mouse -----------------------------------------------------------------------------------

class ColorGridMouseTest : public ::testing::Test {
 protected:
  void SetUp() override { grid.Layout(180, 180); }  // cells of 20 at (1, 0)
  // The centre of a cell.
  int X(int cell) const { return 1 + (cell % 9) * 20 + 10; }
  int Y(int cell) const { return (cell / 9) * 20 + 10; }
  ColorGrid grid{orv::NewerColorPalette(), 1.0};
};

TEST_F(ColorGridMouseTest, LeftClickChoosesAPresetAndEditsAnEmptyCustomCell) {
  struct Case {
    int cell;
    ColorGridAction::Kind kind;
  } cases[] = {
      {0, ColorGridAction::NotifyParent},
      {62, ColorGridAction::NotifyParent},  // black
      {63, ColorGridAction::EditCell},      // empty
      {80, ColorGridAction::EditCell},
  };
  for (const Case& c : cases) {
    const int before = grid.Selected();
    const ColorGridAction a = grid.LeftButtonDown(X(c.cell), Y(c.cell), 1'000'000, 500);
    EXPECT_EQ(a.kind, c.kind) << c.cell;
    EXPECT_EQ(a.cell, c.cell);
    EXPECT_EQ(a.button, 0u);
    EXPECT_EQ(a.invalidateOld, before);
    EXPECT_EQ(grid.Selected(), c.cell);
  }
  // Once filled, a custom cell is chosen like a preset.
  grid.ColorEdited(80, 0x102030);
  EXPECT_EQ(grid.LeftButtonDown(X(79), Y(79), 1'000'000, 500).kind, ColorGridAction::EditCell);
  EXPECT_EQ(grid.LeftButtonDown(X(80), Y(80), 1'000'000, 500).kind, ColorGridAction::NotifyParent);
}

TEST_F(ColorGridMouseTest, OutsideTheCellsNothingHappens) {
  grid.SelectColor(0xFFFFFF);
  const ColorGridAction a = grid.LeftButtonDown(0, 5, 1'000'000, 500);  // left of the origin
  EXPECT_EQ(a.kind, ColorGridAction::None);
  EXPECT_EQ(grid.Selected(), 8);
}

TEST_F(ColorGridMouseTest, SecondClickOnTheSelectedCellWithinTheTimeIsADoubleClick) {
  grid.SelectColor(0x0000FF);  // cell 27
  struct Step {
    std::uint64_t at;
    ColorGridAction::Kind kind;
  } steps[] = {
      {1'000'000, ColorGridAction::None},             // the first click on it only starts the clock
      {1'000'400, ColorGridAction::SendDoubleClick},  // within 500
      {1'000'900, ColorGridAction::SendDoubleClick},  // exactly 500 counts
      {1'001'401, ColorGridAction::None},             // 501 doesn't, and restarts the clock
      {1'001'500, ColorGridAction::SendDoubleClick},
  };
  for (const Step& s : steps) {
    const ColorGridAction a = grid.LeftButtonDown(X(27), Y(27), s.at, 500);
    EXPECT_EQ(a.kind, s.kind) << s.at;
    EXPECT_EQ(grid.Selected(), 27);
  }
  // A click on another cell keeps no time: coming back is a first click again.
  EXPECT_EQ(grid.LeftButtonDown(X(28), Y(28), 1'001'600, 500).kind, ColorGridAction::NotifyParent);
  EXPECT_EQ(grid.LeftButtonDown(X(27), Y(27), 1'001'700, 500).kind, ColorGridAction::NotifyParent);
  EXPECT_EQ(grid.LeftButtonDown(X(27), Y(27), 1'001'800, 500).kind, ColorGridAction::SendDoubleClick);
}

TEST_F(ColorGridMouseTest, DoubleClickEditsOnlyTheSelectedCell) {
  grid.SelectColor(0x00FF00);  // cell 30
  EXPECT_EQ(grid.DoubleClick(X(30), Y(30)).kind, ColorGridAction::EditCell);
  EXPECT_EQ(grid.DoubleClick(X(30), Y(30)).cell, 30);
  EXPECT_EQ(grid.DoubleClick(X(31), Y(31)).kind, ColorGridAction::None);
  EXPECT_EQ(grid.DoubleClick(0, 0).kind, ColorGridAction::None);
}

TEST_F(ColorGridMouseTest, RightClickSelectsAndTellsTheParentWithButtonOne) {
  grid.SelectColor(0x00FF00);
  ColorGridAction a = grid.RightButtonDown(X(5), Y(5));
  EXPECT_EQ(a.kind, ColorGridAction::NotifyParent);
  EXPECT_EQ(a.button, 1u);
  EXPECT_EQ(grid.Selected(), 5);
  // An empty custom cell too: no editor on the right button.
  a = grid.RightButtonDown(X(70), Y(70));
  EXPECT_EQ(a.kind, ColorGridAction::NotifyParent);
  EXPECT_EQ(grid.Selected(), 70);
  // Outside: nothing selected; the parent reads white.
  a = grid.RightButtonDown(0, 0);
  EXPECT_EQ(a.kind, ColorGridAction::NotifyParent);
  EXPECT_EQ(grid.Selected(), -1);
  EXPECT_EQ(grid.CellColor(grid.Selected()), 0xFFFFFFu);
}

TEST_F(ColorGridMouseTest, EditedColourIsStoredAndAnnouncedAsALeftClick) {
  grid.LeftButtonDown(X(64), Y(64), 1'000'000, 500);
  const ColorGridAction a = grid.ColorEdited(64, 0x0A0B0C);
  EXPECT_EQ(a.kind, ColorGridAction::NotifyParent);
  EXPECT_EQ(a.button, 0u);
  EXPECT_EQ(a.invalidateNew, 64);
  EXPECT_EQ(grid.CellColor(64), 0x0A0B0Cu);
  // Edited cells don't count as custom colours: the next unknown colour still goes to 63.
  EXPECT_EQ(grid.CustomCount(), 0);
  grid.SelectColor(0x0D0E0F);
  EXPECT_EQ(grid.Selected(), 63);
}

// --- The drop-down's choices -----------------------------------------------------------------

TEST(ColorPopupStateTest, CellChangesAcceptOrDismissUnlessHideIsChecked) {
  struct Case {
    const char* what;
    std::uintptr_t button;
    bool hideChecked;
    ColorPopupAction::Kind kind;
    std::uintptr_t close;
  } cases[] = {
      {"left accepts", 0, false, ColorPopupAction::PostClose, orv::kColorAccept},
      {"right dismisses", 1, false, ColorPopupAction::PostClose, orv::kColorDismiss},
      {"left with Hide clears it", 0, true, ColorPopupAction::UncheckNoColor, 0},
      {"right with Hide clears it", 1, true, ColorPopupAction::UncheckNoColor, 0},
  };
  for (const Case& c : cases) {
    orv::ColorPopupState state;
    state.Begin(0x111111);
    const ColorPopupAction a = state.CellChanged(c.button, 0x222222, c.hideChecked);
    EXPECT_EQ(a.kind, c.kind) << c.what;
    EXPECT_EQ(a.close, c.close) << c.what;
    EXPECT_EQ(state.workingColor, 0x222222u) << c.what;
  }
}

TEST(ColorPopupStateTest, HideAcceptsNoColourAndClearingItTakesTheCell) {
  orv::ColorPopupState state;
  state.Begin(0x336699);
  EXPECT_FALSE(state.NoColorChecked());
  ColorPopupAction a = state.NoColorClicked(true, 0x336699);
  EXPECT_EQ(a.kind, ColorPopupAction::PostClose);
  EXPECT_EQ(a.close, orv::kColorAccept);
  EXPECT_EQ(state.workingColor, orv::kNoColor);
  EXPECT_EQ(state.Close(a.close).kind, ColorPopupAction::SendAccepted);
  EXPECT_EQ(state.Close(a.close).color, orv::kNoColor);

  a = state.NoColorClicked(false, 0x00FF00);
  EXPECT_EQ(a.kind, ColorPopupAction::None);
  EXPECT_EQ(state.workingColor, 0x00FF00u);

  state.Begin(orv::kNoColor);
  EXPECT_TRUE(state.NoColorChecked());
}

TEST(ColorPopupStateTest, ListRowsAcceptOnlyInListModeAndCloseCodes) {
  orv::ColorPopupState state;
  state.Begin(0x445566);
  EXPECT_EQ(state.ListRowSelected(0x010203).kind, ColorPopupAction::None);
  EXPECT_EQ(state.workingColor, 0x445566u);
  state.ListModeClicked(true);
  const ColorPopupAction a = state.ListRowSelected(0x010203);
  EXPECT_EQ(a.kind, ColorPopupAction::PostClose);
  EXPECT_EQ(a.close, orv::kColorAccept);
  EXPECT_EQ(state.workingColor, 0x010203u);
  state.ListModeClicked(false);
  EXPECT_FALSE(state.listMode);

  EXPECT_EQ(state.Ok().close, orv::kColorAccept);
  EXPECT_EQ(state.Cancel().close, orv::kColorDismiss);
  EXPECT_EQ(state.Close(orv::kColorDismiss).kind, ColorPopupAction::PostDismissed);
  EXPECT_EQ(state.Close(7).kind, ColorPopupAction::PostDismissed);
}

TEST(ColorPopupPlaceTest, UnderTheButtonOrMovedInsideTheScreen) {
  const orv::WindowRect button{100, 200, 180, 222};
  struct Case {
    const char* what;
    int width, height, screenWidth, screenHeight, x, y;
  } cases[] = {
      {"room below", 150, 200, 1024, 768, 100, 222},
      {"bottom just fits", 150, 546, 1024, 768, 100, 222},
      {"bottom passes: above", 150, 547, 1024, 768, 100, -347},
      {"right passes: pulled left", 950, 200, 1024, 768, 74, 222},
      {"both", 950, 600, 1024, 768, 74, -400},
  };
  for (const Case& c : cases) {
    const orv::PopupPlace p = orv::PlaceColorPopup(button, c.width, c.height, c.screenWidth, c.screenHeight);
    EXPECT_EQ(p.x, c.x) << c.what;
    EXPECT_EQ(p.y, c.y) << c.what;
  }
}

// --- Button, list and static -----------------------------------------------------------------

TEST(ColorButtonTest, FiguresAtDisplayScales) {
  struct Case {
    double scale;
    int arrowBox, stripLeft, swatchRight;
  } cases[] = {
      {1.0, 15, 83, 83},   // item 0..100: strip ends at 98
      {1.25, 17, 81, 81},  // 13.75 truncates to 13
      {1.5, 20, 78, 78},
      {2.0, 26, 72, 72},
  };
  for (const Case& c : cases) {
    const orv::ColorButtonFigures f = orv::ColorButtonLayout({0, 0, 100, 24}, c.scale);
    EXPECT_EQ(f.arrowBoxWidth, c.arrowBox) << c.scale;
    EXPECT_TRUE(SameRect(f.arrowStrip, c.stripLeft, 0, 98, 24)) << c.scale;
    EXPECT_TRUE(SameRect(f.swatch, 5, 4, c.swatchRight, 20)) << c.scale;
    // The triangle points down and stays inside its strip.
    EXPECT_LT(f.triangle[0].x, f.triangle[1].x);
    EXPECT_GT(f.triangle[2].y, f.triangle[0].y);
    for (const auto& p : f.triangle) {
      EXPECT_GE(p.x, static_cast<float>(f.arrowStrip.left));
      EXPECT_LE(p.x, static_cast<float>(f.arrowStrip.right));
    }
  }
}

TEST(ColorListTest, ColumnWidths) {
  EXPECT_EQ(orv::ColorListSwatchColumnWidth(1.0), 20);
  EXPECT_EQ(orv::ColorListSwatchColumnWidth(1.25), 25);
  EXPECT_EQ(orv::ColorListSwatchColumnWidth(1.33), 26);
  EXPECT_EQ(orv::ColorListTagColumnWidth(200, 17), 146);  // 183 * 0.8 = 146.4
  EXPECT_EQ(orv::ColorListTagColumnWidth(117, 17), 80);
}

TEST(ColorListTest, RowsAreTheHostsColorTableInOrder) {
  orv::FakeHostServices host;
  orv::ScopedHostServices scope(host);
  XmlNode document = XmlCreateDocument();
  ASSERT_TRUE(XmlLoadString(document,
                            "<Prefs><General><ColorTable>"
                            "<Color ThemeTag=\"Up bar\">RGB(0,160,0)</Color>"
                            "<Other ThemeTag=\"Skipped\">1</Other>"
                            "<Color ThemeTag=\"Down bar\">0x0000FF</Color>"
                            "</ColorTable></General></Prefs>"));
  host.ExpectDocumentNode("PREFS", "//General/ColorTable", XmlFindNode(document, "ColorTable", true));
  const std::vector<orv::ColorListRow> rows = orv::ThemeColorRows();
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].swatchText, "   ");
  EXPECT_EQ(rows[0].tag, "Up bar");
  EXPECT_EQ(rows[0].color, 0x00A000u);
  EXPECT_EQ(rows[1].tag, "Down bar");
  EXPECT_EQ(rows[1].color, 0x0000FFu);
  EXPECT_TRUE(host.AllExpectationsMet());
}

TEST(XColorStaticTest, TextFormatFromTheStyle) {
  struct Case {
    std::uint32_t style;
    unsigned format;
  } cases[] = {
      {0x0, 16},   {0x1, 17},   {0x2, 18},   {0x3, 16},  // SS_LEFTNOWORDWRAP-like 3 stays left
      {0x200, 36}, {0x201, 37}, {0x202, 38}, {0x50000201, 37},
  };
  for (const Case& c : cases) EXPECT_EQ(orv::XColorStaticTextFormat(c.style), c.format) << std::hex << c.style;
}

}  // namespace
