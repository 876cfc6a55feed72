#pragma once
// CLsPgDayGann: a Gann study placed by the dates of its start and end. Snapping vertex 0 by best fit
// leaves the end's snap box on.

#include "linestudies/LsPgAnchors.h"

class CLsPgDayGann final : public CLsPgAnchors<CLsPgDayBase<IDD_LS_PG_DAY_GANN>> {
 public:
  static constexpr const char* kName = "LsPgDayGann";
  CLsPgDayGann() : CLsPgAnchors({"CGann", IDC_LS_DAY_TREND_SNAP, false}) {}
};
