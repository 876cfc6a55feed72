#pragma once
// CLsPgDayPfork: a pitchfork placed by the dates of its start and two anchors.

#include "linestudies/LsPgAnchors.h"

class CLsPgDayPfork final : public CLsPgAnchors<CLsPgDayBase<IDD_LS_PG_DAY_PFORK>> {
 public:
  static constexpr const char* kName = "LsPgDayPfork";
  CLsPgDayPfork() : CLsPgAnchors({"CPitchfork", IDC_LS_DAY_TREND_SNAP, true}) {}
};
