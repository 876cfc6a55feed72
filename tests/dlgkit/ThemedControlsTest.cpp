// Themed controls: the theme message, their colours where the platform sees them, their brushes.
#include "dlgkit/ThemedControls.h"

#include <gtest/gtest.h>

#include <functional>

#include "dlgkit/fake/FakeWindowTree.h"

namespace {

using orv::FakeWindowTree;

// Entry i of the record is 0x10000 + i, so a colour names the index it came from.
ThemeColors IndexedTheme() {
  ThemeColors theme;
  for (int i = 0; i < ThemeColors::kCount; ++i) theme[i] = 0x10000u + static_cast<std::uint32_t>(i);
  return theme;
}
constexpr std::uint32_t From(int index) { return 0x10000u + static_cast<std::uint32_t>(index); }

bool SendTheme(COrvThemedControl& control, const ThemeColors& theme) {
  std::intptr_t result = -1;
  bool handled = control.OnMessage(WM_ORV_THEME, 0, reinterpret_cast<std::intptr_t>(&theme), result);
  EXPECT_EQ(result, 0);
  return handled;
}

struct ControlCase {
  const char* name;
  std::function<std::unique_ptr<COrvThemedControl>()> make;
};

template <class C>
ControlCase Case(const char* name) {
  return {name, [] { return std::make_unique<C>(); }};
}

// Every themed class: unthemed until the record arrives, themed by the dialog's message through
// its window, and gone from the window, with its brushes, when the object goes.
TEST(ThemedControlsTest, EachClassIsThemedThroughItsWindowAndLetsGoOfIt) {
  const ControlCase cases[] = {
      Case<COrvButton>("COrvButton"),
      Case<COrvRadioOrCheck>("COrvRadioOrCheck"),
      Case<COrvComboBox>("COrvComboBox"),
      Case<COrvEditCtrl>("COrvEditCtrl"),
      Case<COrvGroupBox>("COrvGroupBox"),
      Case<COrvListBox>("COrvListBox"),
      Case<COrvListViewCtrl>("COrvListViewCtrl"),
      Case<COrvHeader>("COrvHeader"),
      Case<COrvStaticText>("COrvStaticText"),
      Case<COrvTabbyCtrl>("COrvTabbyCtrl"),
      Case<COrvUpDownCtrl>("COrvUpDownCtrl"),
  };
  for (auto& c : cases) {
    SCOPED_TRACE(c.name);
    FakeWindowTree tree;
    auto dialog = tree.CreateDialogWindow();
    auto window = tree.AddChild(dialog, "X", 0, 1);
    auto control = c.make();
    ASSERT_TRUE(control->SubclassWindow(tree, window));
    EXPECT_FALSE(control->IsThemed());
    const ThemeColors theme = IndexedTheme();
    tree.SendMessageA(window, WM_ORV_THEME, 0, reinterpret_cast<std::intptr_t>(&theme));
    EXPECT_TRUE(control->IsThemed());
    control.reset();
    EXPECT_EQ(tree.SubclassedBy(window), nullptr);
    EXPECT_EQ(tree.LiveBrushCount(), 0);
    EXPECT_EQ(tree.Misuse(), 0);
  }
}

TEST(ThemedControlsTest, ThemeMessageWithoutRecordChangesNothing) {
  COrvEditCtrl edit;
  std::intptr_t result = -1;
  EXPECT_TRUE(edit.OnMessage(WM_ORV_THEME, 0, 0, result));
  EXPECT_FALSE(edit.IsThemed());
  EXPECT_EQ(edit.textColor, orv::kNoColor);
  EXPECT_FALSE(edit.OnMessage(WM_ORV_THEME_QUERY, 0, 0, result));  // nobody here answers the query
}

TEST(ThemedControlsTest, ListViewSetsItsColoursAndThemesItsHeader) {
  FakeWindowTree tree;
  auto dialog = tree.CreateDialogWindow();
  auto list = tree.AddChild(dialog, "SysListView32", 0, 5);
  auto header = tree.AddChild(list, "SysHeader32", 0, 0);
  COrvListViewCtrl control;
  ASSERT_TRUE(control.SubclassWindow(tree, list));
  ASSERT_NE(control.GetHeader(), nullptr);
  ASSERT_TRUE(SendTheme(control, IndexedTheme()));

  std::vector<std::pair<unsigned, std::intptr_t>> colourMessages;
  for (auto& sent : tree.SentTo(list))
    if (sent.message != orv::kLvmGetHeader) colourMessages.emplace_back(sent.message, sent.lParam);
  EXPECT_EQ(colourMessages,
            (std::vector<std::pair<unsigned, std::intptr_t>>{
                {orv::kLvmSetBkColor, From(4)}, {orv::kLvmSetTextBkColor, From(4)}, {orv::kLvmSetTextColor, From(3)}}));
  EXPECT_EQ(control.GetHeader()->faceColor, From(1));
  EXPECT_EQ(control.GetHeader()->textColor, From(3));
  EXPECT_TRUE(control.GetHeader()->IsThemed());
  bool headerInvalidated = false;
  for (auto& inv : tree.Invalidations()) headerInvalidated |= inv.window == header;
  EXPECT_TRUE(headerInvalidated);
}

TEST(ThemedControlsTest, ComboListBrushIsReplacedNotLeaked) {
  FakeWindowTree tree;
  auto dialog = tree.CreateDialogWindow();
  auto window = tree.AddChild(dialog, "ComboBox", 3, 1);
  COrvComboBox combo;
  ASSERT_TRUE(combo.SubclassWindow(tree, window));
  SendTheme(combo, IndexedTheme());
  EXPECT_TRUE(combo.comboThemed);
  EXPECT_EQ(tree.BrushColor(combo.listBrush.get()), From(0));
  auto second = IndexedTheme();
  second[0] = 0x222222;
  SendTheme(combo, second);
  EXPECT_EQ(tree.LiveBrushCount(), 1);
  EXPECT_EQ(tree.BrushColor(combo.listBrush.get()), 0x222222u);
}

TEST(ThemedControlsTest, AWindowIsSubclassedOnceOnly) {
  FakeWindowTree tree;
  auto dialog = tree.CreateDialogWindow();
  auto window = tree.AddChild(dialog, "Edit", 0, 1);
  COrvEditCtrl first;
  COrvEditCtrl second;
  ASSERT_TRUE(first.SubclassWindow(tree, window));
  EXPECT_FALSE(first.SubclassWindow(tree, window));
  EXPECT_FALSE(first.SubclassWindow(tree, nullptr));
  EXPECT_EQ(tree.SubclassedBy(window), &first);
}

}  // namespace
