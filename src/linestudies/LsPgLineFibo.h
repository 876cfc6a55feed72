#pragma once
// CLsPgLineFibo: the line tab of a Fibonacci study: ten rows, or eleven for the study with three
// anchors, each with a ratio box, and the boxes "Show ratio labels", "Extend retracement lines"
// and "Show price box", each offered only for the kinds of study that use it (LS_Style on
// CFibonacci: 1 has no labels, 2 extends, 0 has no price box, 3 has three anchors).

#include "linestudies/LsPgLineBase.h"

class CLsPgLineFibo final : public CLsPgLineBase<IDD_LS_PG_LINE_FIBO> {
 public:
  static constexpr const char* kName = "LsPgLineFibo";
  static constexpr int kTemplateRows = 11;

  CLsPgLineFibo() : CLsPgLineBase("CFibonacci") {}

  bool Load(XmlNode propertyPage) override;
  void Save(XmlNode propertyPage) override;
  bool OnInit() override;
  bool Exchange(bool save, int controlId) override;

  std::int32_t Style() const { return style_; }
  bool ShowLabels() const { return showLabels_; }
  bool ShowPriceBox() const { return showPriceBox_; }
  bool ExtendRetracement() const { return extendRetr_; }
  const std::vector<double>& Multipliers() const { return multipliers_.items; }

 private:
  std::int32_t style_ = 0;
  bool showLabelsEnabled_ = true;
  bool showLabels_ = true;
  bool priceBoxEnabled_ = false;
  bool showPriceBox_ = true;
  bool extendEnabled_ = false;
  bool extendRetr_ = false;
  TVector<double> multipliers_;
};
