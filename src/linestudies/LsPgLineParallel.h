#pragma once
// CLsPgLineParallel: the line tab of a parallel channel: three rows and "Show price box".

#include "linestudies/LsPgLineBase.h"

class CLsPgLineParallel final : public CLsPgLineBase<IDD_LS_PG_LINE_PARALLEL> {
 public:
  static constexpr const char* kName = "LsPgLineParallel";

  CLsPgLineParallel() : CLsPgLineBase("CParallel") { rows_ = 3; }

  bool Load(XmlNode propertyPage) override;
  void Save(XmlNode propertyPage) override;
  bool Exchange(bool save, int controlId) override;

  bool ShowPriceBox() const { return showPriceBox_; }

 private:
  bool showPriceBox_ = true;  // as the Fibonacci tab's
};
