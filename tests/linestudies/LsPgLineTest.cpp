// The line tabs (Fibonacci, Gann, pitchfork, parallel) and the graph object line page on the
// headless sheet: what each reads and sends back, the rows each shows for the lines it has, the
// rule that a thick line is solid, the ratio boxes' refusal, and the line list's selection.

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "LsPageLayouts.h"
#include "LsSheetRun.h"
#include "LsTestXml.h"
#include "dlgkit/Controls.h"
#include "dlgkit/fake/FakePageColorButtons.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "linestudies/GraphObjLinePg.h"
#include "linestudies/LsPgLineFibo.h"
#include "linestudies/LsPgLineGann.h"
#include "linestudies/LsPgLineParallel.h"
#include "linestudies/LsPgLinePfork.h"
#include "linestudies/LsPs.h"
#include "xml/StrFormat.h"

namespace {

using lstest::EventXml;
using lstest::SheetRun;
using lstest::SheetXml;
using orv::FakeControls;
using orv::HeadlessSheetRunner;

// One line as the line tabs write it.
struct Ln {
  std::string name;
  bool visible = true;
  std::uint32_t color = 0;
  int weight = 1;
  int style = 0;
  int flag = 0;
};

std::string Rgb(std::uint32_t c) {
  return orv::StrFormat("RGB(%u,%u,%u)", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
}

std::string LinesXml(const std::vector<Ln>& lines) {
  std::string text = "<TVLineProps><TVector>";
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Ln& l = lines[i];
    text += orv::StrFormat(
        "<Item_%d><LineProp><LineName>%s</LineName><LineVis>%s</LineVis><LineColor>%s</LineColor>"
        "<LineWeight>%d</LineWeight><LineStyle>%d</LineStyle><LineFlag>%d</LineFlag></LineProp></Item_%d>",
        static_cast<int>(i), l.name.c_str(), l.visible ? "TRUE" : "FALSE", Rgb(l.color).c_str(), l.weight, l.style,
        l.flag, static_cast<int>(i));
  }
  return text + "</TVector></TVLineProps>";
}

std::string RatiosXml(const std::vector<double>& ratios) {
  std::string text = "<Multiplier><TVector>";
  for (std::size_t i = 0; i < ratios.size(); ++i)
    text += orv::StrFormat("<Item_%d>%f</Item_%d>", static_cast<int>(i), ratios[i], static_cast<int>(i));
  return text + "</TVector></Multiplier>";
}

std::string FibOptions(bool extend, bool labels, bool priceBox) {
  auto b = [](bool v) { return v ? "TRUE" : "FALSE"; };
  return std::string("<LSFib_ExtendRetr>") + b(extend) + "</LSFib_ExtendRetr><LSFib_ShowLabels>" + b(labels) +
         "</LSFib_ShowLabels><ShowPriceBox>" + b(priceBox) + "</ShowPriceBox>";
}

std::vector<Ln> Named(int count) {
  std::vector<Ln> lines;
  for (int i = 0; i < count; ++i) lines.push_back({"L" + std::to_string(i), true, 0x010203u * (i + 1), 1, i % 5});
  return lines;
}

constexpr int Row(int row, int column) { return CLsPgLineTab::RowId(row, column); }

CLsPgLineTab& LineTab(SheetRun& run, int dialogId) { return dynamic_cast<CLsPgLineTab&>(*run.sheet.PageOf(dialogId)); }

// Picks a colour on a line tab's button as its drop-down does: the click, then the colour.
void PickColor(SheetRun& run, int dialogId, FakeControls& c, int buttonId, std::uint32_t color) {
  c.Click(buttonId);
  LineTab(run, dialogId).SetButtonColor(buttonId, color);
}

// --- every tab: what goes in comes back, with the user's change ---

struct RoundTrip {
  const char* name;
  int dialogId;
  std::string in;   // the PropertyPage's content
  std::string out;  // what the sheet sends after the change
  std::function<void(FakeControls&)> change;
};

// The Fibonacci and pitchfork tabs go through the same with the end-to-end line tab cases.
TEST(LsLineTabs, EachTabSendsBackWhatItReadWithTheUsersChange) {
  std::vector<Ln> gann = Named(9);
  std::vector<Ln> gannOut = gann;
  gannOut[0].weight = 3;  // and so solid
  std::vector<Ln> parallel = Named(3);
  std::vector<Ln> parallelOut = parallel;
  parallelOut[0].visible = false;

  const RoundTrip cases[] = {
      {"LsPgLineGann", 1331, "<CGann>" + LinesXml(gann) + "</CGann>", "<CGann>" + LinesXml(gannOut) + "</CGann>",
       [](FakeControls& c) { c.SelectComboItem(Row(0, CLsPgLineTab::kWeightBox), 2); }},
      // The price box is read before the lines and written after them.
      {"LsPgLineParallel", 1396, "<CParallel><ShowPriceBox>TRUE</ShowPriceBox>" + LinesXml(parallel) + "</CParallel>",
       "<CParallel>" + LinesXml(parallelOut) + "<ShowPriceBox>FALSE</ShowPriceBox></CParallel>",
       [](FakeControls& c) {
         c.Click(IDC_LS_PARALLEL_PRICE_BOX);
         c.Click(Row(0, CLsPgLineTab::kVisibleBox));
       }},
      {"GraphObjLinePg", 1335,
       "<LineList><Line Name=\"Up\" Color=\"255\" Weight=\"1\" Style=\"2\" Flags=\"0\"/>"
       "<Line Name=\"Down\" Color=\"65280\" Weight=\"1\" Style=\"0\" Flags=\"1\"/></LineList>"
       "<UseShowPrice ShowPrice=\"FALSE\"/>",
       "<LineList><Line Name=\"Up\" Color=\"255\" Weight=\"1\" Style=\"2\" Flags=\"0\"/>"
       "<Line Name=\"Down\" Color=\"65280\" Weight=\"3\" Style=\"0\" Flags=\"1\"/></LineList>"
       "<UseShowPrice ShowPrice=\"TRUE\"/>",
       [](FakeControls& c) {
         c.SelectListItem(IDC_LINE_PG_LIST, 1);
         c.SelectComboItem(IDC_LINE_PG_WEIGHT, 2);
         c.Click(IDC_LINE_PG_SHOW_PRICE);
       }},
  };
  for (const RoundTrip& c : cases) {
    SCOPED_TRACE(c.name);
    SheetRun run;
    const auto result = run.Run(SheetXml(c.name, c.in), nullptr, [&](HeadlessSheetRunner& r) {
      c.change(r.Tab(0));
      EXPECT_TRUE(r.Tab(0).IsSheetChanged());
      EXPECT_TRUE(r.Sheet().PressOk());
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(run.runner.TabDialogIds(), std::vector<int>{c.dialogId});
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(c.name, c.out)});
  }
}

// --- the rows a tab shows for the lines it has ---

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(LsLineTabs, RowsFollowTheLinesAndTheListGrowsToTheRows) {
  struct Case {
    const char* label;
    const char* name;
    int dialogId;
    std::string content;
    int templateRows;
    std::vector<bool> shown;  // the colour button of each template row
    int saved;                // lines sent back
  };
  auto rows = [](int shown, int of) {
    std::vector<bool> v(of, false);
    for (int i = 0; i < shown; ++i) v[i] = true;
    return v;
  };
  const Case cases[] = {
      {"Gann without lines", "LsPgLineGann", 1331, "<CGann/>", 9, rows(9, 9), 9},
      {"Gann with one line", "LsPgLineGann", 1331, "<CGann>" + LinesXml(Named(1)) + "</CGann>", 9, rows(1, 9), 1},
      {"Gann with two lines", "LsPgLineGann", 1331, "<CGann>" + LinesXml(Named(2)) + "</CGann>", 9, rows(9, 9), 9},
      {"Gann with twelve lines", "LsPgLineGann", 1331, "<CGann>" + LinesXml(Named(12)) + "</CGann>", 9, rows(9, 9), 12},
      {"Fibonacci of two anchors, four lines", "LsPgLineFibo", 1330,
       "<CFibonacci>" + LinesXml(Named(4)) + "</CFibonacci>", 11, rows(10, 11), 10},
      {"Fibonacci of three anchors, no lines", "LsPgLineFibo", 1330, "<CFibonacci LS_Style=\"3\"/>", 11, rows(11, 11),
       11},
      // Ten rows are used, but a list of eleven hides none: the eleventh row shows and isn't edited.
      {"Fibonacci of two anchors, eleven lines", "LsPgLineFibo", 1330,
       "<CFibonacci LS_Style=\"2\">" + LinesXml(Named(11)) + "</CFibonacci>", 11, rows(11, 11), 11},
      {"pitchfork without lines", "LsPgLinePfork", 1332, "<CPitchfork/>", 4, rows(4, 4), 4},
      {"parallel with one line", "LsPgLineParallel", 1396, "<CParallel>" + LinesXml(Named(1)) + "</CParallel>", 3,
       rows(3, 3), 3},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    SheetRun run;
    run.Run(SheetXml(c.name, c.content), nullptr, [&](HeadlessSheetRunner& r) {
      FakeControls& tab = r.Tab(0);
      for (int row = 0; row < c.templateRows; ++row) {
        EXPECT_EQ(tab.IsDlgItemVisible(Row(row, CLsPgLineTab::kColorButton)), c.shown[row]) << "row " << row;
        EXPECT_EQ(tab.IsDlgItemVisible(Row(row, CLsPgLineTab::kStyleBox)), c.shown[row]) << "row " << row;
      }
      tab.SelectComboItem(Row(0, CLsPgLineTab::kWeightBox), 0);
      EXPECT_TRUE(r.Sheet().PressOk());
    });
    ASSERT_EQ(run.Events().size(), 1u);
    EXPECT_EQ(CountOf(run.Events()[0], "<LineProp>"), c.saved);
  }
}

TEST(LsLineTabs, ASingleGannLineShowsColourStyleAndWeightOnlyAndKeepsItsVisibility) {
  SheetRun run;
  std::vector<Ln> one = {{"Fan", false, 0x00FF00, 1, 3}};
  run.Run(SheetXml("LsPgLineGann", "<CGann>" + LinesXml(one) + "</CGann>"), nullptr, [&](HeadlessSheetRunner& r) {
    FakeControls& c = r.Tab(0);
    for (int id : {IDC_LS_GANN_SHOW_HEADING, Row(0, CLsPgLineTab::kNameBox), Row(0, CLsPgLineTab::kVisibleBox)})
      EXPECT_FALSE(c.IsDlgItemVisible(id)) << id;
    for (int id :
         {Row(0, CLsPgLineTab::kColorButton), Row(0, CLsPgLineTab::kStyleBox), Row(0, CLsPgLineTab::kWeightBox)})
      EXPECT_TRUE(c.IsDlgItemVisible(id)) << id;
    EXPECT_EQ(c.GetFocus(), Row(0, CLsPgLineTab::kColorButton));
    c.SelectComboItem(Row(0, CLsPgLineTab::kStyleBox), 1);
    EXPECT_TRUE(r.Sheet().PressOk());
  });
  one[0].style = 1;
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml("LsPgLineGann", "<CGann>" + LinesXml(one) + "</CGann>")});
}

TEST(LsLineTabs, TheFibonacciBoxesBelowTheRowsAreOfferedByTheKindOfStudy) {
  struct Case {
    int style;
    bool labels, extend, priceBox;
  };
  const Case cases[] = {
      {0, true, false, false}, {1, false, false, true}, {2, true, true, true}, {3, true, false, true}};
  for (const Case& k : cases) {
    SCOPED_TRACE(k.style);
    SheetRun run;
    const std::string in = orv::StrFormat("<CFibonacci LS_Style=\"%d\"/>", k.style);
    run.Run(SheetXml("LsPgLineFibo", in), nullptr, [&](HeadlessSheetRunner& r) {
      FakeControls& c = r.Tab(0);
      EXPECT_EQ(c.IsDlgItemVisible(IDC_LS_FIB_SHOW_LABELS), k.labels);
      EXPECT_EQ(c.IsDlgItemEnabled(IDC_LS_FIB_SHOW_LABELS), k.labels);
      EXPECT_EQ(c.IsDlgItemVisible(IDC_LS_FIB_EXTEND), k.extend);
      EXPECT_EQ(c.IsDlgItemEnabled(IDC_LS_FIB_EXTEND), k.extend);
      EXPECT_EQ(c.IsDlgItemVisible(IDC_LS_LINE_PRICE_BOX), k.priceBox);
    });
  }
}

TEST(LsLineTabs, TheBoxesBelowTheRowsGoBackWithTheRowsButDontMarkTheTabChanged) {
  SheetRun run;
  run.Run(SheetXml("LsPgLineFibo", "<CFibonacci LS_Style=\"2\"/>"), nullptr, [&](HeadlessSheetRunner& r) {
    FakeControls& c = r.Tab(0);
    c.Click(IDC_LS_FIB_EXTEND);
    EXPECT_FALSE(c.IsSheetChanged());
    EXPECT_FALSE(r.Sheet().PressApply()) << "Apply isn't on";
    c.Click(Row(0, CLsPgLineTab::kVisibleBox));
    EXPECT_TRUE(r.Sheet().PressOk());
  });
  // Ten rows of default lines and no ratios; LS_Style stays with the host.
  std::vector<Ln> lines(10);
  lines[0].visible = false;
  EXPECT_EQ(run.Events(), std::vector<std::string>{
                              EventXml("LsPgLineFibo", "<CFibonacci>" + LinesXml(lines) + FibOptions(true, true, true) +
                                                           RatiosXml(std::vector<double>(10)) + "</CFibonacci>")});
}

// --- a line thicker than thin is solid ---

TEST(LsLineTabs, AThickLineIsSolidOnLoadAndWhenTheUserMakesItThick) {
  std::vector<Ln> lines = Named(3);
  lines[0] = {"Thick dashed", true, 0, 3, 1};
  lines[1] = {"Thin dashed", true, 0, 1, 1};
  lines[2] = {"Thin dotted", true, 0, 1, 2};
  SheetRun run;
  run.Run(SheetXml("LsPgLineParallel", "<CParallel>" + LinesXml(lines) + "</CParallel>"), nullptr,
          [&](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            const int style0 = Row(0, CLsPgLineTab::kStyleBox);
            EXPECT_EQ(c.ComboGetLBText(style0, c.ComboGetCurSel(style0)), "Solid _________");
            const int style1 = Row(1, CLsPgLineTab::kStyleBox);
            EXPECT_EQ(c.ComboGetLBText(style1, c.ComboGetCurSel(style1)), "Dash ---------");
            c.SelectComboItem(Row(1, CLsPgLineTab::kWeightBox), 1);  // Medium
            EXPECT_TRUE(r.Sheet().PressOk());
            EXPECT_TRUE(c.MessageBoxes().empty()) << "no message says so";
          });
  lines[0].style = 0;
  lines[1] = {"Thin dashed", true, 0, 2, 0};
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                              "LsPgLineParallel",
                              "<CParallel>" + LinesXml(lines) + "<ShowPriceBox>TRUE</ShowPriceBox></CParallel>")});
}

// --- the ratio boxes ---

TEST(LsLineTabs, ARatioThatIsNoNumberKeepsTheUserOnTheTab) {
  for (const char* bad : {"abc", "", "1.5x", "nan"}) {
    SCOPED_TRACE(bad);
    SheetRun run;
    const int box = Row(1, CLsPgLineTab::kRatioBox);
    run.Run(SheetXml("LsPgLinePfork",
                     "<CPitchfork><Multiplier><TVector><Item_0>0.5</Item_0><Item_1>0.1234567890123456789</Item_1>"
                     "</TVector></Multiplier></CPitchfork>"),
            nullptr, [&](HeadlessSheetRunner& r) {
              FakeControls& c = r.Tab(0);
              EXPECT_EQ(c.GetDlgItemTextA(Row(0, CLsPgLineTab::kRatioBox), 32), "0.5");
              EXPECT_EQ(c.GetDlgItemTextA(box, 32), "0.123456789012346");
              // Rows without a ratio show 0.
              EXPECT_EQ(c.GetDlgItemTextA(Row(3, CLsPgLineTab::kRatioBox), 32), "0");
              c.TypeText(box, bad);
              EXPECT_FALSE(r.Sheet().PressApply());
              EXPECT_EQ(c.Beeps().size(), 1u);
              EXPECT_EQ(c.GetFocus(), box);
              EXPECT_TRUE(c.MessageBoxes().empty());
              EXPECT_TRUE(run.owner.events.empty());
              c.TypeText(box, "1.25");
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    EXPECT_EQ(run.Events(),
              std::vector<std::string>{EventXml("LsPgLinePfork", "<CPitchfork>" + LinesXml(std::vector<Ln>(4)) +
                                                                     RatiosXml({0.5, 1.25, 0, 0}) + "</CPitchfork>")});
  }
}

TEST(LsLineTabs, ATabWithoutItsWrapperReadsNothingAndTheHostsOrderOfElementsDoesntMatter) {
  // Items are taken in order, whatever they are called; comments are no items.
  const std::string odd =
      "<CPitchfork><Multiplier><TVector><b>2</b><!-- x --><a>0.5</a></TVector></Multiplier>"
      "<TVLineProps><TVector><Line><Deep><LineProp><LineColor>RGB(1,2,3)</LineColor></LineProp></Deep></Line>"
      "</TVector></TVLineProps></CPitchfork>";
  SheetRun run;
  run.Run(SheetXml("LsPgLinePfork", odd), nullptr, [&](HeadlessSheetRunner& r) {
    FakeControls& c = r.Tab(0);
    EXPECT_EQ(c.GetDlgItemTextA(Row(0, CLsPgLineTab::kRatioBox), 32), "2");
    EXPECT_EQ(c.GetDlgItemTextA(Row(1, CLsPgLineTab::kRatioBox), 32), "0.5");
    EXPECT_EQ(LineTab(run, 1332).ButtonColor(Row(0, CLsPgLineTab::kColorButton)), 0x030201u);
    c.Click(Row(0, CLsPgLineTab::kVisibleBox));
    EXPECT_TRUE(r.Sheet().PressOk());
  });
  std::vector<Ln> lines(4);
  lines[0].color = 0x030201;
  lines[0].visible = false;
  EXPECT_EQ(run.Events(),
            std::vector<std::string>{EventXml(
                "LsPgLinePfork", "<CPitchfork>" + LinesXml(lines) + RatiosXml({2, 0.5, 0, 0}) + "</CPitchfork>")});

  // Items that are the LineProps themselves are read too; an item without one takes the next's.
  CLsPgLineGann bare;
  ASSERT_TRUE(bare.Load(lstest::PageNode(
      SheetXml("LsPgLineGann",
               "<CGann><TVLineProps><TVector><LineProp><LineColor>RGB(4,5,6)</LineColor></LineProp><Item_1/>"
               "<LineProp><LineWeight>2</LineWeight></LineProp></TVector></TVLineProps></CGann>"))));
  ASSERT_EQ(bare.Lines().size(), 3u);
  EXPECT_EQ(bare.Lines()[0].Color, 0x060504u);
  EXPECT_EQ(bare.Lines()[1].Weight, 2);
  EXPECT_EQ(bare.Lines()[2].Weight, 2);

  // A wrapper that isn't the PropertyPage's own child isn't the tab's.
  CLsPgLinePfork page;
  EXPECT_FALSE(page.Load(lstest::PageNode(SheetXml("LsPgLinePfork", "<X><CPitchfork/></X>"))));
  CLsPgLineGann gann;
  EXPECT_FALSE(gann.Load(lstest::PageNode(SheetXml("LsPgLineGann", ""))));
}

// --- the graph object line page ---

TEST(LsGraphObjLinePage, ALineWithoutNameIsNotListedButComesBackUnchanged) {
  SheetRun run;
  run.Run(
      SheetXml("GraphObjLinePg", "<LineList><Anything Color=\"42\" Weight=\"2\" Style=\"3\" Flags=\"8\"/></LineList>"),
      nullptr, [&](HeadlessSheetRunner& r) {
        FakeControls& c = r.Tab(0);
        EXPECT_EQ(c.ListGetCount(IDC_LINE_PG_LIST), 0);
        EXPECT_FALSE(c.IsDlgItemVisible(IDC_LINE_PG_SHOW_PRICE)) << "no UseShowPrice";
        EXPECT_FALSE(c.IsDlgItemVisible(IDC_LINE_PG_SHOW_GRID)) << "the sheet's page is kind 0";
        c.Click(IDC_LINE_PG_COLOR);
        EXPECT_TRUE(r.Sheet().PressOk());
      });
  EXPECT_EQ(run.Events(),
            std::vector<std::string>{
                EventXml("GraphObjLinePg",
                         "<LineList><Line Name=\"\" Color=\"42\" Weight=\"2\" Style=\"3\" Flags=\"8\"/></LineList>")});
}

TEST(LsGraphObjLinePage, WithoutLinesTheLineShownIsAddedAndSentWhenChanged) {
  SheetRun run;
  run.Run(SheetXml("GraphObjLinePg", "<UseShowPrice ShowPrice=\"FALSE\"/>"), nullptr, [&](HeadlessSheetRunner& r) {
    FakeControls& c = r.Tab(0);
    EXPECT_EQ(c.ListGetCount(IDC_LINE_PG_LIST), 0);
    c.SelectComboItem(IDC_LINE_PG_WEIGHT, 2);
    c.Click(IDC_LINE_PG_SHOW_PRICE);
    EXPECT_TRUE(r.Sheet().PressOk());
  });
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                              "GraphObjLinePg",
                              "<LineList><Line Name=\"\" Color=\"0\" Weight=\"3\" Style=\"0\" Flags=\"0\"/></LineList>"
                              "<UseShowPrice ShowPrice=\"TRUE\"/>")});
}

TEST(LsGraphObjLinePage, TheLinesFlagsTakeItsStyleAndWeightBoxesAway) {
  struct Case {
    int flags;
    bool style, weight;
  };
  for (const Case& k : {Case{0, true, true}, Case{2, false, true}, Case{4, true, false}, Case{6, false, false}}) {
    SCOPED_TRACE(k.flags);
    SheetRun run;
    const std::string in = orv::StrFormat("<LineList><Line Name=\"A\" Color=\"7\" Flags=\"%d\"/></LineList>", k.flags);
    run.Run(SheetXml("GraphObjLinePg", in), nullptr, [&](HeadlessSheetRunner& r) {
      FakeControls& c = r.Tab(0);
      EXPECT_EQ(c.IsDlgItemVisible(IDC_LINE_PG_STYLE), k.style);
      EXPECT_EQ(c.IsDlgItemVisible(IDC_LINE_PG_STYLE_LABEL), k.style);
      EXPECT_EQ(c.IsDlgItemVisible(IDC_LINE_PG_WEIGHT), k.weight);
      EXPECT_EQ(c.IsDlgItemVisible(IDC_LINE_PG_WEIGHT_LABEL), k.weight);
      EXPECT_TRUE(c.IsDlgItemVisible(IDC_LINE_PG_COLOR));
    });
  }
}

TEST(LsGraphObjLinePage, ChoosingAnotherLineKeepsTheEditsOfTheOneShown) {
  SheetRun run;
  run.Run(SheetXml("GraphObjLinePg",
                   "<LineList><Line Name=\"Up\" Color=\"1\"/><Line Name=\"\" Color=\"2\"/>"
                   "<Line Name=\"Down\" Color=\"3\" Flags=\"2\"/></LineList>"),
          nullptr, [&](HeadlessSheetRunner& r) {
            FakeControls& c = r.Tab(0);
            auto& page = dynamic_cast<CGraphObjLinePg&>(*run.sheet.PageOf(1335));
            ASSERT_EQ(c.ListGetCount(IDC_LINE_PG_LIST), 2);
            EXPECT_EQ(c.ListGetText(IDC_LINE_PG_LIST, 1), "Down");
            c.Click(IDC_LINE_PG_COLOR);
            page.SetButtonColor(0xABCDEF);
            c.SelectComboItem(IDC_LINE_PG_STYLE, 4);
            c.SelectListItem(IDC_LINE_PG_LIST, 1);
            EXPECT_EQ(page.ButtonColor(), 3u) << "the button shows the line chosen";
            EXPECT_FALSE(c.IsDlgItemVisible(IDC_LINE_PG_STYLE));
            c.SelectListItem(IDC_LINE_PG_LIST, 0);
            EXPECT_EQ(page.ButtonColor(), 0xABCDEFu);
            EXPECT_EQ(c.ComboGetCurSel(IDC_LINE_PG_STYLE), 4);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                              "GraphObjLinePg",
                              "<LineList><Line Name=\"Up\" Color=\"11259375\" Weight=\"1\" Style=\"4\" Flags=\"0\"/>"
                              "<Line Name=\"\" Color=\"2\" Weight=\"1\" Style=\"0\" Flags=\"0\"/>"
                              "<Line Name=\"Down\" Color=\"3\" Weight=\"1\" Style=\"0\" Flags=\"2\"/></LineList>")});
}

TEST(LsLineTabs, ATabNamedTwiceShowsInEachWindowWhatWasEnteredInTheOther) {
  std::vector<Ln> lines = Named(3);
  const std::string page =
      "<PropertyPage Name=\"LsPgLineParallel\"><CParallel>" + LinesXml(lines) + "</CParallel></PropertyPage>";
  SheetRun run;
  run.Run("<PropertySheet Name=\"LSPs\"><PropertyPageList>" + page + page + "</PropertyPageList></PropertySheet>",
          nullptr, [&](HeadlessSheetRunner& r) {
            r.Tab(0).SelectComboItem(Row(2, CLsPgLineTab::kStyleBox), 3);
            PickColor(run, 1396, r.Tab(0), Row(1, CLsPgLineTab::kColorButton), 0x00FFFF);
            ASSERT_TRUE(r.Sheet().SelectPage(1));
            FakeControls& second = r.Tab(1);
            EXPECT_EQ(second.ComboGetCurSel(Row(2, CLsPgLineTab::kStyleBox)), 3);
            EXPECT_EQ(LineTab(run, 1396).ButtonColor(Row(1, CLsPgLineTab::kColorButton)), 0x00FFFFu);
            second.Click(Row(0, CLsPgLineTab::kVisibleBox));
            ASSERT_TRUE(r.Sheet().SelectPage(0));
            EXPECT_EQ(r.Tab(0).IsDlgButtonChecked(Row(0, CLsPgLineTab::kVisibleBox)), orv::kBstUnchecked);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  lines[2].style = 3;
  lines[1].color = 0x00FFFF;
  lines[0].visible = false;
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                              "LsPgLineParallel",
                              "<CParallel>" + LinesXml(lines) + "<ShowPriceBox>TRUE</ShowPriceBox></CParallel>")});
}

// --- the platform's colour buttons ---

TEST(LsLineColorButtons, EachRowsButtonShowsItsLineAndWhatTheUserPicksIsSent) {
  orv::FakePageColorButtons buttons;
  std::vector<Ln> lines = Named(3);
  SheetRun run;
  run.Run(SheetXml("LsPgLineParallel", "<CParallel>" + LinesXml(lines) + "</CParallel>"), nullptr,
          [&](HeadlessSheetRunner& r) {
            std::map<int, std::uint32_t> shown;
            for (const auto& [id, button] : buttons.Attached()) {
              EXPECT_FALSE(button.offerNoColor);
              shown[id] = button.color;
            }
            EXPECT_EQ(shown, (std::map<int, std::uint32_t>{
                                 {2402, lines[0].color}, {2412, lines[1].color}, {2422, lines[2].color}}));
            buttons.Pick(r.Tab(0), 2422, 0x00FF00);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  lines[2].color = 0x00FF00;
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                              "LsPgLineParallel",
                              "<CParallel>" + LinesXml(lines) + "<ShowPriceBox>TRUE</ShowPriceBox></CParallel>")});
}

TEST(LsLineColorButtons, TheLinePagesButtonOpensOnTheChosenLineAndKeepsThePick) {
  orv::FakePageColorButtons buttons;
  SheetRun run;
  run.Run(
      SheetXml("GraphObjLinePg", "<LineList><Line Name=\"A\" Color=\"5\"/><Line Name=\"B\" Color=\"6\"/></LineList>"),
      nullptr, [&](HeadlessSheetRunner& r) {
        FakeControls& c = r.Tab(0);
        EXPECT_EQ(buttons.Color(IDC_LINE_PG_COLOR), 5u);
        c.SelectListItem(IDC_LINE_PG_LIST, 1);
        EXPECT_EQ(buttons.Color(IDC_LINE_PG_COLOR), 6u);
        buttons.Hold(IDC_LINE_PG_COLOR, 99);  // left from an earlier drop-down
        c.Click(IDC_LINE_PG_COLOR);
        EXPECT_EQ(buttons.Color(IDC_LINE_PG_COLOR), 6u) << "the drop-down opens on the line's colour";
        buttons.Hold(IDC_LINE_PG_COLOR, 7);  // the user's pick
        EXPECT_TRUE(r.Sheet().PressOk());
      });
  EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                              "GraphObjLinePg",
                              "<LineList><Line Name=\"A\" Color=\"5\" Weight=\"1\" Style=\"0\" Flags=\"0\"/>"
                              "<Line Name=\"B\" Color=\"7\" Weight=\"1\" Style=\"0\" Flags=\"0\"/></LineList>")});
}

TEST(LsGraphObjLinePage, TheKindNamesTheTabAndOffersItsBoxes) {
  EXPECT_STREQ(CGraphObjLinePg().Title(), "Line");
  EXPECT_STREQ(CGraphObjLinePg(1).Title(), "Grid");
  EXPECT_FALSE(CGraphObjLinePg(1).ShowPriceUsed());
  EXPECT_TRUE(CGraphObjLinePg(2).ShowPriceUsed());
  EXPECT_STREQ(CGraphObjLinePg(2).Title(), "Line");
}

}  // namespace
