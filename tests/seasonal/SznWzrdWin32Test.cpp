// The seasonal wizard's pages in the platform's wizard, with their templates from this program's
// resources: a single instrument from the season to Finish, as a user picks and types it. With
// ORV_SZN_SCREENSHOTS set to a folder, each page's picture is written there.

#include <windows.h>
#include <objbase.h>
#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "../dlgkit/win32/PostedWork.h"
#include "SznWizardRun.h"
#include "WindowCapture.h"
#include "dlgkit/SettingsStore.h"
#include "dlgkit/win32/SheetRunnerWin32.h"
#include "seasonal/SznWzrdPs.h"
#include "xml/Xml.h"

namespace {

using szntest::FirstRunState;

struct NoOwner {
  void FireStatusEvent(std::int32_t, const std::string&, std::int32_t, const std::string&, std::int32_t&) {}
};

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

std::string ItemText(HWND page, int id) {
  char text[512] = {};
  ::GetDlgItemTextA(page, id, text, sizeof text);
  return text;
}

void SelectMonth(HWND page, int comboId, int index) {
  HWND combo = ::GetDlgItem(page, comboId);
  ::SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  ::SendMessageA(page, WM_COMMAND, MAKEWPARAM(comboId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

void Capture(HWND sheet, const char* name) {
  const char* folder = std::getenv("ORV_SZN_SCREENSHOTS");
  if (!folder) return;
  const std::string path = std::string(folder) + "\\" + name + ".png";
  EXPECT_EQ(orv::apps::CaptureWindowToPng(sheet, std::wstring(path.begin(), path.end())), S_OK);
}

XmlNode WizardNode() {
  XmlNode document = XmlCreateDocument();
  std::string text = "<PropertySheet Name=\"SznWzrdPs\"><YearEnterMode>0</YearEnterMode><PropertyPageList>";
  for (const char* name : {"SznWzrdPgSeason", "SznWzrdPgYears", "SznWzrdPgYrCount", "SznWzrdPgForm",
                           "SznWzrdPgSnglInst", "SznWzrdPgSnglInstMid", "SznWzrdPgConstr"})
    text += std::string("<PropertyPage Name=\"") + name + "\"/>";
  text += "</PropertyPageList></PropertySheet>";
  EXPECT_TRUE(XmlLoadString(document, text));
  return XmlFindNode(document, "PropertySheet", true);
}

class SznWzrdWin32 : public ::testing::Test {
 protected:
  void SetUp() override {
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    INITCOMMONCONTROLSEX init{sizeof init, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&init);
  }
  void TearDown() override { ::CoUninitialize(); }
  szntest::NoHostServices services;
  orv::ScopedHostServices scoped{services};
  orv::MemorySettingsStore store;
  orv::FixedClock clock{orv::DateTime{2026, 6, 15, 12, 0, 0}};
};

TEST_F(SznWzrdWin32, ASingleInstrumentFromTheSeasonToFinish) {
  NoOwner owner;
  CSznWzrdPs<NoOwner> sheet(&owner, store, clock);
  sheet.LoadSheetDocument(WizardNode());
  sheet.State() = FirstRunState(2000);
  PlayedWizard wizard({
      [](HWND sheetWindow, HWND page) {
        EXPECT_EQ(ItemText(page, IDC_SZN_SEASON_YEAR), "Season (for year 2000)");
        EXPECT_EQ(ItemText(page, IDC_SZN_SEASON_PREVIEW), "Jan/01/2000 - Dec/31/2000");
        SelectMonth(page, IDC_SZN_SEASON_START, 10);
        SelectMonth(page, IDC_SZN_SEASON_END, 1);
        EXPECT_EQ(ItemText(page, IDC_SZN_SEASON_PREVIEW), "Nov/01/2000 - Feb/28/2001");
        Capture(sheetWindow, "season");
        ::PostMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
      },
      [](HWND sheetWindow, HWND page) {
        HWND list = ::GetDlgItem(page, IDC_SZN_YEARS_LIST);
        ASSERT_NE(list, nullptr) << "the Years page is up";
        EXPECT_EQ(::SendMessageA(list, LB_GETCOUNT, 0, 0), 50);
        EXPECT_EQ(::SendMessageA(list, LB_GETSELCOUNT, 0, 0), 3);
        EXPECT_EQ(ItemText(page, IDC_SZN_YEARS_COUNT), "Total: 3");
        ::SendMessageA(list, LB_SETSEL, FALSE, 1);
        ::SendMessageA(page, WM_COMMAND, MAKEWPARAM(IDC_SZN_YEARS_LIST, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
        EXPECT_EQ(ItemText(page, IDC_SZN_YEARS_COUNT), "Total: 2");
        Capture(sheetWindow, "years");
        ::PostMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
      },
      [](HWND sheetWindow, HWND page) {
        ASSERT_NE(::GetDlgItem(page, IDC_SZN_FORM_SNGLINST), nullptr) << "the Contract Form page is up";
        EXPECT_EQ(::IsDlgButtonChecked(page, IDC_SZN_FORM_SNGLINST), BST_CHECKED);
        ::SendMessageA(::GetDlgItem(page, IDC_SZN_FORM_FUTSPRD), BM_CLICK, 0, 0);
        EXPECT_EQ(ItemText(page, IDC_SZN_FORM_HELP).substr(0, 15), "Futures spreads");
        Capture(sheetWindow, "form");
        ::SendMessageA(::GetDlgItem(page, IDC_SZN_FORM_SNGLINST), BM_CLICK, 0, 0);
        ::PostMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
      },
      [](HWND sheetWindow, HWND page) {
        ASSERT_NE(::GetDlgItem(page, IDC_SZN_SNGLINST_SYMBOL), nullptr) << "the Symbol page is up";
        EXPECT_EQ(ItemText(page, IDC_SZN_SNGLINST_SYMBOL), "MSFT");
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(page, IDC_SZN_SNGLINST_LOOKUP)));
        ::SetDlgItemTextA(page, IDC_SZN_SNGLINST_SYMBOL, "");
        Capture(sheetWindow, "symbol");
        ::SetDlgItemTextA(page, IDC_SZN_SNGLINST_SYMBOL, "@ES");
        ::PostMessageA(sheetWindow, PSM_PRESSBUTTON, PSBTN_FINISH, 0);
      },
  });
  const std::intptr_t result = sheet.DoModal(wizard);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(wizard.StepsTaken(), 4u);
  EXPECT_FALSE(wizard.Failed());
  EXPECT_EQ(sheet.State().SelYears, (std::vector<int>{2026, 2024}));
  EXPECT_EQ(sheet.State().FormSel, 0);
  EXPECT_EQ(sheet.State().Symbol1, "@ES");
  EXPECT_EQ(sheet.State().Labels, (std::vector<std::string>{"@ES", "@ES"}));
  EXPECT_EQ(orv::seasonal::MonthOf(sheet.State().Start), 11);
  EXPECT_EQ(orv::seasonal::MonthOf(sheet.State().End), 2);
}

}  // namespace
