// The line study sheet through the platform's property sheet, with the Advanced page's template
// from this program's resources: a thread timer plays the user (click, Apply, OK, Cancel).

#include <windows.h>
#include <objbase.h>
#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "FakeSheetOwner.h"
#include "LsTestXml.h"
#include "WindowCapture.h"
#include "dlgkit/win32/SheetRunnerWin32.h"
#include "linestudies/LineStudiesRes.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace {

using lstest::FakeSheetOwner;
using lstest::StatusEvent;
using Sheet = CLsPs<FakeSheetOwner>;

// The steps a user takes, one per timer tick, against the sheet that is up. A sheet still up
// after the last step is cancelled, so a fault can't hang the test.
class User {
 public:
  using Step = std::function<void(HWND sheet, HWND page)>;
  explicit User(std::vector<Step> steps) : steps_(std::move(steps)) {
    current_ = this;
    timer_ = ::SetTimer(nullptr, 0, 40, &User::Tick);
  }
  ~User() {
    ::KillTimer(nullptr, timer_);
    current_ = nullptr;
  }
  std::size_t StepsTaken() const { return next_; }
  bool CancelledLeftover() const { return leftover_; }

 private:
  static BOOL CALLBACK FindSheet(HWND window, LPARAM found) {
    if (::IsWindowVisible(window) && ::SendMessageA(window, PSM_GETCURRENTPAGEHWND, 0, 0)) {
      *reinterpret_cast<HWND*>(found) = window;
      return FALSE;
    }
    return TRUE;
  }
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    User* user = current_;
    if (!user) return;
    HWND sheet = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindSheet, reinterpret_cast<LPARAM>(&sheet));
    if (!sheet) return;
    HWND page = reinterpret_cast<HWND>(::SendMessageA(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
    if (user->next_ < user->steps_.size()) {
      user->steps_[user->next_++](sheet, page);
    } else if (++user->idle_ > 25) {
      user->leftover_ = true;
      ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    }
  }
  static inline User* current_ = nullptr;
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  int idle_ = 0;
  bool leftover_ = false;
  UINT_PTR timer_ = 0;
};

XmlNode SheetNode(const char* kind, const char* title) {
  XmlNode document = XmlCreateDocument();
  std::string text = "<PropertySheet Name=\"LSPs\"";
  if (title) text += std::string(" Title=\"") + title + "\"";
  text += std::string(" Kind=\"") + kind +
          "\"><PropertyPageList><PropertyPage Name=\"LsPgAdvanced\">"
          "<AlwaysVisible>FALSE</AlwaysVisible></PropertyPage></PropertyPageList></PropertySheet>";
  EXPECT_TRUE(XmlLoadString(document, text));
  return XmlFindNode(document, "PropertySheet", true);
}

std::string TextOf(HWND window) {
  char text[256] = {};
  ::GetWindowTextA(window, text, sizeof text);
  return text;
}

void Click(HWND page, int id) { ::SendMessageA(::GetDlgItem(page, id), BM_CLICK, 0, 0); }

class LsPsWin32 : public ::testing::Test {
 protected:
  void SetUp() override {
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    INITCOMMONCONTROLSEX init{sizeof init, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&init);
  }
  void TearDown() override { ::CoUninitialize(); }
  FakeSheetOwner owner;
};

TEST_F(LsPsWin32, ApplySendsThePageOnceAndOkSendsNothingMore) {
  Sheet sheet(&owner);
  sheet.InitFromXml(SheetNode("6", "Trendline"));
  std::string caption;
  bool screenShown = false;
  std::size_t eventsAfterApply = 0;
  User user({[&](HWND sheetWindow, HWND page) {
               caption = TextOf(sheetWindow);
               screenShown = ::IsWindowVisible(::GetDlgItem(page, IDC_LS_ATTACH_SCREEN));
               if (const char* path = std::getenv("ORV_LS_SCREENSHOT")) {
                 std::wstring wide(path, path + std::strlen(path));
                 EXPECT_EQ(orv::apps::CaptureWindowToPng(sheetWindow, wide), S_OK);
               }
             },
             [&](HWND sheetWindow, HWND page) {
               Click(page, IDC_LS_ATTACH_CHART);
               ::SendMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_APPLYNOW, 0);
               eventsAfterApply = owner.events.size();
             },
             [&](HWND sheetWindow, HWND) { ::SendMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_OK, 0); }});
  const std::intptr_t result = sheet.DoModal(::GetActiveWindow());
  EXPECT_FALSE(user.CancelledLeftover());
  EXPECT_GT(result, 0);
  EXPECT_EQ(caption, "Trendline");
  EXPECT_TRUE(screenShown);
  EXPECT_EQ(eventsAfterApply, 1u) << "the event comes while the sheet is up";
  ASSERT_EQ(owner.events.size(), 1u);
  const StatusEvent& event = owner.events[0];
  EXPECT_EQ(event.type, 0);
  EXPECT_EQ(event.lValue, 0);
  EXPECT_EQ(event.xmlExtra, "");
  // MSXML prints a built document with line breaks and tabs between elements.
  EXPECT_EQ(lstest::Compact(event.value), lstest::AdvancedApplyText(true, false)) << event.value;
}

TEST_F(LsPsWin32, CancelGivesZeroAndNoEventAndEmptyTitleGivesEmptyCaption) {
  Sheet sheet(&owner);
  sheet.InitFromXml(SheetNode("3", nullptr));
  std::string caption = "(not read)";
  bool screenShown = true;
  User user({[&](HWND sheetWindow, HWND page) {
    caption = TextOf(sheetWindow);
    screenShown = ::IsWindowVisible(::GetDlgItem(page, IDC_LS_ATTACH_SCREEN));
    Click(page, IDC_LS_ATTACH_CHART);
    ::SendMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
  }});
  EXPECT_EQ(sheet.DoModal(::GetActiveWindow()), 0);
  EXPECT_FALSE(user.CancelledLeftover());
  EXPECT_EQ(caption, "");
  EXPECT_FALSE(screenShown);
  EXPECT_TRUE(owner.events.empty());
}

TEST_F(LsPsWin32, FailureInTheApplyHandlerEndsTheRunAndIsRethrown) {
  owner.throwOnFire = true;
  Sheet sheet(&owner);
  sheet.InitFromXml(SheetNode("6", "Trendline"));
  User user({[&](HWND sheetWindow, HWND page) {
    Click(page, IDC_LS_ATTACH_CHART);
    ::SendMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_APPLYNOW, 0);
  }});
  EXPECT_THROW(sheet.DoModal(::GetActiveWindow()), std::runtime_error);
  EXPECT_FALSE(user.CancelledLeftover()) << "the failure itself closed the sheet";
  EXPECT_EQ(owner.events.size(), 1u);
}

// The runner alone: a page that throws while the sheet is up ends the run; its exception comes
// out of Run after the windows are gone.
class ThrowingPage final : public orv::Page {
 public:
  int DialogId() const override { return IDD_LS_PG_ADVANCED; }
  void OnCommand(int id, int) override {
    if (id == IDC_LS_ATTACH_CHART) throw XmlComError(orv::kStatusFail, "page failed");
  }
};

TEST_F(LsPsWin32, RunnerEndsTheRunAndRethrowsAPageFailure) {
  ThrowingPage page;
  orv::SheetSetup setup;
  setup.pages.push_back({&page, IDD_LS_PG_ADVANCED});
  bool initialized = false;
  setup.onInitialized = [&](orv::WindowHandle, orv::WindowOps&) { initialized = true; };
  User user({[&](HWND, HWND pageWindow) { Click(pageWindow, IDC_LS_ATTACH_CHART); }});
  orv::SheetRunnerWin32 runner;
  try {
    runner.Run(setup);
    ADD_FAILURE() << "no exception";
  } catch (const XmlComError& error) {
    EXPECT_EQ(error.status(), orv::kStatusFail);
  }
  EXPECT_TRUE(initialized);
  EXPECT_FALSE(user.CancelledLeftover());
}

// --- position pages on the platform's sheet ---

XmlNode LoadSheet(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  EXPECT_TRUE(XmlLoadString(document, text)) << text;
  return XmlFindNode(document, "PropertySheet", true);
}

int Checked(HWND page, int id) { return static_cast<int>(::IsDlgButtonChecked(page, id)); }

// The extend boxes keep 0, 1 and 2 through real buttons: a host's 2 comes back as 2 when the
// user changes something else, and the user's clicks go round the three states. The channel's
// long multiplier is shown as it will be sent, and the box takes no more.
TEST_F(LsPsWin32, ExtendsOfTwoComeBackAsTwoAndTheMultiplierBoxHoldsWhatIsSent) {
  const std::string multiplier = "1.5 standard deviations of the fitted line";
  Sheet sheet(&owner);
  sheet.InitFromXml(
      LoadSheet("<PropertySheet Name=\"LSPs\"><PropertyPageList><PropertyPage Name=\"LsPgIntraLRC\"><MaxPos>50</MaxPos>"
                "<CLinRegChan>" +
                lstest::StudyXml(true, {lstest::Pt{4, 5}}) +
                "<LSTrl_Extendpt1>2</LSTrl_Extendpt1><LSTrl_Extendpt2>1</LSTrl_Extendpt2><Multiplier>" + multiplier +
                "</Multiplier></CLinRegChan></PropertyPage></PropertyPageList></PropertySheet>"));
  std::vector<int> shown, clicked;
  std::string shownMultiplier, typedMultiplier;
  User user({[&](HWND sheetWindow, HWND page) {
               if (const char* path = std::getenv("ORV_LS_SCREENSHOT_CHANNEL")) {
                 std::wstring wide(path, path + std::strlen(path));
                 EXPECT_EQ(orv::apps::CaptureWindowToPng(sheetWindow, wide), S_OK);
               }
               shown = {Checked(page, IDC_LS_INTRA_EXTEND_LEFT), Checked(page, IDC_LS_INTRA_EXTEND_RIGHT)};
               shownMultiplier = TextOf(::GetDlgItem(page, IDC_LS_LRC_MULTIPLIER));
               // Typing at the end of the full box changes nothing.
               HWND box = ::GetDlgItem(page, IDC_LS_LRC_MULTIPLIER);
               ::SendMessageA(box, EM_SETSEL, 31, 31);
               ::SendMessageA(box, WM_CHAR, 'x', 1);
               typedMultiplier = TextOf(box);
               Click(page, IDC_LS_POS_LOCK);
             },
             [&](HWND sheetWindow, HWND page) {
               ::SendMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_APPLYNOW, 0);
               // The right box goes from 1 through 2 to 0; the left one from 2 to 0 and 1.
               Click(page, IDC_LS_INTRA_EXTEND_RIGHT);
               clicked.push_back(Checked(page, IDC_LS_INTRA_EXTEND_RIGHT));
               Click(page, IDC_LS_INTRA_EXTEND_RIGHT);
               clicked.push_back(Checked(page, IDC_LS_INTRA_EXTEND_RIGHT));
               Click(page, IDC_LS_INTRA_EXTEND_LEFT);
               clicked.push_back(Checked(page, IDC_LS_INTRA_EXTEND_LEFT));
               Click(page, IDC_LS_INTRA_EXTEND_LEFT);
               clicked.push_back(Checked(page, IDC_LS_INTRA_EXTEND_LEFT));
             },
             [&](HWND sheetWindow, HWND) { ::SendMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_OK, 0); }});
  EXPECT_GT(sheet.DoModal(::GetActiveWindow()), 0);
  EXPECT_FALSE(user.CancelledLeftover());
  EXPECT_EQ(shown, (std::vector<int>{BST_INDETERMINATE, BST_CHECKED}));
  EXPECT_EQ(shownMultiplier, multiplier.substr(0, 31));
  EXPECT_EQ(typedMultiplier, shownMultiplier);
  EXPECT_EQ(clicked, (std::vector<int>{BST_INDETERMINATE, BST_UNCHECKED, BST_UNCHECKED, BST_CHECKED}));
  ASSERT_EQ(owner.events.size(), 2u);
  const std::string sentMultiplier = "<Multiplier>" + multiplier.substr(0, 31) + "</Multiplier>";
  const std::string applied = lstest::Compact(owner.events[0].value);
  EXPECT_NE(applied.find("<PosLock>FALSE</PosLock>"), std::string::npos) << applied;
  EXPECT_NE(applied.find("<LSTrl_Extendpt1>2</LSTrl_Extendpt1><LSTrl_Extendpt2>1</LSTrl_Extendpt2>" + sentMultiplier),
            std::string::npos)
      << applied;
  const std::string closed = lstest::Compact(owner.events[1].value);
  EXPECT_NE(closed.find("<LSTrl_Extendpt1>1</LSTrl_Extendpt1><LSTrl_Extendpt2>0</LSTrl_Extendpt2>"), std::string::npos)
      << closed;
}

// One page object in two tabs of the real sheet: each tab's window has its own controls, the
// object follows the tab the user is in, and a tab shown again shows what the other one entered.
TEST_F(LsPsWin32, APageInTwoTabsKeepsWhatEachTabEntered) {
  Sheet sheet(&owner);
  sheet.InitFromXml(LoadSheet(
      "<PropertySheet Name=\"LSPs\"><PropertyPageList><PropertyPage Name=\"LsPgIntraTrend\"><MaxPos>50</MaxPos>"
      "<VertexButtons Show=\"Yes\"/><CTrendline>" +
      lstest::StudyXml(false, {lstest::Pt{4, 5}, lstest::Pt{9, 6}}) +
      "</CTrendline></PropertyPage><PropertyPage Name=\"LsPgIntraTrend\"><VertexButtons Show=\"Yes\"/></PropertyPage>"
      "</PropertyPageList></PropertySheet>"));
  HWND firstPage = nullptr, secondPage = nullptr;
  std::vector<std::string> seen;
  auto value = [](HWND page) { return TextOf(::GetDlgItem(page, IDC_LS_INTRA_VALUE)); };
  auto type = [](HWND page, const char* text) { ::SetDlgItemTextA(page, IDC_LS_INTRA_VALUE, text); };
  User user({[&](HWND sheetWindow, HWND page) {
               firstPage = page;
               type(page, "7");
               ::SendMessageA(sheetWindow, PSM_SETCURSEL, 1, 0);
             },
             [&](HWND, HWND page) {
               secondPage = page;
               seen.push_back(value(page));  // 7: the object's value
               type(page, "8");
               Click(page, IDC_LS_VERTEX_1);
               seen.push_back(value(page));       // 6: the end vertex
               seen.push_back(value(firstPage));  // 7: the hidden window is left alone
               type(page, "9");
             },
             [&](HWND sheetWindow, HWND) { ::SendMessageA(sheetWindow, PSM_SETCURSEL, 0, 0); },
             [&](HWND, HWND page) {
               seen.push_back(page == firstPage ? "first" : "other");
               seen.push_back(value(page));  // 9: the end vertex, as entered in the other tab
               type(page, "10");
               Click(page, IDC_LS_VERTEX_0);
               seen.push_back(value(page));        // 8
               seen.push_back(value(secondPage));  // 9
             },
             [&](HWND sheetWindow, HWND) { ::SendMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_OK, 0); }});
  EXPECT_GT(sheet.DoModal(::GetActiveWindow()), 0);
  EXPECT_FALSE(user.CancelledLeftover());
  EXPECT_NE(firstPage, secondPage);
  EXPECT_EQ(seen, (std::vector<std::string>{"7", "6", "7", "first", "9", "8", "9"}));
  ASSERT_EQ(owner.events.size(), 1u);
  const std::string sent = lstest::Compact(owner.events[0].value);
  EXPECT_NE(sent.find("<XY_xPos>4</XY_xPos><XY_yValue>8.000000</XY_yValue>"), std::string::npos) << sent;
  EXPECT_NE(sent.find("<XY_xPos>9</XY_xPos><XY_yValue>10.000000</XY_yValue>"), std::string::npos) << sent;
}

}  // namespace
