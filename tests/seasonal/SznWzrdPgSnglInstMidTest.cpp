// The symbol page of a cash futures spread, between the form and the futures set: what Next
// takes and refuses, and where Back leads.
#include <gtest/gtest.h>

#include <string>

#include "SznWizardRun.h"

namespace {

using szntest::FirstRunState;
using szntest::WizardRun;

constexpr char kHelp[] =
    "Enter a single contract symbol.\r\n\r\n   Orvane will split the historical data between different years by "
    "season.";

orv::seasonal::WizardSeasonState CashFuturesState() {
  auto state = FirstRunState();
  state.FormSel = orv::seasonal::kFormCashFuturesSpread;
  state.Symbol1 = "PCACG00";
  state.Labels = {"old"};
  return state;
}

TEST(SznWzrdPgSnglInstMid, ShowsTheSymbolWithBackAndNext) {
  WizardRun run(CashFuturesState());
  run.Start(IDD_SZN_SNGLINSTMID);
  orv::FakeControls& c = run.Current();
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINSTMID_SYMBOL).text, "PCACG00");
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINSTMID_HELP).text, kHelp);
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINSTMID_TITLE).text, "Enter Symbol");
  EXPECT_EQ(c.Control(IDC_SZN_SNGLINSTMID_LABEL).text, "Symbol:");
  EXPECT_FALSE(c.IsDlgItemVisible(IDC_SZN_SNGLINSTMID_LOOKUP));
  EXPECT_TRUE(run.Wizard().IsWizardButtonEnabled(orv::kWizBack));
  EXPECT_TRUE(run.Wizard().IsWizardButtonEnabled(orv::kWizNext));
  EXPECT_FALSE(run.Wizard().IsWizardButtonEnabled(orv::kWizFinish));
}

// Next stores the symbol (also the empty one it refuses) and builds no labels.
TEST(SznWzrdPgSnglInstMid, NextTakesTheSymbolOrRefusesAnEmptyOne) {
  struct Row {
    const char* typed;
    bool goes;
  };
  for (const Row& row : {Row{"CASH.X", true}, Row{" ", true}, Row{"", false}}) {
    SCOPED_TRACE(row.typed);
    WizardRun run(CashFuturesState());
    run.Start(IDD_SZN_SNGLINSTMID);
    orv::FakeControls& c = run.Current();
    c.TypeText(IDC_SZN_SNGLINSTMID_SYMBOL, row.typed);
    EXPECT_EQ(run.Wizard().PressNext(), row.goes);
    EXPECT_EQ(run.CurrentDialog(), row.goes ? IDD_SZN_FUT2 : IDD_SZN_SNGLINSTMID);
    EXPECT_EQ(run.State().Symbol1, row.typed);
    EXPECT_EQ(run.State().Labels, std::vector<std::string>{"old"});
    if (row.goes) {
      EXPECT_TRUE(c.MessageBoxes().empty());
    } else {
      ASSERT_EQ(c.MessageBoxes().size(), 1u);
      EXPECT_EQ(c.MessageBoxes()[0].text, "Error Empty Symbol");
      EXPECT_EQ(c.MessageBoxes()[0].flags, orv::kMbOk);
    }
  }
}

TEST(SznWzrdPgSnglInstMid, BackLeadsToTheFormAndTheTypedSymbolStays) {
  WizardRun run(CashFuturesState());
  run.Start(IDD_SZN_SNGLINSTMID);
  run.Current().TypeText(IDC_SZN_SNGLINSTMID_SYMBOL, "XYZ");
  ASSERT_TRUE(run.Wizard().PressBack());
  ASSERT_EQ(run.CurrentDialog(), IDD_SZN_FORM);
  EXPECT_EQ(run.State().Symbol1, "PCACG00") << "Back stores nothing";
  ASSERT_TRUE(run.Wizard().PressNext());
  ASSERT_EQ(run.CurrentDialog(), IDD_SZN_SNGLINSTMID);
  EXPECT_EQ(run.Current().Control(IDC_SZN_SNGLINSTMID_SYMBOL).text, "XYZ");
}

}  // namespace
