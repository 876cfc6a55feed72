#include "linestudies/LsPgAdvanced.h"

namespace {

constexpr int kAttachButtons[] = {IDC_LS_ATTACH_SYMBOL, IDC_LS_ATTACH_CHART, IDC_LS_ATTACH_SCREEN};

}  // namespace

bool CLsPgAdvanced::Load(XmlNode propertyPage) {
  // The kind of study is the sheet's: two levels up, past the PropertyPageList.
  XmlNode sheet = XmlGetParent(XmlGetParent(propertyPage));
  if (!sheet) throw XmlComError(orv::kStatusPointer, "LsPgAdvanced: the page has no PropertySheet above it");
  XmlGetAttrValue(sheet, "Kind", kind_);

  std::int32_t alwaysVisible = 0;
  XmlGetChildValue(propertyPage, "AlwaysVisible", alwaysVisible);
  attach_ = alwaysVisible ? kAttachChart : kAttachSymbol;
  std::int32_t screenAnchor = 0;
  if (XmlGetChildValue(propertyPage, "LSTxt_ScrnAnch", screenAnchor) && screenAnchor) attach_ = kAttachScreen;
  return true;
}

void CLsPgAdvanced::Save(XmlNode propertyPage) {
  XmlAddValueChild(propertyPage, "AlwaysVisible", attach_ > kAttachSymbol ? 1 : 0, XmlValueKind::Bool);
  XmlAddValueChild(propertyPage, "LSTxt_ScrnAnch", attach_ == kAttachScreen ? 1 : 0, XmlValueKind::Bool);
}

bool CLsPgAdvanced::OnInitPage() {
  updating_ = true;
  UpdateControls();
  for (int i = 0; i < 3; ++i)
    Ctl().CheckDlgButton(kAttachButtons[i], i == attach_ ? orv::kBstChecked : orv::kBstUnchecked);
  updating_ = false;
  return true;
}

void CLsPgAdvanced::UpdateControls() {
  // Hidden in the template; only one kind of study can stay put on the screen.
  Ctl().ShowDlgItem(IDC_LS_ATTACH_SCREEN, kind_ == kKindWithScreenAnchor);
}

void CLsPgAdvanced::OnCommand(int id, int code) {
  if (code != orv::kBnClicked || updating_) return;
  if (id == IDC_LS_ATTACH_SYMBOL || id == IDC_LS_ATTACH_CHART || id == IDC_LS_ATTACH_SCREEN) SetModified(true);
}

void CLsPgAdvanced::SetModified(bool modified) {
  dirty_ = modified;
  if (modified) Ctl().SheetChanged();
}

void CLsPgAdvanced::ReadAttachGroup() {
  for (int i = 0; i < 3; ++i) {
    if (Ctl().IsDlgButtonChecked(kAttachButtons[i]) == orv::kBstChecked) {
      attach_ = i;
      return;
    }
  }
}

// The page applies when it is left (and so on Apply and OK, which leave it first): the sheet
// then sends its values to the host at once.
bool CLsPgAdvanced::OnKillActive() {
  ReadAttachGroup();
  if (dirty_) {
    Ctl().SendPageApply(kDialogId);
    dirty_ = false;
  }
  return true;
}
