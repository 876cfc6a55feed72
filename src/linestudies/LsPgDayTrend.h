#pragma once
// CLsPgDayTrend: a trendline placed by the dates of its start and end, with its extend boxes and snap box.

#include "linestudies/LsPgTrendline.h"

class CLsPgDayTrend final : public CLsPgTrendline<CLsPgDayBase<IDD_LS_PG_DAY_TREND>> {
 public:
  static constexpr const char* kName = "LsPgDayTrend";
  CLsPgDayTrend()
      : CLsPgTrendline(
            {"CTrendline", IDC_LS_DAY_TREND_SNAP, IDC_LS_DAY_EXTEND_LEFT, IDC_LS_DAY_EXTEND_RIGHT, 0, true, true}) {}
};
