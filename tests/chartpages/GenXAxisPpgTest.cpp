// The X axis general page in its frame on its template's controls: what a document shows (the
// margin held to its range, three-state values, the format rows of a fixed day), the enabling
// of the format lists, what the host gets after a change (exact XML), and the margin's refusals.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "AxisPageHarness.h"
#include "chartpages/GenXAxisPpg.h"
#include "dlgkit/Clock.h"

namespace {

using axes_test::AxisPage;

// 1 May 2021, the day the template's sample texts were taken on.
const orv::FixedClock kMayDay({2021, 5, 1, 14, 15, 0});

struct XPage : AxisPage<CGenXAxisPpg> {
  explicit XPage(const std::string& properties) : AxisPage(properties, std::make_unique<CGenXAxisPpg>(kMayDay)) {}
};

std::string Doc(int margin, int scroll, int autoCategory, int date, int time) {
  return "<XAxisMarginBars>" + std::to_string(margin) + "</XAxisMarginBars><XAxisScrollVisible>" +
         std::to_string(scroll) + "</XAxisScrollVisible><XAxisAutoCategory>" + std::to_string(autoCategory) +
         "</XAxisAutoCategory><XAxisDateFormat>" + std::to_string(date) + "</XAxisDateFormat><XAxisTimeFormat>" +
         std::to_string(time) + "</XAxisTimeFormat>";
}
std::string Sent(int margin, int scroll, int autoCategory, int date, int time) {
  return "<GenXAxisPpg>" + Doc(margin, scroll, autoCategory, date, time) + "</GenXAxisPpg>";
}

TEST(GenXAxisPpgRows, DatesOfTodayAndFixedTimes) {
  XPage p(Doc(5, 0, 0, 16, 512));
  const std::vector<std::pair<int, std::string>> dates = {{16, "05/01/21"},  {32, "05-01-21"},  {48, "01-May-21"},
                                                          {64, "May-21"},    {80, "01/05/21"},  {96, "01-05-21"},
                                                          {112, "21/05/01"}, {128, "21-05-01"}, {192, "May-01"}};
  ASSERT_EQ(p.controls.ComboGetCount(IDC_XA_DATE), static_cast<int>(dates.size()));
  for (int i = 0; i < static_cast<int>(dates.size()); ++i) {
    EXPECT_EQ(p.controls.ComboGetItemData(IDC_XA_DATE, i), dates[i].first);
    EXPECT_EQ(p.controls.ComboGetLBText(IDC_XA_DATE, i), dates[i].second);
  }
  ASSERT_EQ(p.controls.ComboGetCount(IDC_XA_TIME), 2);
  EXPECT_EQ(p.controls.ComboGetLBText(IDC_XA_TIME, 0), "2:15 PM");
  EXPECT_EQ(p.controls.ComboGetItemData(IDC_XA_TIME, 0), 512);
  EXPECT_EQ(p.controls.ComboGetLBText(IDC_XA_TIME, 1), "14:15");
  EXPECT_EQ(p.controls.ComboGetItemData(IDC_XA_TIME, 1), 256);
}

// --- what a document shows ---

struct ShownCase {
  const char* name;
  std::string properties;
  const char* margin;
  int scroll;  // the three-state box's state
  int autoCategory;
  int dateRow, timeRow;  // -1: no row selected
};
void PrintTo(const ShownCase& c, std::ostream* os) { *os << c.name; }

class GenXAxisPpgShown : public testing::TestWithParam<ShownCase> {};

TEST_P(GenXAxisPpgShown, ControlsShowTheDocument) {
  const ShownCase& c = GetParam();
  XPage p(c.properties);
  EXPECT_EQ(p.Text(IDC_XA_MARGIN), c.margin);
  EXPECT_EQ(p.Check(IDC_XA_LOCK_SCROLL), c.scroll);
  EXPECT_EQ(p.Check(IDC_XA_AUTO_CATEGORY), c.autoCategory);
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_XA_DATE), c.dateRow);
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_XA_TIME), c.timeRow);
  EXPECT_EQ(p.Enabled(IDC_XA_DATE), c.autoCategory == 0);
  EXPECT_EQ(p.Enabled(IDC_XA_TIME), c.autoCategory == 0);
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_TRUE(p.connection.statuses.empty());
}

INSTANTIATE_TEST_SUITE_P(Load, GenXAxisPpgShown,
                         testing::Values(ShownCase{"AsStored", Doc(7, 1, 0, 48, 256), "7", 1, 0, 2, 1},
                                         ShownCase{"MarginAbove50Shows50", Doc(99, 0, 0, 16, 512), "50", 0, 0, 0, 0},
                                         ShownCase{"MarginBelow1Shows0", Doc(-4, 0, 0, 192, 512), "0", 0, 0, 8, 0},
                                         ShownCase{"ScrollThirdState", Doc(3, 2, 0, 16, 512), "3", 2, 0, 0, 0},
                                         ShownCase{"ScrollOutside0To2Shows0", Doc(3, 5, 0, 16, 512), "3", 0, 0, 0, 0},
                                         ShownCase{"AutomaticLabelsDisableTheLists", Doc(3, 0, 1, 16, 512), "3", 0, 1,
                                                   0, 0},
                                         ShownCase{"UnknownIdsSelectNoRow", Doc(3, 0, 0, 208, 768), "3", 0, 0, -1, -1},
                                         ShownCase{"NothingFoundShowsDefaults", "", "0", 0, 0, -1, -1}));

TEST(GenXAxisPpgLoad, HostThatFoundNothingIsNotRead) {
  CGenXAxisPpg* made = new CGenXAxisPpg(kMayDay);
  axes_test::HostConnection connection;
  connection.properties = Doc(9, 1, 1, 16, 512);
  connection.found = 0;
  orv::ChartPageFrame frame(std::unique_ptr<CGenXAxisPpg>(made), connection);
  frame.ReadProperties();
  EXPECT_EQ(made->Props().marginBars, 0);
  EXPECT_EQ(made->Props().autoCategory, 0);
}

// --- a change, Apply: what the host gets ---

struct ApplyCase {
  const char* name;
  std::string properties;
  std::function<void(XPage&)> change;
  std::string sent;
};
void PrintTo(const ApplyCase& c, std::ostream* os) { *os << c.name; }

class GenXAxisPpgApply : public testing::TestWithParam<ApplyCase> {};

TEST_P(GenXAxisPpgApply, SendsTheExactDocument) {
  const ApplyCase& c = GetParam();
  XPage p(c.properties);
  c.change(p);
  ASSERT_TRUE(p.frame.IsDirty());
  EXPECT_EQ(p.connection.statuses.front(), orv::kPageStatusDirty);
  EXPECT_EQ(p.Applied(), c.sent);
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_EQ(p.connection.statuses.back(), orv::kPageStatusClean);
}

INSTANTIATE_TEST_SUITE_P(
    LoadChangeApply, GenXAxisPpgApply,
    testing::Values(ApplyCase{"Margin", Doc(7, 1, 0, 48, 256),
                              [](XPage& p) { p.controls.TypeText(IDC_XA_MARGIN, "50"); }, Sent(50, 1, 0, 48, 256)},
                    ApplyCase{"MarginHeldTo50ComesBackAs50", Doc(99, 0, 0, 16, 512),
                              [](XPage& p) { p.controls.Click(IDC_XA_LOCK_SCROLL); }, Sent(50, 1, 0, 16, 512)},
                    ApplyCase{"LockGoesRoundItsThreeStates", Doc(0, 1, 0, 16, 512),
                              [](XPage& p) { p.controls.Click(IDC_XA_LOCK_SCROLL); }, Sent(0, 2, 0, 16, 512)},
                    ApplyCase{"DateAndTimeRows", Doc(0, 0, 0, 16, 512),
                              [](XPage& p) {
                                p.controls.SelectComboItem(IDC_XA_DATE, 6);
                                p.controls.SelectComboItem(IDC_XA_TIME, 1);
                              },
                              Sent(0, 0, 0, 112, 256)},
                    ApplyCase{"UnknownIdsStayAsTheyWere", Doc(4, 0, 0, 208, 768),
                              [](XPage& p) { p.controls.TypeText(IDC_XA_MARGIN, "12"); }, Sent(12, 0, 0, 208, 768)},
                    ApplyCase{"AutomaticLabels", Doc(0, 0, 0, 16, 512),
                              [](XPage& p) { p.controls.Click(IDC_XA_AUTO_CATEGORY); }, Sent(0, 0, 1, 16, 512)},
                    ApplyCase{"NothingFoundSendsTheDefaults", "",
                              [](XPage& p) { p.controls.TypeText(IDC_XA_MARGIN, "3"); }, Sent(3, 0, 0, 0, 0)}),
    [](const testing::TestParamInfo<ApplyCase>& info) { return std::string(info.param.name); });

TEST(GenXAxisPpgApply, CleanPageSendsNothing) {
  XPage p(Doc(7, 1, 0, 48, 256));
  EXPECT_EQ(p.Applied(), "");
}

TEST(GenXAxisPpgApply, CleanBeforeTheHostGetsTheProperties) {
  XPage p(Doc(7, 1, 0, 48, 256));
  p.controls.TypeText(IDC_XA_MARGIN, "8");
  p.frame.Apply();
  EXPECT_EQ(p.connection.calls, (std::vector<std::string>{"status 1", "status 4", "set"}));
}

TEST(GenXAxisPpgRules, AutomaticLabelsSwitchTheListsEachClick) {
  XPage p(Doc(0, 0, 0, 16, 512));
  p.controls.Click(IDC_XA_AUTO_CATEGORY);
  EXPECT_FALSE(p.Enabled(IDC_XA_DATE));
  EXPECT_FALSE(p.Enabled(IDC_XA_TIME));
  p.controls.Click(IDC_XA_AUTO_CATEGORY);
  EXPECT_TRUE(p.Enabled(IDC_XA_DATE));
  EXPECT_TRUE(p.Enabled(IDC_XA_TIME));
  // Each change tells the site, every time.
  EXPECT_EQ(p.connection.statuses, (std::vector<std::uint32_t>{1, 1}));
}

// --- the margin's refusals ---

struct RefusalCase {
  const char* name;
  const char* typed;
  const char* message;
};
void PrintTo(const RefusalCase& c, std::ostream* os) { *os << c.name; }

class GenXAxisPpgRefusal : public testing::TestWithParam<RefusalCase> {};

TEST_P(GenXAxisPpgRefusal, KeepsThePageDirtyAndSendsNothing) {
  const RefusalCase& c = GetParam();
  XPage p(Doc(7, 0, 0, 16, 512));
  p.controls.TypeText(IDC_XA_MARGIN, c.typed);
  p.controls.SetFocus(IDC_XA_DATE);
  EXPECT_EQ(p.Applied(), "");
  EXPECT_TRUE(p.frame.IsDirty());
  EXPECT_EQ(p.controls.GetFocus(), IDC_XA_MARGIN);
  ASSERT_EQ(p.controls.MessageBoxes().size(), 1u);
  EXPECT_EQ(p.controls.MessageBoxes()[0].text, c.message);
  EXPECT_EQ(p.controls.MessageBoxes()[0].caption, "");
  EXPECT_EQ(p.controls.MessageBoxes()[0].flags, 0u);
  EXPECT_EQ(p.page.Props().marginBars, 7);
}

INSTANTIATE_TEST_SUITE_P(Margin, GenXAxisPpgRefusal,
                         testing::Values(RefusalCase{"Above50", "51", "Margin (51) out of range: 0 - 50"},
                                         RefusalCase{"Negative", "-1", "Margin (-1) out of range: 0 - 50"},
                                         RefusalCase{"NoNumber", "ten", "Error, please enter a valid value"},
                                         RefusalCase{"Empty", "", "Error, please enter a valid value"}),
                         [](const testing::TestParamInfo<RefusalCase>& info) { return std::string(info.param.name); });

TEST(GenXAxisPpgRefusal, EdgesOfTheRangePass) {
  for (const char* typed : {"0", "50"}) {
    XPage p(Doc(7, 0, 0, 16, 512));
    p.controls.TypeText(IDC_XA_MARGIN, typed);
    EXPECT_EQ(p.Applied(), Sent(std::stoi(typed), 0, 0, 16, 512)) << typed;
    EXPECT_TRUE(p.controls.MessageBoxes().empty());
  }
}

}  // namespace
