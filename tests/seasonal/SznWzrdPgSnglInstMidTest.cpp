// The symbol page of a cash futures spread, between the form and the futures set: what Next
// takes and refuses; Back stores nothing.
#include <gtest/gtest.h>

#include <string>

#include "SznPageDriver.h"

namespace {

using szntest::FirstRunState;
using szntest::SznPages;

orv::seasonal::WizardSeasonState CashFuturesState() {
  auto state = FirstRunState();
  state.FormSel = orv::seasonal::kFormCashFuturesSpread;
  state.Symbol1 = "PCACG00";
  state.Labels = {"old"};
  return state;
}

// Next stores the symbol (also the empty one it refuses) and builds no labels.
TEST(SznWzrdPgSnglInstMid, NextTakesTheSymbolOrRefusesAnEmptyOne) {
  struct Row {
    const char* typed;
    bool goes;
  };
  for (const Row& row : {Row{"CASH.X", true}, Row{" ", true}, Row{"", false}}) {
    SCOPED_TRACE(row.typed);
    SznPages run(CashFuturesState());
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

TEST(SznWzrdPgSnglInstMid, BackStoresNothing) {
  SznPages run(CashFuturesState());
  run.Start(IDD_SZN_SNGLINSTMID);
  run.Current().TypeText(IDC_SZN_SNGLINSTMID_SYMBOL, "XYZ");
  ASSERT_TRUE(run.Wizard().PressBack());
  EXPECT_EQ(run.State().Symbol1, "PCACG00");
}

}  // namespace
