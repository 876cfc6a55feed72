#include "linestudies/LsPgLineFibo.h"

bool CLsPgLineFibo::Load(XmlNode propertyPage) {
  XmlNode fibonacci = XmlFindChild(propertyPage, wrapper_);
  if (!fibonacci) return false;
  ReadBool(fibonacci, "LSFib_ExtendRetr", extendRetr_);
  ReadBool(fibonacci, "LSFib_ShowLabels", showLabels_);
  ReadBool(fibonacci, "ShowPriceBox", showPriceBox_);
  // An attribute here, where the Day position page reads an element of CLineStudy.
  style_ = 0;
  XmlGetAttrValue(fibonacci, "LS_Style", style_);
  showLabelsEnabled_ = style_ != 1;
  extendEnabled_ = style_ == 2;
  priceBoxEnabled_ = style_ != 0;
  rows_ = style_ == 3 ? 11 : 10;
  CLsPgLineTab::Load(fibonacci);
  ReadRatios(fibonacci, multipliers_);
  return true;
}

void CLsPgLineFibo::Save(XmlNode propertyPage) {
  CLsPgLineTab::Save(propertyPage);
  XmlNode fibonacci = SavedWrapper(propertyPage);
  AddBool(fibonacci, "LSFib_ExtendRetr", extendRetr_);
  AddBool(fibonacci, "LSFib_ShowLabels", showLabels_);
  AddBool(fibonacci, "ShowPriceBox", showPriceBox_);
  WriteRatios(fibonacci, multipliers_);
}

bool CLsPgLineFibo::OnInit() {
  ShowAndEnable(IDC_LS_FIB_SHOW_LABELS, showLabelsEnabled_);
  ShowAndEnable(IDC_LS_FIB_EXTEND, extendEnabled_);
  ShowAndEnable(IDC_LS_LINE_PRICE_BOX, priceBoxEnabled_);
  const bool result = CLsPgLineTab::OnInit();
  // The list has grown to the rows; the template's rows past its lines are hidden.
  const int count = static_cast<int>(lines_.items.size());
  if (count < kTemplateRows) {
    for (int row = count; row < kTemplateRows; ++row) {
      for (int column = kNameBox; column <= kRatioBox; ++column) {
        if (Ctl().HasDlgItem(RowId(row, column))) Ctl().ShowDlgItem(RowId(row, column), false);
      }
    }
  }
  return result;
}

bool CLsPgLineFibo::Exchange(bool save, int controlId) {
  if (!CLsPgLineTab::Exchange(save, controlId)) return false;
  ExchangeCheck(IDC_LS_FIB_SHOW_LABELS, showLabels_, save, controlId);
  ExchangeCheck(IDC_LS_FIB_EXTEND, extendRetr_, save, controlId);
  ExchangeCheck(IDC_LS_LINE_PRICE_BOX, showPriceBox_, save, controlId);
  return ExchangeRatios(multipliers_, save, controlId);
}
