#pragma once
// Playing a user in the platform's wizard (Windows build, under Wine): steps run from inside the
// wizard's modal loop, and what a step reads back from the real controls. With
// ORV_SZN_SCREENSHOTS set to a folder, Capture writes the wizard's picture there.

#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "../dlgkit/win32/PostedWork.h"
#include "WindowCapture.h"
#include "dlgkit/SheetRunner.h"
#include "dlgkit/win32/SheetRunnerWin32.h"

namespace szntest {

// The platform's wizard, with a test's steps played from inside its modal loop: one step per
// posted message, so what a step posts (a button press) and what that posts in turn are handled
// before the next step.
class PlayedWizard final : public orv::SheetRunner {
 public:
  using Step = std::function<void(HWND sheet, HWND page)>;
  explicit PlayedWizard(std::vector<Step> steps) : steps_(std::move(steps)) {}

  std::intptr_t Run(const orv::SheetSetup& setup) override {
    orv::SheetSetup played = setup;
    played.onInitialized = [this, setup](orv::WindowHandle window, orv::WindowOps& ops) {
      if (setup.onInitialized) setup.onInitialized(window, ops);
      sheet_ = static_cast<HWND>(window);
      work_.Post([this] { work_.Post([this] { Play(); }); });
    };
    return orv::SheetRunnerWin32().Run(played);
  }
  std::size_t StepsTaken() const { return next_; }
  bool AllStepsTaken() const { return next_ == steps_.size(); }
  bool Failed() const { return work_.Failed(); }

 private:
  void Play() {
    HWND page = reinterpret_cast<HWND>(::SendMessageA(sheet_, PSM_GETCURRENTPAGEHWND, 0, 0));
    if (next_ < steps_.size()) {
      steps_[next_++](sheet_, page);
      // Two hops: what the page change posts (the new page's wizard buttons) comes first.
      work_.Post([this] { work_.Post([this] { Play(); }); });
    } else {
      ::PostMessageA(sheet_, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);  // a step too few: don't hang
    }
  }
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  HWND sheet_ = nullptr;
  orv::test::PostedWork work_;
};

inline std::string ItemText(HWND page, int id) {
  char text[512] = {};
  ::GetDlgItemTextA(page, id, text, sizeof text);
  return text;
}

inline void Capture(HWND sheet, const std::string& name) {
  const char* folder = std::getenv("ORV_SZN_SCREENSHOTS");
  if (!folder) return;
  const std::string path = std::string(folder) + "\\" + name + ".png";
  EXPECT_EQ(orv::apps::CaptureWindowToPng(sheet, std::wstring(path.begin(), path.end())), S_OK);
}

// The texts of the selected rows of a list box of several selections, in list order.
inline std::vector<std::string> SelectedYears(HWND page, int id) {
  HWND list = ::GetDlgItem(page, id);
  const int count = static_cast<int>(::SendMessageA(list, LB_GETSELCOUNT, 0, 0));
  std::vector<int> rows(static_cast<std::size_t>(count > 0 ? count : 0));
  if (count > 0) ::SendMessageA(list, LB_GETSELITEMS, count, reinterpret_cast<LPARAM>(rows.data()));
  std::vector<std::string> years;
  for (int row : rows) {
    char text[32] = {};
    ::SendMessageA(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text));
    years.push_back(text);
  }
  return years;
}

}  // namespace szntest
