#pragma once
// CLsPgIntraGann: a Gann study placed by the bars of its start and end. Snapping vertex 0 by best fit
// leaves the end's snap box on.

#include "linestudies/LsPgAnchors.h"

class CLsPgIntraGann final : public CLsPgAnchors<CLsPgIntraBase<IDD_LS_PG_INTRA_GANN>> {
 public:
  static constexpr const char* kName = "LsPgIntraGann";
  CLsPgIntraGann() : CLsPgAnchors({"CGann", IDC_LS_INTRA_TREND_SNAP, false}) {}
};
