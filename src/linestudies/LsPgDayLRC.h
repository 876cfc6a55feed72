#pragma once
// CLsPgDayLRC: the linear regression channel by date: extend boxes, the channel's multiplier
// (kept as text) and the snap box. The channel's prices come from the fit, so the value box is
// shown but can't be edited.

#include "linestudies/LsPgTrendline.h"

class CLsPgDayLRC final : public CLsPgTrendline<CLsPgDayBase<IDD_LS_PG_DAY_LRC>> {
 public:
  static constexpr const char* kName = "LsPgDayLRC";
  CLsPgDayLRC()
      : CLsPgTrendline({"CLinRegChan", IDC_LS_DAY_LRC_SNAP, IDC_LS_DAY_EXTEND_LEFT, IDC_LS_DAY_EXTEND_RIGHT,
                        IDC_LS_LRC_MULTIPLIER, true, true}) {}

 protected:
  void UpdateControls() override {
    CLsPgTrendline::UpdateControls();
    Ctl().EnableDlgItem(IDC_LS_DAY_VALUE, false);
  }
};
