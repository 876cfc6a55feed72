#pragma once
// CLsPgIntraVert: a vertical line, placed by its bar alone: the spin with the bar's date, time
// and tick. No value and no lock box; saving takes nothing from the controls but the bar.

#include "linestudies/LsPgTrendline.h"

class CLsPgIntraVert final : public CLsPgTrendline<CLsPgIntraBase<IDD_LS_PG_INTRA_VERT>> {
 public:
  static constexpr const char* kName = "LsPgIntraVert";
  CLsPgIntraVert() : CLsPgTrendline({"CTrendline", 0, 0, 0, 0, false, false}) { valueId_ = 0; }
};
