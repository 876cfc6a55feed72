#include "chartpages/GenXAxisPpg.h"

#include <string>

#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"
#include "format/Calendar.h"
#include "format/DateFormat.h"
#include "xml/StrFormat.h"

namespace {

// A three-state value as the page shows it: 0 to 2, anything else counts as 0.
std::int32_t ButtonState(std::int32_t value) { return value < 0 || value > 2 ? 0 : value; }

// Selects the row holding `id`; none holds it: no row is selected.
void SelectById(orv::Controls& c, int list, std::int32_t id) { c.ComboSetCurSel(list, c.ComboFindItemData(list, id)); }

// The selected row's id into `id`; without a selection `id` stays.
void ReadSelection(orv::Controls& c, int list, std::int32_t& id) {
  const int selection = c.ComboGetCurSel(list);
  if (selection >= 0) id = static_cast<std::int32_t>(c.ComboGetItemData(list, selection));
}

}  // namespace

CGenXAxisPpg::CGenXAxisPpg(const orv::Clock& clock) : clock_(clock) {
  info_.dialogId = IDD_GEN_XAXIS_PPG;
  info_.rootName = kRootName;
  info_.scope = 0;
  info_.title = "General";
  info_.titleId = IDS_GEN_XAXIS_PPG_TITLE;
}

bool CGenXAxisPpg::Save(XmlNode root) {
  props_.Write(root);
  return true;
}

bool CGenXAxisPpg::Validate() { return !hasWindow_ || Exchange(true); }

void CGenXAxisPpg::OnWindowClosing() {
  if (!hasWindow_) return;
  quiet_ = true;
  Exchange(true);
  quiet_ = false;
  hasWindow_ = false;
}

void CGenXAxisPpg::Refuse(int id, const std::string& text) {
  if (quiet_) return;
  Ctl().OrvMessageBox(text, "", 0);
  Ctl().SetFocus(id);
}

void CGenXAxisPpg::OnDataValidateError(int id, bool, const CDataValidateError& error) {
  if (id == IDC_XA_MARGIN && error.nDataType == CDataValidateError::kInt) {
    Refuse(id, orv::StrFormat("Margin (%d) out of range: %d - %d", error.intData.nVal, error.intData.nMin,
                              error.intData.nMax));
  } else {
    Refuse(id, "Error, please enter a valid value");
  }
}

void CGenXAxisPpg::OnDataExchangeError(int id, bool) { Refuse(id, "Error, please enter a valid value"); }

bool CGenXAxisPpg::OnPropertiesRead() {
  hasWindow_ = true;
  initialising_ = true;
  Ctl().UpDownSetRange(IDC_XA_MARGIN_SPIN, 0, kMaxMarginBars);
  props_.scrollVisible = ButtonState(props_.scrollVisible);
  return true;
}

bool CGenXAxisPpg::OnControlsThemed() {
  Exchange(false);
  FillLists();
  EnableLists();
  initialising_ = false;
  return true;
}

void CGenXAxisPpg::FillLists() {
  orv::Controls& c = Ctl();
  const orv::DateTime today = clock_.Today();
  double date = 0.0;
  orv::DateFromParts(today.year, today.month, today.day, 0, 0, 0, date);
  c.ComboResetContent(IDC_XA_DATE);
  for (std::int32_t id : kDateIds) c.ComboAddString(IDC_XA_DATE, FormatDateString(date, id), id);
  c.ComboResetContent(IDC_XA_TIME);
  for (const TimeRow& row : kTimeRows) c.ComboAddString(IDC_XA_TIME, row.text, row.id);
  SelectById(c, IDC_XA_DATE, props_.dateFormat);
  SelectById(c, IDC_XA_TIME, props_.timeFormat);
}

void CGenXAxisPpg::EnableLists() {
  const bool byHand = props_.autoCategory == 0;
  Ctl().EnableDlgItem(IDC_XA_DATE, byHand);
  Ctl().EnableDlgItem(IDC_XA_TIME, byHand);
}

bool CGenXAxisPpg::Exchange(bool save) {
  orv::Controls& c = Ctl();
  int margin = props_.marginBars;
  if (!DDX_Int(IDC_XA_MARGIN, &margin, true, save)) return false;
  if (!DDV_MinMaxInt(IDC_XA_MARGIN, margin, save, 0, kMaxMarginBars)) return false;
  props_.marginBars = margin;
  if (save) {
    props_.scrollVisible = c.IsDlgButtonChecked(IDC_XA_LOCK_SCROLL);
    props_.autoCategory = c.IsDlgButtonChecked(IDC_XA_AUTO_CATEGORY);
    ReadSelection(c, IDC_XA_DATE, props_.dateFormat);
    ReadSelection(c, IDC_XA_TIME, props_.timeFormat);
  } else {
    props_.scrollVisible = ButtonState(props_.scrollVisible);
    c.CheckDlgButton(IDC_XA_LOCK_SCROLL, props_.scrollVisible);
    c.CheckDlgButton(IDC_XA_AUTO_CATEGORY, props_.autoCategory != 0 ? orv::kBstChecked : orv::kBstUnchecked);
  }
  return true;
}

void CGenXAxisPpg::OnCommand(int id, int code) {
  if (initialising_) return;
  switch (id) {
    case IDC_XA_AUTO_CATEGORY:
      if (code != orv::kBnClicked) return;
      props_.autoCategory = Ctl().IsDlgButtonChecked(IDC_XA_AUTO_CATEGORY);
      EnableLists();
      MarkDirty();
      return;
    case IDC_XA_LOCK_SCROLL:
      if (code == orv::kBnClicked) MarkDirty();
      return;
    case IDC_XA_MARGIN:
      if (code == orv::kEnChange) MarkDirty();
      return;
    case IDC_XA_DATE:
    case IDC_XA_TIME:
      if (code == orv::kCbnSelChange) MarkDirty();
      return;
    default:
      return;
  }
}
