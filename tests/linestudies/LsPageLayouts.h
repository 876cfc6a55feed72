#pragma once
// The controls of each line study page's dialog template, as fake controls: what the .rc files
// hold (ids, kinds, which start hidden), so a headless sheet shows the pages as the platform would.

#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "linestudies/LineStudiesRes.h"

namespace lstest {

using orv::FakeControlKind;
using orv::FakeControls;

inline void AddVertexRadios(FakeControls& c, bool hidden) {
  c.AddRadio(IDC_LS_VERTEX_0, 1480, "Start").AddRadio(IDC_LS_VERTEX_1, 1480, "End");
  c.Control(IDC_LS_VERTEX_0).visible = c.Control(IDC_LS_VERTEX_1).visible = !hidden;
}

inline void AddLock(FakeControls& c) {
  c.Add(IDC_LS_POS_LOCK, FakeControlKind::CheckBox, "Lock Position");
  c.Control(IDC_LS_POS_LOCK).visible = false;  // hidden in every template
}

inline void AddIntraPosition(FakeControls& c) {
  c.Add(IDC_LS_INTRA_DATE, FakeControlKind::Edit).Add(IDC_LS_INTRA_TIME, FakeControlKind::Edit);
  c.Add(IDC_LS_INTRA_SPIN, FakeControlKind::UpDown).Add(IDC_LS_INTRA_TICK, FakeControlKind::Edit);
}

// The extend boxes hold 0, 1 or 2: three-state boxes.
inline void AddExtends(FakeControls& c, int leftId, int rightId) {
  if (leftId) c.Add(leftId, FakeControlKind::ThreeStateCheckBox, "Extend Left");
  c.Add(rightId, FakeControlKind::ThreeStateCheckBox, "Extend Right");
}

// Trend, regression channel and VWAP: vertex radios, the position, a snap box and extend boxes.
inline void DayLineLayout(FakeControls& c, int snapId, int leftId, int rightId, int multiplierId) {
  AddVertexRadios(c, false);
  c.Add(IDC_LS_DAY_DATE, FakeControlKind::DatePicker).Add(IDC_LS_DAY_VALUE, FakeControlKind::Edit);
  c.Add(snapId, FakeControlKind::ComboBox);
  AddExtends(c, leftId, rightId);
  AddLock(c);
  if (multiplierId) c.Add(multiplierId, FakeControlKind::Edit);
}

inline void IntraLineLayout(FakeControls& c, int snapId, int leftId, int rightId, int multiplierId) {
  AddVertexRadios(c, false);
  AddIntraPosition(c);
  c.Add(IDC_LS_INTRA_VALUE, FakeControlKind::Edit).Add(snapId, FakeControlKind::ComboBox);
  AddExtends(c, leftId, rightId);
  AddLock(c);
  if (multiplierId) c.Add(multiplierId, FakeControlKind::Edit);
}

// Fills `c` as the template of `dialogId` would; false for a dialog this file doesn't know.
inline bool LsPageLayout(int dialogId, FakeControls& c) {
  switch (dialogId) {
    case IDD_LS_PG_DAY_TREND:
      DayLineLayout(c, IDC_LS_DAY_TREND_SNAP, IDC_LS_DAY_EXTEND_LEFT, IDC_LS_DAY_EXTEND_RIGHT, 0);
      return true;
    case IDD_LS_PG_DAY_LRC:
      DayLineLayout(c, IDC_LS_DAY_LRC_SNAP, IDC_LS_DAY_EXTEND_LEFT, IDC_LS_DAY_EXTEND_RIGHT, IDC_LS_LRC_MULTIPLIER);
      return true;
    case IDD_LS_PG_DAY_VWAP:
      DayLineLayout(c, IDC_LS_DAY_VWAP_SNAP, 0, IDC_LS_DAY_EXTEND_RIGHT, 0);
      return true;
    case IDD_LS_PG_INTRA_TREND:
      IntraLineLayout(c, IDC_LS_INTRA_TREND_SNAP, IDC_LS_INTRA_EXTEND_LEFT, IDC_LS_INTRA_EXTEND_RIGHT, 0);
      return true;
    case IDD_LS_PG_INTRA_LRC:
      IntraLineLayout(c, IDC_LS_INTRA_TREND_SNAP, IDC_LS_INTRA_EXTEND_LEFT, IDC_LS_INTRA_EXTEND_RIGHT,
                      IDC_LS_LRC_MULTIPLIER);
      return true;
    case IDD_LS_PG_INTRA_VWAP:
      IntraLineLayout(c, IDC_LS_INTRA_TREND_SNAP, 0, IDC_LS_INTRA_EXTEND_RIGHT, 0);
      return true;
    case IDD_LS_PG_DAY_HORZ:
      c.Add(IDC_LS_DAY_VALUE, FakeControlKind::Edit).Add(IDC_LS_DAY_HORZ_SNAP, FakeControlKind::ComboBox);
      AddLock(c);
      AddVertexRadios(c, true);
      return true;
    case IDD_LS_PG_DAY_VERT:
      c.Add(IDC_LS_DAY_DATE, FakeControlKind::DatePicker);
      AddLock(c);
      AddVertexRadios(c, true);
      return true;
    case IDD_LS_PG_INTRA_VERT:
      AddIntraPosition(c);
      return true;
    case IDD_LS_PG_ADVANCED:
      c.AddRadio(IDC_LS_ATTACH_SYMBOL, 1).AddRadio(IDC_LS_ATTACH_CHART, 1).AddRadio(IDC_LS_ATTACH_SCREEN, 1);
      c.Control(IDC_LS_ATTACH_SCREEN).visible = false;
      return true;
    default:
      return false;
  }
}

inline constexpr int kTrendlineDialogs[] = {IDD_LS_PG_DAY_TREND, IDD_LS_PG_INTRA_TREND, IDD_LS_PG_DAY_HORZ,
                                            IDD_LS_PG_DAY_VERT,  IDD_LS_PG_INTRA_VERT,  IDD_LS_PG_DAY_LRC,
                                            IDD_LS_PG_INTRA_LRC, IDD_LS_PG_DAY_VWAP,    IDD_LS_PG_INTRA_VWAP};

// A sheet runner that lays out every page this file knows.
inline void SetLsLayouts(orv::HeadlessSheetRunner& runner) {
  for (int id : kTrendlineDialogs) runner.SetLayout(id, [id](FakeControls& c) { LsPageLayout(id, c); });
  runner.SetLayout(IDD_LS_PG_ADVANCED, [](FakeControls& c) { LsPageLayout(IDD_LS_PG_ADVANCED, c); });
}

}  // namespace lstest
