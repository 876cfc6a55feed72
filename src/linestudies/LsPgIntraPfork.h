#pragma once
// CLsPgIntraPfork: a pitchfork placed by the bars of its start and two anchors.

#include "linestudies/LsPgAnchors.h"

class CLsPgIntraPfork final : public CLsPgAnchors<CLsPgIntraBase<IDD_LS_PG_INTRA_PFORK>> {
 public:
  static constexpr const char* kName = "LsPgIntraPfork";
  CLsPgIntraPfork() : CLsPgAnchors({"CPitchfork", IDC_LS_INTRA_TREND_SNAP, true}) {}
};
