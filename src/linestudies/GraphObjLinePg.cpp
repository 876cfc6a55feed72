#include "linestudies/GraphObjLinePg.h"

#include "linestudies/XYCoord.h"

namespace {

bool Covers(int controlId, int id) { return controlId == -1 || controlId == id; }

}  // namespace

CLineProp& CLinePgBase::Line(int index) {
  if (lines_.size() <= static_cast<std::size_t>(index)) lines_.resize(index + 1);
  return lines_[index];
}

bool CLinePgBase::Load(XmlNode propertyPage) {
  XmlNode list = XmlFindNode(propertyPage, "LineList", true);
  int index = 0;
  for (XmlNode child = XmlFirstChild(list); child && index < kMaxLines; child = XmlNextSibling(child)) {
    if (!LsIsElement(child)) continue;
    ReadLinePropAttrs(child, Line(index++));
  }
  if (XmlNode useShowPrice = XmlFindNode(propertyPage, "UseShowPrice", true)) {
    showPriceUsed_ = true;
    std::int32_t shown = showPrice_ ? 1 : 0;
    XmlGetAttrValue(useShowPrice, "ShowPrice", shown);
    showPrice_ = shown != 0;
  }
  return true;
}

void CLinePgBase::Save(XmlNode propertyPage) {
  XmlNode list = XmlAddChild(propertyPage, "LineList");
  for (const CLineProp& line : lines_) WriteLinePropAttrs(XmlAddChild(list, "Line"), line);
  if (showPriceUsed_) {
    XmlNode useShowPrice = XmlAddChild(propertyPage, "UseShowPrice");
    XmlSetAttrValue(useShowPrice, "ShowPrice", showPrice_ ? 1 : 0, XmlValueKind::Bool);
  }
}

orv::PageColorButtons* CLinePgBase::Buttons() const {
  const auto found = buttons_.find(Window());
  return found == buttons_.end() ? nullptr : found->second.get();
}

std::uint32_t CLinePgBase::ButtonColor() const {
  if (orv::PageColorButtons* buttons = Buttons(); buttons && buttons->IsAttached(IDC_LINE_PG_COLOR))
    return buttons->Color(IDC_LINE_PG_COLOR);
  return heldColor_;
}

void CLinePgBase::SetButtonColor(std::uint32_t color) {
  heldColor_ = color;
  if (orv::PageColorButtons* buttons = Buttons(); buttons && buttons->IsAttached(IDC_LINE_PG_COLOR))
    buttons->SetColor(IDC_LINE_PG_COLOR, color);
}

bool CLinePgBase::OnInit() {
  updating_ = true;
  orv::Controls& c = Ctl();
  orv::FillLineChoices(c, IDC_LINE_PG_STYLE, orv::LineStyleChoices());
  orv::FillLineChoices(c, IDC_LINE_PG_WEIGHT, orv::LineWeightChoices());
  for (int id : {IDC_LINE_PG_LABEL, IDC_LINE_PG_LIST}) {
    c.EnableDlgItem(id, true);
    c.ShowDlgItem(id, true);
  }
  c.EnableDlgItem(IDC_LINE_PG_SHOW_GRID, kind_ == 1);
  c.ShowDlgItem(IDC_LINE_PG_SHOW_GRID, kind_ == 1);
  c.EnableDlgItem(IDC_LINE_PG_SHOW_PRICE, showPriceUsed_);
  c.ShowDlgItem(IDC_LINE_PG_SHOW_PRICE, showPriceUsed_);
  if (std::unique_ptr<orv::PageColorButtons> buttons = orv::MakePageColorButtons()) {
    buttons->Attach(Window(), IDC_LINE_PG_COLOR, false, heldColor_);
    buttons_[Window()] = std::move(buttons);
  }
  updating_ = false;
  FillList();
  Exchange(false, -1);
  return true;
}

void CLinePgBase::ReloadWindow() {
  updating_ = true;
  FillList();
  Exchange(false, -1);
  updating_ = false;
}

void CLinePgBase::FillList() {
  orv::Controls& c = Ctl();
  c.ListResetContent(IDC_LINE_PG_LIST);
  // A line without a name can't be chosen, but stays and is saved.
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (!lines_[i].Name.empty()) c.ListAddString(IDC_LINE_PG_LIST, lines_[i].Name, static_cast<std::intptr_t>(i));
  }
  c.ListSetCurSel(IDC_LINE_PG_LIST, c.ListFindItemData(IDC_LINE_PG_LIST, selected_));
}

void CLinePgBase::ApplyFlagRule(const CLineProp& line) {
  const bool style = (line.Flags & orv::kLineFlagNoStyle) == 0;
  const bool weight = (line.Flags & orv::kLineFlagNoWeight) == 0;
  for (int id : {IDC_LINE_PG_STYLE_LABEL, IDC_LINE_PG_STYLE}) Ctl().ShowDlgItem(id, style);
  for (int id : {IDC_LINE_PG_WEIGHT_LABEL, IDC_LINE_PG_WEIGHT}) Ctl().ShowDlgItem(id, weight);
}

bool CLinePgBase::Exchange(bool save, int controlId) {
  orv::Controls& c = Ctl();
  if (save) {
    // Into the line whose values the controls hold (the array grows to reach it).
    CLineProp& line = Line(lastShown_);
    line.Color = ButtonColor();
    StoreStyleAndWeight(line);
  } else {
    const CLineProp& shown = Line(selected_);
    ApplyFlagRule(shown);
    SetButtonColor(shown.Color);
    int style = shown.Style;
    int weight = shown.Weight;
    DDX_ComboData(IDC_LINE_PG_STYLE, &style, false);
    DDX_ComboData(IDC_LINE_PG_WEIGHT, &weight, false);
  }
  if (Covers(controlId, IDC_LINE_PG_SHOW_GRID)) {
    if (save) {
      showGrid_ = c.IsDlgButtonChecked(IDC_LINE_PG_SHOW_GRID);
    } else {
      c.CheckDlgButton(IDC_LINE_PG_SHOW_GRID, showGrid_ >= 0 && showGrid_ <= 2 ? showGrid_ : 0);
    }
  }
  if (Covers(controlId, IDC_LINE_PG_SHOW_PRICE)) DDX_Check(IDC_LINE_PG_SHOW_PRICE, &showPrice_, save);
  return true;
}

void CLinePgBase::StoreStyleAndWeight(CLineProp& line) {
  int style = line.Style;
  int weight = line.Weight;
  DDX_ComboData(IDC_LINE_PG_STYLE, &style, true);
  DDX_ComboData(IDC_LINE_PG_WEIGHT, &weight, true);
  line.Style = style;
  line.Weight = weight;
}

void CLinePgBase::OnSelectLine() {
  orv::Controls& c = Ctl();
  const int item = c.ListGetCurSel(IDC_LINE_PG_LIST);
  if (item < 0) return;
  selected_ = static_cast<int>(c.ListGetItemData(IDC_LINE_PG_LIST, item));
  if (Exchange(true, -1) && lastShown_ != selected_) {
    Exchange(false, -1);
    lastShown_ = selected_;
  }
  Repaint();
}

void CLinePgBase::OnCommand(int id, int code) {
  switch (id) {
    case IDC_LINE_PG_LIST:
      if (code == orv::kLbnSelChange) OnSelectLine();
      break;
    case IDC_LINE_PG_COLOR:
      if (code != orv::kBnClicked) break;
      if (!updating_) SetModified(true);
      // The drop-down opens on the selected line's colour.
      SetButtonColor(Line(selected_).Color);
      break;
    case IDC_LINE_PG_STYLE:
      if (code == orv::kCbnSelChange && !updating_) SetModified(true);
      break;
    case IDC_LINE_PG_WEIGHT:
      if (code != orv::kCbnSelChange) break;
      StoreStyleAndWeight(Line(selected_));
      if (!updating_) SetModified(true);
      break;
    case IDC_LINE_PG_SHOW_GRID:
    case IDC_LINE_PG_SHOW_PRICE:
      if (code == orv::kBnClicked && !updating_) SetModified(true);
      break;
    default:
      break;
  }
}

void CLinePgBase::SetModified(bool flag) {
  if (flag) {
    Ctl().SheetChanged();
  } else {
    Ctl().SheetUnchanged();
  }
  SetDirty(flag);
}

orv::ApplyResult CLinePgBase::OnApply() {
  if (!Exchange(true, -1)) return orv::ApplyResult::Invalid;
  if (dirty_) Ctl().SendPageApply(DialogId());
  dirty_ = false;
  return orv::ApplyResult::NoError;
}
