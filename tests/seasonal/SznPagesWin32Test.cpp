// The seasonal wizard's pages through the platform's wizard, with their templates from this
// program's resources: a thread timer plays the user (typing, Next, Finish). Set
// ORV_SZN_SCREENSHOT to a path prefix to keep a picture of each page ("<prefix>-<id>.png").

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

#include "WindowCapture.h"
#include "dlgkit/Clock.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/SheetRunner.h"
#include "seasonal/SeasonalRes.h"
#include "seasonal/SznPageTable.h"

namespace {

namespace szn = orv::seasonal;

// A host without services: default colours, no clock correction.
class NoHost final : public orv::HostServices {
 public:
  std::unique_ptr<orv::SettingsService> CreateSettingsService() override { return nullptr; }
  std::unique_ptr<orv::HelpService> CreateHelpService() override { return nullptr; }
};

// The steps a user takes, one per timer tick, against the wizard that is up. A wizard still up
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
  bool CancelledLeftover() const { return leftover_; }

 private:
  static BOOL CALLBACK FindSheet(HWND window, LPARAM found) {
    if (::IsWindowVisible(window) && ::IsWindowEnabled(window) &&
        ::SendMessageA(window, PSM_GETCURRENTPAGEHWND, 0, 0)) {
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

std::string TextOf(HWND page, int id) {
  char text[256] = {};
  ::GetDlgItemTextA(page, id, text, sizeof text);
  return text;
}

void Screenshot(HWND sheet, int dialogId) {
  const char* prefix = std::getenv("ORV_SZN_SCREENSHOT");
  if (!prefix) return;
  const std::string path = std::string(prefix) + "-" + std::to_string(dialogId) + ".png";
  EXPECT_EQ(orv::apps::CaptureWindowToPng(sheet, std::wstring(path.begin(), path.end())), S_OK);
}

std::vector<std::string> SelectedYears(HWND page, int id) {
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
  User user({[&](HWND sheet, HWND page) {
               Screenshot(sheet, IDD_SZN_FUT1);
               fut1Selected = SelectedYears(page, IDC_SZN_FUT1_YEARS);
               fut1Rows = static_cast<int>(::SendDlgItemMessageA(page, IDC_SZN_FUT1_YEARS, LB_GETCOUNT, 0, 0));
               fut1Count = TextOf(page, IDC_SZN_FUT1_COUNT);
               fut1Month = TextOf(page, IDC_SZN_FUT1_MONTH);
               lookupHidden = !::IsWindowVisible(::GetDlgItem(page, IDC_SZN_FUT1_LOOKUP));
               ::SetDlgItemTextA(page, IDC_SZN_FUT1_ROOT, "QCL");
               ::SendDlgItemMessageA(page, IDC_SZN_FUT1_MONTH, CB_SETCURSEL, 11, 0);
               ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
             },
             [&](HWND sheet, HWND page) {
               Screenshot(sheet, IDD_SZN_FUT2);
               fut2Selected = SelectedYears(page, IDC_SZN_FUT2_YEARS);
               ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
             },
             [&](HWND sheet, HWND page) {
               Screenshot(sheet, IDD_SZN_MULT);
               multShown = TextOf(page, IDC_SZN_MULT_1);
               ::SetDlgItemTextA(page, IDC_SZN_MULT_1, "2.5");
               ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_FINISH, 0);
             }});
  const std::intptr_t result = orv::CreatePlatformSheetRunner()->Run(setup);
  EXPECT_FALSE(user.CancelledLeftover());
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
  User user({[&](HWND sheet, HWND page) {
               Screenshot(sheet, IDD_SZN_CASHSPRD);
               symbolsPage = page;
               symbol1 = TextOf(page, IDC_SZN_CASHSPRD_SYMBOL1);
               symbol2 = TextOf(page, IDC_SZN_CASHSPRD_SYMBOL2);
               ::SetDlgItemTextA(page, IDC_SZN_CASHSPRD_SYMBOL2, "QCL");
               ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
             },
             [&](HWND sheet, HWND page) {
               ::SetDlgItemTextA(page, IDC_SZN_MULT_2, "-0.5");
               ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_BACK, 0);
             },
             [&](HWND sheet, HWND page) {
               pageAfterBack = page;
               symbolAfterBack = TextOf(page, IDC_SZN_CASHSPRD_SYMBOL2);
               ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_NEXT, 0);
             },
             [&](HWND sheet, HWND) { ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_FINISH, 0); }});
  const std::intptr_t result = orv::CreatePlatformSheetRunner()->Run(setup);
  EXPECT_FALSE(user.CancelledLeftover());
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
  User user({[&](HWND sheet, HWND page) {
    Screenshot(sheet, IDD_SZN_SNGLROOTFUT);
    selected = SelectedYears(page, IDC_SZN_SNGLROOT_YEARS);
    ::PostMessageA(sheet, PSM_PRESSBUTTON, PSBTN_FINISH, 0);
  }});
  const std::intptr_t result = orv::CreatePlatformSheetRunner()->Run(setup);
  EXPECT_FALSE(user.CancelledLeftover());
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
  User user({[&](HWND sheet, HWND page) {
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
  orv::CreatePlatformSheetRunner()->Run(setup);
  EXPECT_FALSE(user.CancelledLeftover());
  EXPECT_TRUE(onMultipliers);
  EXPECT_FALSE(onConstruction);
  EXPECT_EQ(focus, field);
  EXPECT_EQ(s.Multiplier1, 1.0) << "the page's value, stored";
}

}  // namespace
