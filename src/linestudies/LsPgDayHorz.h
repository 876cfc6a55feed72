#pragma once
// CLsPgDayHorz: a horizontal line, placed by its value alone. With the snap "Avg Close" the
// line stands at the mean the host computed (Mean), whatever value it had before.

#include "linestudies/LsPgTrendline.h"

class CLsPgDayHorz final : public CLsPgTrendline<CLsPgDayBase<IDD_LS_PG_DAY_HORZ>> {
 public:
  static constexpr const char* kName = "LsPgDayHorz";
  CLsPgDayHorz() : CLsPgTrendline({"CTrendline", IDC_LS_DAY_HORZ_SNAP, 0, 0, 0, false, false}) {}

  // Mean, a direct child of the PropertyPage; read, never written back.
  bool Load(XmlNode propertyPage) override {
    const bool loaded = CLsPgTrendline::Load(propertyPage);
    LsGetChildDouble(propertyPage, "Mean", meanValue_);
    return loaded;
  }

  double MeanValue() const { return meanValue_; }

 protected:
  void BeforeControlsLoaded() override { TakeMean(); }

  void OnSnapChanged() override {
    if (!TakeMean()) return;
    // Show the mean now that the line stands there.
    const bool wasUpdating = updating_;
    updating_ = true;
    ExchangeValue(false, -1);
    updating_ = wasUpdating;
  }

 private:
  bool TakeMean() {
    CXYCoord& start = Point(0);
    if (start.lSnap != kSnapAvgClose) return false;
    start.yValue = meanValue_;
    return true;
  }

  double meanValue_ = 0.0;
};
