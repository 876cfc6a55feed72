#include "linestudies/LsPgLineParallel.h"

bool CLsPgLineParallel::Load(XmlNode propertyPage) {
  XmlNode parallel = XmlFindChild(propertyPage, wrapper_);
  if (!parallel) return false;
  ReadBool(parallel, "ShowPriceBox", showPriceBox_);
  return CLsPgLineTab::Load(parallel);
}

void CLsPgLineParallel::Save(XmlNode propertyPage) {
  CLsPgLineTab::Save(propertyPage);
  AddBool(SavedWrapper(propertyPage), "ShowPriceBox", showPriceBox_);
}

bool CLsPgLineParallel::Exchange(bool save, int controlId) {
  if (!CLsPgLineTab::Exchange(save, controlId)) return false;
  ExchangeCheck(IDC_LS_PARALLEL_PRICE_BOX, showPriceBox_, save, controlId);
  return true;
}
