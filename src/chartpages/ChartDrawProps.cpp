#include "chartpages/ChartDrawProps.h"

#include <cstdlib>
#include <string>

const ChartStyleRow ChartStyleTable[kDrawTypeCount] = {
    {"Color:", "", "Bar", "", 0x003},
    {"Color:", "", "Line", "", 0x43B},
    {"Color Up:", "Color Down:", "CandleStickUp", "CandleStickDn", 0x047},
    {"Color:", "", "Histogram", "", 0x003},
    {"Color X:", "Color O:", "PtAndFigUp", "PtAndFigDn", 0x087},
    {"", "", "", "", 0},
    {"", "", "", "", 0},
    {"", "", "", "", 0},
    {"", "", "", "", 0},
    {"", "", "", "", 0},
    {"Color:", "", "DataPoints", "", 0x033},
    {"Color Up:", "Color Down:", "RagnarUp", "RagnarDn", 0x167},
    {"Color Up:", "Color Down:", "CandleStickUp", "CandleStickDn", 0x047},
    {"Color:", "", "SlopedBar", "", 0x023},
    {"Color Up:", "Color Down:", "CandleStickUp", "CandleStickDn", 0x047},
};

const ChartTypeRow ChartTypeTable[kDrawTypeCount] = {
    {0, "Bar", "Bar", "Bar", 1},
    {1, "Line", "Line", "Line", 1},
    {2, "CandleStick", "Candlestick", "Candlestick", 1},
    {3, "Histogram", "Histogram", "Histogram", 1},
    {4, "PtAndFig", "Point and Figure", "PointAndFigure", 1},
    {5, "CandleVol", "CandleVol", "", 0},
    {6, "Departure", "Departure", "", 0},
    {7, "Scatter", "Scatter", "", 0},
    {8, "EquiVolume", "EquiVolume", "", 0},
    {9, "ShortsLongs", "ShortsLongs", " ", 0},
    {10, "DataPoints", "Data Points", "DataPoints", 1},
    {11, "Ragnar", "HLC Channels", "Ragnar", 1},
    {12, "HeikenAshi", "Heiken Ashi", "HeikenAshi", 1},
    {13, "SlopedBar", "Sloped Bar", "SlopedBar", 1},
    {14, "HollowCandle", "Hollow Candle", "HollowCandle", 1},
};

namespace {

XmlNode GetChildBool(XmlNode parent, const char* name, bool& value) {
  std::int32_t read = value ? 1 : 0;
  XmlNode child = XmlGetChildValue(parent, name, read);
  value = read != 0;
  return child;
}

XmlNode GetChildUnsigned(XmlNode parent, const char* name, std::int32_t& value) {
  std::uint32_t read = static_cast<std::uint32_t>(value);
  XmlNode child = XmlGetChildValue(parent, name, read);
  value = static_cast<std::int32_t>(read);
  return child;
}

XmlNode GetChildColor(XmlNode parent, const char* name, std::uint32_t& value) {
  return XmlGetChildValue(parent, name, value);
}

void AddBool(XmlNode parent, const char* name, bool value) { XmlAddValueChild(parent, name, value ? 1 : 0); }

bool IsElementNamed(XmlNode node, const char* name) {
  if (!node || XmlIsTextNode(node)) return false;
  // The layer names no node types; an element's markup starts with "<" and its name.
  const std::string markup = XmlGetXml(node);
  const std::string open = std::string("<") + name;
  if (markup.compare(0, open.size(), open) != 0) return false;
  const char next = markup.size() > open.size() ? markup[open.size()] : '\0';
  return next == '>' || next == '/' || next == ' ' || next == '\t' || next == '\r' || next == '\n';
}

// The element children of `parent` named `name`, in document order.
template <class F>
void ForEachChildNamed(XmlNode parent, const char* name, F&& f) {
  for (XmlNode child = XmlFirstChild(parent); child; child = XmlNextSibling(child)) {
    if (IsElementNamed(child, name)) f(child);
  }
}

void ReadLineProps(XmlNode chartProps, TStrHash<CLineProp, CStringTraits>& lineProps) {
  XmlNode list = XmlFindChild(chartProps, "LineProps");
  if (list) {
    ForEachChildNamed(list, "LP", [&](XmlNode lp) {
      CString key;
      XmlGetAttr(lp, "Name", key);
      CLineProp prop;
      ReadLinePropAttrs(lp, prop);
      prop.Name.clear();  // the name is the entry's key
      lineProps.SetAt(std::string_view(key), prop);
    });
    return;
  }
  // The older form: colours only, with one style and weight for every line.
  XmlNode colors = XmlFindChild(chartProps, "ColorProps");
  if (!colors) return;
  std::int32_t style = 0;
  std::int32_t weight = 1;
  XmlGetChildValue(chartProps, "CP_LineStyle", style);
  XmlGetChildValue(chartProps, "CP_LineWeight", weight);
  ForEachChildNamed(colors, "ClrProp", [&](XmlNode clr) {
    CString key;
    XmlGetAttr(clr, "Name", key);
    CLineProp prop;
    XmlGetAttrValue(clr, "Color", prop.Color);
    prop.Weight = weight;
    prop.Style = style;
    prop.Set = 1;
    prop.Flags = 0;
    lineProps.SetAt(std::string_view(key), prop);
  });
}

void ReadShadeProps(XmlNode chartProps, TStrHash<CShadeProp, CStringTraits>& shadeProps) {
  XmlNode list = XmlFindChild(chartProps, "ShadeProps");
  if (!list) return;
  ForEachChildNamed(list, "SP", [&](XmlNode sp) {
    CString key;
    XmlGetAttr(sp, "Name", key);
    CShadeProp prop;
    if (!XmlGetAttrValue(sp, "ShadeMode", prop.Mode)) XmlGetAttrValue(sp, "ShadeBelowLine", prop.Mode);
    XmlGetAttrValue(sp, "ShadeTransp", prop.Transparency);
    std::int32_t gradient = prop.Gradient;
    XmlGetAttrValue(sp, "Gradient", gradient);
    prop.Gradient = static_cast<std::uint8_t>(gradient);
    shadeProps.SetAt(std::string_view(key), prop);
  });
}

}  // namespace

void CAnalytics::Read(XmlNode node) {
  GetChildBool(node, "RagnarTails", TailsOn);
  XmlGetChildValue(node, "RagnarPeriods", Periods);
  XmlGetChildValue(node, "RagnarPercentUp", PercentUp);
  XmlGetChildValue(node, "RagnarPercentDn", PercentDn);
  GetChildBool(node, "RagnarDoji", DojiOn);
  GetChildBool(node, "RagnarBCL", BclOn);
  GetChildColor(node, "ColorDoji", DojiColor);
  GetChildColor(node, "ColorBCL", BclColor);
  XmlGetChildDouble(node, "DojiPct", DojiPct);
  XmlGetChildDouble(node, "BCLPCT", BclPct);
  GetChildBool(node, "ShowCOGap", GapOn);
  XmlGetChildDouble(node, "PctCOGap", GapPct);
  GetChildColor(node, "ColorCOGap", GapColor);
}

void CAnalytics::Write(XmlNode node) {
  XmlNode info = XmlAddChild(node, "AnalyticsInfo");
  AddBool(info, "RagnarTails", TailsOn);
  XmlAddValueChild(info, "RagnarPeriods", Periods);
  XmlAddValueChild(info, "RagnarPercentUp", PercentUp);
  XmlAddValueChild(info, "RagnarPercentDn", PercentDn);
  AddBool(info, "RagnarDoji", DojiOn);
  AddBool(info, "RagnarBCL", BclOn);
  XmlAddValueChild(info, "ColorDoji", DojiColor);
  XmlAddValueChild(info, "ColorBCL", BclColor);
  XmlAddDoubleChild(info, "DojiPct", DojiPct);
  XmlAddDoubleChild(info, "BCLPCT", BclPct);
  AddBool(info, "ShowCOGap", GapOn);
  XmlAddDoubleChild(info, "PctCOGap", GapPct);
  XmlAddValueChild(info, "ColorCOGap", GapColor);
}

void ChartDrawProps::Read(XmlNode root) {
  if (XmlNode defaults = XmlFindNode(root, "PtFigDefList", true)) {
    XmlGetChildValue(defaults, "PtFigDefBoxUnits", defBoxUnits);
    XmlGetChildDouble(defaults, "PtFigDefBoxSize", defBoxSize);
    XmlGetChildDouble(defaults, "PtFigDefTickSize", defTickSize);
    GetChildUnsigned(defaults, "PtFigDefTickCount", defTickCount);
  }
  XmlNode chart = XmlFindNode(root, "Chart", true);
  if (!chart) throw XmlComError(orv::kStatusPointer, "ChartDrawPg: no Chart element");

  if (!GetChildBool(chart, "ChartShowPriceBox", showPriceBox)) GetChildBool(chart, "ChartShowFloatWnd", showPriceBox);

  if (XmlNode chartProps = XmlFindChild(chart, "ChartProps")) {
    XmlGetChildValue(chartProps, "CP_DrawType", drawType);
    XmlGetChildValue(chartProps, "CP_TxtClrIdx", textColorIndex);
    GetChildUnsigned(chartProps, "LineDots", lineDots);
    GetChildUnsigned(chartProps, "Ribbon", ribbon);
    ReadLineProps(chartProps, lineProps);
    ReadShadeProps(chartProps, shadeProps);
  }

  if (XmlNode pointFigure = XmlFindNode(chart, "PointFigure", true)) {
    XmlGetChildValue(pointFigure, "PF_BoxUnits", boxUnits);
    GetChildUnsigned(pointFigure, "PF_Reversal", reversal);
    GetChildUnsigned(pointFigure, "PF_TickCount", tickCount);
    XmlGetChildDouble(pointFigure, "PF_BoxSize", boxSize);
    if (tickCount > 0) tickSize = boxSize / tickCount;
  }

  GetChildUnsigned(chart, "BarShowColors", barColoring);
  XmlGetChildDouble(chart, "BarUpPcnt", barUpPercent);
  XmlGetChildDouble(chart, "BarDnPcnt", barDnPercent);
  std::int32_t color = static_cast<std::int32_t>(barUpColor);
  XmlGetChildValue(chart, "BarUpColor", color);
  barUpColor = static_cast<std::uint32_t>(color);
  color = static_cast<std::int32_t>(barDnColor);
  XmlGetChildValue(chart, "BarDnColor", color);
  barDnColor = static_cast<std::uint32_t>(color);

  analyticsRead = false;
  if (XmlNode info = XmlFindNode(chart, "AnalyticsInfo", true)) {
    analyticsRead = true;
    analytics.Read(info);
    // The channel colours of older documents: only into lines the page already has.
    const ChartStyleRow& channels = ChartStyleTable[kDrawTypeHlcChannels];
    for (const char* key : {channels.key1, channels.key2}) {
      std::int32_t value = 0;
      if (!XmlGetChildValue(info, key, value)) continue;
      if (CLineProp* prop = lineProps.Find(key)) prop->Color = static_cast<std::uint32_t>(value);
    }
  }
}

void ChartDrawProps::Write(XmlNode root) const {
  XmlNode base = XmlAddChild(root, "BaseChart");
  XmlNode chart = XmlAddChild(base, "Chart");
  AddBool(chart, "ChartShowPriceBox", showPriceBox);
  XmlNode chartProps = XmlAddChild(chart, "ChartProps");
  XmlAddValueChild(chartProps, "CP_DrawType", drawType);
  XmlAddValueChild(chartProps, "CP_TxtClrIdx", textColorIndex);
  XmlAddValueChild(chartProps, "LineDots", lineDots);
  XmlAddValueChild(chartProps, "Ribbon", ribbon);
  XmlNode lines = XmlAddChild(chartProps, "LineProps");
  for (const auto& [key, prop] : lineProps) {
    CLineProp named = prop;
    if (named.Name.empty()) named.Name = key;
    WriteLinePropAttrs(XmlAddChild(lines, "LP"), named);
  }
  XmlNode shades = XmlAddChild(chartProps, "ShadeProps");
  for (const auto& [key, prop] : shadeProps) {
    XmlNode sp = XmlAddChild(shades, "SP");
    XmlSetAttr(sp, "Name", key);
    XmlSetAttrValue(sp, "ShadeMode", prop.Mode);
    XmlSetAttrValue(sp, "ShadeTransp", prop.Transparency);
    XmlSetAttrValue(sp, "Gradient", static_cast<std::int32_t>(prop.Gradient));
  }

  XmlNode pointFigure = XmlAddChild(chart, "PointFigure");
  XmlAddValueChild(pointFigure, "PF_BoxUnits", boxUnits);
  XmlAddValueChild(pointFigure, "PF_Reversal", reversal);
  XmlAddValueChild(pointFigure, "PF_TickCount", tickCount);
  XmlAddDoubleChild(pointFigure, "PF_BoxSize", boxUnits == 1 ? tickCount * tickSize : boxSize);

  XmlAddValueChild(chart, "BarShowColors", barColoring);
  XmlAddDoubleChild(chart, "BarUpPcnt", barUpPercent);
  XmlAddDoubleChild(chart, "BarDnPcnt", barDnPercent);
  XmlAddValueChild(chart, "BarUpColor", static_cast<std::int32_t>(barUpColor));
  XmlAddValueChild(chart, "BarDnColor", static_cast<std::int32_t>(barDnColor));

  CAnalytics analyticsOut = analytics;
  analyticsOut.Write(chart);
}
