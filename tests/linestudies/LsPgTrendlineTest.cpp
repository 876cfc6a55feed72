// The trendline family on the headless sheet: what each page reads and sends back, and the rules
// of the position pages (dates that have no bar, snapping, the spin, vertex changes, the extend
// boxes, the horizontal line's mean, the vertex buttons).

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "FakeSheetOwner.h"
#include "LsSheetRun.h"
#include "LsPageLayouts.h"
#include "LsTestXml.h"
#include "dlgkit/MessageBox.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPageTable.h"
#include "linestudies/LsPgDayHorz.h"
#include "linestudies/LsPgDayLRC.h"
#include "linestudies/LsPgDayTrend.h"
#include "linestudies/LsPgIntraTrend.h"
#include "linestudies/LsPs.h"

namespace {

using lstest::Compact;
using lstest::EventXml;
using lstest::FakeSheetOwner;
using lstest::Pt;
using lstest::SheetRun;
using lstest::SheetXml;
using lstest::SnapXml;
using lstest::StudyXml;
using orv::FakeControls;
using orv::HeadlessSheetRunner;
using orv::SyntheticChartData;
using Chart = std::shared_ptr<SyntheticChartData>;

const std::int32_t kJune3 = SyntheticChartData::DayNumber(2024, 6, 3);
const std::int32_t kJune20 = SyntheticChartData::DayNumber(2024, 6, 20);
const std::int32_t kChristmas = SyntheticChartData::DayNumber(2023, 12, 25);

std::string Dbl(double v) { return orv::StrFormat("%.*g", 15, v); }

// --- every page: what goes in comes back, with the user's one change ---

struct RoundTrip {
  const char* name;
  int dialogId;
  std::string wrapperIn;   // the page's wrapper as the host sends it (PosLock TRUE)
  std::string wrapperOut;  // what the sheet sends after the user's change
  std::function<void(FakeControls&)> change;
  std::string outside = "";  // elements of the PropertyPage that aren't sent back
};

std::string Trendline(const std::string& wrapper, bool lock, const std::vector<Pt>& points, const std::string& own) {
  return "<" + wrapper + ">" + StudyXml(lock, points) + own + "</" + wrapper + ">";
}

TEST(LsTrendlinePages, EachPageSendsBackWhatItReadWithTheUsersChange) {
  Chart daily = SyntheticChartData::Daily();
  Chart intra = SyntheticChartData::Intraday();
  // Intra points stand on real bars, whose date and time the page takes from the chart.
  const auto& bars = intra->Bars();
  const Pt i0{10, 101.5, bars[10].date, bars[10].minutes, bars[10].seconds, -1};
  const Pt i1{40, 99.25, bars[40].date, bars[40].minutes, bars[40].seconds, 2};
  const Pt i0Moved{11, 101.5, bars[11].date, bars[11].minutes, bars[11].seconds, -1};
  const Pt d0{-1, 101.5, kJune3, 0, 0, -1};
  const Pt d1{-1, 99.25, kJune20, 0, 0, 2};
  const Pt d0June20{-1, 101.5, kJune20, 0, 0, -1};
  auto clickLock = [](FakeControls& c) { c.Click(IDC_LS_POS_LOCK); };
  const std::string ext12 = "<LSTrl_Extendpt1>1</LSTrl_Extendpt1><LSTrl_Extendpt2>2</LSTrl_Extendpt2>";
  const std::string ext2 = "<LSTrl_Extendpt2>1</LSTrl_Extendpt2>";
  const std::string mult = "<Multiplier>2.5 sd</Multiplier>";

  const RoundTrip cases[] = {
      {"LsPgDayTrend", 1317, Trendline("CTrendline", true, {d0, d1}, ext12),
       Trendline("CTrendline", false, {d0, d1}, ext12), clickLock},
      {"LsPgIntraTrend", 1326, Trendline("CTrendline", true, {i0, i1}, ext12),
       Trendline("CTrendline", false, {i0, i1}, ext12), clickLock, "<MaxPos>233</MaxPos>"},
      {"LsPgDayHorz", 1318, Trendline("CTrendline", true, {d0}, ""), Trendline("CTrendline", false, {d0}, ""),
       clickLock, "<Mean>50</Mean>"},
      // A date typed in the picker goes back like one picked from the calendar.
      {"LsPgDayVert", 1319, Trendline("CTrendline", true, {d0}, ""), Trendline("CTrendline", true, {d0June20}, ""),
       [](FakeControls& c) {
         c.PickDate(IDC_LS_DAY_DATE, orv::DateTime{2024, 6, 20});
       }},
      // No value and no lock box: the user moves the bar.
      {"LsPgIntraVert", 1327, Trendline("CTrendline", true, {i0}, ""), Trendline("CTrendline", true, {i0Moved}, ""),
       [](FakeControls& c) { c.ClickSpin(IDC_LS_INTRA_SPIN, 1); }, "<MaxPos>233</MaxPos>"},
      // The multiplier is text, cut to what the box takes; the day channel's value is read-only.
      {"LsPgDayLRC", 1365, Trendline("CLinRegChan", true, {d0, d1}, ext12 + mult),
       Trendline("CLinRegChan", true, {d0, d1}, ext12 + "<Multiplier>two &amp; a half, more than thirty-</Multiplier>"),
       [](FakeControls& c) {
         EXPECT_FALSE(c.IsDlgItemEnabled(IDC_LS_DAY_VALUE));
         c.TypeText(IDC_LS_LRC_MULTIPLIER, "two & a half, more than thirty-one characters long");
       }},
      {"LsPgIntraLRC", 1366, Trendline("CLinRegChan", true, {i0, i1}, ext12 + mult),
       Trendline("CLinRegChan", false, {i0, i1}, ext12 + mult), clickLock, "<MaxPos>233</MaxPos>"},
      {"LsPgDayVWAP", 1363, Trendline("VolWgtAvgPrice", true, {d0, d1}, ext2),
       Trendline("VolWgtAvgPrice", false, {d0, d1}, ext2), clickLock},
      {"LsPgIntraVWAP", 1364, Trendline("VolWgtAvgPrice", true, {i0, i1}, ext2),
       Trendline("VolWgtAvgPrice", false, {i0, i1}, ext2), clickLock, "<MaxPos>233</MaxPos>"},
  };
  for (const RoundTrip& c : cases) {
    SCOPED_TRACE(c.name);
    SheetRun run;
    const bool isIntra = std::string(c.name).find("Intra") != std::string::npos;
    const std::string content = c.outside + SnapXml({0, 1, 2, 3}) + "<VertexButtons Show=\"Yes\"/>" + c.wrapperIn;
    const auto result = run.Run(SheetXml(c.name, content), isIntra ? intra : daily, [&](HeadlessSheetRunner& r) {
      EXPECT_TRUE(run.sheet.PageOf(c.dialogId)->AsPage().OnHelp());
      EXPECT_EQ(r.Tab(0).HelpRequests(), (std::vector<std::pair<std::string, int>>{{"CHARTX", c.dialogId}}));
      c.change(r.Tab(0));
      EXPECT_TRUE(r.Sheet().PressOk());
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(run.runner.TabDialogIds(), std::vector<int>{c.dialogId});
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(c.name, c.wrapperOut)});
  }
}

TEST(LsTrendlinePages, TheSheetHandsTheChartToPositionPagesOnlyAndReplacesAnEarlierOne) {
  FakeSheetOwner owner;
  CLsPs<FakeSheetOwner> sheet(&owner);
  sheet.InitFromXml(lstest::SheetNode(
      "<PropertySheet Name=\"LSPs\"><PropertyPageList><PropertyPage Name=\"LsPgIntraTrend\"/>"
      "<PropertyPage Name=\"LsPgAdvanced\"/><PropertyPage Name=\"LsPgDayHorz\"/></PropertyPageList></PropertySheet>"));
  auto first = SyntheticChartData::Daily(5);
  auto second = SyntheticChartData::Daily(5);
  sheet.SetChartData(first);
  EXPECT_EQ(first.use_count(), 3) << "two position pages hold it, the Advanced page doesn't";
  sheet.SetChartData(second);
  EXPECT_EQ(first.use_count(), 1);
  EXPECT_EQ(second.use_count(), 3);
}

// --- dates without a bar ---

TEST(LsTrendlinePages, DayPagesWithoutChartDataRefuseEveryDateWithTheHolidayMessage) {
  for (const char* name : {"LsPgDayTrend", "LsPgDayVert", "LsPgDayLRC", "LsPgDayVWAP"}) {
    SCOPED_TRACE(name);
    SheetRun run;
    const auto result =
        run.Run(SheetXml(name, "<VertexButtons Show=\"Yes\"/>" + StudyXml(false, {Pt{-1, 5, kJune3}})), nullptr,
                [](HeadlessSheetRunner& r) {
                  FakeControls& c = r.Tab(0);
                  EXPECT_FALSE(r.Sheet().PressOk()) << "the page keeps the user";
                  ASSERT_EQ(c.MessageBoxes().size(), 1u);
                  EXPECT_EQ(c.MessageBoxes()[0].text, "Holiday or other invalid date:\n06/03/24\nPlease Re-enter");
                  EXPECT_EQ(c.GetFocus(), IDC_LS_DAY_DATE);
                  EXPECT_TRUE(r.Sheet().PressCancel());
                });
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(run.owner.events.empty());
  }
  // The horizontal line has no date, so nothing stops it.
  SheetRun horz;
  horz.Run(SheetXml("LsPgDayHorz", StudyXml(false, {Pt{-1, 5}})), nullptr, [](HeadlessSheetRunner& r) {
    r.Tab(0).TypeText(IDC_LS_DAY_VALUE, "6.5");
    EXPECT_TRUE(r.Sheet().PressOk());
    EXPECT_TRUE(r.Tab(0).MessageBoxes().empty());
  });
  ASSERT_EQ(horz.Events().size(), 1u);
  EXPECT_NE(horz.Events()[0].find("<XY_yValue>6.500000</XY_yValue>"), std::string::npos);
}

TEST(LsTrendlinePages, ADateBetweenBarsIsRefusedAndATradingDayAccepted) {
  SheetRun run;
  run.Run(SheetXml("LsPgDayTrend", "<VertexButtons Show=\"Yes\"/>" +
                                       Trendline("CTrendline", false, {Pt{-1, 5, kJune3}, Pt{-1, 6, kJune20}}, "")),
          SyntheticChartData::Daily(), [](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            EXPECT_EQ(c.Control(IDC_LS_DAY_DATE).date, (orv::DateTime{2024, 6, 3}));
            c.PickDateFromCalendar(IDC_LS_DAY_DATE, {2023, 12, 25, 13, 5, 0});
            EXPECT_TRUE(c.IsSheetChanged()) << "closing the calendar is a change";
            EXPECT_FALSE(r.Sheet().PressApply());
            ASSERT_EQ(c.MessageBoxes().size(), 1u);
            EXPECT_EQ(c.MessageBoxes()[0].text, "Holiday or other invalid date:\n12/25/23\nPlease Re-enter");
            EXPECT_EQ(c.MessageBoxes()[0].flags, orv::kMbOk | orv::kMbIconExclamation);
            c.PickDateFromCalendar(IDC_LS_DAY_DATE, {2023, 12, 26});
            EXPECT_TRUE(r.Sheet().PressOk());
            EXPECT_EQ(c.MessageBoxes().size(), 1u);
          });
  ASSERT_EQ(run.Events().size(), 1u);
  EXPECT_NE(run.Events()[0].find(orv::StrFormat("<XY_lDate>%d</XY_lDate>", kChristmas + 1)), std::string::npos);
}

// --- snapping ---

TEST(LsTrendlinePages, SnappingTakesTheBarsPriceOnlyWhenTheChartHasOne) {
  Chart daily = SyntheticChartData::Daily();
  const std::int32_t june3 = daily->PosOfDay(kJune3);
  struct Case {
    const char* label;
    std::int32_t snap;
    std::function<void(SyntheticChartData&)> prepare;
    std::string shown;
  };
  const Case cases[] = {
      {"High", 1, [](SyntheticChartData&) {}, Dbl(daily->Bars()[june3].high)},
      {"Open", 3, [](SyntheticChartData&) {}, Dbl(daily->Bars()[june3].open)},
      {"no snapping", -1, [](SyntheticChartData&) {}, "77.5"},
      {"no data mark", 0, [&](SyntheticChartData& c) { c.OverrideValue(0, june3, 1e36); }, "77.5"},
      {"just below it", 0, [&](SyntheticChartData& c) { c.OverrideValue(0, june3, 9.99e35); }, "9.99e+35"},
      {"negative no data", 0, [&](SyntheticChartData& c) { c.OverrideValue(0, june3, -1e36); }, "77.5"},
      {"failed call", 2, [](SyntheticChartData& c) { c.FailGetValue(true); }, "77.5"},
      {"mean isn't a field", 256, [](SyntheticChartData&) {}, "77.5"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    Chart chart = SyntheticChartData::Daily();
    c.prepare(*chart);
    SheetRun run;
    run.Run(
        SheetXml("LsPgDayTrend", SnapXml({0, 1, 2, 3, 4, 5}) + StudyXml(false, {Pt{-1, 77.5, kJune3, 0, 0, c.snap}})),
        chart, [&](HeadlessSheetRunner& r) {
          EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), c.shown);
          EXPECT_FALSE(r.Tab(0).IsSheetChanged()) << "snapping at the start is no change of the user's";
        });
    if (c.snap < 0) {
      for (const auto& call : chart->Calls()) EXPECT_EQ(call.find("GetValue"), std::string::npos) << call;
    }
  }

  // An Intra page snaps at its bar position.
  Chart intra = SyntheticChartData::Intraday();
  SheetRun run;
  run.Run(SheetXml("LsPgIntraTrend", SnapXml({0, 1, 2, 3}) + StudyXml(false, {Pt{25, 1.0, 0, 0, 0, 2}})), intra,
          [&](HeadlessSheetRunner& r) {
            EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_INTRA_VALUE, 64), Dbl(intra->Bars()[25].low));
            EXPECT_EQ(r.Tab(0).ComboGetCurSel(IDC_LS_INTRA_TREND_SNAP), 3) << "Low";
          });
}

TEST(LsTrendlinePages, ASnapCodeThePageDoesntOfferShowsNoChoiceAndIsKept) {
  SheetRun run;
  run.Run(SheetXml("LsPgDayTrend", SnapXml({0, 1, 1}) + StudyXml(true, {Pt{-1, 5, kJune3, 0, 0, 3}})),
          SyntheticChartData::Daily(), [](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            EXPECT_EQ(c.ComboGetCount(IDC_LS_DAY_TREND_SNAP), 3);
            EXPECT_EQ(c.ComboGetLBText(IDC_LS_DAY_TREND_SNAP, 2), "Close") << "a duplicate row stays";
            EXPECT_EQ(c.ComboGetCurSel(IDC_LS_DAY_TREND_SNAP), -1);
            c.Click(IDC_LS_POS_LOCK);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  ASSERT_EQ(run.Events().size(), 1u);
  EXPECT_NE(run.Events()[0].find("<XY_lSnap>3</XY_lSnap>"), std::string::npos) << run.Events()[0];
}

// --- the spin of an Intra page ---

TEST(LsTrendlinePages, SpinMovesTheBarWithinOneAndMaxPosAndShowsItsDateTimeAndTick) {
  Chart intra = SyntheticChartData::Intraday();
  SheetRun run;
  run.Run(SheetXml("LsPgIntraTrend", "<MaxPos>80</MaxPos>" + StudyXml(false, {Pt{79, 5.0}})), intra,
          [&](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            auto* page = dynamic_cast<CLsPgIntraTrend*>(run.sheet.PageOf(1326));
            EXPECT_EQ(c.Control(IDC_LS_INTRA_SPIN).lower, 0);
            EXPECT_EQ(c.Control(IDC_LS_INTRA_SPIN).upper, 80);
            EXPECT_EQ(c.Control(IDC_LS_INTRA_SPIN).pos, 79);
            // Bar 79 is the second session's 09:35 bar, stamped 17 seconds in.
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_DATE, 64), "06/27/24");
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_TIME, 64), " 09:35:17");
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_TICK, 64), std::to_string(100000 + 79 * 37));
            c.TypeText(IDC_LS_INTRA_VALUE, "6.25");
            c.ClickSpin(IDC_LS_INTRA_SPIN, 1);
            EXPECT_EQ(page->Point(0).xPos, 80);
            EXPECT_EQ(c.Control(IDC_LS_INTRA_SPIN).pos, 80);
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_VALUE, 64), "6.25") << "what was typed goes with the move";
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_TIME, 64), " 09:40:17");
            c.ClickSpin(IDC_LS_INTRA_SPIN, 1);
            EXPECT_EQ(page->Point(0).xPos, 80) << "no bar past MaxPos";
            page->Point(0).xPos = 1;
            c.ClickSpin(IDC_LS_INTRA_SPIN, -1);
            EXPECT_EQ(page->Point(0).xPos, 1) << "bar 0 is never reached by the spin";
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_TIME, 64), " 09:35:17");
            EXPECT_TRUE(page->IsDirty());
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  ASSERT_EQ(run.Events().size(), 1u);
  EXPECT_NE(run.Events()[0].find(lstest::PtXml(Pt{1, 6.25, intra->Bars()[1].date, 575, 575 * 60 + 17})),
            std::string::npos)
      << run.Events()[0];

  // MaxPos 0 (or absent) still moves to bar 1.
  SheetRun zero;
  zero.Run(SheetXml("LsPgIntraTrend", StudyXml(false, {Pt{0, 5.0}})), intra, [&](HeadlessSheetRunner& r) {
    r.Tab(0).ClickSpin(IDC_LS_INTRA_SPIN, -1);
    EXPECT_EQ(dynamic_cast<CLsPgBase*>(zero.sheet.PageOf(1326))->Point(0).xPos, 1);
  });
}

TEST(LsTrendlinePages, IntraPageWithoutChartDataShowsNoTickAndStillApplies) {
  SheetRun run;
  run.Run(SheetXml("LsPgIntraVWAP", "<MaxPos>5</MaxPos>" + StudyXml(false, {Pt{3, 5.0, 45000, 600, 36000}})), nullptr,
          [](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_DATE, 64), "");
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_INTRA_TICK, 64), " --- ");
            c.TypeText(IDC_LS_INTRA_VALUE, "7");
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  ASSERT_EQ(run.Events().size(), 1u);
  EXPECT_NE(run.Events()[0].find(lstest::PtXml(Pt{3, 7.0, 45000, 600, 36000})), std::string::npos);
}

TEST(LsTrendlinePages, IntraTimeWithoutSecondsIsMinutesOfTheDay) {
  // A chart that answers "no seconds" gets the time in minutes.
  class MinuteChart : public orv::ChartData {
   public:
    orv::Status GetValue(std::int32_t, std::int32_t, double& v) override {
      v = 12;
      return 0;
    }
    orv::Status GetTimeKind(std::int32_t& kind) override {
      kind = 0;
      return 0;
    }
    orv::Status DateToPos(std::int32_t, std::int32_t, std::int32_t*, std::int32_t&) override { return -1; }
    orv::Status PosToDate(std::int32_t, std::int32_t& d, std::int32_t& t, std::int32_t& s) override {
      d = 45469, t = 615, s = 0;
      return 0;
    }
    orv::Status PosToDateOnly(std::int32_t, std::int32_t&) override { return -1; }
  };
  SheetRun run;
  run.Run(SheetXml("LsPgIntraVert", StudyXml(false, {Pt{3}})), std::make_shared<MinuteChart>(),
          [](HeadlessSheetRunner& r) {
            EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_INTRA_TIME, 64), "10:15");
            EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_INTRA_DATE, 64), "06/28/24");
            EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_INTRA_TICK, 64), "12");
          });
}

// --- vertices ---

TEST(LsTrendlinePages, ChangingVertexKeepsWhatWasTypedForTheOldOne) {
  SheetRun run;
  run.Run(SheetXml("LsPgDayTrend", "<VertexButtons Show=\"Yes\"/>" + SnapXml({0, 1}) +
                                       StudyXml(false, {Pt{-1, 5, kJune3}, Pt{-1, 6, kJune20}})),
          SyntheticChartData::Daily(), [](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            EXPECT_EQ(c.IsDlgButtonChecked(IDC_LS_VERTEX_0), orv::kBstChecked);
            c.TypeText(IDC_LS_DAY_VALUE, "150.5");
            c.SelectComboItem(IDC_LS_DAY_TREND_SNAP, 1);
            c.Click(IDC_LS_VERTEX_1);
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), "6");
            EXPECT_EQ(c.Control(IDC_LS_DAY_DATE).date, (orv::DateTime{2024, 6, 20}));
            EXPECT_EQ(c.ComboGetCurSel(IDC_LS_DAY_TREND_SNAP), 0);
            c.Click(IDC_LS_VERTEX_0);
            EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), "150.5");
            EXPECT_EQ(c.ComboGetCurSel(IDC_LS_DAY_TREND_SNAP), 1);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  ASSERT_EQ(run.Events().size(), 1u);
  EXPECT_EQ(
      run.Events()[0],
      EventXml("LsPgDayTrend", Trendline("CTrendline", false, {Pt{-1, 150.5, kJune3, 0, 0, 0}, Pt{-1, 6, kJune20}},
                                         "<LSTrl_Extendpt1>0</LSTrl_Extendpt1><LSTrl_Extendpt2>0</LSTrl_Extendpt2>")));
}

TEST(LsTrendlinePages, VertexButtonsShowOnlyWhenTheHostAsksAndNeverOnHorizontalAndVerticalLines) {
  struct Case {
    const char* name;
    const char* element;
    bool shown;
  };
  const Case cases[] = {
      {"LsPgDayTrend", "", false},
      {"LsPgDayTrend", "<VertexButtons Show=\"no\"/>", false},
      {"LsPgDayTrend", "<VertexButtons Show=\"Yes\"/>", true},
      {"LsPgIntraLRC", "", false},
      {"LsPgIntraLRC", "<VertexButtons Show=\"Yes\"/>", true},
      {"LsPgDayHorz", "<VertexButtons Show=\"Yes\"/>", false},
      {"LsPgDayVert", "<VertexButtons Show=\"Yes\"/>", false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.name) + " " + c.element);
    SheetRun run;
    run.Run(SheetXml(c.name, c.element), SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
      for (int id : {IDC_LS_VERTEX_0, IDC_LS_VERTEX_1}) {
        EXPECT_EQ(r.Tab(0).IsDlgItemVisible(id), c.shown);
        if (!c.shown) {
          EXPECT_THROW(r.Tab(0).Click(id), std::logic_error);
        }
      }
    });
  }
}

TEST(LsTrendlinePages, BestFitStartTurnsTheEndsSnapBoxOff) {
  SheetRun run;
  run.Run(SheetXml("LsPgDayVWAP", "<VertexButtons Show=\"Yes\"/>" + SnapXml({0, 6}) +
                                      StudyXml(false, {Pt{-1, 5, kJune3, 0, 0, 257}, Pt{-1, 6, kJune20}})),
          SyntheticChartData::Daily(), [](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            EXPECT_TRUE(c.IsDlgItemEnabled(IDC_LS_DAY_VWAP_SNAP));
            c.Click(IDC_LS_VERTEX_1);
            EXPECT_FALSE(c.IsDlgItemEnabled(IDC_LS_DAY_VWAP_SNAP));
            c.Click(IDC_LS_VERTEX_0);
            c.SelectComboItem(IDC_LS_DAY_VWAP_SNAP, 0);  // "None"
            c.Click(IDC_LS_VERTEX_1);
            EXPECT_TRUE(c.IsDlgItemEnabled(IDC_LS_DAY_VWAP_SNAP));
          });
}

// --- the page's own controls ---

TEST(LsTrendlinePages, ExtendBoxesHoldZeroToTwoAndCountAsChanges) {
  struct Case {
    const char* stored;      // LSTrl_Extendpt1 from the host
    int shown;               // the box's state
    std::vector<int> after;  // the state after each of the user's clicks
  };
  const Case cases[] = {
      {"0", orv::kBstUnchecked, {orv::kBstChecked, orv::kBstIndeterminate, orv::kBstUnchecked}},
      {"1", orv::kBstChecked, {orv::kBstIndeterminate, orv::kBstUnchecked}},
      {"2", orv::kBstIndeterminate, {orv::kBstUnchecked, orv::kBstChecked}},
      {"5", orv::kBstUnchecked, {orv::kBstChecked}},
      {"-1", orv::kBstUnchecked, {orv::kBstChecked}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.stored);
    SheetRun run;
    run.Run(SheetXml("LsPgIntraTrend", "<CTrendline>" + StudyXml(false, {Pt{4, 5}}) + "<LSTrl_Extendpt1>" + c.stored +
                                           "</LSTrl_Extendpt1><LSTrl_Extendpt2>2</LSTrl_Extendpt2></CTrendline>"),
            SyntheticChartData::Intraday(), [&](HeadlessSheetRunner& r) {
              FakeControls& c0 = r.Tab(0);
              EXPECT_EQ(c0.IsDlgButtonChecked(IDC_LS_INTRA_EXTEND_LEFT), c.shown);
              EXPECT_FALSE(c0.IsSheetChanged());
              for (int state : c.after) {
                c0.Click(IDC_LS_INTRA_EXTEND_LEFT);
                EXPECT_EQ(c0.IsDlgButtonChecked(IDC_LS_INTRA_EXTEND_LEFT), state);
              }
              EXPECT_TRUE(c0.IsSheetChanged());
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    ASSERT_EQ(run.Events().size(), 1u);
    const std::string sent =
        orv::StrFormat("<LSTrl_Extendpt1>%d</LSTrl_Extendpt1><LSTrl_Extendpt2>2</LSTrl_Extendpt2>", c.after.back());
    EXPECT_NE(run.Events()[0].find(sent), std::string::npos) << run.Events()[0];
  }
}

TEST(LsTrendlinePages, HorizontalLineOnAvgCloseStandsAtTheMean) {
  const std::string snaps = SnapXml({0, 1, 5});
  // Loaded on "Avg Close": the mean, whatever the value said, and no change of the user's.
  SheetRun loaded;
  loaded.Run(SheetXml("LsPgDayHorz", "<Mean>42.5</Mean>" + snaps + StudyXml(false, {Pt{-1, 10, kJune3, 0, 0, 256}})),
             SyntheticChartData::Daily(), [](HeadlessSheetRunner& r) {
               EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), "42.5");
               EXPECT_EQ(r.Tab(0).ComboGetCurSel(IDC_LS_DAY_HORZ_SNAP), 2);
               EXPECT_FALSE(r.Tab(0).IsSheetChanged());
               EXPECT_TRUE(r.Sheet().PressOk());
             });
  EXPECT_TRUE(loaded.owner.events.empty());

  // Choosing "Avg Close" moves the line to the mean; the mean itself isn't sent.
  SheetRun chosen;
  chosen.Run(SheetXml("LsPgDayHorz", "<Mean>42.5</Mean>" + snaps + StudyXml(false, {Pt{-1, 10, kJune3}})), nullptr,
             [](HeadlessSheetRunner& r) {
               EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), "10");
               r.Tab(0).SelectComboItem(IDC_LS_DAY_HORZ_SNAP, 2);
               EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), "42.5");
               EXPECT_TRUE(r.Sheet().PressOk());
             });
  EXPECT_EQ(chosen.Events(),
            std::vector<std::string>{
                EventXml("LsPgDayHorz", Trendline("CTrendline", false, {Pt{-1, 42.5, kJune3, 0, 0, 256}}, ""))});
}

// A multiplier longer than the box: the box shows what would be sent; a page the user leaves
// alone sends nothing, so the host keeps its text; a page changed elsewhere sends what was shown.
TEST(LsTrendlinePages, ALongMultiplierIsShownAsItWouldBeSent) {
  const std::string longText = "1.5 standard deviations of the fitted line";
  const std::string shown = longText.substr(0, 31);
  for (const char* name : {"LsPgDayLRC", "LsPgIntraLRC"}) {
    for (bool change : {false, true}) {
      SCOPED_TRACE(std::string(name) + (change ? " changed" : " left alone"));
      const bool intra = std::string(name) == "LsPgIntraLRC";
      SheetRun run;
      run.Run(SheetXml(name, "<CLinRegChan>" + StudyXml(false, {intra ? Pt{4, 5} : Pt{-1, 5, kJune3}}) +
                                 "<Multiplier>" + longText + "</Multiplier></CLinRegChan>"),
              intra ? SyntheticChartData::Intraday() : SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
                FakeControls& c = r.Tab(0);
                EXPECT_EQ(c.GetDlgItemTextA(IDC_LS_LRC_MULTIPLIER, 64), shown);
                if (change) c.Click(intra ? IDC_LS_INTRA_EXTEND_RIGHT : IDC_LS_DAY_EXTEND_RIGHT);
                EXPECT_TRUE(r.Sheet().PressOk());
              });
      ASSERT_EQ(run.Events().size(), change ? 1u : 0u);
      if (change) {
        EXPECT_NE(run.Events()[0].find("<Multiplier>" + shown + "</Multiplier>"), std::string::npos);
      }
    }
  }
}

// An unchanged page sends nothing: TheLockBoxShowsOnlyWhenTheStudyHasALock presses OK on several.
TEST(LsTrendlinePages, ApplySendsAChangedPageOnce) {
  SheetRun twice;
  twice.Run(SheetXml("LsPgDayTrend", StudyXml(false, {Pt{-1, 5, kJune3}})), SyntheticChartData::Daily(),
            [&](HeadlessSheetRunner& r) {
              FakeControls& c = r.Tab(0);
              c.TypeText(IDC_LS_DAY_VALUE, "8");
              EXPECT_TRUE(r.Sheet().PressApply());
              EXPECT_FALSE(twice.sheet.PageOf(1317)->IsDirty());
              EXPECT_TRUE(r.Sheet().PressOk());
            });
  EXPECT_EQ(twice.owner.events.size(), 1u);
}

// --- the lock box, bad values, the vertex buttons ---

// CLineStudy without PosLock.
std::string StudyWithoutLock(const std::vector<Pt>& points) {
  std::string study = StudyXml(false, points);
  const std::string lock = "<PosLock>FALSE</PosLock>";
  return study.erase(study.find(lock), lock.size());
}

TEST(LsTrendlinePages, TheLockBoxShowsOnlyWhenTheStudyHasALock) {
  struct Case {
    const char* name;
    bool intra;
  };
  const Case cases[] = {{"LsPgDayTrend", false}, {"LsPgIntraTrend", true}, {"LsPgDayHorz", false},
                        {"LsPgDayVert", false},  {"LsPgDayLRC", false},    {"LsPgIntraVWAP", true}};
  for (const Case& c : cases) {
    for (bool hasLock : {false, true}) {
      SCOPED_TRACE(std::string(c.name) + (hasLock ? " with PosLock" : " without PosLock"));
      const Pt point = c.intra ? Pt{4, 5} : Pt{-1, 5, kJune3};
      SheetRun run;
      run.Run(SheetXml(c.name, hasLock ? StudyXml(false, {point}) : StudyWithoutLock({point})),
              c.intra ? SyntheticChartData::Intraday() : SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
                EXPECT_EQ(r.Tab(0).IsDlgItemVisible(IDC_LS_POS_LOCK), hasLock);
                if (!hasLock) {
                  EXPECT_THROW(r.Tab(0).Click(IDC_LS_POS_LOCK), std::logic_error);
                }
                EXPECT_TRUE(r.Sheet().PressOk());
              });
      EXPECT_TRUE(run.owner.events.empty());
    }
  }
  // A study without a lock still sends one, unlocked, when it changes.
  SheetRun changed;
  changed.Run(SheetXml("LsPgDayHorz", StudyWithoutLock({Pt{-1, 5, kJune3}})), SyntheticChartData::Daily(),
              [](HeadlessSheetRunner& r) {
                r.Tab(0).TypeText(IDC_LS_DAY_VALUE, "6");
                EXPECT_TRUE(r.Sheet().PressOk());
              });
  EXPECT_EQ(changed.Events(),
            std::vector<std::string>{EventXml("LsPgDayHorz", Trendline("CTrendline", false, {Pt{-1, 6, kJune3}}, ""))});
}

TEST(LsTrendlinePages, ABadValueBeepsAndKeepsThePageWithoutAMessage) {
  struct Case {
    const char* name;
    const char* typed;
  };
  const Case cases[] = {{"LsPgDayTrend", "12,5"},
                        {"LsPgDayHorz", ".0"},
                        {"LsPgDayVWAP", "1.5x"},
                        {"LsPgDayTrend", ""},
                        {"LsPgIntraTrend", "12,5"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.name) + " \"" + c.typed + "\"");
    const bool intra = std::string(c.name) == "LsPgIntraTrend";
    const int value = intra ? IDC_LS_INTRA_VALUE : IDC_LS_DAY_VALUE;
    const std::vector<Pt> points =
        intra ? std::vector<Pt>{Pt{4, 5}} : std::vector<Pt>{{-1, 5, kJune3}, {-1, 6, kJune20}};
    SheetRun run;
    run.Run(SheetXml(c.name, "<VertexButtons Show=\"Yes\"/>" + StudyXml(false, points)),
            intra ? SyntheticChartData::Intraday() : SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
              FakeControls& tab = r.Tab(0);
              tab.TypeText(value, c.typed);
              tab.SetFocus(IDC_LS_POS_LOCK);
              EXPECT_FALSE(r.Sheet().PressOk()) << "the page keeps the user";
              EXPECT_EQ(tab.Beeps(), std::vector<unsigned>{orv::kBeepSimple});
              EXPECT_EQ(tab.GetFocus(), value);
              EXPECT_TRUE(tab.MessageBoxes().empty());
              EXPECT_TRUE(r.Sheet().IsRunning());
              tab.TypeText(value, "12.5");
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    ASSERT_EQ(run.Events().size(), 1u);
    EXPECT_NE(run.Events()[0].find("<XY_yValue>12.500000</XY_yValue>"), std::string::npos) << run.Events()[0];
  }
}

// Six vertex radios, as a template with more vertices would have them.
void SixVertexLayout(FakeControls& c) {
  lstest::LsPageLayout(IDD_LS_PG_DAY_TREND, c);
  for (int id = IDC_LS_VERTEX_2; id <= IDC_LS_VERTEX_5; ++id) c.AddRadio(id, 1480);
}

TEST(LsTrendlinePages, HiddenVertexButtonsAreTheFirstFive) {
  for (bool shown : {false, true}) {
    SCOPED_TRACE(shown ? "shown" : "hidden");
    SheetRun run;
    run.runner.SetLayout(IDD_LS_PG_DAY_TREND, SixVertexLayout);
    run.Run(SheetXml("LsPgDayTrend", shown ? "<VertexButtons Show=\"Yes\"/>" : ""), SyntheticChartData::Daily(),
            [&](HeadlessSheetRunner& r) {
              for (int id = IDC_LS_VERTEX_0; id <= IDC_LS_VERTEX_4; ++id) {
                EXPECT_EQ(r.Tab(0).IsDlgItemVisible(id), shown) << id;
                EXPECT_EQ(r.Tab(0).IsDlgItemEnabled(id), shown) << id;
              }
              // The sixth is left as the template has it.
              EXPECT_TRUE(r.Tab(0).IsDlgItemVisible(IDC_LS_VERTEX_5));
              EXPECT_TRUE(r.Tab(0).IsDlgItemEnabled(IDC_LS_VERTEX_5));
            });
  }
}

}  // namespace
