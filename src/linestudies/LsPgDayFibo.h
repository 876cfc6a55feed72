#pragma once
// CLsPgDayFibo: a Fibonacci study placed by the dates of its anchors, with the font of its labels.

#include "linestudies/LsPgFibo.h"

class CLsPgDayFibo final : public CLsPgFibo<CLsPgDayBase<IDD_LS_PG_DAY_FIBO>> {
 public:
  static constexpr const char* kName = "LsPgDayFibo";
  CLsPgDayFibo() : CLsPgFibo({"CFibonacci", IDC_LS_DAY_FIBO_SNAP, true}, IDC_LS_DAY_FIBO_FONT) {}
};
