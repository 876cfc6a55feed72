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

#include "SznWin32Driver.h"
#include "SznWizardRun.h"
#include "dlgkit/SettingsStore.h"
#include "seasonal/SznWzrdPs.h"
#include "xml/Xml.h"

namespace {

using szntest::Capture;
using szntest::FirstRunState;
using szntest::ItemText;
using szntest::PlayedWizard;

struct NoOwner {
  void FireStatusEvent(std::int32_t, const std::string&, std::int32_t, const std::string&, std::int32_t&) {}
};

void SelectMonth(HWND page, int comboId, int index) {
  HWND combo = ::GetDlgItem(page, comboId);
  ::SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  ::SendMessageA(page, WM_COMMAND, MAKEWPARAM(comboId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
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
  szntest::NoHost services;
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
