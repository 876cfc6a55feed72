#pragma once
// The fields of the axes pages as the host's XML holds them: one child element per field under
// the page's root, read in the order below and written in it.

#include <cstdint>

#include "xml/Xml.h"

// GenXAxisPpg: the time axis.
struct GenXAxisProps {
  std::int32_t marginBars = 0;     // "XAxisMarginBars": empty bars at the right, 0 to 50
  std::int32_t scrollVisible = 0;  // "XAxisScrollVisible": "Lock Scrollbar", a three-state value
  std::int32_t autoCategory = 0;   // "XAxisAutoCategory": labels formatted automatically
  std::int32_t dateFormat = 0;     // "XAxisDateFormat": a date format id (format/DateFormat.h)
  std::int32_t timeFormat = 0;     // "XAxisTimeFormat": a time format id

  // Reads the children of `root` that are there; the margin is then held to 0 to 50.
  void Read(XmlNode root);
  void Write(XmlNode root) const;
};

// GenYAxisPpg: the value axis.
struct GenYAxisProps {
  std::int32_t coordSys = 0;  // "CoordSys": 0 linear, 1 log, 2 % change, 3 0 to 100
  std::int32_t dragMode = 0;  // "DragMode": 0 scroll, 1 stretch, 2 scroll and stretch
  std::int32_t inverted = 0;  // "Inverted"
  std::int32_t pinMax = 0;    // "PinMax", "PinMin", "PinMaj", "PinMnr": three-state pins
  std::int32_t pinMin = 0;
  std::int32_t pinMaj = 0;
  std::int32_t pinMnr = 0;
  std::int32_t precision = 0;  // "Precision": decimal places (a price code 1 to 7); 0: by Format
  std::int32_t format = 0;     // "Format": the price code of the values
  std::int32_t market = 0;     // "Market": how the market lays a price out (FormatPrice's format)
  double maxRange = 0.0;       // "MaxRange", "MinRange", "MajorSpace", "MinorSpace"
  double minRange = 0.0;
  double majorSpace = 0.0;
  double minorSpace = 0.0;
  std::int32_t pctOrigin = 0;  // "PctOrigin": 0 oldest ... 4 average, 5 fixed X
  std::int32_t pctAvg = 0;     // "PctAvg": bars of the average

  void Read(XmlNode root);
  void Write(XmlNode root) const;
};
