#pragma once
// CLsPgDayParallel: a parallel channel placed by the dates of its two sides.

#include "linestudies/LsPgParallel.h"

class CLsPgDayParallel final : public CLsPgParallel<CLsPgDayBase<IDD_LS_PG_DAY_PARALLEL>> {
 public:
  static constexpr const char* kName = "LsPgDayParallel";
  CLsPgDayParallel() : CLsPgParallel({"CParallel", IDC_LS_DAY_TREND_SNAP, true}) {}
};
