// The shared sheet sessions on the platform's PropertySheet, through the kit's Win32 sheet
// runner: a user's tab clicks reach the tab control as mouse messages, the buttons are pressed
// with PSM_PRESSBUTTON, each step played from the sheet's own message loop.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <string>

#include "../SheetSequences.h"
#include "PostedWork.h"
#include "dlgkit/win32/SheetRunnerWin32.h"

namespace {

using namespace orv::seqtest;

// The sheet's own buttons.
constexpr int kApplyButtonId = 0x3021;
constexpr int kBackButtonId = 0x3023;
constexpr int kNextButtonId = 0x3024;
constexpr int kFinishButtonId = 0x3025;

class Win32Driver final : public SheetDriver {
 public:
  explicit Win32Driver(HWND sheet) : sheet_(sheet) {}
  int CurrentTab() override {
    const LRESULT page = ::SendMessageA(sheet_, PSM_GETCURRENTPAGEHWND, 0, 0);
    return static_cast<int>(::SendMessageA(sheet_, PSM_HWNDTOINDEX, static_cast<WPARAM>(page), 0));
  }
  bool ApplyEnabled() override { return Live(kApplyButtonId); }
  // A click in the middle of the tab, as the mouse would give it.
  void ClickTab(int index) override {
    HWND tabs = reinterpret_cast<HWND>(::SendMessageA(sheet_, PSM_GETTABCONTROL, 0, 0));
    RECT item{};
    ASSERT_TRUE(::SendMessageA(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
    const LPARAM at = MAKELPARAM((item.left + item.right) / 2, (item.top + item.bottom) / 2);
    ::SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::SendMessageA(tabs, WM_LBUTTONUP, 0, at);
  }
  void TypeIntoCurrentPage() override {
    HWND page = reinterpret_cast<HWND>(::SendMessageA(sheet_, PSM_GETCURRENTPAGEHWND, 0, 0));
    ::SetDlgItemTextA(page, IDC_SEQ_EDIT, "1");
  }
  void PressApply() override {
    if (ApplyEnabled()) ::SendMessageA(sheet_, PSM_PRESSBUTTON, PSBTN_APPLYNOW, 0);
  }
  void PressOk() override { ::SendMessageA(sheet_, PSM_PRESSBUTTON, PSBTN_OK, 0); }
  void PressCancel() override { ::SendMessageA(sheet_, PSM_PRESSBUTTON, PSBTN_CANCEL, 0); }
  bool WizardButtonEnabled(unsigned button) override { return Live(WizardButtonId(button)); }
  void PressBack() override { PressIfLive(orv::kWizBack, PSBTN_BACK); }
  void PressNext() override { PressIfLive(orv::kWizNext, PSBTN_NEXT); }
  void PressFinish() override { PressIfLive(orv::kWizFinish, PSBTN_FINISH); }

 private:
  static int WizardButtonId(unsigned button) {
    return button == orv::kWizBack ? kBackButtonId : button == orv::kWizNext ? kNextButtonId : kFinishButtonId;
  }
  // Shown and enabled: a button the user can press.
  bool Live(int id) const {
    HWND button = ::GetDlgItem(sheet_, id);
    return button && ::IsWindowVisible(button) && ::IsWindowEnabled(button);
  }
  void PressIfLive(unsigned button, int which) {
    if (Live(WizardButtonId(button))) ::SendMessageA(sheet_, PSM_PRESSBUTTON, static_cast<WPARAM>(which), 0);
  }
  HWND sheet_;
};

class SheetSequenceWin32 : public ::testing::TestWithParam<SequenceCase> {
 protected:
  void SetUp() override {
    INITCOMMONCONTROLSEX init{sizeof init, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&init);
  }
};

TEST_P(SheetSequenceWin32, PagesHearWhatTheTableSays) {
  const SequenceCase& c = GetParam();
  Session session(c);
  orv::test::PostedWork work;
  HWND sheet = nullptr;
  std::size_t next = 0;
  bool leftOpen = false;
  // One step per message: whatever a step posts (a button press) is handled before the next.
  std::function<void()> play = [&] {
    if (next < c.steps.size()) {
      Win32Driver driver(sheet);
      PlayStep(c.steps[next++], driver, session.log);
      work.Post(play);
    } else {
      leftOpen = true;
      ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    }
  };
  const auto logInitialized = session.setup.onInitialized;
  session.setup.onInitialized = [&](orv::WindowHandle window, orv::WindowOps& ops) {
    logInitialized(window, ops);
    sheet = static_cast<HWND>(window);
    // The start page is activated after this hook, and what it posts (its wizard buttons) comes
    // before the first step: that step is posted from a message posted now.
    work.Post([&] { work.Post(play); });
  };
  orv::SheetRunnerWin32 runner;
  const std::intptr_t result = runner.Run(session.setup);
  session.log.push_back("result " + std::to_string(result));
  EXPECT_FALSE(leftOpen) << "the session's last step closes the sheet";
  EXPECT_FALSE(work.Failed());
  EXPECT_EQ(next, c.steps.size()) << "the sheet closed before the session's last step";
  EXPECT_EQ(session.log, c.expected);
}

INSTANTIATE_TEST_SUITE_P(Sessions, SheetSequenceWin32, ::testing::ValuesIn(SequenceCases()),
                         [](const auto& info) { return CaseName(info.param); });

}  // namespace
