#pragma once
// CLsPgDayVert: a vertical line, placed by its date alone (no value, no snap). Its vertex
// buttons stay hidden as the template has them.

#include "linestudies/LsPgTrendline.h"

class CLsPgDayVert final : public CLsPgTrendline<CLsPgDayBase<IDD_LS_PG_DAY_VERT>> {
 public:
  static constexpr const char* kName = "LsPgDayVert";
  CLsPgDayVert() : CLsPgTrendline({"CTrendline", 0, 0, 0, 0, false, false}) { valueId_ = 0; }
};
