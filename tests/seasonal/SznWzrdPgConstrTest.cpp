// The Under Construction page: its caption only, the sheet's default Back, and a Finish that
// builds nothing.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SznWizardRun.h"

namespace {

using szntest::FirstRunState;
using szntest::WizardRun;

TEST(SznWzrdPgConstr, ShowsItsCaptionWithBackAndFinish) {
  WizardRun run;
  run.Start(IDD_SZN_CONSTR);
  EXPECT_EQ(run.Current().Control(IDC_SZN_CONSTR_TITLE).text, "Under Construction:");
  EXPECT_TRUE(run.Wizard().IsWizardButtonEnabled(orv::kWizBack));
  EXPECT_TRUE(run.Wizard().IsWizardButtonEnabled(orv::kWizFinish));
  EXPECT_FALSE(run.Wizard().IsWizardButtonEnabled(orv::kWizNext));
}

TEST(SznWzrdPgConstr, FinishGoesThroughWithoutBuildingLabels) {
  auto state = FirstRunState();
  state.FormSel = 7;
  state.SelYears = {2024, 2023};
  state.Labels = {"old"};
  WizardRun run(state);
  run.Start(IDD_SZN_CONSTR);
  EXPECT_TRUE(run.Wizard().PressFinish());
  EXPECT_EQ(run.Wizard().Result(), 1);
  EXPECT_EQ(run.State().Labels, std::vector<std::string>{"old"});
}

// Back takes the sheet's default: the page before it in the sheet's order.
TEST(SznWzrdPgConstr, BackGoesToThePageBeforeIt) {
  WizardRun run;
  run.Start(IDD_SZN_CONSTR);
  ASSERT_TRUE(run.Wizard().PressBack());
  EXPECT_EQ(run.CurrentDialog(), IDD_SZN_MULT);
}

}  // namespace
