#pragma once
// CLsPgIntraTrend: a trendline placed by the bars of its start and end, with its extend boxes and snap box.

#include "linestudies/LsPgTrendline.h"

class CLsPgIntraTrend final : public CLsPgTrendline<CLsPgIntraBase<IDD_LS_PG_INTRA_TREND>> {
 public:
  static constexpr const char* kName = "LsPgIntraTrend";
  CLsPgIntraTrend()
      : CLsPgTrendline({"CTrendline", IDC_LS_INTRA_TREND_SNAP, IDC_LS_INTRA_EXTEND_LEFT, IDC_LS_INTRA_EXTEND_RIGHT, 0,
                        true, true}) {}
};
