#include "chartpages/PointBreakPpg.h"

#include <iterator>

#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"

CPointBreakPpg::CPointBreakPpg() {
  info_.dialogId = IDD_POINT_BREAK_PPG;
  info_.rootName = kRootName;
  info_.scope = 0;
  info_.title = "Point Break";
  info_.titleId = IDS_POINT_BREAK_PPG_TITLE;
}

void CPointBreakPpg::Load(XmlNode root) {
  XmlGetChildValue(root, "Line", line_);
  XmlGetChildValue(root, "Points", points_);
}

bool CPointBreakPpg::Save(XmlNode root) {
  XmlAddValueChild(root, "Line", line_);
  XmlAddValueChild(root, "Points", points_);
  return true;
}

// Apply reads the controls first; a points field that isn't a number refuses (beep and focus).
bool CPointBreakPpg::Validate() { return !hasWindow_ || Exchange(true); }

void CPointBreakPpg::OnWindowClosing() {
  if (!hasWindow_) return;
  Exchange(true);
  hasWindow_ = false;
}

bool CPointBreakPpg::OnPropertiesRead() {
  orv::Controls& c = Ctl();
  hasWindow_ = true;
  filling_ = true;
  c.UpDownSetRange(IDC_PB_POINTS_SPIN, 2, 20);
  c.ComboResetContent(IDC_PB_SOURCE);
  for (int row = 0; row < static_cast<int>(std::size(kSources)); ++row)
    c.ComboAddString(IDC_PB_SOURCE, kSources[row], row);
  return true;
}

bool CPointBreakPpg::OnControlsThemed() {
  Exchange(false);
  filling_ = false;
  return true;
}

// The combo by row (a row that isn't there selects nothing and reads back as -1); the points as
// a signed integer with no range of its own: the up-down's limits hold only for its arrows.
bool CPointBreakPpg::Exchange(bool save) {
  orv::Controls& c = Ctl();
  if (save) {
    line_ = c.ComboGetCurSel(IDC_PB_SOURCE);
  } else {
    c.ComboSetCurSel(IDC_PB_SOURCE, line_);
  }
  return DDX_Int(IDC_PB_POINTS, &points_, true, save);
}

void CPointBreakPpg::OnCommand(int id, int code) {
  switch (id) {
    case IDC_PB_POINTS:
      if (code == orv::kEnChange && !filling_) MarkDirty();
      return;
    case IDC_PB_SOURCE:
      if (code == orv::kCbnSelChange && !filling_) MarkDirty();
      return;
    case IDC_PB_RESET:
      if (code != orv::kBnClicked) return;
      // The source stays as the user chose it.
      line_ = Ctl().ComboGetCurSel(IDC_PB_SOURCE);
      points_ = kDefaultPoints;
      filling_ = true;
      Exchange(false);
      filling_ = false;
      MarkDirty();
      return;
    default:
      return;
  }
}
