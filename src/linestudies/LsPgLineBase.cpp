#include "linestudies/LsPgLineBase.h"

#include <algorithm>

namespace {

// Lines of a TVector: a LineProp found by a deep search from the item (the item itself, what it
// holds, then the items after it).
void ReadLineItem(XmlNode item, CLineProp& line) { ReadLinePropElements(XmlFindNode(item, "LineProp", true), line); }

void WriteLineItem(XmlNode list, const char* name, const CLineProp& line) {
  WriteLinePropElements(XmlAddChild(XmlAddChild(list, name), "LineProp"), line);
}

}  // namespace

CLsPgLineTab::~CLsPgLineTab() = default;

bool CLsPgLineTab::Load(XmlNode element) {
  XmlNode wrapper = XmlFindNode(element, wrapper_, true);
  if (!wrapper) return false;
  lines_.Read(XmlFindChild(wrapper, "TVLineProps"), ReadLineItem);
  return true;
}

void CLsPgLineTab::Save(XmlNode propertyPage) {
  XmlNode wrapper = XmlAddChild(propertyPage, wrapper_);
  lines_.Write(XmlAddChild(wrapper, "TVLineProps"), WriteLineItem);
}

void CLsPgLineTab::ReadBool(XmlNode parent, const char* name, bool& value) {
  std::int32_t read = value ? 1 : 0;
  XmlGetChildValue(parent, name, read);
  value = read != 0;
}

void CLsPgLineTab::AddBool(XmlNode parent, const char* name, bool value) {
  XmlAddValueChild(parent, name, value ? 1 : 0, XmlValueKind::Bool);
}

void CLsPgLineTab::ReadRatios(XmlNode wrapper, TVector<double>& ratios) {
  ratios.Read(XmlFindChild(wrapper, "Multiplier"), ReadDoubleItem);
}

void CLsPgLineTab::WriteRatios(XmlNode wrapper, const TVector<double>& ratios) {
  ratios.Write(XmlAddChild(wrapper, "Multiplier"), WriteDoubleItem);
}

bool CLsPgLineTab::OnInit() {
  updating_ = true;
  orv::Controls& c = Ctl();
  if (lines_.items.size() < static_cast<std::size_t>(rows_)) lines_.items.resize(rows_);
  heldColors_.resize(std::max<std::size_t>(heldColors_.size(), rows_), 0);
  for (int row = 0; row < rows_; ++row) {
    c.SetDlgItemTextA(RowId(row, kNameBox), lines_.items[row].Name);
    orv::FillLineChoices(c, RowId(row, kStyleBox), orv::LineStyleChoices());
    orv::FillLineChoices(c, RowId(row, kWeightBox), orv::LineWeightChoices());
  }
  AttachColorButtons();
  Exchange(false, -1);
  c.SetFocus(RowId(0, kColorButton));
  updating_ = false;
  return false;  // the focus is set
}

void CLsPgLineTab::ReloadWindow() {
  updating_ = true;
  Exchange(false, -1);
  updating_ = false;
}

void CLsPgLineTab::AttachColorButtons() {
  std::unique_ptr<orv::PageColorButtons> buttons = orv::MakePageColorButtons();
  if (!buttons) return;
  for (int row = 0; row < rows_; ++row) buttons->Attach(Window(), RowId(row, kColorButton), false, heldColors_[row]);
  buttons_[Window()] = std::move(buttons);
}

orv::PageColorButtons* CLsPgLineTab::Buttons() const {
  const auto found = buttons_.find(Window());
  return found == buttons_.end() ? nullptr : found->second.get();
}

std::uint32_t CLsPgLineTab::ButtonColor(int id) const {
  const int row = (id - kFirstRowId) / kRowStep;
  if (id < kFirstRowId || (id - kFirstRowId) % kRowStep != kColorButton ||
      static_cast<std::size_t>(row) >= heldColors_.size())
    throw XmlComError(orv::kStatusInvalidArg, "line tab: no such colour button");
  if (orv::PageColorButtons* buttons = Buttons(); buttons && buttons->IsAttached(id)) return buttons->Color(id);
  return heldColors_[row];
}

void CLsPgLineTab::SetButtonColor(int id, std::uint32_t color) {
  const int row = (id - kFirstRowId) / kRowStep;
  if (id < kFirstRowId || (id - kFirstRowId) % kRowStep != kColorButton || row >= rows_)
    throw XmlComError(orv::kStatusInvalidArg, "line tab: no such colour button");
  if (heldColors_.size() <= static_cast<std::size_t>(row)) heldColors_.resize(row + 1, 0);
  heldColors_[row] = color;
  if (orv::PageColorButtons* buttons = Buttons(); buttons && buttons->IsAttached(id)) buttons->SetColor(id, color);
}

void CLsPgLineTab::ExchangeRow(int row, bool save, int controlId) {
  CLineProp& line = lines_.items[row];
  const int visible = RowId(row, kVisibleBox);
  if (Covers(controlId, visible)) {
    bool shown = line.Set != 0;
    DDX_Check(visible, &shown, save);
    line.Set = shown ? 1 : 0;
  }
  // A line thicker than thin is drawn solid, whatever came in or was chosen.
  if (!save && line.Weight > 1) line.Style = 0;
  int style = line.Style;
  int weight = line.Weight;
  DDX_ComboData(RowId(row, kStyleBox), &style, save);
  DDX_ComboData(RowId(row, kWeightBox), &weight, save);
  line.Style = style;
  line.Weight = weight;
  if (save) {
    line.Color = ButtonColor(RowId(row, kColorButton));
  } else {
    SetButtonColor(RowId(row, kColorButton), line.Color);
  }
  if (line.Weight > 1) line.Style = 0;
}

bool CLsPgLineTab::Exchange(bool save, int controlId) {
  if (lines_.items.size() < static_cast<std::size_t>(rows_)) lines_.items.resize(rows_);
  for (int row = 0; row < rows_; ++row) ExchangeRow(row, save, controlId);
  return true;
}

bool CLsPgLineTab::ExchangeRatios(TVector<double>& ratios, bool save, int controlId) {
  for (int row = 0; row < rows_; ++row) {
    const int box = RowId(row, kRatioBox);
    if (!Covers(controlId, box)) continue;
    if (ratios.items.size() <= static_cast<std::size_t>(row)) ratios.items.resize(row + 1, 0.0);
    if (!DDX_Float(box, &ratios.items[row], save)) return false;
  }
  return true;
}

void CLsPgLineTab::ExchangeCheck(int id, bool& value, bool save, int controlId) {
  if (Covers(controlId, id)) DDX_Check(id, &value, save);
}

void CLsPgLineTab::ShowAndEnable(int id, bool on) {
  Ctl().EnableDlgItem(id, on);
  Ctl().ShowDlgItem(id, on);
}

void CLsPgLineTab::OnCommand(int id, int code) {
  if (id < kFirstCommandId || id > kLastCommandId) return;
  if (code == orv::kBnClicked || code == orv::kEnChange || code == orv::kCbnSelChange) SetModified(true);
}

void CLsPgLineTab::SetModified(bool flag) {
  if (updating_) return;
  if (flag) {
    Ctl().SheetChanged();
  } else {
    Ctl().SheetUnchanged();
  }
  dirty_ = flag;
}

orv::ApplyResult CLsPgLineTab::OnApply() {
  // The sheet reads the page while it is still dirty, then the page is clean.
  if (dirty_) Ctl().SendPageApply(DialogId());
  dirty_ = false;
  return orv::ApplyResult::NoError;
}
