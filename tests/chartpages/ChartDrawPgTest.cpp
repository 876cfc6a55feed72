// The chart draw page in its frame on the template's controls: which controls each draw type
// shows and enables, the rules of its check boxes and box units, what the host gets after a load
// and a change (exact XML), Reset, and each validator's refusal with its text or beep.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "ChartPagesTemplates.h"
#include "chartpages/ChartDrawPg.h"
#include "chartpages/ChartPage.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/FakePageColorButtons.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "xml/Xml.h"

namespace {

// A host object that hands the page `properties` (under its root) and keeps what Apply sends.
class HostConnection final : public orv::ChartPageConnection {
 public:
  std::string properties;
  std::vector<std::string> sent;
  std::vector<std::uint32_t> statuses;

  std::unique_ptr<orv::ChartPageHost> QueryHost() override { return std::make_unique<Host>(*this); }
  void OnStatusChange(std::uint32_t flags) override { statuses.push_back(flags); }

 private:
  struct Host final : orv::ChartPageHost {
    explicit Host(HostConnection& owner) : owner_(owner) {}
    void GetPageProperties(std::int32_t, XmlNode root, std::int32_t& found) override {
      XmlNode source = XmlCreateDocument();
      ASSERT_TRUE(XmlLoadString(source, "<Source>" + owner_.properties + "</Source>"));
      for (XmlNode child = XmlFirstChild(XmlFindChild(source, "Source")); child; child = XmlNextSibling(child))
        XmlAppendClone(root, child, true);
      found = 1;
    }
    void SetPageProperties(std::int32_t, XmlNode root, std::int32_t&) override {
      owner_.sent.push_back(orv::Compact(XmlGetXml(root)));
    }
    HostConnection& owner_;
  };
};

struct DrawPage {
  explicit DrawPage(const std::string& properties)
      : frame(std::make_unique<CChartDrawPg>(), connection), page(static_cast<CChartDrawPg&>(frame.page())) {
    connection.properties = properties;
    const orv::TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, IDD_CHART_DRAW_PG);
    EXPECT_NE(dialog, nullptr);
    if (dialog) orv::AddTemplateControls(*dialog, controls);
    controls.AttachPage(&frame);
    frame.OnInitDialog(controls, nullptr, nullptr);
  }
  bool Visible(int id) { return controls.IsDlgItemVisible(id); }
  bool Enabled(int id) { return controls.IsDlgItemEnabled(id); }

  HostConnection connection;
  orv::ChartPageFrame frame;
  CChartDrawPg& page;
  orv::FakeControls controls;
};

std::string TypeDoc(int type, const std::string& chartMore = "", const std::string& propsMore = "") {
  return "<BaseChart><Chart><ChartProps><CP_DrawType>" + std::to_string(type) + "</CP_DrawType>" + propsMore +
         "</ChartProps>" + chartMore + "</Chart></BaseChart>";
}

std::set<int> Join(std::initializer_list<std::set<int>> parts) {
  std::set<int> all;
  for (const auto& p : parts) all.insert(p.begin(), p.end());
  return all;
}

const std::set<int> kColor1 = {IDC_CD_COLOR1_LABEL, IDC_CD_COLOR1};
const std::set<int> kColor2 = {IDC_CD_COLOR2_LABEL, IDC_CD_COLOR2};
const std::set<int> kText = {IDC_CD_TEXT_COLOR, IDC_CD_TEXT_COLOR_LABEL};
const std::set<int> kLineOnly = {IDC_CD_STYLE_LABEL, IDC_CD_STYLE, IDC_CD_LINE_DOTS, IDC_CD_RIBBON};
const std::set<int> kShade = {IDC_CD_SHADE, IDC_CD_GRADIENT};
const std::set<int> kTransp = {IDC_CD_TRANSP_LABEL, IDC_CD_TRANSP};
const std::set<int> kPointFigure = {IDC_CD_PF_BOX,     IDC_CD_BOX_UNITS_LABEL, IDC_CD_BOX_UNITS, IDC_CD_BOX_SIZE_LABEL,
                                    IDC_CD_TICK_COUNT, IDC_CD_TICK_SIZE_LABEL, IDC_CD_TICK_SIZE, IDC_CD_REVERSAL_LABEL,
                                    IDC_CD_REVERSAL,   IDC_CD_REVERSAL_SPIN,   IDC_CD_RESET};
const std::set<int> kBars = {IDC_CD_BAR_COLORS, IDC_CD_BAR_UP_LABEL, IDC_CD_BAR_DN_LABEL, IDC_CD_BAR_UP_PCT,
                             IDC_CD_BAR_DN_PCT, IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR};
const std::set<int> kBarColorLabels = {IDC_CD_BAR_UP_COLOR_LABEL, IDC_CD_BAR_DN_COLOR_LABEL};
const std::set<int> kChannels = {IDC_CD_TAILS,   IDC_CD_DOJI,     IDC_CD_DOJI_PCT,  IDC_CD_DOJI_COLOR,
                                 IDC_CD_BCL,     IDC_CD_BCL_PCT,  IDC_CD_BCL_COLOR, IDC_CD_GAP,
                                 IDC_CD_GAP_PCT, IDC_CD_GAP_COLOR};
const std::set<int> kTailFields = {IDC_CD_PERIODS_LABEL, IDC_CD_PERIODS, IDC_CD_PERIODS_SPIN,
                                   IDC_CD_PCT_UP_LABEL,  IDC_CD_PCT_UP,  IDC_CD_PCT_UP_SPIN,
                                   IDC_CD_PCT_DN_LABEL,  IDC_CD_PCT_DN,  IDC_CD_PCT_DN_SPIN};
// Every control whose visibility depends on the draw type.
const std::set<int> kManaged = Join({kColor1, kColor2, kText, kLineOnly, kShade, kTransp, kPointFigure, kBars,
                                     kBarColorLabels, kChannels, kTailFields});

struct TypeCase {
  int type;
  std::set<int> visible;   // of kManaged; the rest hidden
  std::set<int> disabled;  // of `visible`; the rest enabled
  const char* caption1;
  const char* caption2;
};
void PrintTo(const TypeCase& c, std::ostream* os) { *os << "draw type " << c.type; }

class DrawTypeControls : public testing::TestWithParam<TypeCase> {};

TEST_P(DrawTypeControls, ShowsWhatTheTypeUses) {
  const TypeCase& c = GetParam();
  DrawPage p(TypeDoc(c.type));
  for (int id : kManaged) {
    EXPECT_EQ(p.Visible(id), c.visible.count(id) == 1) << "control " << id;
    if (c.visible.count(id)) {
      EXPECT_EQ(p.Enabled(id), c.disabled.count(id) == 0) << "control " << id;
    }
  }
  EXPECT_TRUE(p.Visible(IDC_CD_WEIGHT_LABEL));
  EXPECT_TRUE(p.Visible(IDC_CD_WEIGHT));
  if (c.visible.count(IDC_CD_COLOR1)) {
    EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_COLOR1_LABEL, 64), c.caption1);
  }
  if (c.visible.count(IDC_CD_COLOR2)) {
    EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_COLOR2_LABEL, 64), c.caption2);
  }
  EXPECT_TRUE(p.connection.statuses.empty() || p.connection.statuses.back() == orv::kPageStatusClean);
  EXPECT_FALSE(p.frame.IsDirty());
}

const std::set<int> kCandles = Join({kColor1, kColor2, kText});

INSTANTIATE_TEST_SUITE_P(
    EveryType, DrawTypeControls,
    testing::Values(
        TypeCase{0,
                 Join({kColor1, kBars}),
                 {IDC_CD_BAR_UP_PCT, IDC_CD_BAR_DN_PCT, IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR},
                 "Color:",
                 ""},
        // The gradient check follows the boundary close check (on by default), then the shade check disables it.
        TypeCase{1, Join({kColor1, kLineOnly, kShade}), {IDC_CD_GRADIENT}, "Color:", ""},
        TypeCase{2, kCandles, {}, "Color Up:", "Color Down:"}, TypeCase{3, kColor1, {}, "Color:", ""},
        TypeCase{4, Join({kColor1, kColor2, kPointFigure}), {IDC_CD_TICK_SIZE}, "Color X:", "Color O:"},
        TypeCase{5, {}, {}, "", ""}, TypeCase{9, {}, {}, "", ""},
        TypeCase{10, Join({kColor1, kShade}), {IDC_CD_GRADIENT}, "Color:", ""},
        TypeCase{11, Join({kCandles, kChannels, kTransp}), {}, "Color Up:", "Color Down:"},
        TypeCase{12, kCandles, {}, "Color Up:", "Color Down:"},
        TypeCase{13,
                 Join({kColor1, kTransp, kBarColorLabels, {IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR}}),
                 {},
                 "Color:",
                 ""},
        TypeCase{14, kCandles, {}, "Color Up:", "Color Down:"}));

TEST(ChartDrawPgInfo, WhatTheFrameKnows) {
  const CChartDrawPg page;
  EXPECT_EQ(page.Info().dialogId, 1358);
  EXPECT_STREQ(page.Info().rootName, "ChartDrawPg");
  EXPECT_EQ(page.Info().scope, 0);
  EXPECT_STREQ(page.Info().title, "Draw");
  EXPECT_TRUE(page.CleansBeforeExchange());
}

// --- the check boxes and the box units ---

TEST(ChartDrawPgRules, BarColoursFollowTheirCheckAndItsThirdState) {
  DrawPage p(TypeDoc(0, "<BarShowColors>2</BarShowColors>"));
  EXPECT_EQ(p.controls.IsDlgButtonChecked(IDC_CD_BAR_COLORS), orv::kBstIndeterminate);
  EXPECT_FALSE(p.Enabled(IDC_CD_BAR_UP_PCT)) << "only a plain check enables them";
  p.controls.Click(IDC_CD_BAR_COLORS);  // indeterminate -> unchecked
  p.controls.Click(IDC_CD_BAR_COLORS);  // -> checked
  for (int id : {IDC_CD_BAR_UP_PCT, IDC_CD_BAR_DN_PCT, IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR})
    EXPECT_TRUE(p.Enabled(id)) << id;
  EXPECT_EQ(p.connection.statuses.back(), orv::kPageStatusDirty);
  EXPECT_EQ(std::count(p.connection.statuses.begin(), p.connection.statuses.end(), orv::kPageStatusDirty), 1)
      << "status 1 only on becoming dirty";
}

TEST(ChartDrawPgRules, TailsShowTheirFieldsAndAnalyticsChecksTheirOwn) {
  DrawPage p(TypeDoc(11));
  EXPECT_FALSE(p.Visible(IDC_CD_PERIODS));
  p.controls.Click(IDC_CD_TAILS);
  for (int id : {IDC_CD_PERIODS, IDC_CD_PERIODS_SPIN, IDC_CD_PCT_UP, IDC_CD_PCT_DN_SPIN, IDC_CD_PCT_DN_LABEL})
    EXPECT_TRUE(p.Visible(id) && p.Enabled(id)) << id;
  p.controls.Click(IDC_CD_GAP);
  EXPECT_FALSE(p.Visible(IDC_CD_GAP_PCT));
  EXPECT_FALSE(p.Visible(IDC_CD_GAP_COLOR));
  EXPECT_TRUE(p.Visible(IDC_CD_DOJI_PCT));
  EXPECT_TRUE(p.frame.IsDirty());
}

TEST(ChartDrawPgRules, ShadeDecidesTransparencyOfLinesOnly) {
  DrawPage line(TypeDoc(1));
  EXPECT_FALSE(line.Visible(IDC_CD_TRANSP));
  line.controls.Click(IDC_CD_SHADE);
  EXPECT_TRUE(line.Visible(IDC_CD_TRANSP) && line.Enabled(IDC_CD_TRANSP));
  EXPECT_TRUE(line.Enabled(IDC_CD_GRADIENT));
  EXPECT_TRUE(line.frame.IsDirty());

  DrawPage shaded(
      TypeDoc(10, "", "<ShadeProps><SP Name=\"DataPoints\" ShadeMode=\"1\" ShadeTransp=\"40\"/></ShadeProps>"));
  EXPECT_TRUE(shaded.Visible(IDC_CD_TRANSP));
  EXPECT_EQ(shaded.controls.GetDlgItemTextA(IDC_CD_TRANSP, 32), "40");
  EXPECT_TRUE(shaded.Enabled(IDC_CD_GRADIENT));
}

TEST(ChartDrawPgRules, BoxUnitsSwapBoxSizeAndTickCount) {
  DrawPage p(TypeDoc(4, "<PointFigure><PF_BoxUnits>0</PF_BoxUnits><PF_BoxSize>2.5</PF_BoxSize></PointFigure>"));
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_BOX_SIZE_LABEL, 32), "Box Size:");
  EXPECT_TRUE(p.Visible(IDC_CD_BOX_SIZE));
  EXPECT_FALSE(p.Visible(IDC_CD_TICK_COUNT));
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_BOX_SIZE, 32), "2.5");
  p.controls.SelectComboItem(IDC_CD_BOX_UNITS, 1);
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_BOX_SIZE_LABEL, 32), "Tick Count:");
  EXPECT_FALSE(p.Visible(IDC_CD_BOX_SIZE));
  EXPECT_TRUE(p.Visible(IDC_CD_TICK_COUNT));
  EXPECT_EQ(p.page.Props().boxUnits, 1);
}

TEST(ChartDrawPgRules, ResetTakesTheDefaults) {
  DrawPage p(
      "<PtFigDefList><PtFigDefBoxUnits>0</PtFigDefBoxUnits><PtFigDefBoxSize>7</PtFigDefBoxSize>"
      "<PtFigDefTickSize>0.25</PtFigDefTickSize><PtFigDefTickCount>8</PtFigDefTickCount></PtFigDefList>" +
      TypeDoc(4, "<PointFigure><PF_BoxUnits>1</PF_BoxUnits><PF_Reversal>9</PF_Reversal></PointFigure>",
              "<CP_TxtClrIdx>0</CP_TxtClrIdx>"));
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_REVERSAL, 32), "9");
  p.controls.Click(IDC_CD_RESET);
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_REVERSAL, 32), "3");
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_BOX_SIZE, 32), "7");
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_TICK_COUNT, 32), "8");
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_CD_TICK_SIZE, 32), "0.25");
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_CD_BOX_UNITS), 0);
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_CD_TEXT_COLOR), 1);
  EXPECT_TRUE(p.Visible(IDC_CD_BOX_SIZE));
  EXPECT_TRUE(p.frame.IsDirty());
}

// --- load, a change, Apply: what the host gets ---

// A document without "AnalyticsInfo" leaves the analytics' colour buttons white, and one without
// "BarUpColor" and "BarDnColor" the bar colour buttons: that is what comes back.
const std::string kAnalytics =
    "<AnalyticsInfo><RagnarTails>0</RagnarTails><RagnarPeriods>5</RagnarPeriods>"
    "<RagnarPercentUp>25</RagnarPercentUp><RagnarPercentDn>10</RagnarPercentDn><RagnarDoji>1</RagnarDoji>"
    "<RagnarBCL>1</RagnarBCL><ColorDoji>16777215</ColorDoji><ColorBCL>16777215</ColorBCL><DojiPct>5.000000</DojiPct>"
    "<BCLPCT>5.000000</BCLPCT><ShowCOGap>1</ShowCOGap><PctCOGap>5.000000</PctCOGap>"
    "<ColorCOGap>16777215</ColorCOGap></AnalyticsInfo>";

std::string Sent(const std::string& chartProps, const std::string& pointFigure, const std::string& bars,
                 const std::string& analytics = kAnalytics, const char* priceBox = "0") {
  return std::string("<ChartDrawPg><BaseChart><Chart><ChartShowPriceBox>") + priceBox +
         "</ChartShowPriceBox><ChartProps>" + chartProps + "</ChartProps><PointFigure>" + pointFigure +
         "</PointFigure>" + bars + analytics + "</Chart></BaseChart></ChartDrawPg>";
}
// The head of ChartProps as the page writes it.
std::string Head(int type, int textColor = 1, int lineDots = 0) {
  return "<CP_DrawType>" + std::to_string(type) + "</CP_DrawType><CP_TxtClrIdx>" + std::to_string(textColor) +
         "</CP_TxtClrIdx><LineDots>" + std::to_string(lineDots) + "</LineDots><Ribbon>0</Ribbon>";
}
// One LineProps record with no style or flags, and one ShadeProps record.
std::string LP(const std::string& name, std::uint32_t color, int weight = 1) {
  return "<LP Name=\"" + name + "\" Color=\"" + std::to_string(color) + "\" Weight=\"" + std::to_string(weight) +
         "\" Style=\"0\" Flags=\"0\"/>";
}
std::string SP(const std::string& name, int mode = 0, int transparency = 0) {
  return "<SP Name=\"" + name + "\" ShadeMode=\"" + std::to_string(mode) + "\" ShadeTransp=\"" +
         std::to_string(transparency) + "\" Gradient=\"0\"/>";
}
std::string Lists(const std::string& lines, const std::string& shades) {
  return "<LineProps>" + lines + "</LineProps><ShadeProps>" + shades + "</ShadeProps>";
}
const std::string kDefaultPointFigure =
    "<PF_BoxUnits>1</PF_BoxUnits><PF_Reversal>3</PF_Reversal><PF_TickCount>1</PF_TickCount><PF_BoxSize>1.000000</"
    "PF_BoxSize>";
const std::string kDefaultBars =
    "<BarShowColors>0</BarShowColors><BarUpPcnt>20.000000</BarUpPcnt><BarDnPcnt>20.000000</BarDnPcnt>"
    "<BarUpColor>16777215</BarUpColor><BarDnColor>16777215</BarDnColor>";

struct ApplyCase {
  const char* name;
  std::string properties;
  std::function<void(DrawPage&)> change;
  std::string sent;
};
void PrintTo(const ApplyCase& c, std::ostream* os) { *os << c.name; }

// The markup with the records of each list sorted: the lists follow the map, whose order the
// page doesn't choose.
std::string SortedRecords(std::string markup) {
  for (const char* list : {"LineProps", "ShadeProps"}) {
    const std::string open = std::string("<") + list + ">", close = std::string("</") + list + ">";
    const std::size_t begin = markup.find(open), end = markup.find(close);
    if (begin == std::string::npos || end == std::string::npos) continue;
    const std::string inner = markup.substr(begin + open.size(), end - begin - open.size());
    std::vector<std::string> records;
    for (std::size_t at = 0; at < inner.size();) {
      const std::size_t next = inner.find("/>", at);
      if (next == std::string::npos) break;
      records.push_back(inner.substr(at, next + 2 - at));
      at = next + 2;
    }
    std::sort(records.begin(), records.end());
    std::string joined;
    for (const auto& r : records) joined += r;
    markup.replace(begin + open.size(), inner.size(), joined);
  }
  return markup;
}

class ChartDrawPgApply : public testing::TestWithParam<ApplyCase> {};

TEST_P(ChartDrawPgApply, SendsTheExactDocument) {
  const ApplyCase& c = GetParam();
  DrawPage p(c.properties);
  c.change(p);
  ASSERT_TRUE(p.frame.IsDirty());
  p.frame.Apply();
  ASSERT_EQ(p.connection.sent.size(), 1u);
  EXPECT_EQ(SortedRecords(p.connection.sent[0]), SortedRecords(c.sent));
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_EQ(p.connection.statuses.back(), orv::kPageStatusClean);
}

INSTANTIATE_TEST_SUITE_P(
    LoadChangeApply, ChartDrawPgApply,
    testing::Values(
        ApplyCase{
            "LineWeightAndColour",
            "<BaseChart><Chart><ChartShowPriceBox>1</ChartShowPriceBox><ChartProps><CP_DrawType>1</CP_DrawType>"
            "<CP_TxtClrIdx>0</CP_TxtClrIdx><LineDots>1</LineDots><Ribbon>5</Ribbon><LineProps>"
            "<LP Name=\"Line\" Color=\"255\" Weight=\"2\" Style=\"1\" Flags=\"7\"/></LineProps><ShadeProps>"
            "<SP Name=\"Line\" ShadeMode=\"1\" ShadeTransp=\"30\" Gradient=\"1\"/></ShadeProps></ChartProps>"
            "<BarUpColor>11</BarUpColor><BarDnColor>12</BarDnColor></Chart></BaseChart>",
            [](DrawPage& p) {
              p.controls.SelectComboItem(IDC_CD_WEIGHT, 2);
              p.page.SetButtonColor(IDC_CD_COLOR1, 0x123456);
              p.controls.Click(IDC_CD_COLOR1);
            },
            Sent(Head(1, 0, 1) +
                     "<LineProps><LP Name=\"Line\" Color=\"1193046\" Weight=\"3\" Style=\"1\" Flags=\"7\"/></LineProps>"
                     "<ShadeProps><SP Name=\"Line\" ShadeMode=\"1\" ShadeTransp=\"30\" Gradient=\"1\"/></ShadeProps>",
                 kDefaultPointFigure,
                 "<BarShowColors>0</BarShowColors><BarUpPcnt>20.000000</BarUpPcnt><BarDnPcnt>20.000000</BarDnPcnt>"
                 "<BarUpColor>11</BarUpColor><BarDnColor>12</BarDnColor>",
                 kAnalytics, "1")},
        ApplyCase{"OlderColorPropsComeBackAsLineProps",
                  TypeDoc(2, "",
                          "<CP_LineWeight>3</CP_LineWeight><ColorProps><ClrProp Name=\"CandleStickUp\" "
                          "Color=\"65280\"/></ColorProps>"),
                  [](DrawPage& p) { p.controls.SelectComboItem(IDC_CD_TEXT_COLOR, 0); },
                  Sent(Head(2, 0) + Lists(LP("CandleStickUp", 65280, 3) + LP("CandleStickDn", 0), SP("CandleStick")),
                       kDefaultPointFigure, kDefaultBars)},
        ApplyCase{"TransparencyBelow0", TypeDoc(1, "", "<ShadeProps><SP Name=\"Line\" ShadeMode=\"1\"/></ShadeProps>"),
                  [](DrawPage& p) { p.controls.TypeText(IDC_CD_TRANSP, "-5"); },
                  Sent(Head(1) + Lists(LP("Line", 0), SP("Line", 1, 0)), kDefaultPointFigure, kDefaultBars)},
        ApplyCase{"TickUnitsWriteTicksTimesTickSize",
                  TypeDoc(4,
                          "<PointFigure><PF_BoxUnits>1</PF_BoxUnits><PF_TickCount>4</PF_TickCount>"
                          "<PF_BoxSize>2.0</PF_BoxSize></PointFigure>"),
                  [](DrawPage& p) { p.controls.TypeText(IDC_CD_REVERSAL, "5"); },
                  Sent(Head(4) + Lists(LP("PtAndFigUp", 0) + LP("PtAndFigDn", 0), SP("PtAndFig")),
                       "<PF_BoxUnits>1</PF_BoxUnits><PF_Reversal>5</PF_Reversal><PF_TickCount>4</PF_TickCount>"
                       "<PF_BoxSize>2.000000</PF_BoxSize>",
                       kDefaultBars)},
        ApplyCase{"EmptyTypeUsesTheEmptyKey", TypeDoc(5),
                  [](DrawPage& p) { p.controls.SelectComboItem(IDC_CD_WEIGHT, 1); },
                  // No line of its own: the colour button's white comes back.
                  Sent(Head(5) + Lists(LP("", 16777215, 2), SP("CandleVol")), kDefaultPointFigure, kDefaultBars)}),
    [](const testing::TestParamInfo<ApplyCase>& info) { return std::string(info.param.name); });

// --- the validators ---

struct RefusalCase {
  const char* name;
  int type;
  std::string chart;  // more of the Chart element: what makes the field reachable
  int field;
  const char* typed;
  const char* message;  // "" for a beep alone
};
void PrintTo(const RefusalCase& c, std::ostream* os) { *os << c.name; }

const std::string kPriceUnits = "<PointFigure><PF_BoxUnits>0</PF_BoxUnits></PointFigure>";
const std::string kBarsOn = "<BarShowColors>1</BarShowColors>";
const std::string kTailsOn = "<AnalyticsInfo><RagnarTails>1</RagnarTails></AnalyticsInfo>";

class ChartDrawPgRefusal : public testing::TestWithParam<RefusalCase> {};

TEST_P(ChartDrawPgRefusal, KeepsThePageDirtyAndSendsNothing) {
  const RefusalCase& c = GetParam();
  DrawPage p(TypeDoc(c.type, c.chart));
  p.controls.TypeText(c.field, c.typed);
  if (!p.frame.IsDirty()) p.controls.Click(IDC_CD_COLOR1);  // a field that only marks the page when typed in
  p.frame.Apply();
  EXPECT_TRUE(p.connection.sent.empty());
  EXPECT_TRUE(p.frame.IsDirty());
  EXPECT_EQ(p.controls.GetFocus(), c.field);
  EXPECT_FALSE(p.controls.Beeps().empty());
  if (*c.message) {
    ASSERT_EQ(p.controls.MessageBoxes().size(), 1u);
    EXPECT_EQ(p.controls.MessageBoxes()[0].text, c.message);
    EXPECT_EQ(p.controls.MessageBoxes()[0].caption, "Error");
  } else {
    EXPECT_TRUE(p.controls.MessageBoxes().empty());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Validators, ChartDrawPgRefusal,
    testing::Values(RefusalCase{"BoxSizeZero", 4, kPriceUnits, IDC_CD_BOX_SIZE, "0", "0 out of range: [0,100000]"},
                    RefusalCase{"BoxSizeTooBig", 4, kPriceUnits, IDC_CD_BOX_SIZE, "100001",
                                "100001 out of range: [0,100000]"},
                    RefusalCase{"BoxSizeNoNumber", 4, kPriceUnits, IDC_CD_BOX_SIZE, "box", ""},
                    RefusalCase{"TickCountZero", 4, "", IDC_CD_TICK_COUNT, "0", "0 out of range: [1,10000]"},
                    RefusalCase{"Reversal10001", 4, "", IDC_CD_REVERSAL, "10001", "10001 out of range: [1,10000]"},
                    RefusalCase{"ReversalEmpty", 4, "", IDC_CD_REVERSAL, "", ""},
                    RefusalCase{"BarPercent51", 0, kBarsOn, IDC_CD_BAR_UP_PCT, "51", ""},
                    RefusalCase{"BarDownNegative", 0, kBarsOn, IDC_CD_BAR_DN_PCT, "-1", ""},
                    RefusalCase{"PeriodsEmpty", 11, kTailsOn, IDC_CD_PERIODS, "", ""},
                    RefusalCase{"DojiAbove33_3", 11, "", IDC_CD_DOJI_PCT, "33.4", ""},
                    RefusalCase{"BoundaryCloseNegative", 11, "", IDC_CD_BCL_PCT, "-0.5", ""},
                    RefusalCase{"GapBelowMinus1", 11, "", IDC_CD_GAP_PCT, "-1.5", ""}),
    [](const testing::TestParamInfo<RefusalCase>& info) { return std::string(info.param.name); });

TEST(ChartDrawPgValidators, EdgesOfTheRangesPass) {
  DrawPage p(TypeDoc(11));
  p.controls.TypeText(IDC_CD_DOJI_PCT, "33.3");
  p.controls.TypeText(IDC_CD_GAP_PCT, "-1");
  p.frame.Apply();
  ASSERT_EQ(p.connection.sent.size(), 1u);
  EXPECT_NE(p.connection.sent[0].find("<DojiPct>33.300000</DojiPct>"), std::string::npos);
  EXPECT_NE(p.connection.sent[0].find("<PctCOGap>-1.000000</PctCOGap>"), std::string::npos);
}

// --- the platform's colour buttons ---

TEST(ChartDrawPgButtons, AttachesEveryButtonAndSendsWhatTheyHold) {
  orv::FakePageColorButtons buttons;
  DrawPage p(TypeDoc(1, "<BarUpColor>11</BarUpColor><AnalyticsInfo><ColorDoji>22</ColorDoji></AnalyticsInfo>",
                     "<LineProps><LP Name=\"Line\" Color=\"33\"/></LineProps>"));
  const auto& attached = buttons.Attached();
  EXPECT_EQ(attached.size(), 7u);
  EXPECT_TRUE(attached.at(IDC_CD_COLOR1).offerNoColor) << "a line's colour may be none";
  EXPECT_FALSE(attached.at(IDC_CD_COLOR2).offerNoColor);
  EXPECT_EQ(attached.at(IDC_CD_COLOR1).color, 33u);
  EXPECT_EQ(attached.at(IDC_CD_BAR_UP_COLOR).color, 11u);
  EXPECT_EQ(attached.at(IDC_CD_DOJI_COLOR).color, 22u);
  EXPECT_EQ(attached.at(IDC_CD_BCL_COLOR).color, 0x00A5FFu) << "an AnalyticsInfo was there: its defaults";
  EXPECT_EQ(attached.at(IDC_CD_BAR_DN_COLOR).color, 0xFFFFFFu) << "no BarDnColor: the button's white";
  buttons.Pick(p.controls, IDC_CD_COLOR1, 44);
  buttons.Hold(IDC_CD_GAP_COLOR, 55);
  p.frame.Apply();
  ASSERT_EQ(p.connection.sent.size(), 1u);
  EXPECT_NE(p.connection.sent[0].find("<LP Name=\"Line\" Color=\"44\""), std::string::npos);
  EXPECT_NE(p.connection.sent[0].find("<ColorCOGap>55</ColorCOGap>"), std::string::npos);
  EXPECT_NE(p.connection.sent[0].find("<BarUpColor>11</BarUpColor>"), std::string::npos);
  // The window goes: the page keeps the buttons' colours.
  buttons.Hold(IDC_CD_BCL_COLOR, 66);
  p.frame.WindowClosing();
  EXPECT_EQ(p.page.ButtonColor(IDC_CD_BCL_COLOR), 66u);
}

}  // namespace
