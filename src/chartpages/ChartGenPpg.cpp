#include "chartpages/ChartGenPpg.h"

#include "chartpages/Transparency.h"
#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"

CChartGenPpg::CChartGenPpg() {
  info_.dialogId = IDD_CHART_GEN_PPG;
  info_.rootName = kRootName;
  info_.scope = 1;
  info_.title = "General";
  info_.titleId = IDS_CHART_GEN_PPG_TITLE;
}

// The up-down is taken before the properties are read, so that showing the transparency makes
// the page dirty; the end of the opening makes it clean again.
bool CChartGenPpg::OnInitPage() {
  orv::Controls& c = Ctl();
  hasSpin_ = c.HasDlgItem(IDC_CG_TRANSP_SPIN);
  c.UpDownSetRange(IDC_CG_TRANSP_SPIN, 0, 100);
  Frame().ReadProperties();
  if (printHeader_ < 0 || printHeader_ > 2) printHeader_ = 0;
  c.CheckDlgButton(IDC_CG_PRINT_HEADER, printHeader_);
  return true;
}

void CChartGenPpg::Load(XmlNode root) {
  XmlNode node = XmlFindNode(root, kRootName, true);
  if (!node) return;  // the edit stays empty
  std::uint32_t alpha = kDefaultAlpha;
  XmlGetChildValue(node, "CurWndTransp", alpha);
  std::uint32_t header = static_cast<std::uint32_t>(printHeader_);
  XmlGetChildValue(node, "ShowPrintHdr", header);
  printHeader_ = static_cast<std::int32_t>(header);
  if (!hasSpin_) return;
  const int percent = orv::TransparencyPercent(static_cast<double>(alpha));
  Ctl().SetDlgItemInt(IDC_CG_TRANSP, static_cast<unsigned>(percent), false);
  Ctl().UpDownSetPos(IDC_CG_TRANSP_SPIN, percent);
}

std::string CChartGenPpg::TransparencyText() {
  return hasSpin_ ? Ctl().GetDlgItemTextA(IDC_CG_TRANSP, orv::kDlgItemIntBuffer) : closedText_;
}

bool CChartGenPpg::Save(XmlNode root) {
  // A text that isn't a number counts as 0 percent; above 100 is held to 100.
  const unsigned percent = orv::ParseDlgItemInt(TransparencyText(), false).value_or(0);
  XmlAddValueChild(root, "CurWndTransp", orv::TransparencyAlpha(percent));
  XmlAddValueChild(root, "ShowPrintHdr", printHeader_);
  return true;
}

// No validator: Apply takes the print header's state before its dirty test.
bool CChartGenPpg::Validate() {
  if (hasSpin_) printHeader_ = Ctl().IsDlgButtonChecked(IDC_CG_PRINT_HEADER);
  return true;
}

void CChartGenPpg::OnWindowClosing() {
  if (!hasSpin_) return;
  Validate();
  closedText_ = TransparencyText();
  hasSpin_ = false;
}

void CChartGenPpg::OnCommand(int id, int code) {
  if (id == IDC_CG_TRANSP && code == orv::kEnChange) {
    if (hasSpin_ && !IsDirty()) MarkDirty();
  } else if (id == IDC_CG_PRINT_HEADER && code == orv::kBnClicked) {
    MarkDirty();
  }
}

// The page's window becomes a control parent whenever its extended style changes.
bool CChartGenPpg::OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                                      std::intptr_t& result) {
  if (message != kWmStyleChanged) {
    return orv::ChartPageBase<CChartGenPpg>::OnUnhandledMessage(message, wParam, lParam, result);
  }
  if (static_cast<std::intptr_t>(wParam) == kGwlExStyle && lParam != 0) {
    reinterpret_cast<StyleChange*>(lParam)->styleNew |= kExControlParent;
    result = 0;
  } else {
    result = 1;
  }
  return true;
}
