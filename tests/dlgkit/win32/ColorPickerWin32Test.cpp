// The colour button on the screen: a real dialog with a real button, its drop-down opened by a
// real click, cells clicked as the mouse clicks them, Esc, the right button, the "Hide" check,
// the theme colour list, the palette the registry chooses, the drop-down at the screen's edge,
// and pictures to look at (colorpick-*.png in the test's working folder).
#include <windows.h>
#include <commctrl.h>
#include <objbase.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "WindowCapture.h"
#include "dlgkit/ColorPicker.h"
#include "dlgkit/CxRegKey.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/ThemedPage.h"
#include "dlgkit/win32/ColorPickerWin32.h"
#include "dlgkit/win32/DialogHost.h"
#include "xml/Xml.h"

namespace {

constexpr int kIddHost = 900, kIdcButton = 901, kIdcStatic = 902;

// A host that serves a theme and a colour table, as the application's settings service does.
class PrefsHost : public orv::HostServices {
 public:
  PrefsHost() {
    document_ = XmlCreateDocument();
    XmlLoadString(document_,
                  "<Prefs><General><ColorTable>"
                  "<Color ThemeTag=\"Up bar\">RGB(0,160,0)</Color>"
                  "<Color ThemeTag=\"Down bar\">RGB(200,0,0)</Color>"
                  "<Color ThemeTag=\"Grid\">RGB(90,90,120)</Color>"
                  "</ColorTable></General></Prefs>");
    theme[0] = RGB(30, 36, 46);
    theme[1] = RGB(58, 68, 84);
    theme[3] = RGB(226, 232, 240);
    theme[4] = RGB(18, 22, 30);
    theme[6] = RGB(0, 150, 100);
  }
  std::unique_ptr<orv::SettingsService> CreateSettingsService() override { return std::make_unique<Settings>(*this); }
  std::unique_ptr<orv::HelpService> CreateHelpService() override { return nullptr; }
  ThemeColors theme;

 private:
  class Settings : public orv::SettingsService {
   public:
    explicit Settings(PrefsHost& host) : host_(host) {}
    void GetValue(const std::string&, const std::string&, std::string&, std::int32_t& r) override { r = 1; }
    void SetValue(const std::string&, const std::string&, std::int32_t, std::int32_t, std::int32_t& r) override {
      r = 1;
    }
    void GetTheme(ThemeColors& theme, std::int32_t, std::int32_t& r) override {
      theme = host_.theme;
      r = 0;
    }
    void GetDocumentValue(const std::string&, const std::string&, const std::string&, std::int32_t, std::string&,
                          std::int32_t& r) override {
      r = 1;
    }
    void GetDocumentNode(const std::string& document, const std::string& xpath, XmlNode& node,
                         std::int32_t& r) override {
      r = 1;
      if (document == "PREFS" && xpath == "//General/ColorTable") {
        node = XmlFindNode(host_.document_, "ColorTable", true);
        r = 0;
      }
    }

   private:
    PrefsHost& host_;
  };
  XmlNode document_;
};

// The dialog: the button is attached in init, before the children are themed, as pages do.
class ColorHostPage : public orv::ThemedPage<ColorHostPage> {
 public:
  int DialogId() const override { return kIddHost; }
  bool InitBeforeTheme() const override { return true; }
  bool OnInitPage() override {
    button.m_color = initialColor;
    button.Popup().offerNoColor = offerNoColor;
    button.SubclassWindow(GetDlgItem(static_cast<HWND>(Window()), kIdcButton));
    colorStatic.SubclassWindow(GetDlgItem(static_cast<HWND>(Window()), kIdcStatic));
    colorStatic.SetColors(RGB(255, 220, 0), RGB(40, 0, 80));
    return true;
  }
  void OnCommand(int id, int code) override { commands.emplace_back(id, code); }

  COLORREF initialColor = 0xFFFFFF;
  bool offerNoColor = false;
  CWtlColorBtn button;
  CXColorStatic colorStatic;
  std::vector<std::pair<int, int>> commands;
};

// Everything queued for this thread runs.
void Pump() {
  MSG msg;
  for (int round = 0; round < 3; ++round)
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&msg);
      DispatchMessageA(&msg);
    }
}

// Runs messages until `done` holds or the input never arrives (a bound, not a timing).
template <class Done>
bool PumpUntil(Done done) {
  for (int i = 0; i < 200 && !done(); ++i) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 25, QS_ALLINPUT);
    Pump();
  }
  return done();
}

// The messages a click of the left (or right) button gives a window at a client point. What
// the press posts runs before the release, as the platform takes posted messages before input.
void PostClick(HWND window, POINT at, bool right = false) {
  const LPARAM where = MAKELPARAM(at.x, at.y);
  PostMessageA(window, right ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, right ? MK_RBUTTON : MK_LBUTTON, where);
  Pump();
  PostMessageA(window, right ? WM_RBUTTONUP : WM_LBUTTONUP, 0, where);
  Pump();
}

// A real click: the pointer moves to the screen point and the button goes down and up.
void RealClick(POINT screen) {
  SetCursorPos(screen.x, screen.y);
  INPUT input[2] = {};
  input[0].type = input[1].type = INPUT_MOUSE;
  input[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  input[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
  SendInput(2, input, sizeof(INPUT));
}

// Colours within a few steps per channel (a smoothing renderer may round the solid colour).
bool Near(COLORREF a, COLORREF b) {
  auto close = [](int x, int y) { return x - y <= 6 && y - x <= 6; };
  return close(GetRValue(a), GetRValue(b)) && close(GetGValue(a), GetGValue(b)) && close(GetBValue(a), GetBValue(b));
}

POINT CentreOnScreen(HWND window) {
  RECT r;
  GetWindowRect(window, &r);
  return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

class ColorPickerWin32 : public ::testing::Test {
 protected:
  void SetUp() override {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    // Another test of this program may have left a stand-in "ColorWnd" class; the grid's own is
    // registered again on first use.
    UnregisterClassA(ColorWnd::kClassName, GetModuleHandleA(nullptr));
    store = orv::CreateUserSettingsStore();
    store->DeleteValue(orv::kOrvaneKey, orv::kUseOldPaletteValue);
  }
  void TearDown() override {
    Close();
    store->DeleteValue(orv::kOrvaneKey, orv::kUseOldPaletteValue);
    CoUninitialize();
  }

  // Shows the dialog at (x, y) on the screen, active.
  void Open(int x = 120, int y = 120) {
    host = std::make_unique<orv::DialogHost>(page, &orv::DefaultWindowOps(), [](HWND w) { DestroyWindow(w); });
    dialog = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(kIddHost), nullptr,
                                &orv::DialogHost::DialogProc, reinterpret_cast<LPARAM>(host.get()));
    ASSERT_NE(dialog, nullptr);
    SetWindowPos(dialog, HWND_TOP, x, y, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
    SetForegroundWindow(dialog);
    UpdateWindow(dialog);
    Pump();
    button = GetDlgItem(dialog, kIdcButton);
  }
  void Close() {
    if (dialog && IsWindow(dialog)) DestroyWindow(dialog);
    dialog = nullptr;
    Pump();
  }
  // Opens the drop-down with the messages a click on the button gives.
  void Drop() {
    PostClick(button, {10, 5});
    ASSERT_TRUE(PopupVisible());
  }
  HWND Popup() { return page.button.Popup().Window(); }
  bool PopupVisible() { return Popup() && IsWindowVisible(Popup()); }
  HWND Grid() { return page.button.Popup().Grid()->Window(); }
  const orv::ColorGrid& Cells() { return page.button.Popup().Grid()->Grid(); }
  POINT CellCentre(int cell) {
    const orv::WindowRect r = Cells().CellRect(cell);
    return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
  }
  int Clicks() {
    int n = 0;
    for (const auto& c : page.commands) n += c.first == kIdcButton && c.second == BN_CLICKED;
    return n;
  }
  void Picture(HWND window, const wchar_t* name) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_EQ(orv::apps::CaptureWindowToPng(window, name), S_OK) << "screenshot";
  }
  COLORREF Pixel(HWND window, int x, int y) {
    UpdateWindow(window);
    HDC dc = GetDC(window);
    const COLORREF c = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return c;
  }

  PrefsHost prefs;
  orv::ScopedHostServices scope{prefs};
  std::unique_ptr<orv::SettingsStore> store;
  ColorHostPage page;
  std::unique_ptr<orv::DialogHost> host;
  HWND dialog = nullptr;
  HWND button = nullptr;
};

TEST_F(ColorPickerWin32, RealClicksOpenTheDropDownAndChooseACell) {
  page.initialColor = 0xFF0000;  // blue, row 3 column 6
  Open();
  Picture(dialog, L"colorpick-button.png");
  RealClick(CentreOnScreen(button));
  ASSERT_TRUE(PumpUntil([&] { return PopupVisible(); })) << "the drop-down didn't open";
  EXPECT_EQ(Clicks(), 1) << "the dialog hears the button's click";

  // Under the button, at its left edge; the button's colour selected.
  RECT b, p;
  GetWindowRect(button, &b);
  GetWindowRect(Popup(), &p);
  EXPECT_EQ(p.left, b.left);
  EXPECT_EQ(p.top, b.bottom);
  EXPECT_EQ(Cells().Selected(), 33);
  EXPECT_EQ(Cells().CellColor(0), 0xCCCCFFu) << "the newer palette without a registry value";
  EXPECT_FALSE(IsWindowVisible(GetDlgItem(Popup(), orv::kIdcNoColor))) << "Hide is offered only when asked";
  Picture(Popup(), L"colorpick-newer.png");

  POINT cell = CellCentre(27);  // 0x0000FF, red
  ClientToScreen(Grid(), &cell);
  RealClick(cell);
  ASSERT_TRUE(PumpUntil([&] { return !PopupVisible(); })) << "the drop-down stayed open";
  EXPECT_EQ(page.button.m_color, 0x0000FFu);
  EXPECT_EQ(Clicks(), 1) << "choosing a colour is no second click";
  // The swatch shows the new colour.
  RECT client;
  GetClientRect(button, &client);
  EXPECT_EQ(Pixel(button, 8, client.bottom / 2), 0x0000FFu);
  Picture(dialog, L"colorpick-chosen.png");
}

TEST_F(ColorPickerWin32, EscapeAndTheRightButtonKeepTheOldColour) {
  page.initialColor = 0x00FF00;
  Open();
  Drop();
  PostMessageA(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
  Pump();
  EXPECT_FALSE(PopupVisible()) << "Esc";
  EXPECT_EQ(page.button.m_color, 0x00FF00u);

  Drop();
  EXPECT_EQ(Cells().Selected(), 30);
  PostClick(Grid(), CellCentre(5), true);
  EXPECT_FALSE(PopupVisible()) << "right button";
  EXPECT_EQ(page.button.m_color, 0x00FF00u);
  EXPECT_EQ(Cells().Selected(), 5) << "the right button selects";
  // The next drop-down selects the button's colour again.
  Drop();
  EXPECT_EQ(Cells().Selected(), 30);
}

TEST_F(ColorPickerWin32, AColourInNoCellBecomesACustomCell) {
  page.initialColor = 0x123456;
  Open();
  Drop();
  EXPECT_EQ(Cells().Selected(), 63);
  EXPECT_EQ(Cells().CellColor(63), 0x123456u);
  PostClick(Grid(), CellCentre(0));
  EXPECT_EQ(page.button.m_color, 0xCCCCFFu);
  page.button.m_color = 0x654321;
  Drop();
  EXPECT_EQ(Cells().Selected(), 64) << "custom cells stay between drop-downs";
  EXPECT_EQ(Cells().CellColor(63), 0x123456u);
}

TEST_F(ColorPickerWin32, HideCheckedThenACellClearsItAndTheSecondCellAccepts) {
  page.initialColor = orv::kNoColor;
  page.offerNoColor = true;
  Open();
  Drop();
  HWND hide = GetDlgItem(Popup(), orv::kIdcNoColor);
  EXPECT_TRUE(IsWindowVisible(hide));
  EXPECT_EQ(IsDlgButtonChecked(Popup(), orv::kIdcNoColor), BST_CHECKED);
  PostClick(Grid(), CellCentre(3));
  EXPECT_TRUE(PopupVisible());
  EXPECT_EQ(IsDlgButtonChecked(Popup(), orv::kIdcNoColor), BST_UNCHECKED);
  EXPECT_EQ(page.button.m_color, orv::kNoColor);
  PostClick(Grid(), CellCentre(4));
  EXPECT_FALSE(PopupVisible());
  EXPECT_EQ(page.button.m_color, 0xDAEFE2u);

  // Checking Hide accepts no colour at once.
  Drop();
  SendMessageA(hide, BM_CLICK, 0, 0);
  Pump();
  EXPECT_FALSE(PopupVisible());
  EXPECT_EQ(page.button.m_color, orv::kNoColor);
}

TEST_F(ColorPickerWin32, ThemeColoursFromTheListInListMode) {
  page.initialColor = 0x808080;
  Open();
  Drop();
  HWND list = GetDlgItem(Popup(), orv::kIdcColorList);
  ASSERT_EQ(ListView_GetItemCount(list), 3);
  char tag[32] = {};
  ListView_GetItemText(list, 1, 1, tag, sizeof tag);
  EXPECT_STREQ(tag, "Down bar");
  EXPECT_FALSE(IsWindowVisible(list));

  SendMessageA(GetDlgItem(Popup(), orv::kIdcColorListMode), BM_CLICK, 0, 0);
  Pump();
  EXPECT_TRUE(IsWindowVisible(list));
  EXPECT_FALSE(IsWindowVisible(Grid()));
  Picture(Popup(), L"colorpick-list.png");

  ListView_SetItemState(list, 1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  Pump();
  EXPECT_FALSE(PopupVisible());
  EXPECT_EQ(page.button.m_color, static_cast<COLORREF>(RGB(200, 0, 0)));
}

TEST_F(ColorPickerWin32, TheRegistryChoosesTheOlderPalette) {
  ASSERT_TRUE(store->WriteDword(orv::kOrvaneKey, orv::kUseOldPaletteValue, 1));
  page.initialColor = 0x5A005A;  // only in the older palette
  Open();
  Drop();
  EXPECT_EQ(Cells().CellColor(0), 0xC1B6FFu);
  EXPECT_EQ(Cells().Selected(), 61);
  EXPECT_EQ(Pixel(Grid(), CellCentre(0).x, CellCentre(0).y), 0xC1B6FFu) << "the cell is painted in its colour";
  Picture(Popup(), L"colorpick-older.png");
}

TEST_F(ColorPickerWin32, AtTheScreensEdgeTheDropDownOpensAboveAndInside) {
  const int screenWidth = GetSystemMetrics(SM_CXVIRTUALSCREEN), screenHeight = GetSystemMetrics(SM_CYVIRTUALSCREEN);
  Open(screenWidth - 200, screenHeight - 110);
  Drop();
  RECT b, p;
  GetWindowRect(button, &b);
  GetWindowRect(Popup(), &p);
  EXPECT_EQ(p.bottom, b.top) << "above the button";
  EXPECT_LE(p.right, screenWidth);
  if (b.left + (p.right - p.left) > screenWidth) {
    EXPECT_EQ(p.right, screenWidth) << "pulled left to the edge";
  }
}

TEST_F(ColorPickerWin32, ArrowIsAntiAliasedAndTheStaticPaintsItsColours) {
  Open();
  // The arrow's slanted edges blend the arrow's colour into the body's.
  RECT client;
  GetClientRect(button, &client);
  const orv::ColorButtonFigures figures = orv::ColorButtonLayout({client.left, client.top, client.right, client.bottom},
                                                                 orv::DisplayScale(orv::DefaultWindowOps()));
  const COLORREF body = prefs.theme[1], arrow = prefs.theme[3];
  int blended = 0, solid = 0;
  for (int y = client.top + 1; y < client.bottom - 1; ++y)
    for (int x = figures.arrowStrip.left; x < figures.arrowStrip.right; ++x) {
      const COLORREF c = Pixel(button, x, y);
      if (Near(c, arrow)) {
        ++solid;
      } else if (!Near(c, body)) {
        ++blended;
      }
    }
  EXPECT_GT(solid, 0) << "the arrow is drawn";
  EXPECT_GT(blended, 0) << "its edges are smoothed";

  HWND label = GetDlgItem(dialog, kIdcStatic);
  EXPECT_EQ(Pixel(label, 1, 1), static_cast<COLORREF>(RGB(40, 0, 80)));
}

}  // namespace
