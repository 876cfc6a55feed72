#pragma once
// CLsPgIntraParallel: a parallel channel placed by the bars of its two sides.

#include "linestudies/LsPgParallel.h"

class CLsPgIntraParallel final : public CLsPgParallel<CLsPgIntraBase<IDD_LS_PG_INTRA_PARALLEL>> {
 public:
  static constexpr const char* kName = "LsPgIntraParallel";
  CLsPgIntraParallel() : CLsPgParallel({"CParallel", IDC_LS_DAY_TREND_SNAP, true}) {}
};
