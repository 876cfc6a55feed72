// The point break page in its frame on the template's controls: what it shows of the host's
// properties, what a change and Apply send (exact XML, scope 0), Reset, and the points field that
// only the arrows hold to 2..20.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ChartPageHostFake.h"
#include "chartpages/PointBreakPpg.h"

namespace {

using Page = orv::testing_pages::OpenPage<CPointBreakPpg>;

std::string Sent(int line, int points) {
  return "<PointBreakPpg><Line>" + std::to_string(line) + "</Line><Points>" + std::to_string(points) +
         "</Points></PointBreakPpg>";
}

TEST(PointBreakPpgOpening, FillsTheSourcesAndTheArrowsRange) {
  Page p("<Line>2</Line><Points>7</Points>");
  const std::vector<std::string> rows = {"Close", "High", "Low", "Open"};
  ASSERT_EQ(p.controls.ComboGetCount(IDC_PB_SOURCE), 4);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(p.controls.ComboGetLBText(IDC_PB_SOURCE, i), rows[i]);
  EXPECT_EQ(p.controls.Control(IDC_PB_POINTS_SPIN).lower, 2);
  EXPECT_EQ(p.controls.Control(IDC_PB_POINTS_SPIN).upper, 20);
  EXPECT_EQ(p.connection.scopesAsked, std::vector<std::int32_t>{0});
  EXPECT_FALSE(p.frame.IsDirty());
}

struct ShowCase {
  const char* name;
  std::string properties;
  std::int32_t found;
  int row;
  const char* points;
};
void PrintTo(const ShowCase& c, std::ostream* os) { *os << c.name; }

class PointBreakPpgShows : public testing::TestWithParam<ShowCase> {};

TEST_P(PointBreakPpgShows, TheHostsValues) {
  const ShowCase& c = GetParam();
  Page p(c.properties, true, c.found);
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_PB_SOURCE), c.row);
  EXPECT_EQ(p.Text(IDC_PB_POINTS), c.points);
  EXPECT_FALSE(p.frame.IsDirty());
}

INSTANTIATE_TEST_SUITE_P(
    Loading, PointBreakPpgShows,
    testing::Values(ShowCase{"Both", "<Line>3</Line><Points>12</Points>", 1, 3, "12"},
                    ShowCase{"OutsideTheArrowsRange", "<Line>1</Line><Points>50</Points>", 1, 1, "50"},
                    ShowCase{"NothingFoundKeepsTheDefaults", "<Line>3</Line><Points>12</Points>", 0, 0, "3"},
                    ShowCase{"MissingKeysKeepTheDefaults", "<Other>1</Other>", 1, 0, "3"},
                    ShowCase{"ARowThatIsNotThereSelectsNothing", "<Line>9</Line>", 1, -1, "3"},
                    ShowCase{"Negative", "<Line>2</Line><Points>-4</Points>", 1, 2, "-4"}),
    [](const testing::TestParamInfo<ShowCase>& info) { return std::string(info.param.name); });

struct ApplyCase {
  const char* name;
  std::string properties;
  void (*change)(Page&);
  std::string sent;
};
void PrintTo(const ApplyCase& c, std::ostream* os) { *os << c.name; }

class PointBreakPpgApply : public testing::TestWithParam<ApplyCase> {};

TEST_P(PointBreakPpgApply, SendsTheExactDocument) {
  const ApplyCase& c = GetParam();
  Page p(c.properties);
  c.change(p);
  EXPECT_TRUE(p.frame.IsDirty());
  EXPECT_EQ(p.Apply(), c.sent);
  EXPECT_EQ(p.connection.scopesSent, std::vector<std::int32_t>{0});
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_EQ(p.connection.statuses.back(), orv::kPageStatusClean);
}

INSTANTIATE_TEST_SUITE_P(
    LoadChangeApply, PointBreakPpgApply,
    testing::Values(ApplyCase{"TypedPoints", "<Line>1</Line><Points>5</Points>",
                              [](Page& p) { p.controls.TypeText(IDC_PB_POINTS, "8"); }, Sent(1, 8)},
                    // The edit's exchange has no range: a typed 50 goes through.
                    ApplyCase{"TypedBeyondTheArrows", "<Line>1</Line><Points>5</Points>",
                              [](Page& p) { p.controls.TypeText(IDC_PB_POINTS, "50"); }, Sent(1, 50)},
                    ApplyCase{"ChosenSource", "<Line>0</Line><Points>4</Points>",
                              [](Page& p) { p.controls.SelectComboItem(IDC_PB_SOURCE, 3); }, Sent(3, 4)},
                    // Reset takes the points back to 3 and keeps the source the user chose.
                    ApplyCase{"ResetKeepsTheSource", "<Line>2</Line><Points>11</Points>",
                              [](Page& p) {
                                p.controls.SelectComboItem(IDC_PB_SOURCE, 1);
                                p.controls.Click(IDC_PB_RESET);
                              },
                              Sent(1, 3)},
                    ApplyCase{"ResetAlone", "<Line>3</Line><Points>11</Points>",
                              [](Page& p) { p.controls.Click(IDC_PB_RESET); }, Sent(3, 3)}),
    [](const testing::TestParamInfo<ApplyCase>& info) { return std::string(info.param.name); });

TEST(PointBreakPpgApply, ResetShowsThreePoints) {
  Page p("<Line>2</Line><Points>11</Points>");
  p.controls.Click(IDC_PB_RESET);
  EXPECT_EQ(p.Text(IDC_PB_POINTS), "3");
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_PB_SOURCE), 2);
}

TEST(PointBreakPpgApply, CleanPageSendsNothing) {
  Page p("<Line>2</Line><Points>11</Points>");
  EXPECT_EQ(p.Apply(), "");
  EXPECT_TRUE(p.connection.scopesSent.empty());
}

TEST(PointBreakPpgApply, EveryChangeTellsTheSite) {
  Page p("<Line>2</Line><Points>11</Points>");
  p.connection.statuses.clear();
  p.controls.TypeText(IDC_PB_POINTS, "9");
  p.controls.SelectComboItem(IDC_PB_SOURCE, 0);
  EXPECT_EQ(p.connection.statuses, (std::vector<std::uint32_t>{orv::kPageStatusDirty, orv::kPageStatusDirty}));
}

TEST(PointBreakPpgApply, PointsThatAreNoNumberRefuse) {
  Page p("<Line>2</Line><Points>11</Points>");
  p.controls.SetDlgItemTextA(IDC_PB_POINTS, "");
  EXPECT_EQ(p.Apply(), "");
  EXPECT_TRUE(p.frame.IsDirty());
  EXPECT_FALSE(p.controls.Beeps().empty());
}

TEST(PointBreakPpgApply, WithoutAHostNothingIsReadOrSent) {
  Page p("<Line>2</Line><Points>11</Points>", false);
  EXPECT_EQ(p.Text(IDC_PB_POINTS), "3");
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_PB_SOURCE), 0);
  p.controls.TypeText(IDC_PB_POINTS, "6");
  EXPECT_EQ(p.Apply(), "");
  EXPECT_FALSE(p.frame.IsDirty());
}

TEST(PointBreakPpgApply, KeepsWhatTheWindowShowedWhenItWent) {
  Page p("<Line>2</Line><Points>11</Points>");
  p.controls.TypeText(IDC_PB_POINTS, "14");
  p.frame.WindowClosing();
  EXPECT_EQ(p.Apply(), Sent(2, 14));
}

}  // namespace
