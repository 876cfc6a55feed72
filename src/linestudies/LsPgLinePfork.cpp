#include "linestudies/LsPgLinePfork.h"

bool CLsPgLinePfork::Load(XmlNode propertyPage) {
  XmlNode pitchfork = XmlFindChild(propertyPage, wrapper_);
  if (!pitchfork) return false;
  CLsPgLineTab::Load(pitchfork);
  ReadRatios(pitchfork, multipliers_);
  return true;
}

void CLsPgLinePfork::Save(XmlNode propertyPage) {
  CLsPgLineTab::Save(propertyPage);
  WriteRatios(SavedWrapper(propertyPage), multipliers_);
}

bool CLsPgLinePfork::Exchange(bool save, int controlId) {
  return CLsPgLineTab::Exchange(save, controlId) && ExchangeRatios(multipliers_, save, controlId);
}
