#pragma once
// CLsPgLinePfork: the line tab of a pitchfork: four rows, each with a ratio box (Multiplier).

#include "linestudies/LsPgLineBase.h"

class CLsPgLinePfork final : public CLsPgLineBase<IDD_LS_PG_LINE_PFORK> {
 public:
  static constexpr const char* kName = "LsPgLinePfork";

  CLsPgLinePfork() : CLsPgLineBase("CPitchfork") { rows_ = 4; }

  bool Load(XmlNode propertyPage) override;
  void Save(XmlNode propertyPage) override;
  bool Exchange(bool save, int controlId) override;

  const std::vector<double>& Multipliers() const { return multipliers_.items; }

 private:
  TVector<double> multipliers_;
};
