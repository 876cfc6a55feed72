#pragma once
// CLsPgIntraVWAP: the volume weighted average price from a start bar; it extends only to the right.

#include "linestudies/LsPgTrendline.h"

class CLsPgIntraVWAP final : public CLsPgTrendline<CLsPgIntraBase<IDD_LS_PG_INTRA_VWAP>> {
 public:
  static constexpr const char* kName = "LsPgIntraVWAP";
  CLsPgIntraVWAP()
      : CLsPgTrendline({"VolWgtAvgPrice", IDC_LS_INTRA_TREND_SNAP, 0, IDC_LS_INTRA_EXTEND_RIGHT, 0, true, true}) {}
};
