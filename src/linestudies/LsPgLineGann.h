#pragma once
// CLsPgLineGann: the line tab of a Gann study: nine rows without ratio boxes under the heading
// "Show". A study of one line shows its colour, style and weight only, on the first row.

#include "linestudies/LsPgLineBase.h"

class CLsPgLineGann final : public CLsPgLineBase<IDD_LS_PG_LINE_GANN> {
 public:
  static constexpr const char* kName = "LsPgLineGann";
  static constexpr int kTemplateRows = 9;

  CLsPgLineGann() : CLsPgLineBase("CGann") {}

  bool Load(XmlNode propertyPage) override;
  bool OnInit() override;

  bool Single() const { return single_; }

 private:
  bool single_ = false;
};
