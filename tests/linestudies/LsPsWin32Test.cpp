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
  text += std::string(" Kind=\"") + kind + "\"><PropertyPageList><PropertyPage Name=\"LsPgAdvanced\">"
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

TEST_F(LsPsWin32, RunnerRethrowsPageFailureAndKeepsEmptyCaption) {
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

}  // namespace
