// The seasonal wizard's pages through the platform's wizard, with their templates from this
// program's resources: a user played from inside the wizard's loop (typing, Next, Back, Finish).
// With ORV_SZN_SCREENSHOTS set to a folder, each page's picture is written there ("<id>.png").

#include <windows.h>
#include <objbase.h>
#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "SznPageDriver.h"
#include "SznWin32Driver.h"
#include "dlgkit/Clock.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/SheetRunner.h"
#include "seasonal/SeasonalRes.h"
#include "seasonal/SznPageTable.h"

namespace {

namespace szn = orv::seasonal;
using szntest::Capture;
using szntest::ItemText;
using szntest::NoHost;
using szntest::PlayedWizard;
using szntest::SelectedYears;

class SznPagesWin32 : public ::testing::Test {
 protected:
  void SetUp() override {
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    INITCOMMONCONTROLSEX init{sizeof init, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&init);
  }
  void TearDown() override { ::CoUninitialize(); }

  // The page objects of the table's keys, in the given order, as the wizard shows them.
  orv::SheetSetup Wizard(const std::vector<const char*>& names) {
    orv::SheetSetup setup;
    setup.wizard = true;
    for (const char* name : names) {
      for (std::size_t i = 0; i < szn::kSznPages.size(); ++i) {
        if (std::string(szn::kSznPages[i].name) != name) continue;
        pages.push_back(szn::MakeSznPage(i, context));
        setup.pages.push_back(pages.back()->GetPageRecord());
      }
    }
    return setup;
  }

  NoHost host;
  orv::ScopedHostServices scoped{host};
  orv::FixedClock clock{orv::DateTime{2026, 6, 15, 12, 0, 0}};
  szn::SznWzrdContext context{{}, &clock};
  std::vector<std::unique_ptr<szn::CPgBase>> pages;
};

TEST_F(SznPagesWin32, AFuturesSpreadRunsThroughBothSetsAndTheMultipliersToFinish) {
  szn::WizardSeasonState& s = context.state;
  s.YearEnterMode = 0;
  s.FormSel = szn::kFormFuturesSpread;
  s.SelYearIndexes = {0, 1, 6};
  s.SelYears = {2026, 2025, 2020};
  s.Root1 = "@C";
  s.Root2 = "@S";
  s.Month1 = s.Month2 = 0;
  const orv::SheetSetup setup = Wizard({"SznWzrdPgFut1", "SznWzrdPgFut2", "SznWzrdPgMult"});

  std::vector<std::string> fut1Selected, fut2Selected;
  std::string fut1Count, fut1Month, multShown;
  int fut1Rows = 0;
  bool lookupHidden = false;
  PlayedWizard user({[&](HWND sheet, HWND page) {
                       Capture(sheet, std::to_string(IDD_SZN_FUT1));
                       fut1Selected = SelectedYears(page, IDC_SZN_FUT1_YEARS);
                       fut1Rows = static_cast<int>(::SendDlgItemMessageA(page, IDC_SZN_FUT1_YEARS, LB_GETCOUNT, 0, 0));
                       fut1Count = ItemText(page, IDC_SZN_FUT1_COUNT);
                       fut1Month = ItemText(page, IDC_SZN_FUT1_MONTH);
                       lookupHidden = !::IsWindowVisible(::GetDlgItem(page, IDC_SZN_FUT1_LOOKUP));
                       ::SetDlgItemTextA(page, IDC_SZN_FUT1_ROOT, "QCL");
                       ::SendDlgItemMessageA(page, IDC_SZN_FUT1_MONTH, CB_SETCURSEL, 11, 0);
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
                     },
                     [&](HWND sheet, HWND page) {
                       Capture(sheet, std::to_string(IDD_SZN_FUT2));
                       fut2Selected = SelectedYears(page, IDC_SZN_FUT2_YEARS);
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
                     },
                     [&](HWND sheet, HWND page) {
                       Capture(sheet, std::to_string(IDD_SZN_MULT));
                       multShown = ItemText(page, IDC_SZN_MULT_1);
                       ::SetDlgItemTextA(page, IDC_SZN_MULT_1, "2.5");
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_FINISH, 0);
                     }});
  const std::intptr_t result = user.Run(setup);
  EXPECT_TRUE(user.AllStepsTaken());
  EXPECT_GT(result, 0);
  EXPECT_EQ(fut1Rows, 50);
  EXPECT_EQ(fut1Selected, (std::vector<std::string>{"2026", "2025", "2020"}));
  EXPECT_EQ(fut1Count, "Total: 3");
  EXPECT_EQ(fut1Month, "Jan");
  EXPECT_TRUE(lookupHidden);
  EXPECT_EQ(fut2Selected, (std::vector<std::string>{"2026", "2025", "2020"}));
  EXPECT_EQ(multShown, "1");
  EXPECT_EQ(s.Root1, "QCL");
  EXPECT_EQ(s.Month1, 11);
  EXPECT_EQ(s.Years1, (std::vector<int>{2026, 2025, 2020}));
  EXPECT_EQ(s.Years2, (std::vector<int>{2026, 2025, 2020}));
  EXPECT_EQ(s.Multiplier1, 2.5);
  EXPECT_EQ(s.Labels, (std::vector<std::string>{"2.50 * QCL2026Z - @S2026F", "2.50 * QCL2025Z - @S2025F",
                                                "2.50 * QCL2020Z - @S2020F"}));
}

TEST_F(SznPagesWin32, ACashSpreadGoesFromTheSymbolsToTheMultipliersAndBack) {
  szn::WizardSeasonState& s = context.state;
  s.YearEnterMode = 0;
  s.FormSel = szn::kFormCashSpread;
  s.SelYearIndexes = {0, 1};
  s.SelYears = {2026, 2025};
  s.Symbol1 = "MSFT";
  s.Symbol2 = "INDU.X";
  const orv::SheetSetup setup = Wizard({"SznWzrdPgCashSprd", "SznWzrdPgMult"});
  std::string symbol1, symbol2, symbolAfterBack;
  HWND symbolsPage = nullptr, pageAfterBack = nullptr;
  PlayedWizard user({[&](HWND sheet, HWND page) {
                       Capture(sheet, std::to_string(IDD_SZN_CASHSPRD));
                       symbolsPage = page;
                       symbol1 = ItemText(page, IDC_SZN_CASHSPRD_SYMBOL1);
                       symbol2 = ItemText(page, IDC_SZN_CASHSPRD_SYMBOL2);
                       ::SetDlgItemTextA(page, IDC_SZN_CASHSPRD_SYMBOL2, "QCL");
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
                     },
                     [&](HWND sheet, HWND page) {
                       ::SetDlgItemTextA(page, IDC_SZN_MULT_2, "-0.5");
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_BACK, 0);
                     },
                     [&](HWND sheet, HWND page) {
                       pageAfterBack = page;
                       symbolAfterBack = ItemText(page, IDC_SZN_CASHSPRD_SYMBOL2);
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
                     },
                     [&](HWND sheet, HWND) { ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_FINISH, 0); }});
  const std::intptr_t result = user.Run(setup);
  EXPECT_TRUE(user.AllStepsTaken());
  EXPECT_GT(result, 0);
  EXPECT_EQ(symbol1, "MSFT");
  EXPECT_EQ(symbol2, "INDU.X");
  EXPECT_EQ(pageAfterBack, symbolsPage);
  EXPECT_EQ(symbolAfterBack, "QCL");
  EXPECT_EQ(s.Symbol2, "QCL");
  EXPECT_EQ(s.Multiplier2, -0.5);
  EXPECT_EQ(s.Labels, (std::vector<std::string>{"MSFT - -0.50 * QCL", "MSFT - -0.50 * QCL"}));
}

TEST_F(SznPagesWin32, TheSingleRootPageSelectsItsOwnYearsAndFinishes) {
  szn::WizardSeasonState& s = context.state;
  s.YearEnterMode = 0;
  s.FormSel = szn::kFormSingleRootFutures;
  s.SelYearIndexes = {0, 1};
  s.SelYears = {2026, 2025};
  s.Root1 = "@C";
  s.Month1 = 2;
  s.Years1 = {2027, 2026};
  const orv::SheetSetup setup = Wizard({"SznWzrdPgSnglRootFut"});
  std::vector<std::string> selected;
  PlayedWizard user({[&](HWND sheet, HWND page) {
    Capture(sheet, std::to_string(IDD_SZN_SNGLROOTFUT));
    selected = SelectedYears(page, IDC_SZN_SNGLROOT_YEARS);
    ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_FINISH, 0);
  }});
  const std::intptr_t result = user.Run(setup);
  EXPECT_TRUE(user.AllStepsTaken());
  EXPECT_GT(result, 0);
  EXPECT_EQ(selected, (std::vector<std::string>{"2027", "2026"}));
  EXPECT_EQ(s.Labels, (std::vector<std::string>{"@C2027H", "@C2026H"}));
}

// Back names the Under Construction page when a multiplier doesn't read, but the platform's
// wizard asks the page whether it may be left (PSN_KILLACTIVE) before it changes page, and the
// page says no for the same field: the user stays, with the field's beep and focus.
TEST_F(SznPagesWin32, BackFromMultipliersThatDoNotReadStaysOnThePage) {
  szn::WizardSeasonState& s = context.state;
  s.YearEnterMode = 0;
  s.FormSel = szn::kFormCashSpread;
  s.SelYearIndexes = {0};
  s.SelYears = {2026};
  orv::SheetSetup setup = Wizard({"SznWzrdPgCashSprd", "SznWzrdPgMult", "SznWzrdPgConstr"});
  setup.startPage = 1;
  bool onMultipliers = false, onConstruction = false;
  HWND focus = nullptr, field = nullptr;
  PlayedWizard user({[&](HWND sheet, HWND page) {
                       field = ::GetDlgItem(page, IDC_SZN_MULT_1);
                       ::SetDlgItemTextA(page, IDC_SZN_MULT_1, "two");
                       ::SetDlgItemTextA(page, IDC_SZN_MULT_2, "3");
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_BACK, 0);
                     },
                     [&](HWND sheet, HWND page) {
                       onMultipliers = ::GetDlgItem(page, IDC_SZN_MULT_1) != nullptr;
                       onConstruction = ::GetDlgItem(page, IDC_SZN_CONSTR_TITLE) != nullptr;
                       focus = ::GetFocus();
                       ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
                     }});
  user.Run(setup);
  EXPECT_TRUE(user.AllStepsTaken());
  EXPECT_TRUE(onMultipliers);
  EXPECT_FALSE(onConstruction);
  EXPECT_EQ(focus, field);
  EXPECT_EQ(s.Multiplier1, 1.0) << "the page's value, stored";
}

}  // namespace
