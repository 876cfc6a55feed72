#pragma once
// CLsPgIntraCycfnd: a cycle finder on an intraday chart: its start by bar and value, and its
// period. The period is derived at load from the points' bar positions; at save the end is the
// start's bar moved by the period, with that bar's date and time.

#include "linestudies/LsPgCycleFinder.h"

class CLsPgIntraCycfnd final : public CLsPgCycleFinder<CLsPgIntraBase<IDD_LS_PG_INTRA_CYCFND>> {
 public:
  static constexpr const char* kName = "LsPgIntraCycfnd";
  CLsPgIntraCycfnd() : CLsPgCycleFinder(IDC_LS_INTRA_CYC_PERIOD, IDC_LS_INTRA_CYC_SPIN) {}

  bool Load(XmlNode propertyPage) override;
  void Save(XmlNode parent) override;
};
