#pragma once
// The line study pages' dialogs as fake controls, made from their templates: LsTemplates.h is
// generated from the .rc files at build time, so a headless sheet shows each page with the
// controls, kinds, styles and rectangles the platform would create.

#include "LsTemplates.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "linestudies/LineStudiesRes.h"

namespace lstest {

using orv::FakeControlKind;
using orv::FakeControls;

// Fills `c` as the template of `dialogId` does; false for a dialog without a template.
inline bool LsPageLayout(int dialogId, FakeControls& c) {
  const orv::TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, dialogId);
  if (dialog == nullptr) return false;
  orv::AddTemplateControls(*dialog, c);
  return true;
}

inline constexpr int kTrendlineDialogs[] = {IDD_LS_PG_DAY_TREND, IDD_LS_PG_INTRA_TREND, IDD_LS_PG_DAY_HORZ,
                                            IDD_LS_PG_DAY_VERT,  IDD_LS_PG_INTRA_VERT,  IDD_LS_PG_DAY_LRC,
                                            IDD_LS_PG_INTRA_LRC, IDD_LS_PG_DAY_VWAP,    IDD_LS_PG_INTRA_VWAP};

inline constexpr int kAnchorDialogs[] = {IDD_LS_PG_DAY_FIBO,     IDD_LS_PG_INTRA_FIBO,    IDD_LS_PG_DAY_GANN,
                                         IDD_LS_PG_INTRA_GANN,   IDD_LS_PG_DAY_PFORK,     IDD_LS_PG_INTRA_PFORK,
                                         IDD_LS_PG_DAY_PARALLEL, IDD_LS_PG_INTRA_PARALLEL};

// A sheet runner that lays out every page that has a template.
inline void SetLsLayouts(orv::HeadlessSheetRunner& runner) {
  for (const orv::TemplateDialog& dialog : orv::templates::kDialogs) {
    runner.SetLayout(dialog.id, [&dialog](FakeControls& c) { orv::AddTemplateControls(dialog, c); });
  }
}

}  // namespace lstest
