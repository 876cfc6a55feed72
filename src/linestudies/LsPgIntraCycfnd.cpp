#include "linestudies/LsPgIntraCycfnd.h"

bool CLsPgIntraCycfnd::Load(XmlNode propertyPage) {
  const bool loaded = LoadWithMaxPos(propertyPage);
  // Two points, the list growing when the study has fewer.
  const std::int32_t first = Point(0).xPos;
  DerivePeriod(first, Point(1).xPos);
  return loaded;
}

void CLsPgIntraCycfnd::Save(XmlNode parent) {
  std::int32_t position = 0;
  if (SecondPosition(Point(0).xPos, position)) Point(1).xPos = position;
  // The end's date and time from the chart, through the vertex the texts are made for.
  currentVertex_ = 1;
  UpdatePosText(false);
  currentVertex_ = 0;
  XmlNode wrapper = XmlAddChild(parent, kWrapper);
  CLsPgBase::Save(wrapper);
}
