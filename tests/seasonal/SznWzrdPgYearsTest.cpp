// The years page: the fifty years from the current one, the pick it starts from, the count it
// shows, what Next stores or refuses; Back stores nothing.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SznPageDriver.h"
#include "dlgkit/fake/FakeHostServices.h"

namespace {

using szntest::FirstRunState;
using szntest::SznPages;
using Ints = std::vector<int>;

TEST(SznWzrdPgYears, ListsFiftyYearsFromTheCurrentOneDown) {
  SznPages run(FirstRunState(), 2026);
  run.Start(IDD_SZN_YEARS);
  orv::FakeControls& c = run.Current();
  ASSERT_EQ(c.ListGetCount(IDC_SZN_YEARS_LIST), 50);
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(c.ListGetText(IDC_SZN_YEARS_LIST, i), std::to_string(2026 - i));
    EXPECT_EQ(c.ListGetItemData(IDC_SZN_YEARS_LIST, i), 2026 - i);
  }
}

// The host's clock correction (setting 40, in seconds) moves the current year.
TEST(SznWzrdPgYears, TheCurrentYearTakesTheHostsClockCorrection) {
  SznPages run(FirstRunState(), 2026);
  orv::FakeHostServices host;
  host.ExpectValue("Settings", "40", std::to_string(200LL * 86400));
  host.ExpectNoTheme();  // then the page's children are themed
  orv::ScopedHostServices scoped(host);
  run.Start(IDD_SZN_YEARS);
  EXPECT_EQ(run.Current().ListGetText(IDC_SZN_YEARS_LIST, 0), "2027");
  EXPECT_TRUE(host.AllExpectationsMet());
}

TEST(SznWzrdPgYears, StartsFromTheKeptIndexesOrTheThreeMostRecentYears) {
  struct Row {
    const char* name;
    Ints indexes;
    Ints selected;
    const char* total;
  };
  const Row rows[] = {
      {"a first run", {}, {0, 1, 2}, "Total: 3"},
      {"kept indexes", {4, 1, 7}, {1, 4, 7}, "Total: 3"},
      {"one index", {0}, {0}, "Total: 1"},
      {"the last row", {49}, {49}, "Total: 1"},
      {"an index past the list", {2, 50}, {2}, "Total: 1"},
      {"a negative index", {-1, 3}, {3}, "Total: 1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    auto state = FirstRunState();
    state.SelYearIndexes = row.indexes;
    SznPages run(state);
    run.Start(IDD_SZN_YEARS);
    EXPECT_EQ(run.Current().ListGetSelItems(IDC_SZN_YEARS_LIST), row.selected);
    EXPECT_EQ(run.Current().Control(IDC_SZN_YEARS_COUNT).text, row.total);
  }
}

TEST(SznWzrdPgYears, TheCountFollowsEachChange) {
  SznPages run;
  run.Start(IDD_SZN_YEARS);
  orv::FakeControls& c = run.Current();
  const struct {
    int row;
    const char* total;
  } clicks[] = {{5, "Total: 4"}, {0, "Total: 3"}, {1, "Total: 2"}, {2, "Total: 1"}, {5, "Total: 0"}};
  for (const auto& click : clicks) {
    c.ToggleListItem(IDC_SZN_YEARS_LIST, click.row);
    EXPECT_EQ(c.Control(IDC_SZN_YEARS_COUNT).text, click.total) << "after row " << click.row;
  }
}

TEST(SznWzrdPgYears, NextStoresTheSelectedRowsAndTheirYearsInListOrder) {
  auto state = FirstRunState();
  state.SelYears = {1990};
  state.SelYearIndexes = {3};
  SznPages run(state, 2026);
  run.Start(IDD_SZN_YEARS);
  orv::FakeControls& c = run.Current();
  c.ToggleListItem(IDC_SZN_YEARS_LIST, 10);
  c.ToggleListItem(IDC_SZN_YEARS_LIST, 0);
  ASSERT_TRUE(run.Wizard().PressNext());
  EXPECT_EQ(run.CurrentDialog(), IDD_SZN_FORM);
  EXPECT_EQ(run.State().SelYearIndexes, (Ints{0, 3, 10}));
  EXPECT_EQ(run.State().SelYears, (Ints{2026, 2023, 2016}));
}

// The refusal empties both lists before it says so.
TEST(SznWzrdPgYears, NextWithoutAYearRefuses) {
  SznPages run;
  run.Start(IDD_SZN_YEARS);
  orv::FakeControls& c = run.Current();
  for (int row : {0, 1, 2}) c.ToggleListItem(IDC_SZN_YEARS_LIST, row);
  EXPECT_FALSE(run.Wizard().PressNext());
  EXPECT_EQ(run.CurrentDialog(), IDD_SZN_YEARS);
  ASSERT_EQ(c.MessageBoxes().size(), 1u);
  EXPECT_EQ(c.MessageBoxes()[0].text, "Must select at least one year");
  EXPECT_EQ(c.MessageBoxes()[0].flags, orv::kMbOk);
  EXPECT_TRUE(run.State().SelYears.empty());
  EXPECT_TRUE(run.State().SelYearIndexes.empty());
}

TEST(SznWzrdPgYears, BackStoresNothing) {
  SznPages run;
  run.Start(IDD_SZN_YEARS);
  run.Current().ToggleListItem(IDC_SZN_YEARS_LIST, 6);
  ASSERT_TRUE(run.Wizard().PressBack());
  EXPECT_TRUE(run.State().SelYearIndexes.empty());
}

}  // namespace
