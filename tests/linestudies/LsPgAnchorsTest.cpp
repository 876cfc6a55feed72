// The position pages of the studies with several anchors (Fibonacci, Gann, pitchfork, parallel
// channel) on the headless sheet: what each page reads and sends back, the Fibonacci page's
// anchors and label font, the snap box over a growing list of points, the best fit rule where the
// study has it, and the rules that keep a parallel channel a channel.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "FakeSheetOwner.h"
#include "LsPageLayouts.h"
#include "LsSheetRun.h"
#include "LsTestXml.h"
#include "dlgkit/FontInfo.h"
#include "dlgkit/fake/FakeFontOps.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPgDayFibo.h"
#include "linestudies/LsPgDayParallel.h"
#include "linestudies/LsPgIntraParallel.h"
#include "linestudies/LsPs.h"

namespace {

using lstest::EventXml;
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
const std::int32_t kJune10 = SyntheticChartData::DayNumber(2024, 6, 10);
const std::int32_t kJune20 = SyntheticChartData::DayNumber(2024, 6, 20);

std::string Dbl(double v) { return orv::StrFormat("%.*g", 15, v); }

// CLineStudy with `extra` (LS_Style, say) between PosLock and the points, as a host may send it.
std::string Study(bool lock, const std::vector<Pt>& points, const std::string& extra = "") {
  std::string text = StudyXml(lock, points);
  return text.insert(text.find("<LS_CtrlPtList>"), extra);
}

std::string Wrap(const std::string& wrapper, const std::string& inner) {
  return "<" + wrapper + ">" + inner + "</" + wrapper + ">";
}

// The parallel channel's own elements, after its CLineStudy.
std::string Extend(int left, int right) {
  return orv::StrFormat("<ExtendLeft>%d</ExtendLeft><ExtendRight>%d</ExtendRight>", left, right);
}

// A CFontInfo element as the pages write it.
std::string FontXml(const std::string& face, int ptSize, int weight, int italic, int pitch) {
  return orv::StrFormat(
      "<CFontInfo Version=\"3\" FaceName=\"%s\" PtSize=\"%d\" Height=\"%d\" Width=\"0\" Weight=\"%d\" Italic=\"%d\" "
      "Underline=\"0\" PitchAndFamily=\"%d\"/>",
      face.c_str(), ptSize, ptSize * 10000, weight, italic, pitch);
}

// Every font made during a test comes from here: a 96 DPI screen, no internal leading.
class FontScope {
 public:
  FontScope() : cache_(ops_), scope_(cache_) {}

 private:
  orv::FakeFontOps ops_{96};
  orv::FontCache cache_;
  orv::ScopedFontCache scope_;
};

// --- every page: what goes in comes back, with the user's one change ---

struct RoundTrip {
  const char* name;
  int dialogId;
  std::string pageIn;   // the page's content after the snap list
  std::string pageOut;  // what the sheet sends after the user's change
  std::function<void(FakeControls&)> change;
};

// The Day Fibonacci and Gann pages, the Intra pitchfork and parallel pages: the host guide's examples;
// the Day parallel page: the channel's tests below.
TEST(LsAnchorPages, EachPageSendsBackWhatItReadWithTheUsersChange) {
  FontScope fonts;
  Chart intra = SyntheticChartData::Intraday();
  const auto& bars = intra->Bars();
  auto bar = [&](int pos, double value, int snap = -1) {
    return Pt{pos, value, bars[pos].date, bars[pos].minutes, bars[pos].seconds, snap};
  };
  const Pt d0{-1, 101.5, kJune3, 0, 0, -1}, d1{-1, 99.25, kJune10, 0, 0, 2}, d2{-1, 104, kJune20, 0, 0, -1};
  const std::vector<Pt> intra3 = {bar(10, 101.5), bar(40, 99.25, 2), bar(70, 104)};
  auto clickLock = [](FakeControls& c) { c.Click(IDC_LS_POS_LOCK); };
  const std::string maxPos = "<MaxPos>233</MaxPos>";
  const std::string fontIn =
      "<CFontInfo Version=\"3\" Tag=\"labels\" FaceName=\"Tahoma\" PtSize=\"-9\" Width=\"0\" Weight=\"700\" "
      "Italic=\"1\" Underline=\"0\" PitchAndFamily=\"35\"/>";

  const RoundTrip cases[] = {
      // LS_Style and LSFib_LineColor are read, never sent back; the font is.
      {"LsPgIntraFibo", 1323,
       maxPos + Wrap("CFibonacci", Study(true, intra3, "<LS_Style>3</LS_Style>") +
                                       "<LSFib_LineColor>0x0000FF</LSFib_LineColor>" + fontIn),
       Wrap("CFibonacci", StudyXml(false, intra3) + FontXml("Tahoma", -9, 700, 1, 1)), clickLock},
      {"LsPgIntraGann", 1324, maxPos + Wrap("CGann", StudyXml(true, {intra3[0], intra3[1]})),
       Wrap("CGann", StudyXml(false, {intra3[0], intra3[1]})), clickLock},
      {"LsPgDayPfork", 1316, Wrap("CPitchfork", StudyXml(true, {d0, d1, d2})),
       Wrap("CPitchfork", StudyXml(false, {d0, d1, d2})), clickLock},
  };
  for (const RoundTrip& c : cases) {
    SCOPED_TRACE(c.name);
    SheetRun run;
    const bool isIntra = std::string(c.name).find("Intra") != std::string::npos;
    const auto result = run.Run(SheetXml(c.name, SnapXml({0, 1, 2, 3}) + c.pageIn),
                                isIntra ? intra : SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
                                  c.change(r.Tab(0));
                                  EXPECT_TRUE(r.Sheet().PressApply());
                                  EXPECT_TRUE(r.Sheet().PressOk());
                                });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(run.runner.TabDialogIds(), std::vector<int>{c.dialogId});
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(c.name, c.pageOut)}) << "one event, at Apply";
  }
}

TEST(LsAnchorPages, WithoutItsWrapperAPageKeepsItsPointsAndWritesTheWrapperAnyway) {
  FontScope fonts;
  const Pt p{-1, 7.5, kJune3};
  struct Case {
    const char* name;
    int dialogId;
    std::string out;
  };
  const Case cases[] = {
      // No CFibonacci: nothing of the font is read; the record of no font goes back.
      {"LsPgDayFibo", 1314, Wrap("CFibonacci", StudyXml(false, {p}) + FontXml("", 0, 0, 0, 0))},
      {"LsPgDayGann", 1315, Wrap("CGann", StudyXml(false, {p}))},
      {"LsPgDayPfork", 1316, Wrap("CPitchfork", StudyXml(false, {p}))},
      {"LsPgDayParallel", 1394,
       // Vertex 0's side is upright: the list grows to its partner, vertex 2, which takes its date.
       Wrap("CParallel", StudyXml(false, {p, Pt{}, Pt{-1, 0, kJune3}}) + Extend(0, 0))},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    SheetRun run;
    // The study's CLineStudy stands straight below the page: the deep search finds it.
    run.Run(SheetXml(c.name, StudyXml(true, {p})), SyntheticChartData::Daily(), [](HeadlessSheetRunner& r) {
      r.Tab(0).Click(IDC_LS_POS_LOCK);
      EXPECT_TRUE(r.Sheet().PressOk());
    });
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(c.name, c.out)});
  }
}

// --- the Fibonacci page: anchors and the labels' font ---

TEST(LsFiboPage, LsStyleThreeShowsThreeAnchorsOnTheDayPageAnythingElseStartAndEnd) {
  struct Case {
    const char* label;
    std::string style;  // inside the CLineStudy below CFibonacci
    bool three;
    const char* name = "LsPgDayFibo";
  };
  const Case cases[] = {
      {"style 3", "<LS_Style>3</LS_Style>", true},
      {"style 2", "<LS_Style>2</LS_Style>", false},
      {"style 0", "<LS_Style>0</LS_Style>", false},
      {"no style", "", false},
      {"hexadecimal 3", "<LS_Style>0x3</LS_Style>", true},
      {"the Intra page, style 3", "<LS_Style>3</LS_Style>", false, "LsPgIntraFibo"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    const bool intra = std::string(c.name) == "LsPgIntraFibo";
    SheetRun run;
    run.Run(SheetXml(c.name, Wrap("CFibonacci", Study(false, {intra ? Pt{5, 1} : Pt{-1, 1, kJune3}}, c.style))),
            intra ? SyntheticChartData::Intraday() : SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
              EXPECT_EQ(r.Tab(0).GetDlgItemTextA(IDC_LS_VERTEX_1, 64), c.three ? "Anchor1" : "End");
              EXPECT_EQ(r.Tab(0).IsDlgItemVisible(IDC_LS_VERTEX_2), c.three);
            });
  }
  // LS_Style as an attribute of CFibonacci is the line tab's, not this page's.
  SheetRun attribute;
  attribute.Run(SheetXml("LsPgDayFibo", "<CFibonacci LS_Style=\"3\">" + StudyXml(false, {}) + "</CFibonacci>"),
                SyntheticChartData::Daily(),
                [](HeadlessSheetRunner& r) { EXPECT_FALSE(r.Tab(0).IsDlgItemVisible(IDC_LS_VERTEX_2)); });
  EXPECT_EQ(dynamic_cast<CLsPgDayFibo*>(attribute.sheet.PageOf(1314))->Style(), 0);
}

// How the record's attributes become a font and back is the font record's own (its tests); here,
// where the page finds it.
TEST(LsFiboPage, TheFontRecordIsReadFromCFibonacciOnAndWrittenAsTheRecordOfThePagesFont) {
  FontScope fonts;
  struct Case {
    const char* label;
    std::string fontIn;  // inside CFibonacci, after CLineStudy
    std::string after;   // after CFibonacci, inside the page
    std::string fontOut;
  };
  const Case cases[] = {
      {"inside", "<CFontInfo FaceName=\"Verdana\" Height=\"90000\"/>", "", FontXml("Verdana", -9, 0, 0, 0)},
      // The deep search goes on past CFibonacci into what follows it.
      {"after the wrapper", "", "<Labels><CFontInfo FaceName=\"Georgia\" PtSize=\"8\"/></Labels>",
       FontXml("Georgia", -8, 0, 0, 0)},
      {"none", "", "", FontXml("", 0, 0, 0, 0)},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    SheetRun run;
    run.Run(SheetXml("LsPgDayFibo", Wrap("CFibonacci", StudyXml(true, {Pt{-1, 1, kJune3}}) + c.fontIn) + c.after),
            SyntheticChartData::Daily(), [](HeadlessSheetRunner& r) {
              r.Tab(0).Click(IDC_LS_POS_LOCK);
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                                "LsPgDayFibo", Wrap("CFibonacci", StudyXml(false, {Pt{-1, 1, kJune3}}) + c.fontOut))});
  }
}

TEST(LsFiboPage, TheFontButtonStartsFromThePagesFontAndColourAndOkTakesBoth) {
  FontScope fonts;
  orv::LogFont verdana;
  verdana.lfHeight = -16;
  verdana.lfWeight = 400;
  std::snprintf(verdana.lfFaceName, sizeof verdana.lfFaceName, "%s", "Verdana");
  struct Case {
    const char* name;
    int fontId;
    std::string color;  // LSFib_LineColor, or nothing
    std::uint32_t startColor;
  };
  const Case cases[] = {
      {"LsPgDayFibo", IDC_LS_DAY_FIBO_FONT, "<LSFib_LineColor>0x0000C0</LSFib_LineColor>", 0x0000C0},
      {"LsPgIntraFibo", IDC_LS_INTRA_FIBO_FONT, "<LSFib_LineColor>255</LSFib_LineColor>", 255},
      {"LsPgDayFibo", IDC_LS_DAY_FIBO_FONT, "", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.name) + " " + c.color);
    const bool intra = std::string(c.name).find("Intra") != std::string::npos;
    const Chart chart = intra ? SyntheticChartData::Intraday() : SyntheticChartData::Daily();
    const auto& bar = chart->Bars()[5];
    const Pt p = intra ? Pt{5, 1, bar.date, bar.minutes, bar.seconds} : Pt{-1, 1, kJune3};
    const std::string page = Wrap(
        "CFibonacci", StudyXml(false, {p}) + c.color + "<CFontInfo FaceName=\"Tahoma\" PtSize=\"9\" Weight=\"700\"/>");
    // Cancel changes nothing; OK takes the font, which is sent, and the colour, which stays with the
    // page for the next time and is never sent.
    SheetRun chosen;
    chosen.Run(SheetXml(c.name, page), chart, [&](HeadlessSheetRunner& r) {
      FakeControls& f = r.Tab(0);
      f.Click(c.fontId);
      ASSERT_EQ(f.FontDialogs().size(), 1u);
      EXPECT_STREQ(f.FontDialogs()[0].font.lfFaceName, "Tahoma");
      EXPECT_EQ(f.FontDialogs()[0].font.lfHeight, -12);
      EXPECT_EQ(f.FontDialogs()[0].font.lfWeight, 700);
      EXPECT_EQ(f.FontDialogs()[0].color, c.startColor);
      EXPECT_FALSE(f.IsSheetChanged());
      f.AnswerNextFontDialog(verdana, 0x00FF00);
      f.Click(c.fontId);
      EXPECT_TRUE(f.IsSheetChanged());
      f.Click(c.fontId);
      ASSERT_EQ(f.FontDialogs().size(), 3u);
      EXPECT_STREQ(f.FontDialogs()[2].font.lfFaceName, "Verdana");
      EXPECT_EQ(f.FontDialogs()[2].color, 0x00FF00u);
      EXPECT_TRUE(r.Sheet().PressOk());
    });
    EXPECT_EQ(chosen.Events(),
              std::vector<std::string>{
                  EventXml(c.name, Wrap("CFibonacci", StudyXml(false, {p}) + FontXml("Verdana", -12, 400, 0, 0)))});
  }
}

// --- snapping ---

TEST(LsAnchorPages, SnapBoxesFollowTheirVertexAndAVertexAtTheEndGrowsTheList) {
  Chart intra = SyntheticChartData::Intraday();
  struct Case {
    const char* name;
    int snapId;
  };
  const Case cases[] = {{"LsPgIntraPfork", IDC_LS_INTRA_TREND_SNAP},
                        {"LsPgIntraFibo", IDC_LS_INTRA_FIBO_SNAP},
                        {"LsPgIntraGann", IDC_LS_INTRA_TREND_SNAP},
                        {"LsPgIntraParallel", IDC_LS_DAY_TREND_SNAP}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    SheetRun run;
    const std::string wrapper = std::string(c.name).find("Fibo") != std::string::npos    ? "CFibonacci"
                                : std::string(c.name).find("Gann") != std::string::npos  ? "CGann"
                                : std::string(c.name).find("Pfork") != std::string::npos ? "CPitchfork"
                                                                                         : "CParallel";
    run.Run(SheetXml(c.name, "<MaxPos>233</MaxPos>" + SnapXml({0, 1, 2, 3}) +
                                 Wrap(wrapper, StudyXml(false, {Pt{10, 5, 0, 0, 0, 1}}))),
            intra, [&](HeadlessSheetRunner& r) {
              FakeControls& f = r.Tab(0);
              EXPECT_EQ(f.ComboGetCurSel(c.snapId), 2) << "High";
              EXPECT_EQ(f.GetDlgItemTextA(IDC_LS_INTRA_VALUE, 64), Dbl(intra->Bars()[10].high));
              // Vertex 1 is one past the end: the list grows by a default point.
              f.Click(IDC_LS_VERTEX_1);
              EXPECT_EQ(f.ComboGetCurSel(c.snapId), 0) << "None";
              f.SelectComboItem(c.snapId, 3);
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    ASSERT_EQ(run.Events().size(), 1u);
    EXPECT_NE(run.Events()[0].find("<XY_lSnap>1</XY_lSnap></CXYCoord><CXYCoord><XY_xPos>"), std::string::npos);
    EXPECT_NE(run.Events()[0].find("<XY_lSnap>2</XY_lSnap>"), std::string::npos) << "Low on the new vertex";
  }
}

TEST(LsAnchorPages, BestFitOnTheStartTurnsTheNextSnapBoxOffExceptOnGann) {
  struct Case {
    const char* name;
    std::string wrapper;
    int snapId;
    bool rule;
  };
  const Case cases[] = {
      {"LsPgDayFibo", "CFibonacci", IDC_LS_DAY_FIBO_SNAP, true},
      {"LsPgDayPfork", "CPitchfork", IDC_LS_DAY_TREND_SNAP, true},
      {"LsPgDayParallel", "CParallel", IDC_LS_DAY_TREND_SNAP, true},
      {"LsPgIntraFibo", "CFibonacci", IDC_LS_INTRA_FIBO_SNAP, true},
      {"LsPgDayGann", "CGann", IDC_LS_DAY_TREND_SNAP, false},
      {"LsPgIntraGann", "CGann", IDC_LS_INTRA_TREND_SNAP, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const bool intra = std::string(c.name).find("Intra") != std::string::npos;
    SheetRun run;
    run.Run(
        SheetXml(c.name, SnapXml({0, 1, 6}) +
                             Wrap(c.wrapper, Study(false, {Pt{5, 1, kJune3, 0, 0, 257}, Pt{9, 2, kJune10, 0, 0, -1}},
                                                   "<LS_Style>3</LS_Style>"))),
        intra ? SyntheticChartData::Intraday() : SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
          FakeControls& f = r.Tab(0);
          EXPECT_TRUE(f.IsDlgItemEnabled(c.snapId));
          f.Click(IDC_LS_VERTEX_1);
          EXPECT_EQ(f.IsDlgItemEnabled(c.snapId), !c.rule);
          if (f.HasDlgItem(IDC_LS_VERTEX_2) && f.IsDlgItemVisible(IDC_LS_VERTEX_2)) {
            f.Click(IDC_LS_VERTEX_2);
            EXPECT_TRUE(f.IsDlgItemEnabled(c.snapId)) << "only the vertex after the start";
          }
          f.Click(IDC_LS_VERTEX_0);
          EXPECT_TRUE(f.IsDlgItemEnabled(c.snapId));
        });
  }
}

// --- the parallel channel ---

TEST(LsParallelPage, ThePartnerOfAVertexIsTheOtherEndOfItsSide) {
  EXPECT_EQ(LsParallelPartner(0), 2);
  EXPECT_EQ(LsParallelPartner(1), 3);
  EXPECT_EQ(LsParallelPartner(2), 0);
  EXPECT_EQ(LsParallelPartner(3), 1);
  EXPECT_EQ(LsParallelPartner(4), -1);
  EXPECT_EQ(LsParallelPartner(-1), -1);
}

TEST(LsParallelPage, ADateChangedOnTheDayPageMovesThePartnerToTheSameDate) {
  Chart daily = SyntheticChartData::Daily();
  const std::vector<Pt> channel = {{-1, 110, kJune3}, {-1, 115, kJune10}, {-1, 100, kJune3}, {-1, 105, kJune10}};
  SheetRun run;
  run.Run(SheetXml("LsPgDayParallel", Wrap("CParallel", StudyXml(false, channel))), daily, [&](HeadlessSheetRunner& r) {
    FakeControls& f = r.Tab(0);
    f.Click(IDC_LS_VERTEX_1);
    f.PickDateFromCalendar(IDC_LS_DAY_DATE, {2024, 6, 20});
    EXPECT_TRUE(r.Sheet().PressOk());
  });
  const std::vector<Pt> moved = {{-1, 110, kJune3}, {-1, 115, kJune20}, {-1, 100, kJune3}, {-1, 105, kJune20}};
  EXPECT_EQ(run.Events(), std::vector<std::string>{
                              EventXml("LsPgDayParallel", Wrap("CParallel", StudyXml(false, moved) + Extend(0, 0)))});
}

TEST(LsParallelPage, AtMostThreeVerticesSnapTheOldestSnapGoes) {
  struct Case {
    const char* label;
    std::vector<std::pair<int, int>> snaps;  // (vertex, row of the snap box), in the user's order
    std::vector<int> order;                  // the snap order afterwards
    std::array<int, 4> codes;                // lSnap of the four vertices afterwards
  };
  const Case cases[] = {
      {"0, 1, 2, 3", {{0, 1}, {1, 2}, {2, 3}, {3, 1}}, {1, 2, 3}, {-1, 1, 2, 0}},
      {"three", {{3, 1}, {0, 1}, {1, 2}}, {3, 0, 1}, {0, 1, -1, 0}},
      {"a vertex snapped again is the newest", {{0, 1}, {1, 1}, {2, 1}, {0, 2}, {3, 3}}, {2, 0, 3}, {1, -1, 0, 2}},
      {"None takes a vertex out", {{0, 1}, {1, 1}, {0, 0}, {2, 1}, {3, 1}}, {1, 2, 3}, {-1, 0, 0, 0}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    SheetRun run;
    run.Run(SheetXml("LsPgIntraParallel", "<MaxPos>233</MaxPos>" + SnapXml({0, 1, 2, 3}) +
                                              Wrap("CParallel", StudyXml(false, {Pt{10}, Pt{70}, Pt{10}, Pt{70}}))),
            SyntheticChartData::Intraday(), [&](HeadlessSheetRunner& r) {
              for (const auto& [vertex, row] : c.snaps) {
                r.Tab(0).Click(IDC_LS_VERTEX_0 + vertex);
                r.Tab(0).SelectComboItem(IDC_LS_DAY_TREND_SNAP, row);
              }
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    const auto* page = dynamic_cast<CLsPgIntraParallel*>(run.sheet.PageOf(1395));
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->SnapOrder(), c.order);
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(dynamic_cast<CLsPgBase*>(run.sheet.PageOf(1395))->Point(i).lSnap, c.codes[i]) << i;
  }
}

TEST(LsParallelPage, SnapsTheHostSentCountOnlyOnceTheUserChangesThem) {
  // The order is the user's: four vertices snapped in the document stay so until a snap changes.
  SheetRun run;
  run.Run(SheetXml("LsPgIntraParallel",
                   "<MaxPos>233</MaxPos>" + SnapXml({0, 1, 2, 3}) +
                       Wrap("CParallel", StudyXml(false, {Pt{10, 0, 0, 0, 0, 0}, Pt{70, 0, 0, 0, 0, 1},
                                                          Pt{10, 0, 0, 0, 0, 2}, Pt{70, 0, 0, 0, 0, 3}}))),
          SyntheticChartData::Intraday(), [&](HeadlessSheetRunner& r) {
            auto* page = dynamic_cast<CLsPgIntraParallel*>(run.sheet.PageOf(1395));
            EXPECT_TRUE(page->SnapOrder().empty());
            for (int i = 0; i < 4; ++i) EXPECT_EQ(page->Point(i).lSnap, i);
            r.Tab(0).SelectComboItem(IDC_LS_DAY_TREND_SNAP, 2);
            EXPECT_EQ(page->SnapOrder(), std::vector<int>{0});
            r.Sheet().PressCancel();
          });
}

struct KeepCase {
  const char* label;
  int edited;
  std::array<double, 4> values;
  std::array<bool, 4> snapped;
  std::optional<LsParallelMove> move;
};

TEST(LsParallelPage, ATypedValueIsKeptAndOneVertexOfTheOtherLineMoves) {
  // Vertices: 0 left top, 1 right top, 2 left bottom, 3 right bottom.
  const KeepCase cases[] = {
      // Nothing snapped: the edited side keeps its height, the other side's vertex on the opposite line moves.
      {"top left, free", 0, {112, 115, 100, 105}, {}, LsParallelMove{3, 103}},
      {"bottom left, free", 2, {110, 115, 98, 105}, {}, LsParallelMove{1, 117}},
      {"top right, free", 1, {110, 120, 100, 105}, {}, LsParallelMove{2, 95}},
      {"bottom right, free", 3, {110, 115, 100, 101}, {}, LsParallelMove{0, 114}},
      // The edited side's other vertex snapped: the same choice, by the rule.
      {"left side fixed", 0, {112, 115, 100, 105}, {false, false, true, false}, LsParallelMove{3, 103}},
      // The edited vertex's line across snapped: the opposite line's vertex moves.
      {"across snapped", 0, {112, 115, 100, 105}, {false, true, false, false}, LsParallelMove{3, 103}},
      // The other side fixed by two snaps: the height is theirs, the edited vertex's partner moves.
      {"other side snapped", 0, {112, 115, 100, 105}, {false, true, false, true}, LsParallelMove{2, 102}},
      // Diagonal: the opposite line's vertex across is snapped; the partner moves instead.
      {"diagonal snapped", 0, {112, 115, 100, 105}, {false, false, false, true}, LsParallelMove{2, 102}},
      // The edited side fixed and the opposite corner snapped: the free vertex is on the edited line.
      {"only the edited line free", 0, {112, 115, 100, 105}, {false, false, true, true}, LsParallelMove{1, 117}},
      {"every vertex fixed", 0, {112, 115, 100, 105}, {false, true, true, true}, std::nullopt},
      {"no price", 0, {1e36, 115, 0, 105}, {}, std::nullopt},
      {"no price below", 0, {-1e36, 115, 0, 105}, {}, std::nullopt},
      {"just a price", 0, {9e35, 1e35, 0, 1e35}, {}, LsParallelMove{3, 1e35 - 9e35}},
      {"no vertex", 4, {112, 115, 100, 105}, {}, std::nullopt},
  };
  for (const KeepCase& c : cases) {
    SCOPED_TRACE(c.label);
    EXPECT_EQ(LsKeepParallel(c.edited, c.values, c.snapped), c.move);
  }
}

TEST(LsParallelPage, OnlyATypedValueMovesTheOtherLineWhenSavedAndAtApply) {
  Chart daily = SyntheticChartData::Daily();
  const std::vector<Pt> channel = {{-1, 110, kJune3}, {-1, 115, kJune20}, {-1, 100, kJune3}, {-1, 105, kJune20}};
  struct Case {
    const char* label;
    std::function<void(FakeControls&)> edit;
    std::array<double, 4> values;
  };
  const Case cases[] = {
      // Leaving the vertex saves it, and the channel follows at once.
      {"typed, then another vertex",
       [](FakeControls& f) {
         f.TypeText(IDC_LS_DAY_VALUE, "112");
         f.Click(IDC_LS_VERTEX_1);
         EXPECT_EQ(f.GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), "115");
         f.Click(IDC_LS_VERTEX_3);
         EXPECT_EQ(f.GetDlgItemTextA(IDC_LS_DAY_VALUE, 64), "103");
       },
       {112, 115, 100, 103}},
      {"no value typed", [](FakeControls& f) { f.Click(IDC_LS_POS_LOCK); }, {110, 115, 100, 105}},
      {"a price beyond any", [](FakeControls& f) { f.TypeText(IDC_LS_DAY_VALUE, "2e36"); }, {2e36, 115, 100, 105}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    SheetRun run;
    run.Run(SheetXml("LsPgDayParallel", Wrap("CParallel", StudyXml(true, channel))), daily,
            [&](HeadlessSheetRunner& r) {
              c.edit(r.Tab(0));
              EXPECT_TRUE(r.Sheet().PressApply());
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    std::vector<Pt> out = channel;
    for (int i = 0; i < 4; ++i) out[static_cast<std::size_t>(i)].yValue = c.values[static_cast<std::size_t>(i)];
    const bool lock = std::string(c.label) != "no value typed";
    EXPECT_EQ(run.Events(), std::vector<std::string>{
                                EventXml("LsPgDayParallel", Wrap("CParallel", StudyXml(lock, out) + Extend(0, 0)))});
  }
}

// Saved, the shown top left takes its bar's date and time, and its bottom, two bars off, follows
// it with them: the side stands upright.
TEST(LsParallelPage, ExtendBoxesShowAnyNonZeroAsCheckedAndTheIntraPartnerFollowsItsVertex) {
  Chart intra = SyntheticChartData::Intraday();
  const auto& b = intra->Bars()[10];
  SheetRun run;
  run.Run(
      SheetXml("LsPgIntraParallel", Wrap("CParallel", StudyXml(false, {Pt{10}, Pt{70}, Pt{12}, Pt{70}}) +
                                                          "<ExtendLeft>5</ExtendLeft><ExtendRight>-1</ExtendRight>")),
      intra, [](HeadlessSheetRunner& r) {
        FakeControls& f = r.Tab(0);
        EXPECT_EQ(f.IsDlgButtonChecked(IDC_LS_PARALLEL_EXTEND_LEFT), orv::kBstChecked);
        EXPECT_EQ(f.IsDlgButtonChecked(IDC_LS_PARALLEL_EXTEND_RIGHT), orv::kBstChecked);
        EXPECT_FALSE(f.IsSheetChanged());
        f.Click(IDC_LS_PARALLEL_EXTEND_RIGHT);
        EXPECT_TRUE(f.IsSheetChanged());
        EXPECT_TRUE(r.Sheet().PressOk());
      });
  const Pt left{10, 0, b.date, b.minutes, b.seconds};
  EXPECT_EQ(run.Events(),
            std::vector<std::string>{EventXml(
                "LsPgIntraParallel", Wrap("CParallel", StudyXml(false, {left, Pt{70}, left, Pt{70}}) + Extend(1, 0)))});
}

}  // namespace
