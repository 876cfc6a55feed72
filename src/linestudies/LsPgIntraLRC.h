#pragma once
// CLsPgIntraLRC: the linear regression channel by bar position: extend boxes, the channel's multiplier (kept as text)
// and the snap box.

#include "linestudies/LsPgTrendline.h"

class CLsPgIntraLRC final : public CLsPgTrendline<CLsPgIntraBase<IDD_LS_PG_INTRA_LRC>> {
 public:
  static constexpr const char* kName = "LsPgIntraLRC";
  CLsPgIntraLRC()
      : CLsPgTrendline({"CLinRegChan", IDC_LS_INTRA_TREND_SNAP, IDC_LS_INTRA_EXTEND_LEFT, IDC_LS_INTRA_EXTEND_RIGHT,
                        IDC_LS_LRC_MULTIPLIER, true, true}) {}
};
