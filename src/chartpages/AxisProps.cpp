#include "chartpages/AxisProps.h"

#include <algorithm>

void GenXAxisProps::Read(XmlNode root) {
  XmlGetChildValue(root, "XAxisMarginBars", marginBars);
  XmlGetChildValue(root, "XAxisScrollVisible", scrollVisible);
  XmlGetChildValue(root, "XAxisAutoCategory", autoCategory);
  XmlGetChildValue(root, "XAxisDateFormat", dateFormat);
  XmlGetChildValue(root, "XAxisTimeFormat", timeFormat);
  marginBars = std::clamp(marginBars, 0, 50);
}

void GenXAxisProps::Write(XmlNode root) const {
  XmlAddValueChild(root, "XAxisMarginBars", marginBars);
  XmlAddValueChild(root, "XAxisScrollVisible", scrollVisible);
  XmlAddValueChild(root, "XAxisAutoCategory", autoCategory);
  XmlAddValueChild(root, "XAxisDateFormat", dateFormat);
  XmlAddValueChild(root, "XAxisTimeFormat", timeFormat);
}

void GenYAxisProps::Read(XmlNode root) {
  XmlGetChildValue(root, "CoordSys", coordSys);
  XmlGetChildValue(root, "DragMode", dragMode);
  XmlGetChildValue(root, "Inverted", inverted);
  XmlGetChildValue(root, "PinMax", pinMax);
  XmlGetChildValue(root, "PinMin", pinMin);
  XmlGetChildValue(root, "PinMaj", pinMaj);
  XmlGetChildValue(root, "PinMnr", pinMnr);
  XmlGetChildValue(root, "Precision", precision);
  XmlGetChildValue(root, "Format", format);
  XmlGetChildValue(root, "Market", market);
  XmlGetChildDouble(root, "MaxRange", maxRange);
  XmlGetChildDouble(root, "MinRange", minRange);
  XmlGetChildDouble(root, "MajorSpace", majorSpace);
  XmlGetChildDouble(root, "MinorSpace", minorSpace);
  XmlGetChildValue(root, "PctOrigin", pctOrigin);
  XmlGetChildValue(root, "PctAvg", pctAvg);
}

void GenYAxisProps::Write(XmlNode root) const {
  XmlAddValueChild(root, "CoordSys", coordSys);
  XmlAddValueChild(root, "DragMode", dragMode);
  XmlAddValueChild(root, "Inverted", inverted);
  XmlAddValueChild(root, "PinMax", pinMax);
  XmlAddValueChild(root, "PinMin", pinMin);
  XmlAddValueChild(root, "PinMaj", pinMaj);
  XmlAddValueChild(root, "PinMnr", pinMnr);
  XmlAddValueChild(root, "Precision", precision);
  XmlAddValueChild(root, "Format", format);
  XmlAddValueChild(root, "Market", market);
  XmlAddDoubleChild(root, "MaxRange", maxRange);
  XmlAddDoubleChild(root, "MinRange", minRange);
  XmlAddDoubleChild(root, "MajorSpace", majorSpace);
  XmlAddDoubleChild(root, "MinorSpace", minorSpace);
  XmlAddValueChild(root, "PctOrigin", pctOrigin);
  XmlAddValueChild(root, "PctAvg", pctAvg);
}
