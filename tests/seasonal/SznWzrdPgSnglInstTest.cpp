// The symbol page of a single instrument, the last page of that form: what it shows, what Finish
// takes, refuses and builds, and where Back leads.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SznPageDriver.h"

namespace {

using szntest::FirstRunState;
using szntest::SznPages;
using Texts = std::vector<std::string>;

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
    SznPages run(state);
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
  SznPages run(state);
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
    SznPages run(state);
    run.Start(IDD_SZN_SNGLINST);
    run.Current().TypeText(IDC_SZN_SNGLINST_SYMBOL, "IBM");
    ASSERT_TRUE(run.Wizard().PressBack());
    EXPECT_EQ(run.CurrentDialog(), row.back);
    EXPECT_EQ(run.State().Symbol1, "MSFT");
  }
}

}  // namespace
