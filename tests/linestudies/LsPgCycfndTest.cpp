// The cycle finder pages on the headless sheet: the period derived from the two points, the end
// computed from it at save (a study that ran backwards included), the range of the period box and
// its up-down, and the Day page without chart data.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "LsPageLayouts.h"
#include "LsSheetRun.h"
#include "LsTestXml.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPgDayCycfnd.h"
#include "linestudies/LsPgIntraCycfnd.h"

namespace {

using lstest::EventXml;
using lstest::PageNode;
using lstest::Pt;
using lstest::SheetRun;
using lstest::SheetXml;
using lstest::StudyXml;
using orv::FakeControls;
using orv::HeadlessSheetRunner;
using orv::SyntheticChartData;
using Chart = std::shared_ptr<SyntheticChartData>;

std::string Cycle(bool lock, const std::vector<Pt>& points) {
  return "<CCycleFinder>" + StudyXml(lock, points) + "</CCycleFinder>";
}

// A Day point on bar `bar` of the chart, and an Intra one with the bar's date and time.
Pt DayPt(const SyntheticChartData& chart, int bar, double value) {
  return Pt{-1, value, chart.Bars()[static_cast<std::size_t>(bar)].date};
}
Pt IntraPt(const SyntheticChartData& chart, int bar, double value) {
  const auto& b = chart.Bars()[static_cast<std::size_t>(bar)];
  return Pt{bar, value, b.date, b.minutes, b.seconds};
}

struct Page {
  const char* name;
  int dialogId;
  int period;
  int spin;
  bool intra;
};
const Page kDay{"LsPgDayCycfnd", IDD_LS_PG_DAY_CYCFND, IDC_LS_DAY_CYC_PERIOD, IDC_LS_DAY_CYC_SPIN, false};
const Page kIntra{"LsPgIntraCycfnd", IDD_LS_PG_INTRA_CYCFND, IDC_LS_INTRA_CYC_PERIOD, IDC_LS_INTRA_CYC_SPIN, true};

// Charts of 400 and 468 bars.
Chart ChartFor(const Page& page) {
  return page.intra ? SyntheticChartData::Intraday(6) : SyntheticChartData::Daily(400);
}
Pt PtFor(const Page& page, const SyntheticChartData& chart, int bar, double value) {
  return page.intra ? IntraPt(chart, bar, value) : DayPt(chart, bar, value);
}
std::string Outside(const Page& page) { return page.intra ? "<MaxPos>233</MaxPos>" : ""; }

// --- the period: shown from the points, the end from the period ---

TEST(LsCycfndPages, ThePeriodComesFromThePointsAndTheEndFromThePeriod) {
  struct Case {
    const char* label;
    int start, end;     // bars of the points the host sends
    const char* shown;  // the period box
    std::function<void(FakeControls&, const Page&)> change;
    int sentEnd;                // the bar of the second point sent
    bool locked;                // PosLock sent
    bool pastTheChart = false;  // the end lands after the last bar
  };
  auto lock = [](FakeControls& c, const Page&) { c.Click(IDC_LS_POS_LOCK); };
  const Case cases[] = {
      {"ten bars apart, saved as they came", 100, 110, "10", lock, 110, false},
      {"period 0", 100, 110, "10", [](FakeControls& c, const Page& p) { c.TypeText(p.period, "0"); }, 100, true},
      {"period 250", 100, 110, "10", [](FakeControls& c, const Page& p) { c.TypeText(p.period, "250"); }, 350, true},
      // Direction 0: the period multiplies it, so the end comes back on the start.
      // No bar there: the Day page's end has no date (-1), the Intra page's keeps its date and time.
      {"past the last bar", 300, 310, "10", [](FakeControls& c, const Page& p) { c.TypeText(p.period, "250"); }, 550,
       true, true},
      {"backwards: shown as a positive span, sent on the start", 110, 100, "10", lock, 110, false},
      {"backwards with a new period", 110, 100, "10", [](FakeControls& c, const Page& p) { c.TypeText(p.period, "4"); },
       110, true},
      {"both on one bar", 100, 100, "0", lock, 100, false},
  };
  for (const Page& page : {kDay, kIntra}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(page.name) + ": " + c.label);
      Chart chart = ChartFor(page);
      const Pt start = PtFor(page, *chart, c.start, 101.5);
      const Pt end = PtFor(page, *chart, c.end, 99.25);
      SheetRun run;
      const auto result =
          run.Run(SheetXml(page.name, Outside(page) + Cycle(true, {start, end})), chart, [&](HeadlessSheetRunner& r) {
            FakeControls& tab = r.Tab(0);
            EXPECT_EQ(tab.GetDlgItemTextA(page.period, 64), c.shown);
            EXPECT_FALSE(tab.IsSheetChanged());
            c.change(tab, page);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
      EXPECT_EQ(result, 1);
      Pt sentEnd = c.pastTheChart ? end : PtFor(page, *chart, c.sentEnd, 99.25);
      if (page.intra) sentEnd.xPos = c.sentEnd;
      // The Day page writes the end's date only; its bar position stays as the host had it.
      if (!page.intra && c.pastTheChart) sentEnd.lDate = -1;
      EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(page.name, Cycle(c.locked, {start, sentEnd}))});
    }
  }
}

// The Intra page derives at load; the Day page, which needs the chart, when its window opens (the
// sheet's rows above).
TEST(LsCycfndPages, TheIntraPageDerivesPeriodAndDirectionAtLoad) {
  struct Case {
    std::vector<Pt> points;
    std::int32_t period, direction;
    std::size_t count;  // points held after the load
  };
  const Case cases[] = {
      // Two points forwards, backwards (direction 0) and on one bar: the sheet's rows above.
      {{Pt{5}, Pt{9}, Pt{40}}, 4, 1, 3},
      // One point: the list grows by a default point (bar -1) and the span runs back to it.
      {{Pt{10}}, 11, 0, 2},
      {{}, 0, 1, 2},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.period);
    CLsPgIntraCycfnd intra;
    intra.Load(PageNode(SheetXml(kIntra.name, Cycle(false, c.points))));
    EXPECT_EQ(intra.Period(), c.period);
    EXPECT_EQ(intra.Direction(), c.direction);
    EXPECT_EQ(intra.PointCount(), c.count);
  }
}

// --- the period box ---

TEST(LsCycfndPages, APeriodOutOfRangeIsRefusedWithoutASoundAndNonsenseBeeps) {
  struct Case {
    const char* typed;
    bool refused;
    bool beeps;
  };
  const Case cases[] = {
      {"251", true, false}, {"-1", true, false}, {"99999", true, false}, {"12x", true, true},
      {"", true, true},     {"0", false, false}, {"250", false, false},  {" 17 ", false, false},
  };
  for (const Page& page : {kDay, kIntra}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(page.name) + " \"" + c.typed + "\"");
      Chart chart = ChartFor(page);
      SheetRun run;
      run.Run(
          SheetXml(page.name, Outside(page) + Cycle(false, {PtFor(page, *chart, 20, 1), PtFor(page, *chart, 30, 2)})),
          chart, [&](HeadlessSheetRunner& r) {
            FakeControls& tab = r.Tab(0);
            tab.TypeText(page.period, c.typed);
            tab.SetFocus(IDC_LS_POS_LOCK);
            EXPECT_EQ(r.Sheet().PressApply(), !c.refused);
            EXPECT_EQ(r.Sheet().IsRunning(), true);
            EXPECT_EQ(r.Sheet().CurrentPage(), 0);
            EXPECT_TRUE(tab.MessageBoxes().empty());
            EXPECT_EQ(tab.Beeps().size(), c.beeps ? 1u : 0u);
            EXPECT_EQ(tab.GetFocus(), c.beeps ? page.period : IDC_LS_POS_LOCK);
            r.Sheet().PressCancel();
          });
      EXPECT_EQ(run.owner.events.size(), c.refused ? 0u : 1u);
    }
  }
}

TEST(LsCycfndPages, TheUpDownStepsFromWhatTheBoxShowsWithinZeroTo250) {
  struct Case {
    const char* shown;  // typed first; null: as loaded (10)
    int delta;
    const char* after;
  };
  const Case cases[] = {
      {nullptr, 1, "11"}, {nullptr, -1, "9"}, {"7", 1, "8"},    {"250", 1, "250"},
      {"0", -1, "0"},     {"300", -1, "250"}, {"abc", 1, "11"}, {"", -1, "9"},
  };
  for (const Page& page : {kDay, kIntra}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(page.name) + " " + (c.shown ? c.shown : "loaded") + " " + std::to_string(c.delta));
      Chart chart = ChartFor(page);
      SheetRun run;
      run.Run(
          SheetXml(page.name, Outside(page) + Cycle(false, {PtFor(page, *chart, 20, 1), PtFor(page, *chart, 30, 2)})),
          chart, [&](HeadlessSheetRunner& r) {
            FakeControls& tab = r.Tab(0);
            if (c.shown) tab.SetDlgItemTextA(page.period, c.shown);
            tab.ClearSheetChanged();
            tab.ClickSpin(page.spin, c.delta);
            EXPECT_EQ(tab.GetDlgItemTextA(page.period, 64), c.after);
            EXPECT_EQ(tab.Control(page.spin).pos, std::stoi(c.after));
            EXPECT_TRUE(tab.IsSheetChanged()) << "a step is the user's change";
            EXPECT_TRUE(r.Sheet().PressOk());
          });
      ASSERT_EQ(run.Events().size(), 1u);
      const Pt end = PtFor(page, *chart, 20 + std::stoi(c.after), 2);
      EXPECT_NE(
          run.Events()[0].find(page.intra ? lstest::PtXml(end) : orv::StrFormat("<XY_lDate>%d</XY_lDate>", end.lDate)),
          std::string::npos)
          << run.Events()[0];
    }
  }
}

// --- without chart data, and what the template hides ---

TEST(LsCycfndPages, TheDayPageWithoutChartDataShowsPeriodZeroAndRefusesEveryDate) {
  Chart chart = SyntheticChartData::Daily();
  SheetRun run;
  const auto result = run.Run(SheetXml(kDay.name, Cycle(false, {DayPt(*chart, 20, 1), DayPt(*chart, 30, 2)})), nullptr,
                              [](HeadlessSheetRunner& r) {
                                FakeControls& tab = r.Tab(0);
                                EXPECT_EQ(tab.GetDlgItemTextA(IDC_LS_DAY_CYC_PERIOD, 64), "0");
                                tab.TypeText(IDC_LS_DAY_CYC_PERIOD, "5");
                                EXPECT_FALSE(r.Sheet().PressOk());
                                ASSERT_EQ(tab.MessageBoxes().size(), 1u);
                                EXPECT_EQ(tab.MessageBoxes()[0].text.rfind("Holiday or other invalid date:\n", 0), 0u);
                                EXPECT_EQ(tab.GetFocus(), IDC_LS_DAY_DATE);
                                EXPECT_TRUE(r.Sheet().PressCancel());
                              });
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(run.owner.events.empty());

  // Saved all the same (as a host's second tab could make it), the end has no date: -1.
  CLsPgDayCycfnd page;
  page.Load(PageNode(SheetXml(kDay.name, Cycle(false, {DayPt(*chart, 20, 1), DayPt(*chart, 30, 2)}))));
  XmlNode document = XmlCreateDocument();
  page.Save(XmlAddChild(document, "PropertyPage"));
  EXPECT_EQ(lstest::Compact(XmlGetXml(document)),
            "<PropertyPage>" + Cycle(false, {DayPt(*chart, 20, 1), Pt{-1, 2, -1}}) + "</PropertyPage>");
}

TEST(LsCycfndPages, IntraPageWithoutChartDataMovesTheEndByThePeriodAlone) {
  SheetRun run;
  run.Run(SheetXml(kIntra.name,
                   "<MaxPos>50</MaxPos>" + Cycle(false, {Pt{4, 1, 45000, 600, 36000}, Pt{9, 2, 45000, 625, 37500}})),
          nullptr, [](HeadlessSheetRunner& r) {
            EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_INTRA_CYC_PERIOD, 64), "5");
            r.Tab(0).TypeText(IDC_LS_INTRA_CYC_PERIOD, "12");
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                              kIntra.name, Cycle(false, {Pt{4, 1, 45000, 600, 36000}, Pt{16, 2, 45000, 625, 37500}}))});
}

TEST(LsCycfndPages, VertexButtonsStayHiddenAndTheLockShowsOnlyWithPosLock) {
  for (const Page& page : {kDay, kIntra}) {
    for (bool hasLock : {false, true}) {
      SCOPED_TRACE(std::string(page.name) + (hasLock ? " with PosLock" : " without"));
      std::string study = Cycle(false, {Pt{4, 1}, Pt{9, 2}});
      if (!hasLock) study.erase(study.find("<PosLock>FALSE</PosLock>"), 24);
      SheetRun run;
      run.Run(SheetXml(page.name, "<VertexButtons Show=\"Yes\"/>" + study), ChartFor(page),
              [&](HeadlessSheetRunner& r) {
                for (int id : {IDC_LS_VERTEX_0, IDC_LS_VERTEX_1}) EXPECT_FALSE(r.Tab(0).IsDlgItemVisible(id));
                EXPECT_EQ(r.Tab(0).IsDlgItemVisible(IDC_LS_POS_LOCK), hasLock);
              });
    }
  }
}

}  // namespace
