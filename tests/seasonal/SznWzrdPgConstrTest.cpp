// The Under Construction page: a Finish that builds nothing.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SznPageDriver.h"

namespace {

using szntest::FirstRunState;
using szntest::SznPages;

TEST(SznWzrdPgConstr, FinishGoesThroughWithoutBuildingLabels) {
  auto state = FirstRunState();
  state.FormSel = 7;
  state.SelYears = {2024, 2023};
  state.Labels = {"old"};
  SznPages run(state);
  run.Start(IDD_SZN_CONSTR);
  EXPECT_TRUE(run.Wizard().PressFinish());
  EXPECT_EQ(run.Wizard().Result(), 1);
  EXPECT_EQ(run.State().Labels, std::vector<std::string>{"old"});
}

}  // namespace
