// The chart draw page's fields in XML: the defaults written, each element read (the current
// "LineProps" form and the older "ColorProps" one, the older shade and price box keys), what a
// missing element leaves, a document without "Chart", and a read-then-write round trip.

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "chartpages/ChartDrawProps.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "xml/Xml.h"

namespace {

// The page's root element holding `inner`.
XmlNode RootOf(const std::string& inner) {
  XmlNode document = XmlCreateDocument();
  EXPECT_TRUE(XmlLoadString(document, "<ChartDrawPg>" + inner + "</ChartDrawPg>")) << inner;
  return XmlFindChild(document, "ChartDrawPg");
}

std::string Written(const ChartDrawProps& props) {
  XmlNode document = XmlCreateDocument();
  XmlNode root = XmlAddChild(document, "ChartDrawPg");
  props.Write(root);
  return orv::Compact(XmlGetXml(root));
}

// What a page that read nothing writes.
const std::string kDefaultAnalytics =
    "<AnalyticsInfo><RagnarTails>0</RagnarTails><RagnarPeriods>5</RagnarPeriods>"
    "<RagnarPercentUp>25</RagnarPercentUp><RagnarPercentDn>10</RagnarPercentDn><RagnarDoji>1</RagnarDoji>"
    "<RagnarBCL>1</RagnarBCL><ColorDoji>42495</ColorDoji><ColorBCL>42495</ColorBCL><DojiPct>5.000000</DojiPct>"
    "<BCLPCT>5.000000</BCLPCT><ShowCOGap>1</ShowCOGap><PctCOGap>5.000000</PctCOGap>"
    "<ColorCOGap>65280</ColorCOGap></AnalyticsInfo>";
const std::string kDefaultDocument =
    "<ChartDrawPg><BaseChart><Chart><ChartShowPriceBox>0</ChartShowPriceBox><ChartProps><CP_DrawType>0</CP_DrawType>"
    "<CP_TxtClrIdx>1</CP_TxtClrIdx><LineDots>0</LineDots><Ribbon>0</Ribbon><LineProps/><ShadeProps/></ChartProps>"
    "<PointFigure><PF_BoxUnits>1</PF_BoxUnits><PF_Reversal>3</PF_Reversal><PF_TickCount>1</PF_TickCount>"
    "<PF_BoxSize>1.000000</PF_BoxSize></PointFigure><BarShowColors>0</BarShowColors><BarUpPcnt>20.000000</BarUpPcnt>"
    "<BarDnPcnt>20.000000</BarDnPcnt><BarUpColor>16777215</BarUpColor><BarDnColor>16777215</BarDnColor>" +
    kDefaultAnalytics + "</Chart></BaseChart></ChartDrawPg>";

TEST(ChartDrawPropsDefaults, WriteEveryKeyWithItsDefault) { EXPECT_EQ(Written(ChartDrawProps{}), kDefaultDocument); }

TEST(ChartDrawPropsMissing, ADocumentWithoutChartIsRefused) {
  ChartDrawProps props;
  try {
    props.Read(RootOf("<PtFigDefList><PtFigDefTickCount>4</PtFigDefTickCount></PtFigDefList>"));
    FAIL() << "no error";
  } catch (const XmlComError& e) {
    EXPECT_EQ(e.status(), orv::kStatusPointer);
  }
  EXPECT_EQ(props.defTickCount, 4) << "the defaults come before the chart";
}

struct ReadCase {
  const char* name;
  std::string xml;  // under the root
  std::function<void(const ChartDrawProps&)> check;
};
void PrintTo(const ReadCase& c, std::ostream* os) { *os << c.name; }

const CLineProp& Line(const ChartDrawProps& p, const char* key) {
  static const CLineProp kMissing;
  const CLineProp* found = p.lineProps.Find(key);
  EXPECT_NE(found, nullptr) << key;
  return found ? *found : kMissing;
}

const CShadeProp& Shade(const ChartDrawProps& p, const char* key) {
  static const CShadeProp kMissing;
  const CShadeProp* found = p.shadeProps.Find(key);
  EXPECT_NE(found, nullptr) << key;
  return found ? *found : kMissing;
}

class ChartDrawPropsRead : public testing::TestWithParam<ReadCase> {};

TEST_P(ChartDrawPropsRead, ReadsTheElement) {
  ChartDrawProps props;
  props.Read(RootOf(GetParam().xml));
  GetParam().check(props);
}

INSTANTIATE_TEST_SUITE_P(
    Elements, ChartDrawPropsRead,
    testing::Values(
        ReadCase{"EmptyChartKeepsDefaults", "<BaseChart><Chart/></BaseChart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(Written(p), kDefaultDocument);
                   EXPECT_TRUE(p.lineProps.IsEmpty());
                   EXPECT_TRUE(p.shadeProps.IsEmpty());
                 }},
        ReadCase{"PointFigureDefaults",
                 "<X><PtFigDefList><PtFigDefBoxUnits>0</PtFigDefBoxUnits><PtFigDefBoxSize>2.5</PtFigDefBoxSize>"
                 "<PtFigDefTickSize>0.25</PtFigDefTickSize><PtFigDefTickCount>7</PtFigDefTickCount></PtFigDefList>"
                 "</X><Chart/>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.defBoxUnits, 0);
                   EXPECT_EQ(p.defBoxSize, 2.5);
                   EXPECT_EQ(p.defTickSize, 0.25);
                   EXPECT_EQ(p.defTickCount, 7);
                   EXPECT_EQ(p.defReversal, 3);
                   EXPECT_EQ(p.boxUnits, 1) << "the defaults are not the values";
                 }},
        ReadCase{"PriceBox",
                 "<Chart><ChartShowPriceBox>1</ChartShowPriceBox><ChartShowFloatWnd>0</ChartShowFloatWnd></Chart>",
                 [](const ChartDrawProps& p) { EXPECT_TRUE(p.showPriceBox); }},
        ReadCase{"PriceBoxFromTheOlderKey", "<Chart><ChartShowFloatWnd>TRUE</ChartShowFloatWnd></Chart>",
                 [](const ChartDrawProps& p) { EXPECT_TRUE(p.showPriceBox); }},
        ReadCase{"PriceBoxOffWinsOverTheOlderKey",
                 "<Chart><ChartShowFloatWnd>1</ChartShowFloatWnd><ChartShowPriceBox>0</ChartShowPriceBox></Chart>",
                 [](const ChartDrawProps& p) { EXPECT_FALSE(p.showPriceBox); }},
        ReadCase{"ChartProps",
                 "<Chart><ChartProps><CP_DrawType>11</CP_DrawType><CP_TxtClrIdx>0</CP_TxtClrIdx>"
                 "<LineDots>2</LineDots><Ribbon>1</Ribbon></ChartProps></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.drawType, 11);
                   EXPECT_EQ(p.textColorIndex, 0);
                   EXPECT_EQ(p.lineDots, 2);
                   EXPECT_EQ(p.ribbon, 1);
                 }},
        ReadCase{"ChartPropsOnlyAsADirectChild",
                 "<Chart><Inner><ChartProps><CP_DrawType>4</CP_DrawType></ChartProps></Inner></Chart>",
                 [](const ChartDrawProps& p) { EXPECT_EQ(p.drawType, 0); }},
        ReadCase{"LineProps",
                 "<Chart><ChartProps><LineProps><LP Name=\"Bar\" Color=\"255\" Weight=\"3\" Style=\"2\" Flags=\"9\"/>"
                 "<LP Name=\"Line\" Color=\"RGB(1,2,3)\"/><Other Name=\"Skipped\"/></LineProps>"
                 "<CP_LineWeight>3</CP_LineWeight></ChartProps></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.lineProps.GetCount(), 2u);
                   EXPECT_EQ(Line(p, "Bar").Color, 255u);
                   EXPECT_EQ(Line(p, "Bar").Weight, 3);
                   EXPECT_EQ(Line(p, "Bar").Style, 2);
                   EXPECT_EQ(Line(p, "Bar").Flags, 9u);
                   EXPECT_EQ(Line(p, "Bar").Name, "");
                   EXPECT_EQ(Line(p, "Line").Color, 0x030201u);
                   EXPECT_EQ(Line(p, "Line").Weight, 1) << "CP_LineWeight is only for the older form";
                   EXPECT_EQ(Line(p, "Line").Style, 0);
                 }},
        ReadCase{"LinePropsWinOverColorProps",
                 "<Chart><ChartProps><LineProps/><ColorProps><ClrProp Name=\"Bar\" Color=\"5\"/></ColorProps>"
                 "</ChartProps></Chart>",
                 [](const ChartDrawProps& p) { EXPECT_TRUE(p.lineProps.IsEmpty()); }},
        ReadCase{"OlderColorProps",
                 "<Chart><ChartProps><CP_LineStyle>4</CP_LineStyle><CP_LineWeight>2</CP_LineWeight>"
                 "<ColorProps><ClrProp Name=\"CandleStickUp\" Color=\"65280\"/><ClrProp Name=\"CandleStickDn\" "
                 "Color=\"255\"/></ColorProps></ChartProps></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.lineProps.GetCount(), 2u);
                   for (const char* key : {"CandleStickUp", "CandleStickDn"}) {
                     EXPECT_EQ(Line(p, key).Weight, 2) << key;
                     EXPECT_EQ(Line(p, key).Style, 4) << key;
                     EXPECT_EQ(Line(p, key).Flags, 0u) << key;
                     EXPECT_EQ(Line(p, key).Set, 1) << key;
                   }
                   EXPECT_EQ(Line(p, "CandleStickUp").Color, 65280u);
                   EXPECT_EQ(Line(p, "CandleStickDn").Color, 255u);
                 }},
        ReadCase{"OlderColorPropsWithoutWeight",
                 "<Chart><ChartProps><ColorProps><ClrProp Name=\"Bar\"/></ColorProps></ChartProps></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(Line(p, "Bar").Weight, 1);
                   EXPECT_EQ(Line(p, "Bar").Color, 0u);
                 }},
        ReadCase{"ShadeProps",
                 "<Chart><ChartProps><ShadeProps><SP Name=\"Line\" ShadeMode=\"1\" ShadeBelowLine=\"0\" "
                 "ShadeTransp=\"40\" Gradient=\"1\"/><SP Name=\"DataPoints\" ShadeBelowLine=\"1\"/>"
                 "<SP Name=\"Bar\"/></ShadeProps></ChartProps></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.shadeProps.GetCount(), 3u);
                   EXPECT_EQ(Shade(p, "Line").Mode, 1);
                   EXPECT_EQ(Shade(p, "Line").Transparency, 40);
                   EXPECT_EQ(Shade(p, "Line").Gradient, 1);
                   EXPECT_EQ(Shade(p, "DataPoints").Mode, 1) << "the older attribute";
                   EXPECT_EQ(Shade(p, "DataPoints").Transparency, 90);
                   EXPECT_EQ(Shade(p, "Bar").Mode, 0);
                   EXPECT_EQ(Shade(p, "Bar").Transparency, 90);
                   EXPECT_EQ(Shade(p, "Bar").Gradient, 0);
                 }},
        ReadCase{"PointFigureGivesTheTickSize",
                 "<Chart><Deeper><PointFigure><PF_BoxUnits>0</PF_BoxUnits><PF_Reversal>5</PF_Reversal>"
                 "<PF_TickCount>4</PF_TickCount><PF_BoxSize>2.0</PF_BoxSize></PointFigure></Deeper></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.boxUnits, 0);
                   EXPECT_EQ(p.reversal, 5);
                   EXPECT_EQ(p.tickCount, 4);
                   EXPECT_EQ(p.boxSize, 2.0);
                   EXPECT_EQ(p.tickSize, 0.5);
                 }},
        ReadCase{"PointFigureWithoutTicksKeepsTheTickSize",
                 "<Chart><PointFigure><PF_TickCount>0</PF_TickCount><PF_BoxSize>8</PF_BoxSize></PointFigure></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.tickCount, 0);
                   EXPECT_EQ(p.tickSize, 1.0);
                 }},
        ReadCase{"BarColouring",
                 "<Chart><BarShowColors>2</BarShowColors><BarUpPcnt>12.5</BarUpPcnt><BarDnPcnt>7</BarDnPcnt>"
                 "<BarUpColor>RGB(0,128,0)</BarUpColor><BarDnColor>255</BarDnColor></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(p.barColoring, 2);
                   EXPECT_EQ(p.barUpPercent, 12.5);
                   EXPECT_EQ(p.barDnPercent, 7.0);
                   EXPECT_EQ(p.barUpColor, 0x008000u);
                   EXPECT_EQ(p.barDnColor, 255u);
                 }},
        ReadCase{"Analytics",
                 "<Chart><Deeper><AnalyticsInfo><RagnarTails>1</RagnarTails><RagnarPeriods>9</RagnarPeriods>"
                 "<RagnarPercentUp>50</RagnarPercentUp><RagnarPercentDn>20</RagnarPercentDn><RagnarDoji>0</RagnarDoji>"
                 "<RagnarBCL>FALSE</RagnarBCL><ColorDoji>1</ColorDoji><ColorBCL>2</ColorBCL><DojiPct>1.5</DojiPct>"
                 "<BCLPCT>2.5</BCLPCT><ShowCOGap>0</ShowCOGap><PctCOGap>-1</PctCOGap><ColorCOGap>3</ColorCOGap>"
                 "</AnalyticsInfo></Deeper></Chart>",
                 [](const ChartDrawProps& p) {
                   const CAnalytics& a = p.analytics;
                   EXPECT_TRUE(a.TailsOn);
                   EXPECT_EQ(a.Periods, 9);
                   EXPECT_EQ(a.PercentUp, 50);
                   EXPECT_EQ(a.PercentDn, 20);
                   EXPECT_FALSE(a.DojiOn);
                   EXPECT_FALSE(a.BclOn);
                   EXPECT_EQ(a.DojiColor, 1u);
                   EXPECT_EQ(a.BclColor, 2u);
                   EXPECT_EQ(a.DojiPct, 1.5);
                   EXPECT_EQ(a.BclPct, 2.5);
                   EXPECT_FALSE(a.GapOn);
                   EXPECT_EQ(a.GapPct, -1.0);
                   EXPECT_EQ(a.GapColor, 3u);
                 }},
        ReadCase{"ChannelColoursOnlyIntoKnownLines",
                 "<Chart><ChartProps><LineProps><LP Name=\"RagnarUp\" Color=\"1\" Weight=\"2\"/></LineProps>"
                 "</ChartProps><AnalyticsInfo><RagnarUp>77</RagnarUp><RagnarDn>88</RagnarDn></AnalyticsInfo></Chart>",
                 [](const ChartDrawProps& p) {
                   EXPECT_EQ(Line(p, "RagnarUp").Color, 77u);
                   EXPECT_EQ(Line(p, "RagnarUp").Weight, 2);
                   EXPECT_EQ(p.lineProps.Find("RagnarDn"), nullptr);
                 }}),
    [](const testing::TestParamInfo<ReadCase>& info) { return std::string(info.param.name); });

struct WriteCase {
  const char* name;
  std::function<void(ChartDrawProps&)> change;
  const char* expected;  // a piece of the written markup
};
void PrintTo(const WriteCase& c, std::ostream* os) { *os << c.name; }

class ChartDrawPropsWrite : public testing::TestWithParam<WriteCase> {};

TEST_P(ChartDrawPropsWrite, WritesThePiece) {
  ChartDrawProps props;
  GetParam().change(props);
  EXPECT_NE(Written(props).find(GetParam().expected), std::string::npos) << Written(props);
}

INSTANTIATE_TEST_SUITE_P(
    Pieces, ChartDrawPropsWrite,
    testing::Values(
        WriteCase{"TickUnitsWriteTicksTimesTickSize",
                  [](ChartDrawProps& p) {
                    p.boxUnits = 1;
                    p.tickCount = 4;
                    p.tickSize = 0.5;
                    p.boxSize = 9;
                  },
                  "<PF_BoxSize>2.000000</PF_BoxSize>"},
        WriteCase{"PriceUnitsWriteTheBoxSize",
                  [](ChartDrawProps& p) {
                    p.boxUnits = 0;
                    p.tickCount = 4;
                    p.tickSize = 0.5;
                    p.boxSize = 9;
                  },
                  "<PF_BoxUnits>0</PF_BoxUnits><PF_Reversal>3</PF_Reversal><PF_TickCount>4</PF_TickCount>"
                  "<PF_BoxSize>9.000000</PF_BoxSize>"},
        WriteCase{
            "LineNameOrKey",
            [](ChartDrawProps& p) {
              CLineProp line;
              line.Color = 0xFFFFFFFFu;
              line.Weight = 2;
              line.Style = 3;
              line.Flags = 5;
              p.lineProps.SetAt("Bar", line);
            },
            "<LineProps><LP Name=\"Bar\" Color=\"4294967295\" Weight=\"2\" Style=\"3\" Flags=\"5\"/></LineProps>"},
        WriteCase{"LineOwnNameWins",
                  [](ChartDrawProps& p) {
                    CLineProp line;
                    line.Name = "Own";
                    p.lineProps.SetAt("Bar", line);
                  },
                  "<LP Name=\"Own\" Color=\"0\" Weight=\"1\" Style=\"0\" Flags=\"0\"/>"}),
    [](const testing::TestParamInfo<WriteCase>& info) { return std::string(info.param.name); });

TEST(ChartDrawPropsRoundTrip, OlderDocumentComesBackInTheCurrentForm) {
  ChartDrawProps props;
  props.Read(RootOf(
      "<PtFigDefList><PtFigDefBoxSize>3</PtFigDefBoxSize></PtFigDefList><BaseChart><Chart>"
      "<ChartShowFloatWnd>1</ChartShowFloatWnd><ChartProps><CP_DrawType>1</CP_DrawType><CP_LineWeight>3</CP_LineWeight>"
      "<ColorProps><ClrProp Name=\"Line\" Color=\"255\"/></ColorProps>"
      "<ShadeProps><SP Name=\"Line\" ShadeBelowLine=\"1\" ShadeTransp=\"50\"/></ShadeProps></ChartProps>"
      "<PointFigure><PF_BoxUnits>0</PF_BoxUnits><PF_BoxSize>1.5</PF_BoxSize></PointFigure>"
      "<BarUpColor>1</BarUpColor><BarDnColor>2</BarDnColor>"
      "<AnalyticsInfo><RagnarUp>5</RagnarUp></AnalyticsInfo></Chart></BaseChart>"));
  EXPECT_EQ(Written(props),
            "<ChartDrawPg><BaseChart><Chart><ChartShowPriceBox>1</ChartShowPriceBox><ChartProps>"
            "<CP_DrawType>1</CP_DrawType><CP_TxtClrIdx>1</CP_TxtClrIdx><LineDots>0</LineDots><Ribbon>0</Ribbon>"
            "<LineProps><LP Name=\"Line\" Color=\"255\" Weight=\"3\" Style=\"0\" Flags=\"0\"/></LineProps>"
            "<ShadeProps><SP Name=\"Line\" ShadeMode=\"1\" ShadeTransp=\"50\" Gradient=\"0\"/></ShadeProps>"
            "</ChartProps><PointFigure><PF_BoxUnits>0</PF_BoxUnits><PF_Reversal>3</PF_Reversal>"
            "<PF_TickCount>1</PF_TickCount><PF_BoxSize>1.500000</PF_BoxSize></PointFigure>"
            "<BarShowColors>0</BarShowColors><BarUpPcnt>20.000000</BarUpPcnt><BarDnPcnt>20.000000</BarDnPcnt>"
            "<BarUpColor>1</BarUpColor><BarDnColor>2</BarDnColor>" +
                kDefaultAnalytics + "</Chart></BaseChart></ChartDrawPg>");
}

}  // namespace
