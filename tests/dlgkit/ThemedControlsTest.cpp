// Each themed control class takes exactly its indices of the theme record.
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
  // The colours as read from the control, and the indices they must come from.
  std::function<std::vector<std::uint32_t>(const COrvThemedControl&)> colours;
  std::vector<int> indices;
  bool invalidatesOnTheme;
};

template <class C>
std::function<std::unique_ptr<COrvThemedControl>()> Make() {
  return [] { return std::make_unique<C>(); };
}

template <class C>
const C& As(const COrvThemedControl& control) {
  return static_cast<const C&>(control);
}

const std::vector<ControlCase>& Cases() {
  static const std::vector<ControlCase> cases = {
      {"COrvButton", Make<COrvButton>(),
       [](auto& c) { auto& b = As<COrvButton>(c); return std::vector<std::uint32_t>{b.textColor, b.faceColor, b.disabledColor, b.selectedColor}; },
       {3, 1, 7, 6}, false},
      {"COrvRadioOrCheck", Make<COrvRadioOrCheck>(),
       [](auto& c) { auto& b = As<COrvRadioOrCheck>(c); return std::vector<std::uint32_t>{b.textColor, b.faceColor, b.disabledColor, b.selectedColor, b.backgroundColor}; },
       {3, 1, 7, 6, 0}, false},
      {"COrvComboBox", Make<COrvComboBox>(),
       [](auto& c) { auto& b = As<COrvComboBox>(c); return std::vector<std::uint32_t>{b.backgroundColor, b.listColor, b.textColor, b.disabledColor, b.listTextColor}; },
       {4, 0, 3, 7, 3}, true},
      {"COrvEditCtrl", Make<COrvEditCtrl>(),
       [](auto& c) { auto& b = As<COrvEditCtrl>(c); return std::vector<std::uint32_t>{b.backgroundColor, b.textColor, b.disabledColor}; },
       {4, 3, 7}, true},
      {"COrvGroupBox", Make<COrvGroupBox>(),
       [](auto& c) { auto& b = As<COrvGroupBox>(c); return std::vector<std::uint32_t>{b.textColor, b.frameColor}; },
       {3, 3}, true},
      {"COrvListBox", Make<COrvListBox>(),
       [](auto& c) { auto& b = As<COrvListBox>(c); return std::vector<std::uint32_t>{b.backgroundColor, b.textColor, b.selectedTextColor}; },
       {4, 3, 3}, true},
      {"COrvListViewCtrl", Make<COrvListViewCtrl>(),
       [](auto& c) { auto& b = As<COrvListViewCtrl>(c); return std::vector<std::uint32_t>{b.headerFaceColor, b.headerTextColor, b.backgroundColor, b.textBackgroundColor, b.textColor}; },
       {1, 3, 4, 4, 3}, true},
      {"COrvHeader", Make<COrvHeader>(),
       [](auto& c) { auto& b = As<COrvHeader>(c); return std::vector<std::uint32_t>{b.faceColor, b.textColor}; },
       {1, 3}, true},
      {"COrvStaticText", Make<COrvStaticText>(),
       [](auto& c) { auto& b = As<COrvStaticText>(c); return std::vector<std::uint32_t>{b.textColor, b.disabledColor, b.backgroundColor}; },
       {3, 7, 0}, true},
      {"COrvTabbyCtrl", Make<COrvTabbyCtrl>(),
       [](auto& c) { auto& b = As<COrvTabbyCtrl>(c); return std::vector<std::uint32_t>{b.backgroundColor, b.textColor, b.selectedColor, b.faceColor}; },
       {0, 3, 6, 1}, true},
      {"COrvUpDownCtrl", Make<COrvUpDownCtrl>(),
       [](auto& c) { auto& b = As<COrvUpDownCtrl>(c); return std::vector<std::uint32_t>{b.backgroundColor, b.arrowColor, b.frameColor, b.disabledColor}; },
       {4, 3, 3, 7}, true},
  };
  return cases;
}

TEST(ThemedControlsTest, EachClassTakesItsIndicesAndNoOthers) {
  for (auto& c : Cases()) {
    SCOPED_TRACE(c.name);
    FakeWindowTree tree;
    auto dialog = tree.CreateDialogWindow();
    auto window = tree.AddChild(dialog, "X", 0, 1);
    auto control = c.make();
    ASSERT_TRUE(control->SubclassWindow(tree, window));
    for (auto colour : c.colours(*control)) EXPECT_EQ(colour, orv::kNoColor);  // system colours until themed
    EXPECT_FALSE(control->IsThemed());

    ASSERT_TRUE(SendTheme(*control, IndexedTheme()));
    std::vector<std::uint32_t> expected;
    for (int index : c.indices) expected.push_back(From(index));
    EXPECT_EQ(c.colours(*control), expected);
    EXPECT_TRUE(control->IsThemed());
    bool invalidated = false;
    for (auto& inv : tree.Invalidations()) invalidated |= inv.window == window;
    EXPECT_EQ(invalidated, c.invalidatesOnTheme);
    // Through the window, as the dialog sends it.
    auto second = IndexedTheme();
    second[c.indices[0]] = 0x123456;
    tree.SendMessageA(window, WM_ORV_THEME, 0, reinterpret_cast<std::intptr_t>(&second));
    EXPECT_EQ(c.colours(*control)[0], 0x123456u);
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
  EXPECT_EQ(colourMessages, (std::vector<std::pair<unsigned, std::intptr_t>>{
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
