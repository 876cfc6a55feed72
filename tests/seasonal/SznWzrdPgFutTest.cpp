// The futures pages of the seasonal wizard (First Futures, Second Futures, Single Root Futures)
// on the headless wizard: what they show at start, the count of selected years, every refusal
// with its text and what it leaves in the state, where Next, Back and Finish lead.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SznPageDriver.h"
#include "seasonal/SeasonalRes.h"
#include "seasonal/SznTables.h"
#include "seasonal/WizardSeasonState.h"

namespace {

using orv::FakeControls;
using orv::seasonal::WizardSeasonState;
using szntest::SelectedTexts;
using szntest::SznPages;

// One futures page: its ids and the state fields it works on.
struct FutPage {
  const char* name;
  int dialogId;
  int root, month, years, count;
  std::string WizardSeasonState::*rootField;
  int WizardSeasonState::*monthField;
  std::vector<int> WizardSeasonState::*yearsField;
  bool singleRoot;  // checks at Finish
};

using S = WizardSeasonState;
const FutPage kFut1{"First Futures",    IDD_SZN_FUT1, IDC_SZN_FUT1_ROOT, IDC_SZN_FUT1_MONTH, IDC_SZN_FUT1_YEARS,
                    IDC_SZN_FUT1_COUNT, &S::Root1,    &S::Month1,        &S::Years1,         false};
const FutPage kFut2{"Second Futures",   IDD_SZN_FUT2, IDC_SZN_FUT2_ROOT, IDC_SZN_FUT2_MONTH, IDC_SZN_FUT2_YEARS,
                    IDC_SZN_FUT2_COUNT, &S::Root2,    &S::Month2,        &S::Years2,         false};
const FutPage kSnglRoot{"Single Root Futures",
                        IDD_SZN_SNGLROOTFUT,
                        IDC_SZN_SNGLROOT_ROOT,
                        IDC_SZN_SNGLROOT_MONTH,
                        IDC_SZN_SNGLROOT_YEARS,
                        IDC_SZN_SNGLROOT_COUNT,
                        &S::Root1,
                        &S::Month1,
                        &S::Years1,
                        true};
const FutPage* const kFutPages[] = {&kFut1, &kFut2, &kSnglRoot};

// Three chart years picked on the Years page in 2026: this year, the year before and 2020; the
// roots and months the wizard starts with.
void PickChartYears(WizardSeasonState& s) {
  s.YearEnterMode = 0;
  s.SelYearIndexes = {0, 1, 6};
  s.SelYears = {2026, 2025, 2020};
  s.Root1 = "@C";
  s.Root2 = "@S";
  s.Month1 = s.Month2 = 0;
}

std::vector<std::string> Texts(FakeControls& c, int listId) {
  std::vector<std::string> texts;
  for (int row = 0; row < c.ListGetCount(listId); ++row) texts.push_back(c.ListGetText(listId, row));
  return texts;
}

// Presses the button that runs the page's checks; true when the wizard went on.
bool PressChecks(SznPages& w, const FutPage& page) {
  return page.singleRoot ? w.Wizard().PressFinish() : w.Wizard().PressNext();
}

TEST(SznFuturesPages, StartShowsTheRootFiftyYearsFromTenAheadTheMonthsAndTheCount) {
  for (const FutPage* page : kFutPages) {
    SCOPED_TRACE(page->name);
    SznPages w(2026);
    PickChartYears(w.State());
    w.State().FormSel = page->singleRoot ? 1 : 3;
    w.State().*page->rootField = "@W";
    w.State().*page->monthField = 6;
    w.State().*page->yearsField = {2027, 2026, 2021};
    w.Start(page->dialogId);
    FakeControls& c = w.Controls(page->dialogId);

    EXPECT_EQ(c.GetDlgItemTextA(page->root, 256), "@W");

    const std::vector<std::string> years = Texts(c, page->years);
    ASSERT_EQ(years.size(), 50u);
    EXPECT_EQ(years.front(), "2036");
    EXPECT_EQ(years.back(), "1987");
    EXPECT_EQ(c.ListGetItemData(page->years, 0), 2036);

    ASSERT_EQ(c.ComboGetCount(page->month), 12);
    for (int m = 0; m < 12; ++m) {
      EXPECT_EQ(c.ComboGetLBText(page->month, m), orv::seasonal::kMonthNames[m]);
      EXPECT_EQ(c.ComboGetItemData(page->month, m), m);
    }
    EXPECT_EQ(c.ComboGetCurSel(page->month), 6);

    EXPECT_EQ(SelectedTexts(c, page->years), (std::vector<std::string>{"2027", "2026", "2021"}));
    EXPECT_EQ(c.GetDlgItemTextA(page->count, 256), "Total: 3");
  }
}

TEST(SznFuturesPages, HelpTextsAreEachPagesOwn) {
  SznPages w;
  PickChartYears(w.State());
  w.State().FormSel = 3;
  w.Start(IDD_SZN_FUT1);
  ASSERT_TRUE(w.Wizard().PressNext());
  const std::string fut1 = w.Controls(IDD_SZN_FUT1).GetDlgItemTextA(IDC_SZN_FUT1_HELP, 4096);
  const std::string fut2 = w.Controls(IDD_SZN_FUT2).GetDlgItemTextA(IDC_SZN_FUT2_HELP, 4096);
  EXPECT_EQ(fut1.rfind("Futures contracts are identified by symbols comprising    a root symbol", 0), 0u);
  EXPECT_EQ(fut1.find("\r\n"), std::string::npos);
  EXPECT_EQ(fut2,
            "Please select a root symbol, a month code, and contract years    to specify the second set of futures "
            "contracts.");

  SznPages single;
  PickChartYears(single.State());
  single.Start(IDD_SZN_SNGLROOTFUT);
  const std::string root = single.Controls(IDD_SZN_SNGLROOTFUT).GetDlgItemTextA(IDC_SZN_SNGLROOT_HELP, 4096);
  // The single root page breaks its lines where the first futures page runs on.
  EXPECT_NE(root, fut1);
  EXPECT_NE(root.find("futures contract.\r\n    Futures contracts may trade"), std::string::npos);
  EXPECT_NE(root.find("expiration.\r\n    Please select"), std::string::npos);
}

TEST(SznFuturesPages, TheStartSelectionFollowsThePagesYearsOrTheChartYears) {
  struct Row {
    const char* what;
    const FutPage* page;
    std::vector<int> selYearIndexes;
    std::vector<int> pageYears;
    std::vector<std::string> selected;
  };
  const Row rows[] = {
      // First visit: the chart years of the Years page, ten rows down the list.
      {"no contract years: the chart years", &kFut1, {0, 1, 6}, {}, {"2026", "2025", "2020"}},
      {"no contract years, second set", &kFut2, {0, 2}, {}, {"2026", "2024"}},
      {"as many contract years as chart years: those", &kFut1, {0, 1, 6}, {2030, 2029, 2024}, {"2030", "2029", "2024"}},
      {"a different count: the chart years", &kFut2, {0, 1}, {2030, 2029, 2024}, {"2026", "2025"}},
      {"neither: nothing", &kFut1, {}, {}, {}},
      // Kept indexes come from the host's document and the history: one that is no row selects
      // nothing (-11 would name row -1, which is no row either).
      {"indexes off the list", &kFut1, {-11, -20, 40, 0}, {}, {"2026"}},
      {"a contract year off the list is passed over", &kFut1, {0, 1}, {2040, 2030}, {"2030"}},
      {"single root: its own years", &kSnglRoot, {0, 1}, {2031, 2020, 2000}, {"2031", "2020", "2000"}},
      {"single root: a different count changes nothing", &kSnglRoot, {0, 1, 2}, {2028}, {"2028"}},
      {"single root without years: nothing, whatever the chart years", &kSnglRoot, {0, 1, 6}, {}, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    SznPages w(2026);
    w.State().SelYearIndexes = row.selYearIndexes;
    w.State().*row.page->yearsField = row.pageYears;
    w.Start(row.page->dialogId);
    FakeControls& c = w.Controls(row.page->dialogId);
    EXPECT_EQ(SelectedTexts(c, row.page->years), row.selected);
    EXPECT_EQ(c.GetDlgItemTextA(row.page->count, 256), "Total: " + std::to_string(row.selected.size()));
  }
}

TEST(SznFuturesPages, AMonthOutsideTheYearShowsJanuary) {
  for (const int month : {-1, 12, 99}) {
    for (const FutPage* page : kFutPages) {
      SCOPED_TRACE(std::string(page->name) + " month " + std::to_string(month));
      SznPages w;
      w.State().*page->monthField = month;
      w.Start(page->dialogId);
      EXPECT_EQ(w.Controls(page->dialogId).ComboGetCurSel(page->month), 0);
    }
  }
}

TEST(SznFuturesPages, TheCountFollowsEachChangeOfSelection) {
  for (const FutPage* page : kFutPages) {
    SCOPED_TRACE(page->name);
    SznPages w;
    w.Start(page->dialogId);
    FakeControls& c = w.Controls(page->dialogId);
    EXPECT_EQ(c.GetDlgItemTextA(page->count, 256), "Total: 0");
    c.ToggleListItem(page->years, 3);
    c.ToggleListItem(page->years, 40);
    EXPECT_EQ(c.GetDlgItemTextA(page->count, 256), "Total: 2");
    c.ToggleListItem(page->years, 3);
    EXPECT_EQ(c.GetDlgItemTextA(page->count, 256), "Total: 1");
  }
}

// --- the checks ---

struct Check {
  const char* what;
  const char* root;             // typed over the root, and the month set to May
  std::vector<int> toggled;     // rows clicked in the years list
  const char* message;          // "" when the checks pass
  bool yearsKept;               // the page's years in the state stay as they were
  std::vector<int> yearsAfter;  // else what they are afterwards
};

// On a page that opened with the chart years 2026, 2025, 2020 (rows 10, 11, 16) selected.
const Check kChecks[] = {
    {"an empty root", "", {}, "Error Empty Root Symbol", true, {}},
    {"no year", "QHO", {10, 11, 16}, "Must select at least one year", false, {}},
    {"fewer years than chart years", "QHO", {10}, "Error must select 3 contract years", false, {}},
    {"more years than chart years", "QHO", {0}, "Error must select 3 contract years", false, {}},
    // 2020 off, 2034 on above the others.
    {"as many years: stored in list order", "QHO", {16, 2}, "", false, {2034, 2026, 2025}},
};

TEST(SznFuturesPages, TheChecksRefuseWithTheirTextAndStoreRootAndMonthFirst) {
  for (const FutPage* page : kFutPages) {
    for (const Check& check : kChecks) {
      SCOPED_TRACE(std::string(page->name) + ": " + check.what);
      SznPages w(2026);
      PickChartYears(w.State());
      w.State().FormSel = page->singleRoot ? 1 : 3;
      // The futures pages select the chart years (their own differ in count); the single root page
      // selects its own years, the same three.
      const std::vector<int> yearsBefore =
          page->singleRoot ? std::vector<int>{2026, 2025, 2020} : std::vector<int>{1999};
      w.State().*page->yearsField = yearsBefore;
      w.Start(page->dialogId);
      FakeControls& c = w.Controls(page->dialogId);
      c.TypeText(page->root, check.root);
      c.SelectComboItem(page->month, 4);
      for (int row : check.toggled) c.ToggleListItem(page->years, row);

      const bool passed = PressChecks(w, *page);
      const WizardSeasonState& s = w.State();
      EXPECT_EQ(s.*page->rootField, c.GetDlgItemTextA(page->root, 256)) << "the root is stored before the checks";
      EXPECT_EQ(s.*page->monthField, 4) << "so is the month";
      EXPECT_EQ(s.*page->yearsField, check.yearsKept ? yearsBefore : check.yearsAfter);
      if (*check.message != '\0') {
        EXPECT_FALSE(passed);
        ASSERT_EQ(c.MessageBoxes().size(), 1u);
        EXPECT_EQ(c.MessageBoxes()[0].text, check.message);
        EXPECT_EQ(c.MessageBoxes()[0].caption, "");
        EXPECT_EQ(c.MessageBoxes()[0].flags, 0u);
        EXPECT_TRUE(w.Wizard().IsRunning());
        EXPECT_EQ(w.CurrentDialog(), page->dialogId) << "the wizard stays on the page";
        EXPECT_TRUE(s.Labels.empty());
      } else {
        EXPECT_TRUE(passed);
        EXPECT_TRUE(c.MessageBoxes().empty());
        EXPECT_TRUE(c.Beeps().empty());
      }
    }
  }
}

TEST(SznFuturesPages, ARootThatCannotBeReadGoesOnUncheckedOrRefusesFinishSilently) {
  for (const FutPage* page : kFutPages) {
    SCOPED_TRACE(page->name);
    SznPages w(2026);
    PickChartYears(w.State());
    w.State().FormSel = page->singleRoot ? 1 : 3;
    w.State().*page->monthField = 2;
    w.State().*page->yearsField = {1999};
    w.WithoutControl(page->dialogId, page->root);
    w.Start(page->dialogId);
    FakeControls& c = w.Controls(page->dialogId);
    ASSERT_EQ(c.Beeps().size(), 1u) << "the root box can't show the root either";
    c.SelectComboItem(page->month, 5);
    for (int row : c.ListGetSelItems(page->years)) c.ToggleListItem(page->years, row);  // would refuse

    const bool passed = PressChecks(w, *page);
    EXPECT_TRUE(c.MessageBoxes().empty());
    EXPECT_EQ(c.Beeps(), (std::vector<unsigned>{orv::kBeepSimple, orv::kBeepSimple}));
    EXPECT_EQ(w.State().*page->yearsField, std::vector<int>{1999}) << "nothing checked, nothing stored";
    EXPECT_EQ(w.State().*page->monthField, 2);
    if (page->singleRoot) {
      EXPECT_FALSE(passed);
      EXPECT_TRUE(w.Wizard().IsRunning());
      EXPECT_TRUE(w.State().Labels.empty());
    } else {
      EXPECT_TRUE(passed);
      EXPECT_EQ(w.CurrentDialog(), page->dialogId == IDD_SZN_FUT1 ? IDD_SZN_FUT2 : IDD_SZN_MULT);
    }
  }
}

// Back checks nothing and stores nothing; where it leads is the wizard's Back table.
TEST(SznFuturesPages, BackChangesNoState) {
  for (const FutPage* page : kFutPages) {
    SCOPED_TRACE(page->name);
    SznPages w;
    PickChartYears(w.State());
    w.State().FormSel = page->singleRoot ? 1 : 3;
    w.Start(page->dialogId);
    FakeControls& c = w.Controls(page->dialogId);
    c.TypeText(page->root, "");
    ASSERT_TRUE(w.Wizard().PressBack());
    EXPECT_TRUE(c.MessageBoxes().empty());
    EXPECT_EQ(w.State().*page->rootField, page == &kFut2 ? "@S" : "@C");
    EXPECT_TRUE((w.State().*page->yearsField).empty());
  }
}

TEST(SznFuturesPages, APageStartsOnceSoALaterCountOfChartYearsIsAskedForAtNext) {
  SznPages w(2026);
  PickChartYears(w.State());
  w.State().FormSel = 3;
  w.Start(IDD_SZN_FUT1);
  FakeControls& c = w.Controls(IDD_SZN_FUT1);
  c.TypeText(IDC_SZN_FUT1_ROOT, "QCL");
  ASSERT_TRUE(w.Wizard().PressBack());
  // Meanwhile the Years page took two chart years.
  w.State().SelYearIndexes = {0, 1};
  w.State().SelYears = {2026, 2025};
  ASSERT_TRUE(w.Wizard().PressNext());
  ASSERT_EQ(w.CurrentDialog(), IDD_SZN_FUT1);
  EXPECT_EQ(c.GetDlgItemTextA(IDC_SZN_FUT1_ROOT, 256), "QCL") << "what the user left";
  EXPECT_EQ(SelectedTexts(c, IDC_SZN_FUT1_YEARS), (std::vector<std::string>{"2026", "2025", "2020"}));
  EXPECT_FALSE(w.Wizard().PressNext());
  ASSERT_EQ(c.MessageBoxes().size(), 1u);
  EXPECT_EQ(c.MessageBoxes()[0].text, "Error must select 2 contract years");
}

TEST(SznFuturesPages, ALongRootIsReadWhole) {
  SznPages w;
  PickChartYears(w.State());
  w.State().FormSel = 3;
  w.Start(IDD_SZN_FUT1);
  const std::string root(1000, 'R');
  w.Controls(IDD_SZN_FUT1).TypeText(IDC_SZN_FUT1_ROOT, root);
  ASSERT_TRUE(w.Wizard().PressNext());
  EXPECT_EQ(w.State().Root1, root);
}

}  // namespace
