#pragma once
// What the chart draw page edits, apart from its window: the line and shade records, the
// analytics of the HLC channels chart, the point-and-figure box settings, bar colouring, and the
// two tables every draw type is looked up in. ChartDrawProps reads the page's root (both the
// current "LineProps" form and the older "ColorProps" one) and writes it back in the current form.

#include <cstdint>
#include <string>

#include "dlgkit/LineProp.h"
#include "dlgkit/StrHash.h"
#include "xml/Xml.h"

// How one line of a chart type is drawn is a CLineProp (dlgkit/LineProp.h), under its line key
// ("Bar", "CandleStickUp", ...).

// How the area below a line is shaded, under the chart type's name.
struct CShadeProp {
  std::int32_t Mode = 0;
  std::int32_t Transparency = 90;  // percent
  std::uint8_t Gradient = 0;
};

// The analytics of the HLC channels chart, under "AnalyticsInfo".
class CAnalytics {
 public:
  CAnalytics() = default;
  CAnalytics(const CAnalytics&) = default;
  CAnalytics& operator=(const CAnalytics&) = default;
  virtual ~CAnalytics() = default;

  // Reads the keys present under `node` (an "AnalyticsInfo"); absent keys keep their values.
  virtual void Read(XmlNode node);
  // Adds "AnalyticsInfo" under `node` with every key.
  virtual void Write(XmlNode node);

  bool TailsOn = false;
  std::int32_t Periods = 5;
  std::int32_t PercentUp = 25;
  std::int32_t PercentDn = 10;
  double DojiPct = 5.0;
  double BclPct = 5.0;
  double GapPct = 5.0;
  std::uint32_t GapColor = 0x00FF00;
  bool GapOn = true;
  std::uint32_t DojiColor = 0x00A5FF;
  std::uint32_t BclColor = 0x00A5FF;
  bool DojiOn = true;
  bool BclOn = true;
};

// Feature flags of a draw type's row in ChartStyleTable.
inline constexpr std::uint32_t kDrawColor1 = 0x02;
inline constexpr std::uint32_t kDrawColor2 = 0x04;
inline constexpr std::uint32_t kDrawLineStyle = 0x08;
inline constexpr std::uint32_t kDrawShade = 0x10;
inline constexpr std::uint32_t kDrawTransparency = 0x20;
inline constexpr std::uint32_t kDrawTextColor = 0x40;
inline constexpr std::uint32_t kDrawDataPoints = 0x400;

inline constexpr int kDrawTypeCount = 15;
inline constexpr int kDrawTypeLine = 1;
inline constexpr int kDrawTypePointAndFigure = 4;
inline constexpr int kDrawTypeBar = 0;
inline constexpr int kDrawTypeDataPoints = 10;
inline constexpr int kDrawTypeHlcChannels = 11;
inline constexpr int kDrawTypeSlopedBar = 13;

// One row per draw type: the captions of the two colour buttons, the line keys they edit, and
// which controls the type uses.
struct ChartStyleRow {
  char caption1[15];
  char caption2[15];
  char key1[25];
  char key2[25];
  std::uint32_t flags;
};
static_assert(sizeof(ChartStyleRow) == 84, "a style row is 84 bytes");
extern const ChartStyleRow ChartStyleTable[kDrawTypeCount];

// One row per draw type: its name (the key of its shade record), display text, XML name.
struct ChartTypeRow {
  std::int32_t id;
  const char* name;
  const char* display;
  const char* xmlName;
  std::int32_t supported;
};
extern const ChartTypeRow ChartTypeTable[kDrawTypeCount];

// The page's fields that travel in XML. Colours that the page keeps in its buttons are kept here
// while no window holds them.
struct ChartDrawProps {
  bool showPriceBox = false;
  std::int32_t drawType = 0;
  std::int32_t textColorIndex = 1;
  TStrHash<CLineProp, CStringTraits> lineProps;
  TStrHash<CShadeProp, CStringTraits> shadeProps;
  std::int32_t defBoxUnits = 1;
  std::int32_t boxUnits = 1;  // 0 price, 1 tick
  double boxSize = 1.0;
  double tickSize = 1.0;
  double defBoxSize = 1.0;
  double defTickSize = 1.0;
  std::int32_t tickCount = 1;
  std::int32_t reversal = 3;
  std::int32_t defTickCount = 1;
  std::int32_t defReversal = 3;  // no key: always 3
  std::int32_t barColoring = 0;
  double barUpPercent = 20.0;
  double barDnPercent = 20.0;
  std::int32_t lineDots = 0;
  std::int32_t ribbon = 0;
  CAnalytics analytics;
  bool analyticsRead = false;  // the last Read found "AnalyticsInfo"
  // A document without them leaves the colour buttons at their own white.
  std::uint32_t barUpColor = 0xFFFFFF;
  std::uint32_t barDnColor = 0xFFFFFF;

  // Reads the page's root element. Without "Chart" below it raises XmlComError (E_POINTER).
  void Read(XmlNode root);
  // Writes "BaseChart" under a new root.
  void Write(XmlNode root) const;
};
