// COrvDialog on the fake window tree: the child scan, the theme load, the dialog's painting
// answers and the reflection of notifications.
#include "dlgkit/OrvDialog.h"

#include <gtest/gtest.h>

#include "dlgkit/fake/FakeHostServices.h"
#include "dlgkit/fake/FakeWindowTree.h"

namespace {

using orv::FakeWindowTree;
using orv::ThemedControlKind;
using orv::WindowHandle;

class TestDialog : public COrvDialog<TestDialog> {
 public:
  using COrvDialog::COrvDialog;
  void OnFirstColor() override { ++firstColorCalls; }
  int firstColorCalls = 0;
};

ThemeColors DistinctTheme() {
  ThemeColors theme;
  for (int i = 0; i < ThemeColors::kCount; ++i) theme[i] = 0x100000u + static_cast<std::uint32_t>(i);
  return theme;
}

class OrvDialogTest : public ::testing::Test {
 protected:
  void TearDown() override {
    EXPECT_TRUE(host.AllExpectationsMet());
    EXPECT_TRUE(host.UnexpectedCalls().empty());
    EXPECT_EQ(tree.Misuse(), 0);
  }
  const COrvThemedControl* ObjectFor(const TestDialog& dialog, WindowHandle window) {
    for (auto& control : dialog.GetControlObjects())
      if (control->GetWindowHandle() == window) return control.get();
    return nullptr;
  }
  bool IsTarget(const TestDialog& dialog, WindowHandle window) {
    for (auto target : dialog.GetThemeTargets())
      if (target == window) return true;
    return false;
  }

  FakeWindowTree tree;
  orv::FakeHostServices host;
  orv::ScopedHostServices scope{host};
  WindowHandle dlg = tree.CreateDialogWindow();
};

TEST_F(OrvDialogTest, ConstructionMakesDefaultBrushesAndScale) {
  tree.SetDisplayLogPixelsY(144);
  {
    TestDialog dialog(tree);
    EXPECT_DOUBLE_EQ(dialog.GetDisplayScale(), 1.5);
    EXPECT_FALSE(dialog.IsThemeActive());
    EXPECT_EQ(tree.LiveBrushCount(), 2);
    EXPECT_EQ(tree.BrushColor(dialog.GetBackgroundBrush()), 0xF0F0F0u);
    EXPECT_EQ(tree.BrushColor(dialog.GetFieldBrush()), 0xF0F0F0u);
  }
  EXPECT_EQ(tree.LiveBrushCount(), 0);
}

TEST_F(OrvDialogTest, NonsenseDisplayDpiGivesScaleOne) {
  tree.SetDisplayLogPixelsY(0);
  TestDialog dialog(tree);
  EXPECT_DOUBLE_EQ(dialog.GetDisplayScale(), 1.0);
}

TEST_F(OrvDialogTest, ChildScanFollowsTheClassTable) {
  struct Row {
    const char* className;
    std::int32_t style;
    bool hasObject;
    ThemedControlKind kind;
    bool target;
  };
  // The rows a real dialog doesn't show (OrvDialogWin32Test.ChildScanOnARealDialog has the common ones).
  const Row rows[] = {
      {"button", 0x1, true, ThemedControlKind::Button, true},        // default push, any case
      {"Button", 0x2, true, ThemedControlKind::RadioOrCheck, true},  // check
      {"Button", 0x4, true, ThemedControlKind::RadioOrCheck, true},  // radio
      {"Button", 0x5, true, ThemedControlKind::RadioOrCheck, true},  // 3-state (bit 4)
      {"Button", 0x8, false, ThemedControlKind::Button, true},       // user button: theme only
      {"BUTTON", 0xA, false, ThemedControlKind::Button, true},
      {"static", 0x1, false, ThemedControlKind::Button, false},     // centred: plain
      {"Static", 0x20, true, ThemedControlKind::StaticText, true},  // other bits above 31 don't matter
      {"Static", 0xE, false, ThemedControlKind::Button, false},     // bitmap
      {"RichEdit20A", 0, false, ThemedControlKind::Button, false},  // unknown class: nothing
  };
  std::vector<WindowHandle> windows;
  int id = 100;
  for (auto& row : rows) windows.push_back(tree.AddChild(dlg, row.className, row.style, id++, "some text"));

  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  dialog.SubclassControls();

  for (size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(std::string(rows[i].className) + " style " + std::to_string(rows[i].style));
    const COrvThemedControl* object = ObjectFor(dialog, windows[i]);
    EXPECT_EQ(object != nullptr, rows[i].hasObject);
    EXPECT_EQ(tree.SubclassedBy(windows[i]) != nullptr, rows[i].hasObject);
    if (object) {
      EXPECT_EQ(object->Kind(), rows[i].kind);
      EXPECT_EQ(object->GetControlId(), 100 + static_cast<int>(i));
    }
    EXPECT_EQ(IsTarget(dialog, windows[i]), rows[i].target);
  }
  // Without an active theme nothing is sent the theme yet.
  EXPECT_TRUE(tree.ReceiversOf(WM_ORV_THEME).empty());
  EXPECT_EQ(dialog.GetTabControl(), nullptr);
  // A second scan changes nothing.
  const size_t objects = dialog.GetControlObjects().size();
  dialog.SubclassControls();
  EXPECT_EQ(dialog.GetControlObjects().size(), objects);
}

TEST_F(OrvDialogTest, OwnerDrawnComboIsQueriedBeforeItIsSubclassed) {
  WindowHandle ownerDrawn = tree.AddChild(dlg, "ComboBox", 0x13, 1);
  WindowHandle plain = tree.AddChild(dlg, "ComboBox", 0x3, 2);
  bool subclassedWhenQueried = true;
  tree.SetMessageHandler(ownerDrawn,
                         [&](unsigned message, std::uintptr_t, std::intptr_t) -> std::optional<std::intptr_t> {
                           if (message == WM_ORV_THEME_QUERY)
                             subclassedWhenQueried = tree.SubclassedBy(ownerDrawn) != nullptr;
                           return std::nullopt;
                         });
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  dialog.SubclassControls();

  auto queried = tree.ReceiversOf(WM_ORV_THEME_QUERY);
  ASSERT_EQ(queried.size(), 1u);
  EXPECT_EQ(queried[0], ownerDrawn);
  EXPECT_EQ(tree.SentTo(ownerDrawn)[0].pointedValue, 0u);
  EXPECT_FALSE(subclassedWhenQueried);
  EXPECT_NE(tree.SubclassedBy(ownerDrawn), nullptr);
  EXPECT_NE(tree.SubclassedBy(plain), nullptr);
}

TEST_F(OrvDialogTest, ListBoxGainsNotifyAndIsMeasured) {
  WindowHandle list = tree.AddChild(dlg, "LISTBOX", 0x00200000, 7);
  tree.SetListBoxItems(list, {"short", "a much longer item"});
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  dialog.SubclassControls();
  EXPECT_EQ(tree.StyleOf(list), 0x00200001);
  EXPECT_EQ(tree.HorizontalExtentOf(list), 18 * 8);
  EXPECT_EQ(ObjectFor(dialog, list)->Kind(), ThemedControlKind::ListBox);
}

TEST_F(OrvDialogTest, LastTabIsRememberedAndListViewHeaderIsSubclassed) {
  WindowHandle firstTab = tree.AddChild(dlg, "SysTabControl32", 0, 1);
  WindowHandle secondTab = tree.AddChild(dlg, "SysTabControl32", 0, 2);
  WindowHandle listView = tree.AddChild(dlg, "SysListView32", 0, 3);
  WindowHandle header = tree.AddChild(listView, "SysHeader32", 0, 0);
  WindowHandle bareList = tree.AddChild(dlg, "SysListView32", 0x4000, 4);  // no header
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  dialog.SubclassControls();

  ASSERT_NE(dialog.GetTabControl(), nullptr);
  EXPECT_EQ(dialog.GetTabControl()->GetWindowHandle(), secondTab);
  EXPECT_NE(tree.SubclassedBy(firstTab), nullptr);
  auto* list = dynamic_cast<const COrvListViewCtrl*>(ObjectFor(dialog, listView));
  ASSERT_NE(list, nullptr);
  ASSERT_NE(list->GetHeader(), nullptr);
  EXPECT_EQ(tree.SubclassedBy(header), list->GetHeader());
  EXPECT_FALSE(IsTarget(dialog, header));  // it follows its list
  auto* bare = dynamic_cast<const COrvListViewCtrl*>(ObjectFor(dialog, bareList));
  ASSERT_NE(bare, nullptr);
  EXPECT_EQ(bare->GetHeader(), nullptr);
}

TEST_F(OrvDialogTest, LoadThemeWithoutServiceKeepsDefaults) {
  tree.AddChild(dlg, "Button", 0, 1);
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  dialog.SubclassControls();
  auto background = dialog.GetBackgroundBrush();
  const int queries = tree.DisplayQueries();
  host.ExpectNoSettingsService();
  EXPECT_FALSE(dialog.LoadTheme());
  EXPECT_EQ(tree.DisplayQueries(), queries + 1);  // the scale is refreshed all the same
  EXPECT_FALSE(dialog.IsThemeActive());
  EXPECT_EQ(dialog.GetBackgroundBrush(), background);
  EXPECT_TRUE(tree.ReceiversOf(WM_ORV_THEME).empty());
  EXPECT_TRUE(tree.Invalidations().empty());
}

TEST_F(OrvDialogTest, LoadThemeWhenHostHasNoThemeKeepsTheColours) {
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  dialog.SubclassControls();
  host.ExpectNoTheme(1);
  EXPECT_FALSE(dialog.LoadTheme());
  EXPECT_FALSE(dialog.IsThemeActive());
  EXPECT_EQ(dialog.GetThemeColors()[0], 0xF0F0F0u);
  EXPECT_EQ(tree.LiveBrushCount(), 2);
}

TEST_F(OrvDialogTest, LoadThemePushesTheThemeToEveryTargetInOrder) {
  WindowHandle push = tree.AddChild(dlg, "Button", 0, 1);
  WindowHandle ownerDrawn = tree.AddChild(dlg, "Button", 0xB, 2);
  WindowHandle colorWnd = tree.AddChild(dlg, "ColorWnd", 0, 3);
  WindowHandle edit = tree.AddChild(dlg, "Edit", 0, 4);
  tree.AddChild(dlg, "Static", 2, 5);  // plain: no theme
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  dialog.SubclassControls();
  auto oldBackground = dialog.GetBackgroundBrush(), oldField = dialog.GetFieldBrush();

  const ThemeColors theme = DistinctTheme();
  host.ExpectTheme(theme);
  ASSERT_TRUE(dialog.LoadTheme());

  EXPECT_TRUE(dialog.IsThemeActive());
  EXPECT_EQ(dialog.GetThemeColors()[30], theme[30]);  // the whole record is kept
  EXPECT_FALSE(tree.IsBrushAlive(oldBackground));
  EXPECT_FALSE(tree.IsBrushAlive(oldField));
  EXPECT_EQ(tree.BrushColor(dialog.GetBackgroundBrush()), theme[0]);
  EXPECT_EQ(tree.BrushColor(dialog.GetFieldBrush()), theme[4]);
  EXPECT_EQ(tree.LiveBrushCount(), 2);

  EXPECT_EQ(tree.ReceiversOf(WM_ORV_THEME), (std::vector<WindowHandle>{push, ownerDrawn, colorWnd, edit}));
  for (auto& sent : tree.Sent()) {
    if (sent.message == WM_ORV_THEME) {
      EXPECT_EQ(sent.lParam, reinterpret_cast<std::intptr_t>(&dialog.GetThemeColors()));
    }
  }
  auto* button = static_cast<const COrvButton*>(ObjectFor(dialog, push));
  EXPECT_EQ(button->faceColor, theme[1]);
  ASSERT_FALSE(tree.Invalidations().empty());
  EXPECT_EQ(tree.Invalidations().back().window, dlg);
  EXPECT_TRUE(tree.Invalidations().back().erase);
}

TEST_F(OrvDialogTest, ChildrenScannedAfterTheThemeReceiveItAtOnce) {
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  host.ExpectTheme(DistinctTheme());
  ASSERT_TRUE(dialog.LoadTheme());
  WindowHandle edit = tree.AddChild(dlg, "Edit", 0, 1);
  WindowHandle ownerDrawn = tree.AddChild(dlg, "Button", 0xB, 2);
  dialog.SubclassControls();
  EXPECT_EQ(tree.ReceiversOf(WM_ORV_THEME), (std::vector<WindowHandle>{edit, ownerDrawn}));
  EXPECT_TRUE(dialog.GetControlObjects().front()->IsThemed());
}

TEST_F(OrvDialogTest, FailingGetThemeRaisesWithItsStatus) {
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  host.ExpectThemeFailure(orv::kStatusUnexpected);
  try {
    dialog.LoadTheme();
    ADD_FAILURE() << "no exception";
  } catch (const XmlComError& error) {
    EXPECT_EQ(error.status(), orv::kStatusUnexpected);
  }
  EXPECT_FALSE(dialog.IsThemeActive());
  EXPECT_EQ(dialog.GetThemeColors()[0], 0xF0F0F0u);
}

TEST_F(OrvDialogTest, ThemeMessagesWithoutTheme) {
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  void* dc = reinterpret_cast<void*>(0x50);
  std::intptr_t result = 99;
  // The background is painted in the default colour even without a theme.
  ASSERT_TRUE(dialog.ProcessThemeMessage(dlg, orv::kWmEraseBkgnd, 0x50, 0, result));
  EXPECT_EQ(result, 0);
  ASSERT_EQ(tree.Dc(dc).fills.size(), 1u);
  EXPECT_EQ(tree.Dc(dc).fills[0].first.right, 300);
  EXPECT_EQ(tree.BrushColor(tree.Dc(dc).fills[0].second), 0xF0F0F0u);

  // The first colour message, an edit's too, calls the first-colour hook, and only that one.
  for (unsigned message :
       {orv::kWmCtlColorEdit, orv::kWmCtlColorDlg, orv::kWmCtlColorStatic, orv::kWmCtlColorListBox}) {
    result = 99;
    EXPECT_FALSE(dialog.ProcessThemeMessage(dlg, message, 0x50, 0, result));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(dialog.firstColorCalls, 1);
  }
  EXPECT_EQ(tree.Dc(dc).bkMode, 0);
}

TEST_F(OrvDialogTest, ThemeMessagesWithTheme) {
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  const ThemeColors theme = DistinctTheme();
  host.ExpectTheme(theme);
  ASSERT_TRUE(dialog.LoadTheme());
  void* dc = reinterpret_cast<void*>(0x60);
  std::intptr_t result = 0;

  ASSERT_TRUE(dialog.ProcessThemeMessage(dlg, orv::kWmCtlColorStatic, 0x60, 0, result));
  EXPECT_EQ(result, reinterpret_cast<std::intptr_t>(dialog.GetBackgroundBrush()));
  EXPECT_EQ(tree.Dc(dc).bkMode, orv::kBkModeTransparent);
  EXPECT_EQ(tree.Dc(dc).textColor, theme[3]);
  EXPECT_EQ(tree.Dc(dc).bkColor, theme[0]);
  ASSERT_TRUE(dialog.ProcessThemeMessage(dlg, orv::kWmCtlColorDlg, 0x60, 0, result));
  EXPECT_EQ(result, reinterpret_cast<std::intptr_t>(dialog.GetBackgroundBrush()));
  ASSERT_TRUE(dialog.ProcessThemeMessage(dlg, orv::kWmCtlColorEdit, 0x60, 0, result));
  EXPECT_EQ(result, reinterpret_cast<std::intptr_t>(dialog.GetFieldBrush()));
  EXPECT_EQ(tree.Dc(dc).bkColor, theme[4]);
  ASSERT_TRUE(dialog.ProcessThemeMessage(dlg, orv::kWmCtlColorListBox, 0x60, 0, result));
  EXPECT_EQ(result, reinterpret_cast<std::intptr_t>(dialog.GetFieldBrush()));
  EXPECT_EQ(dialog.firstColorCalls, 1);
  // A date picker writes in the system's text colour: it keeps the system's field.
  const WindowHandle picker = tree.AddChild(dlg, "SysDateTimePick32", 0, 1465);
  EXPECT_FALSE(
      dialog.ProcessThemeMessage(dlg, orv::kWmCtlColorEdit, 0x60, reinterpret_cast<std::intptr_t>(picker), result));

  ASSERT_TRUE(dialog.ProcessThemeMessage(dlg, orv::kWmEraseBkgnd, 0x60, 0, result));
  EXPECT_EQ(tree.BrushColor(tree.Dc(dc).fills.back().second), theme[0]);
  // Other maps and other messages are not the theme's.
  EXPECT_FALSE(dialog.ProcessThemeMessage(dlg, orv::kWmCtlColorStatic, 0x60, 0, result, 1));
  EXPECT_FALSE(dialog.ProcessThemeMessage(dlg, orv::kWmCommand, 0, 0, result));
}

TEST_F(OrvDialogTest, NotificationsAreReflectedToTheirSender) {
  WindowHandle button = tree.AddChild(dlg, "Button", 0xB, 42);
  tree.SetMessageHandler(button, [](unsigned message, std::uintptr_t, std::intptr_t) -> std::optional<std::intptr_t> {
    return static_cast<std::intptr_t>(message);
  });
  TestDialog dialog(tree);
  dialog.AttachWindow(tree, dlg);
  std::intptr_t result = 0;

  ASSERT_TRUE(dialog.ReflectNotifications(dlg, orv::kWmCommand, 42, reinterpret_cast<std::intptr_t>(button), result));
  EXPECT_EQ(result, 0x2111);
  EXPECT_EQ(tree.SentTo(button).back().wParam, 42u);
  EXPECT_FALSE(dialog.ReflectNotifications(dlg, orv::kWmCommand, 42, 0, result));  // a menu's

  struct {
    void* hwndFrom;
    std::uintptr_t idFrom;
    unsigned code;
  } notify{button, 42, 0xFFFFFFF4u};
  ASSERT_TRUE(dialog.ReflectNotifications(dlg, orv::kWmNotify, 42, reinterpret_cast<std::intptr_t>(&notify), result));
  EXPECT_EQ(result, 0x204E);

  struct {
    unsigned ctlType, ctlId, itemId, itemAction, itemState;
    void* hwndItem;
  } draw{4, 42, 0, 1, 0, button};
  ASSERT_TRUE(dialog.ReflectNotifications(dlg, orv::kWmDrawItem, 42, reinterpret_cast<std::intptr_t>(&draw), result));
  EXPECT_EQ(result, 0x202B);
  EXPECT_FALSE(dialog.ReflectNotifications(dlg, orv::kWmDrawItem, 0, reinterpret_cast<std::intptr_t>(&draw), result));

  struct {
    unsigned ctlType, ctlId;
  } measure{4, 42};
  ASSERT_TRUE(
      dialog.ReflectNotifications(dlg, orv::kWmMeasureItem, 42, reinterpret_cast<std::intptr_t>(&measure), result));
  EXPECT_EQ(result, 0x202C);

  ASSERT_TRUE(
      dialog.ReflectNotifications(dlg, orv::kWmCtlColorBtn, 0x70, reinterpret_cast<std::intptr_t>(button), result));
  EXPECT_EQ(result, 0x2135);
  EXPECT_FALSE(dialog.ReflectNotifications(dlg, orv::kWmEraseBkgnd, 0x70, 0, result));
}

TEST_F(OrvDialogTest, DestructionGivesWindowsBackAndFreesBrushes) {
  WindowHandle edit = tree.AddChild(dlg, "Edit", 0, 1);
  WindowHandle listView = tree.AddChild(dlg, "SysListView32", 0, 2);
  WindowHandle header = tree.AddChild(listView, "SysHeader32", 0, 0);
  WindowHandle combo = tree.AddChild(dlg, "ComboBox", 3, 3);
  {
    TestDialog dialog(tree);
    dialog.AttachWindow(tree, dlg);
    dialog.SubclassControls();
    host.ExpectTheme(DistinctTheme());
    ASSERT_TRUE(dialog.LoadTheme());
    EXPECT_EQ(tree.LiveBrushCount(), 3);  // two of the dialog, the combo's list brush
  }
  EXPECT_EQ(tree.SubclassedBy(edit), nullptr);
  EXPECT_EQ(tree.SubclassedBy(listView), nullptr);
  EXPECT_EQ(tree.SubclassedBy(header), nullptr);
  EXPECT_EQ(tree.SubclassedBy(combo), nullptr);
  EXPECT_EQ(tree.LiveBrushCount(), 0);
}

TEST_F(OrvDialogTest, WindowsDestroyedBeforeTheDialogObjectAreNotTouched) {
  tree.AddChild(dlg, "Edit", 0, 1);
  tree.AddChild(dlg, "Button", 0, 2);
  {
    TestDialog dialog(tree);
    dialog.AttachWindow(tree, dlg);
    dialog.SubclassControls();
    tree.DestroyWindow(dlg);
  }
  // TearDown checks that no call reached a dead window.
}

TEST_F(OrvDialogTest, AttachingOtherWindowOpsMovesTheBrushes) {
  {
    TestDialog dialog;  // the default operations (headless natively, Win32 on Windows)
    dialog.AttachWindow(tree, dlg);
    EXPECT_EQ(tree.LiveBrushCount(), 2);
    EXPECT_TRUE(tree.IsBrushAlive(dialog.GetBackgroundBrush()));
  }
  EXPECT_EQ(tree.LiveBrushCount(), 0);
}

TEST_F(OrvDialogTest, ScanWithoutWindowDoesNothing) {
  TestDialog dialog(tree);
  dialog.SubclassControls();
  EXPECT_TRUE(dialog.GetControlObjects().empty());
  EXPECT_TRUE(tree.Sent().empty());
}

}  // namespace
