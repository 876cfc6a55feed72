// The symbol page of a single instrument, the last page of that form: what it shows, what Finish
// takes, refuses and builds, and where Back leads.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SznWizardRun.h"

namespace {

using szntest::FirstRunState;
using szntest::WizardRun;
using Texts = std::vector<std::string>;

constexpr char kHelp[] =
    "Enter a single contract symbol.\r\n\r\n   Orvane will split the historical data between different years by "
    "season.";

TEST(SznWzrdPgSnglInst, ShowsTheSymbolWithBackAndFinish) {
  auto state = FirstRunState();
  state.Symbol1 = "IBM";
  WizardRun run(state);
  run.Start(IDD_SZN_SNGLINST);
  orv::FakeControls& c = run.Current();
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINST_SYMBOL).text, "IBM");
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINST_HELP).text, kHelp);
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINST_TITLE).text, "Enter Symbol");
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINST_LABEL).text, "Symbol:");
  EXPECT_FALSE(c.IsDlgItemVisible(IDC_SZN_SNGLINST_LOOKUP));
  EXPECT_TRUE(run.Wizard().IsWizardButtonEnabled(orv::kWizBack));
  EXPECT_TRUE(run.Wizard().IsWizardButtonEnabled(orv::kWizFinish));
  EXPECT_FALSE(run.Wizard().IsWizardButtonEnabled(orv::kWizNext));
}

// Finish stores the symbol and builds one label a chart year, or one label only when the host
// asked for one contract.
TEST(SznWzrdPgSnglInst, FinishTakesTheSymbolAndBuildsTheLabels) {
  const std::string longSymbol(300, 'Q');
  struct Row {
    const char* name;
    std::string typed;
    int yearEnterMode;
    Texts labels;
  };
  const Row rows[] = {
      {"one label a year", "SPY", 0, {"SPY", "SPY", "SPY"}},
      {"one contract", "SPY", 1, {"SPY"}},
      {"a count of years", "SPY", 2, {}},
      {"the whole of a long text", longSymbol, 0, {longSymbol, longSymbol, longSymbol}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    auto state = FirstRunState();
    state.YearEnterMode = row.yearEnterMode;
    state.SelYears = {2024, 2023, 2022};
    state.Labels = {"old"};
    WizardRun run(state);
    run.Start(IDD_SZN_SNGLINST);
    run.Current().TypeText(IDC_SZN_SNGLINST_SYMBOL, row.typed);
    EXPECT_TRUE(run.Wizard().PressFinish());
    EXPECT_EQ(run.Wizard().Result(), 1);
    EXPECT_EQ(run.State().Symbol1, row.typed);
    EXPECT_EQ(run.State().Labels, row.labels);
    EXPECT_TRUE(run.Current().MessageBoxes().empty());
  }
}

// The empty symbol is stored before the refusal; the labels are left as they were.
TEST(SznWzrdPgSnglInst, FinishRefusesAnEmptySymbol) {
  auto state = FirstRunState();
  state.SelYears = {2024};
  state.Labels = {"old"};
  WizardRun run(state);
  run.Start(IDD_SZN_SNGLINST);
  orv::FakeControls& c = run.Current();
  c.TypeText(IDC_SZN_SNGLINST_SYMBOL, "");
  EXPECT_FALSE(run.Wizard().PressFinish());
  EXPECT_TRUE(run.Wizard().IsRunning());
  ASSERT_EQ(c.MessageBoxes().size(), 1u);
  EXPECT_EQ(c.MessageBoxes()[0].text, "Error Empty Symbol");
  EXPECT_EQ(c.MessageBoxes()[0].flags, orv::kMbOk);
  EXPECT_EQ(run.State().Symbol1, "");
  EXPECT_EQ(run.State().Labels, Texts{"old"});
}

TEST(SznWzrdPgSnglInst, BackFollowsTheWayYearsAreGivenAndStoresNothing) {
  struct Row {
    int yearEnterMode, back;
  };
  for (const Row& row : {Row{0, IDD_SZN_FORM}, Row{1, IDD_SZN_YRCOUNT}, Row{2, IDD_SZN_YRCOUNT}}) {
    SCOPED_TRACE(row.yearEnterMode);
    auto state = FirstRunState();
    state.YearEnterMode = row.yearEnterMode;
    WizardRun run(state);
    run.Start(IDD_SZN_SNGLINST);
    run.Current().TypeText(IDC_SZN_SNGLINST_SYMBOL, "IBM");
    ASSERT_TRUE(run.Wizard().PressBack());
    EXPECT_EQ(run.CurrentDialog(), row.back);
    EXPECT_EQ(run.State().Symbol1, "MSFT");
  }
}

// Season, Years, Contract Form, Symbol, Finish: the whole of a single instrument's path.
TEST(SznWzrdPgSnglInst, ASingleInstrumentRunFromSeasonToFinish) {
  WizardRun run(FirstRunState(2000), 2026);
  run.Start(IDD_SZN_SEASON);
  run.Current().SelectComboItem(IDC_SZN_SEASON_START, 10);
  run.Current().SelectComboItem(IDC_SZN_SEASON_END, 1);
  ASSERT_TRUE(run.Wizard().PressNext());
  run.Current().ToggleListItem(IDC_SZN_YEARS_LIST, 1);
  ASSERT_TRUE(run.Wizard().PressNext());
  run.Current().Click(IDC_SZN_FORM_SNGLINST);
  ASSERT_TRUE(run.Wizard().PressNext());
  ASSERT_EQ(run.CurrentDialog(), IDD_SZN_SNGLINST);
  run.Current().TypeText(IDC_SZN_SNGLINST_SYMBOL, "@ES");
  ASSERT_TRUE(run.Wizard().PressFinish());
  EXPECT_EQ(run.State().SelYears, (std::vector<int>{2026, 2024}));
  EXPECT_EQ(run.State().SelYearIndexes, (std::vector<int>{0, 2}));
  EXPECT_EQ(run.State().FormSel, 0);
  EXPECT_EQ(run.State().Labels, (Texts{"@ES", "@ES"}));
  EXPECT_EQ(orv::seasonal::MonthOf(run.State().Start), 11);
  EXPECT_EQ(orv::seasonal::MonthOf(run.State().End), 2);
  EXPECT_EQ(orv::seasonal::YearOf(run.State().End), 2000);
}

}  // namespace
