#pragma once
// CLsPgIntraFibo: a Fibonacci study placed by the bars of its start and end, with the font of its labels.

#include "linestudies/LsPgFibo.h"

class CLsPgIntraFibo final : public CLsPgFibo<CLsPgIntraBase<IDD_LS_PG_INTRA_FIBO>> {
 public:
  static constexpr const char* kName = "LsPgIntraFibo";
  CLsPgIntraFibo() : CLsPgFibo({"CFibonacci", IDC_LS_INTRA_FIBO_SNAP, true}, IDC_LS_INTRA_FIBO_FONT) {}
};
