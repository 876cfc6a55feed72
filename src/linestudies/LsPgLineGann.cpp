#include "linestudies/LsPgLineGann.h"

bool CLsPgLineGann::Load(XmlNode propertyPage) {
  XmlNode gann = XmlFindChild(propertyPage, wrapper_);
  if (!gann) return false;
  CLsPgLineTab::Load(gann);
  single_ = lines_.items.size() == 1;
  rows_ = single_ ? 1 : kTemplateRows;
  return true;
}

bool CLsPgLineGann::OnInit() {
  const bool result = CLsPgLineTab::OnInit();
  if (single_) {
    // One line: no heading, no name and no visibility box; the other rows go.
    orv::Controls& c = Ctl();
    for (int id : {IDC_LS_GANN_SHOW_HEADING, RowId(0, kNameBox), RowId(0, kVisibleBox)}) c.ShowDlgItem(id, false);
    for (int row = 1; row < kTemplateRows; ++row) {
      for (int column = kNameBox; column <= kRatioBox; ++column) {
        if (c.HasDlgItem(RowId(row, column))) c.ShowDlgItem(RowId(row, column), false);
      }
    }
  }
  return result;
}
