#include "chartpages/DataWndPg.h"

#include <algorithm>
#include <iterator>

#include "chartpages/ShowFidsDlg.h"
#include "chartpages/Transparency.h"
#include "dlgkit/Controls.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/Page.h"

namespace {

constexpr int kShowRowCount = static_cast<int>(std::size(CDataWndPg::kShowRows));

void Fill(orv::Controls& c, int id, const char* const* rows, std::size_t count) {
  c.ComboResetContent(id);
  for (std::size_t i = 0; i < count; ++i) c.ComboAddString(id, rows[i], static_cast<std::intptr_t>(i));
}

}  // namespace

CDataWndPg::CDataWndPg() {
  info_.dialogId = IDD_DATA_WND_PG;
  info_.rootName = kRootName;
  info_.scope = 0;
  info_.title = "General";
  info_.titleId = IDS_DATA_WND_PG_TITLE;
}

// The controls are prepared before the properties are read, and filled after.
bool CDataWndPg::OnInitPage() {
  orv::Controls& c = Ctl();
  hasWindow_ = true;
  loading_ = true;
  c.UpDownSetRange(IDC_DW_TRANSP_SPIN, 0, 100);
  c.ListViewSetExtendedStyle(IDC_DW_SHOW, orv::kLvsExCheckBoxes | orv::kLvsExFullRowSelect);
  c.ListViewInsertColumn(IDC_DW_SHOW, 0, kShowColumn, 180);
  c.ListViewDeleteAllItems(IDC_DW_SHOW);
  for (int row = 0; row < kShowRowCount; ++row) c.ListViewInsertItem(IDC_DW_SHOW, row, kShowRows[row]);
  Frame().ReadProperties();
  ShowValues();
  loading_ = false;
  if (inactives_) c.EnableDlgItem(IDC_DW_FORMAT, false);
  return true;
}

void CDataWndPg::Load(XmlNode root) {
  XmlGetChildValue(root, "DW_ColorFont", colorFont_);
  XmlGetChildValue(root, "DW_OneLine", oneLine_);
  XmlGetChildValue(root, "DW_VisibleFields", visibleFields_);
  XmlGetChildValue(root, "DW_FieldOrder", fieldOrder_);
  XmlGetChildValue(root, "DW_UserFid", userFid_);
  XmlGetChildText(root, "DW_FidDesc", fidDesc_);
  XmlGetChildValue(root, "DW_InstId", instId_);
  std::int32_t inactives = inactives_;
  XmlGetChildValue(root, "DW_Inactives", inactives);
  inactives_ = static_cast<std::uint8_t>(inactives);
  alpha_ = kDefaultAlpha;
  XmlGetChildValue(root, "DW_Transparency", alpha_);
  font_.Read(root);
}

void CDataWndPg::ShowValues() {
  orv::Controls& c = Ctl();
  for (int row = 0; row < kShowRowCount; ++row) c.ListViewSetCheckState(IDC_DW_SHOW, row, (visibleFields_ >> row) & 1u);
  Fill(c, IDC_DW_FORMAT, kFormats, std::size(kFormats));
  c.ComboSetCurSel(IDC_DW_FORMAT, oneLine_);
  Fill(c, IDC_DW_ORDER, kOrders, std::size(kOrders));
  c.ComboSetCurSel(IDC_DW_ORDER, fieldOrder_);
  DDX_Text(IDC_DW_CUSTOM, &fidDesc_, false);
  c.CheckDlgButton(IDC_DW_INST_SYMBOL, instId_ == 0 ? orv::kBstChecked : orv::kBstUnchecked);
  c.CheckDlgButton(IDC_DW_INST_DESC, instId_ == 1 ? orv::kBstChecked : orv::kBstUnchecked);
  const int percent = orv::TransparencyPercent(static_cast<double>(alpha_));
  c.SetDlgItemInt(IDC_DW_TRANSP, static_cast<unsigned>(percent), false);
  c.UpDownSetPos(IDC_DW_TRANSP_SPIN, percent);
}

// The custom field, the instrument radio (neither checked: -1), the list's bits (the rows'
// bits only; the others are kept) and both combos, each held to its last row.
void CDataWndPg::ReadControls() {
  orv::Controls& c = Ctl();
  DDX_Text(IDC_DW_CUSTOM, &fidDesc_, true);
  if (c.IsDlgButtonChecked(IDC_DW_INST_SYMBOL) == orv::kBstChecked) {
    instId_ = 0;
  } else if (c.IsDlgButtonChecked(IDC_DW_INST_DESC) == orv::kBstChecked) {
    instId_ = 1;
  } else {
    instId_ = -1;
  }
  for (int row = 0; row < kShowRowCount; ++row) {
    const std::uint32_t bit = 1u << row;
    visibleFields_ = c.ListViewGetCheckState(IDC_DW_SHOW, row) ? visibleFields_ | bit : visibleFields_ & ~bit;
  }
  oneLine_ = std::min(c.ComboGetCurSel(IDC_DW_FORMAT), 2);
  fieldOrder_ = std::min(c.ComboGetCurSel(IDC_DW_ORDER), 7);
}

bool CDataWndPg::Validate() {
  if (hasWindow_) ReadControls();
  return true;
}

void CDataWndPg::OnWindowClosing() {
  if (!hasWindow_) return;
  ReadControls();
  hasWindow_ = false;
}

// The transparency goes back as it came: the page shows it, and carries the alpha it read.
bool CDataWndPg::Save(XmlNode root) {
  XmlAddValueChild(root, "DW_ColorFont", colorFont_);
  XmlAddValueChild(root, "DW_OneLine", oneLine_);
  XmlAddValueChild(root, "DW_VisibleFields", visibleFields_);
  XmlAddValueChild(root, "DW_FieldOrder", fieldOrder_);
  XmlAddValueChild(root, "DW_UserFid", userFid_);
  XmlAddTextChild(root, "DW_FidDesc", fidDesc_);
  XmlAddValueChild(root, "DW_InstId", instId_);
  XmlAddValueChild(root, "DW_Transparency", alpha_);
  font_.Write(root);
  return true;
}

void CDataWndPg::SetDirty() {
  if (!loading_) MarkDirty();
}

void CDataWndPg::Reset() {
  ReadControls();
  visibleFields_ = kDefaultVisibleFields;
  oneLine_ = kDefaultOneLine;
  fieldOrder_ = kDefaultFieldOrder;
  fidDesc_ = kDefaultFidDesc;
  userFid_ = kDefaultUserFid;
  instId_ = kDefaultInstId;
  colorFont_ = kDefaultColorFont;
  // The transparency shown stays as the user left it.
  orv::Controls& c = Ctl();
  const std::string transparency = c.GetDlgItemTextA(IDC_DW_TRANSP, orv::kDlgItemIntBuffer);
  const int position = c.UpDownGetPos(IDC_DW_TRANSP_SPIN);
  loading_ = true;
  ShowValues();
  c.SetDlgItemTextA(IDC_DW_TRANSP, transparency);
  c.UpDownSetPos(IDC_DW_TRANSP_SPIN, position);
  loading_ = false;
  if (inactives_) c.EnableDlgItem(IDC_DW_FORMAT, false);
  MarkDirty();
}

void CDataWndPg::ChangeField() {
  ReadControls();
  CShowFidsDlg picker(userFid_, fidDesc_, orv::CurrentHostServices().CreateFieldService());
  if (Ctl().RunModalDialog(picker) != orv::kIdOkButton) return;
  userFid_ = picker.FieldId();
  fidDesc_ = picker.FieldText();
  DDX_Text(IDC_DW_CUSTOM, &fidDesc_, false);
  MarkDirty();
}

void CDataWndPg::OnCommand(int id, int code) {
  switch (id) {
    case IDC_DW_INST_SYMBOL:
    case IDC_DW_INST_DESC:
      if (code == orv::kBnClicked) SetDirty();
      return;
    case IDC_DW_FORMAT:
    case IDC_DW_ORDER:
      if (code == orv::kCbnSelChange) SetDirty();
      return;
    case IDC_DW_TRANSP:
      if (code == orv::kEnChange) SetDirty();
      return;
    case IDC_DW_RESET:
      if (code == orv::kBnClicked) Reset();
      return;
    case IDC_DW_CHANGE:
      if (code == orv::kBnClicked) ChangeField();
      return;
    default:
      return;
  }
}

bool CDataWndPg::OnNotify(int id, int code, const void* payload, std::intptr_t& result) {
  if (id != IDC_DW_SHOW || code != orv::kLvnItemChanged || !payload) return false;
  const auto* change = static_cast<const orv::ListViewItemChanged*>(payload);
  if (change->wasChecked != change->isChecked) SetDirty();
  result = 0;
  return true;
}
