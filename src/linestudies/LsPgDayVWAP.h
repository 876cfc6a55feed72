#pragma once
// CLsPgDayVWAP: the volume weighted average price from a start date; it extends only to the right.

#include "linestudies/LsPgTrendline.h"

class CLsPgDayVWAP final : public CLsPgTrendline<CLsPgDayBase<IDD_LS_PG_DAY_VWAP>> {
 public:
  static constexpr const char* kName = "LsPgDayVWAP";
  CLsPgDayVWAP()
      : CLsPgTrendline({"VolWgtAvgPrice", IDC_LS_DAY_VWAP_SNAP, 0, IDC_LS_DAY_EXTEND_RIGHT, 0, true, true}) {}
};
