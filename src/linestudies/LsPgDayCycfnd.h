#pragma once
// CLsPgDayCycfnd: a cycle finder on a daily chart: its start by date and value, and its period.
// The period is derived when the window opens, from the bars of the two points' dates; the end's
// date is found at save from the start's bar and the period.

#include "linestudies/LsPgCycleFinder.h"

class CLsPgDayCycfnd final : public CLsPgCycleFinder<CLsPgDayBase<IDD_LS_PG_DAY_CYCFND>> {
 public:
  static constexpr const char* kName = "LsPgDayCycfnd";
  CLsPgDayCycfnd() : CLsPgCycleFinder(IDC_LS_DAY_CYC_PERIOD, IDC_LS_DAY_CYC_SPIN) {}

  void Save(XmlNode parent) override;

 protected:
  void BeforeControlsLoaded() override;

 private:
  // The bar of a date; -1 without chart data.
  std::int32_t BarOf(std::int32_t date);
};
