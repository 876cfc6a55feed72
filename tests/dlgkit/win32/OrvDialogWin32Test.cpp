// COrvDialog on real windows under the platform: a dialog made from an in-memory template with
// one control of each kind; the child scan, the theme delivered and painted, reflection with the
// platform's own records, and everything given back on the way out.
#include <windows.h>
#include <commctrl.h>
#include <objbase.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "DialogHostTemplate.h"
#include "dlgkit/HostServicesInProcess.h"
#include "dlgkit/OrvDialog.h"
#include "dlgkit/win32/ThemedControlsWin32.h"
#include "dlgkit/win32/WindowOpsWin32.h"

namespace {

enum : int {
  kIdPush = 101,
  kIdCheck,
  kIdRadio,
  kIdGroup,
  kIdOwnerDraw,
  kIdEdit,
  kIdStaticLeft,
  kIdStaticRight,
  kIdCombo,
  kIdList,
  kIdListView,
  kIdTab,
  kIdUpDown,
  kIdColorWnd,
  kIdUpDownBuddy
};

// Records what reaches a "ColorWnd": the theme, and reflected notifications.
std::vector<UINT> g_colorWndMessages;
const ThemeColors* g_colorWndTheme = nullptr;

LRESULT CALLBACK ColorWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_ORV_THEME || message >= 0x2000) {
    g_colorWndMessages.push_back(message);
    if (message == WM_ORV_THEME) g_colorWndTheme = reinterpret_cast<const ThemeColors*>(lParam);
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

std::vector<WORD> OneOfEach() {
  orv::test::DialogTemplateBuilder t("Theme", 260, 190,
                                     DS_SETFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU);
  t.AddItem(0x80, "&Push", kIdPush, BS_PUSHBUTTON | WS_TABSTOP, 8, 8, 60, 16);
  t.AddItem(0x80, "&Check", kIdCheck, BS_AUTOCHECKBOX | WS_TABSTOP, 8, 30, 70, 12);
  t.AddItem(0x80, "&Radio", kIdRadio, BS_AUTORADIOBUTTON | WS_TABSTOP, 8, 46, 70, 12);
  t.AddItem(0x80, "Group", kIdGroup, BS_GROUPBOX, 4, 64, 120, 40);
  t.AddItem(0x80, "", kIdOwnerDraw, BS_OWNERDRAW, 10, 78, 30, 14);
  t.AddItem(0x81, "edit text", kIdEdit, ES_LEFT | WS_BORDER | WS_TABSTOP, 130, 8, 70, 14);
  t.AddItem("msctls_updown32", "", kIdUpDown, UDS_ALIGNRIGHT | UDS_SETBUDDYINT | UDS_ARROWKEYS, 200, 8, 10, 14);
  t.AddItem(0x82, "Left static", kIdStaticLeft, SS_LEFT, 130, 28, 60, 10);
  t.AddItem(0x82, "Right static", kIdStaticRight, SS_RIGHT, 190, 28, 60, 10);
  t.AddItem(0x85, "", kIdCombo, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 130, 42, 80, 60);
  t.AddItem(0x83, "", kIdList, WS_BORDER | WS_VSCROLL, 130, 60, 60, 44);
  t.AddItem("SysListView32", "", kIdListView, LVS_REPORT | WS_BORDER, 4, 110, 120, 50);
  t.AddItem("SysTabControl32", "", kIdTab, 0, 130, 108, 120, 52);
  t.AddItem("ColorWnd", "", kIdColorWnd, 0, 200, 60, 20, 14);
  return t.Build();
}

class ThemedDialog : public COrvDialog<ThemedDialog> {
 public:
  void OnFirstColor() override { ++firstColorCalls; }
  int firstColorCalls = 0;
  bool themeLoaded = false;
};

INT_PTR CALLBACK TestDialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    if (message == WM_INITDIALOG) {
      SetWindowLongPtrA(window, DWLP_USER, lParam);
      auto* dialog = reinterpret_cast<ThemedDialog*>(lParam);
      // Content the painting shows.
      SendDlgItemMessageA(window, kIdCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("First"));
      SendDlgItemMessageA(window, kIdCombo, CB_SETCURSEL, 0, 0);
      SendDlgItemMessageA(window, kIdList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("A rather long list item"));
      SendDlgItemMessageA(window, kIdList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Two"));
      HWND listView = GetDlgItem(window, kIdListView);
      LVCOLUMNA column{};
      column.mask = LVCF_TEXT | LVCF_WIDTH;
      column.cx = 90;
      column.pszText = const_cast<char*>("Column");
      SendMessageA(listView, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
      LVITEMA item{};
      item.mask = LVIF_TEXT;
      item.pszText = const_cast<char*>("Item");
      SendMessageA(listView, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
      HWND tab = GetDlgItem(window, kIdTab);
      TCITEMA tabItem{};
      tabItem.mask = TCIF_TEXT;
      tabItem.pszText = const_cast<char*>("General");
      SendMessageA(tab, TCM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&tabItem));
      tabItem.pszText = const_cast<char*>("More");
      SendMessageA(tab, TCM_INSERTITEMA, 1, reinterpret_cast<LPARAM>(&tabItem));
      CheckDlgButton(window, kIdCheck, BST_CHECKED);

      dialog->AttachWindow(orv::PlatformWindowOps(), window);
      dialog->SubclassControls();
      dialog->themeLoaded = dialog->LoadTheme();
      return TRUE;
    }
    auto* dialog = reinterpret_cast<ThemedDialog*>(GetWindowLongPtrA(window, DWLP_USER));
    if (!dialog) return FALSE;
    std::intptr_t result = 0;
    if (dialog->ProcessThemeMessage(window, message, wParam, lParam, result)) {
      if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) return static_cast<INT_PTR>(result);
      SetWindowLongPtrA(window, DWLP_MSGRESULT, result);
      return TRUE;
    }
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) return FALSE;
    if (message == WM_DRAWITEM || message == WM_NOTIFY || message == WM_MEASUREITEM) {
      if (dialog->ReflectNotifications(window, message, wParam, lParam, result)) {
        SetWindowLongPtrA(window, DWLP_MSGRESULT, result);
        return TRUE;
      }
    }
  } catch (...) {
  }
  return FALSE;
}

ThemeColors DarkTheme() {
  ThemeColors theme;
  theme[0] = RGB(0x20, 0x30, 0x40);  // dialog background
  theme[1] = RGB(0x50, 0x60, 0x70);  // button face
  theme[3] = RGB(0xF0, 0xF0, 0xE0);  // text
  theme[4] = RGB(0x10, 0x18, 0x20);  // fields
  theme[6] = RGB(0x00, 0x80, 0x40);  // selected
  theme[7] = RGB(0x80, 0x80, 0x80);  // disabled
  return theme;
}

int CountThreadWindows() {
  int count = 0;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND, LPARAM p) {
        ++*reinterpret_cast<int*>(p);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&count));
  return count;
}

void Pump() {
  MSG msg;
  while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&msg);
    DispatchMessageA(&msg);
  }
}

COLORREF PixelAt(HWND window, POINT clientPoint) {
  HDC dc = GetDC(window);
  COLORREF pixel = GetPixel(dc, clientPoint.x, clientPoint.y);
  ReleaseDC(window, dc);
  return pixel;
}

class OrvDialogWin32Test : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    INITCOMMONCONTROLSEX icc{sizeof icc,
                             ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_UPDOWN_CLASS | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&icc);
    WNDCLASSA wc{};
    wc.lpfnWndProc = ColorWndProc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "ColorWnd";
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    // The colour grid's own class may be registered by an earlier test of this program.
    UnregisterClassA("ColorWnd", wc.hInstance);
    RegisterClassA(&wc);
  }
  static void TearDownTestSuite() { UnregisterClassA("ColorWnd", GetModuleHandleA(nullptr)); }
  void SetUp() override {
    g_colorWndMessages.clear();
    g_colorWndTheme = nullptr;
  }

  HWND Create(ThemedDialog& dialog) {
    HWND window = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), orv::test::AsTemplate(templ_), nullptr,
                                             TestDialogProc, reinterpret_cast<LPARAM>(&dialog));
    if (window) {
      ShowWindow(window, SW_SHOWNORMAL);
      UpdateWindow(window);
      Pump();
    }
    return window;
  }

  const COrvThemedControl* ObjectFor(const ThemedDialog& dialog, int id) {
    for (auto& control : dialog.GetControlObjects())
      if (control->GetControlId() == id) return control.get();
    return nullptr;
  }

  std::vector<WORD> templ_ = OneOfEach();
};

bool SubclassedBy(HWND window, const COrvThemedControl* control) {
  return control != nullptr && orv::ThemedControlOf(window) == control;
}

TEST_F(OrvDialogWin32Test, ChildScanOnARealDialog) {
  orv::InProcessHostServices host(DarkTheme());
  orv::ScopedHostServices scope(host);
  ThemedDialog dialog;
  HWND window = Create(dialog);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(dialog.themeLoaded);
  EXPECT_TRUE(dialog.IsThemeActive());

  struct Expect {
    int id;
    bool object;
    orv::ThemedControlKind kind;
  } rows[] = {
      {kIdPush, true, orv::ThemedControlKind::Button},
      {kIdCheck, true, orv::ThemedControlKind::RadioOrCheck},
      {kIdRadio, true, orv::ThemedControlKind::RadioOrCheck},
      {kIdGroup, true, orv::ThemedControlKind::GroupBox},
      {kIdOwnerDraw, false, {}},
      {kIdEdit, true, orv::ThemedControlKind::Edit},
      {kIdUpDown, true, orv::ThemedControlKind::UpDown},
      {kIdStaticLeft, true, orv::ThemedControlKind::StaticText},
      {kIdStaticRight, false, {}},
      {kIdCombo, true, orv::ThemedControlKind::ComboBox},
      {kIdList, true, orv::ThemedControlKind::ListBox},
      {kIdListView, true, orv::ThemedControlKind::ListView},
      {kIdTab, true, orv::ThemedControlKind::Tab},
      {kIdColorWnd, false, {}},
  };
  for (auto& row : rows) {
    SCOPED_TRACE(row.id);
    HWND child = GetDlgItem(window, row.id);
    ASSERT_NE(child, nullptr);
    const COrvThemedControl* object = ObjectFor(dialog, row.id);
    ASSERT_EQ(object != nullptr, row.object);
    if (!object) continue;
    EXPECT_EQ(object->Kind(), row.kind);
    EXPECT_EQ(object->GetWindowHandle(), child);
    EXPECT_TRUE(SubclassedBy(child, object));
    EXPECT_TRUE(object->IsThemed());
  }
  EXPECT_EQ(dialog.GetThemeTargets().size(), 14u - 1u);  // all but the right-aligned static
  // The owner-drawn window of another kind got the dialog's record.
  ASSERT_EQ(g_colorWndMessages.size(), 1u);
  EXPECT_EQ(g_colorWndMessages[0], WM_ORV_THEME);
  EXPECT_EQ(g_colorWndTheme, &dialog.GetThemeColors());
  // The list view's header and the list box's notify style.
  auto* listView = static_cast<const COrvListViewCtrl*>(ObjectFor(dialog, kIdListView));
  HWND header = reinterpret_cast<HWND>(SendDlgItemMessageA(window, kIdListView, LVM_GETHEADER, 0, 0));
  ASSERT_NE(listView->GetHeader(), nullptr);
  EXPECT_TRUE(SubclassedBy(header, listView->GetHeader()));
  EXPECT_EQ(static_cast<COLORREF>(SendDlgItemMessageA(window, kIdListView, LVM_GETBKCOLOR, 0, 0)), DarkTheme()[4]);
  EXPECT_TRUE(GetWindowLongA(GetDlgItem(window, kIdList), GWL_STYLE) & LBS_NOTIFY);
  EXPECT_GT(SendDlgItemMessageA(window, kIdList, LB_GETHORIZONTALEXTENT, 0, 0), 0);
  EXPECT_EQ(dialog.GetTabControl(), ObjectFor(dialog, kIdTab));
  EXPECT_GE(dialog.firstColorCalls, 1);
  EXPECT_LE(dialog.firstColorCalls, 1);
  DestroyWindow(window);
}

TEST_F(OrvDialogWin32Test, ThemeIsPaintedOnTheDialogAndAButton) {
  const ThemeColors theme = DarkTheme();
  orv::InProcessHostServices host(theme);
  orv::ScopedHostServices scope(host);
  ThemedDialog dialog;
  HWND window = Create(dialog);
  ASSERT_NE(window, nullptr);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  Pump();

  RECT client;
  GetClientRect(window, &client);
  // An empty spot near the bottom right corner of the dialog.
  EXPECT_EQ(PixelAt(window, {client.right - 3, client.bottom - 3}), theme[0]);
  HWND push = GetDlgItem(window, kIdPush);
  RECT face;
  GetClientRect(push, &face);
  // Inside the raised edge (2 pixels) and outside the focus cue (4 in), whatever the font.
  EXPECT_EQ(PixelAt(push, {3, face.bottom / 2}), theme[1]);
  // The check box's background is the dialog's.
  HWND check = GetDlgItem(window, kIdCheck);
  RECT checkRect;
  GetClientRect(check, &checkRect);
  EXPECT_EQ(PixelAt(check, {checkRect.right - 2, 1}), theme[0]);

  // A list item's own background (drawn opaque) and the empty field below the items.
  HWND list = GetDlgItem(window, kIdList);
  RECT item{}, listClient;
  SendMessageA(list, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
  GetClientRect(list, &listClient);
  EXPECT_EQ(PixelAt(list, {item.right - 2, (item.top + item.bottom) / 2}), theme[4]);
  EXPECT_EQ(PixelAt(list, {2, listClient.bottom - 2}), theme[4]);

  if (const char* hold = std::getenv("ORV_THEME_DEMO_HOLD_MS")) {  // for a look with a screenshot
    DWORD until = GetTickCount() + static_cast<DWORD>(std::atoi(hold));
    while (GetTickCount() < until) {
      Pump();
      Sleep(20);
    }
  }
  DestroyWindow(window);
}

TEST_F(OrvDialogWin32Test, WithoutThemeTheSystemPaintsTheControls) {
  // No override: the platform's host, which isn't registered here.
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  ThemedDialog dialog;
  HWND window = Create(dialog);
  ASSERT_NE(window, nullptr);
  EXPECT_FALSE(dialog.themeLoaded);
  EXPECT_FALSE(dialog.IsThemeActive());
  for (auto& control : dialog.GetControlObjects()) EXPECT_FALSE(control->IsThemed());
  HWND push = GetDlgItem(window, kIdPush);
  RECT face;
  GetClientRect(push, &face);
  EXPECT_NE(PixelAt(push, {4, face.bottom / 2}), DarkTheme()[1]);
  DestroyWindow(window);
  CoUninitialize();
}

TEST_F(OrvDialogWin32Test, NotificationsReachTheirSenderWithThePlatformsRecords) {
  orv::InProcessHostServices host(DarkTheme());
  orv::ScopedHostServices scope(host);
  ThemedDialog dialog;
  HWND window = Create(dialog);
  ASSERT_NE(window, nullptr);
  HWND colorWnd = GetDlgItem(window, kIdColorWnd);
  g_colorWndMessages.clear();

  NMHDR notify{colorWnd, kIdColorWnd, NM_CLICK};
  SendMessageA(window, WM_NOTIFY, kIdColorWnd, reinterpret_cast<LPARAM>(&notify));
  DRAWITEMSTRUCT draw{};
  draw.CtlType = ODT_BUTTON;
  draw.CtlID = kIdColorWnd;
  draw.hwndItem = colorWnd;
  SendMessageA(window, WM_DRAWITEM, kIdColorWnd, reinterpret_cast<LPARAM>(&draw));
  MEASUREITEMSTRUCT measure{};
  measure.CtlType = ODT_BUTTON;
  measure.CtlID = kIdColorWnd;
  SendMessageA(window, WM_MEASUREITEM, kIdColorWnd, reinterpret_cast<LPARAM>(&measure));
  EXPECT_EQ(g_colorWndMessages, (std::vector<UINT>{0x2000 + WM_NOTIFY, 0x2000 + WM_DRAWITEM, 0x2000 + WM_MEASUREITEM}));
  DestroyWindow(window);
}

TEST_F(OrvDialogWin32Test, EverythingIsGivenBack) {
  const int windowsBefore = CountThreadWindows();
  HBRUSH defaultBackground = nullptr, themedBackground = nullptr, themedField = nullptr, comboList = nullptr;
  HWND window = nullptr, edit = nullptr;
  {
    orv::InProcessHostServices host(DarkTheme());
    orv::ScopedHostServices scope(host);
    ThemedDialog dialog;
    defaultBackground = static_cast<HBRUSH>(dialog.GetBackgroundBrush());
    window = Create(dialog);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(GetObjectType(defaultBackground), 0u);  // replaced by the theme's
    themedBackground = static_cast<HBRUSH>(dialog.GetBackgroundBrush());
    themedField = static_cast<HBRUSH>(dialog.GetFieldBrush());
    comboList = static_cast<HBRUSH>(static_cast<const COrvComboBox*>(ObjectFor(dialog, kIdCombo))->listBrush.get());
    EXPECT_EQ(GetObjectType(themedBackground), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_EQ(GetObjectType(comboList), static_cast<DWORD>(OBJ_BRUSH));
    edit = GetDlgItem(window, kIdEdit);
    // The dialog object goes first; its controls give their windows back.
  }
  ASSERT_TRUE(IsWindow(edit));
  EXPECT_EQ(orv::ThemedControlOf(edit), nullptr);
  SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("still works"));
  DestroyWindow(window);
  Pump();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(GetObjectType(themedBackground), 0u);
  EXPECT_EQ(GetObjectType(themedField), 0u);
  EXPECT_EQ(GetObjectType(comboList), 0u);
  EXPECT_EQ(CountThreadWindows(), windowsBefore);
}

TEST_F(OrvDialogWin32Test, WindowGoneBeforeTheDialogObject) {
  orv::InProcessHostServices host(DarkTheme());
  orv::ScopedHostServices scope(host);
  auto dialog = std::make_unique<ThemedDialog>();
  HWND window = Create(*dialog);
  ASSERT_NE(window, nullptr);
  DestroyWindow(window);
  for (auto& control : dialog->GetControlObjects()) EXPECT_EQ(control->GetWindowHandle(), nullptr);
  dialog.reset();  // no call on a dead window, no crash
}

}  // namespace
