// The line study pages' dialog templates, as the build reads them from their .rc files: every page
// the tests drive has one, and nothing on a page overlaps, leaves its group box or the dialog, or
// is obviously too narrow for its text.

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "LsPageLayouts.h"

namespace {

using orv::FakeControlKind;
using orv::FakeRect;
using orv::TemplateControl;

TEST(LsTemplates, EveryPageTheTestsDriveHasATemplate) {
  std::vector<int> ids(std::begin(lstest::kTrendlineDialogs), std::end(lstest::kTrendlineDialogs));
  ids.insert(ids.end(), std::begin(lstest::kAnchorDialogs), std::end(lstest::kAnchorDialogs));
  ids.push_back(IDD_LS_PG_ADVANCED);
  for (int id :
       {IDD_LS_PG_LINE_FIBO, IDD_LS_PG_LINE_GANN, IDD_LS_PG_LINE_PFORK, IDD_LS_PG_LINE_PARALLEL, IDD_GRAPH_OBJ_LINE_PG})
    ids.push_back(id);
  for (int id : ids) {
    SCOPED_TRACE(id);
    orv::FakeControls fake;
    EXPECT_TRUE(lstest::LsPageLayout(id, fake));
  }
  orv::FakeControls none;
  EXPECT_FALSE(lstest::LsPageLayout(1, none));
}

// A drop-down list's height in the template is its open list; closed it is one line.
FakeRect Closed(const TemplateControl& c) {
  FakeRect r = c.rect;
  if (c.kind == FakeControlKind::ComboBox) r.bottom = r.top + 14;
  return r;
}

bool Inside(const FakeRect& a, const FakeRect& box) {
  return a.left >= box.left && a.top >= box.top && a.right <= box.right && a.bottom <= box.bottom;
}

bool Overlap(const FakeRect& a, const FakeRect& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST(LsTemplates, ControlsFitTheirDialogAndGroupsAndDontOverlap) {
  ASSERT_GE(std::size(orv::templates::kDialogs), 10u) << "the Advanced page and the nine trendline pages";
  for (const orv::TemplateDialog& dialog : orv::templates::kDialogs) {
    SCOPED_TRACE(dialog.id);
    std::vector<const TemplateControl*> boxes, others;
    for (const TemplateControl& c : dialog.controls)
      (c.kind == FakeControlKind::GroupBox ? boxes : others).push_back(&c);
    for (const TemplateControl& c : dialog.controls) {
      const FakeRect r = Closed(c);
      EXPECT_GE(r.left, 0) << c.line;
      EXPECT_GE(r.top, 0) << c.line;
      EXPECT_LE(r.right, dialog.width) << c.line;
      EXPECT_LE(r.bottom, dialog.height) << c.line;
      // About 4 dialog units a character in the dialog font, 12 more for a box or a radio.
      if (c.kind != FakeControlKind::GroupBox && std::strlen(c.text) > 0) {
        const int needs = static_cast<int>(std::strlen(c.text)) * 4 + (c.kind == FakeControlKind::Static ? 0 : 12);
        EXPECT_LE(needs, r.right - r.left) << "too narrow for its text: " << c.line;
      }
    }
    for (std::size_t i = 0; i < others.size(); ++i) {
      const FakeRect a = Closed(*others[i]);
      for (std::size_t j = i + 1; j < others.size(); ++j) {
        EXPECT_FALSE(Overlap(a, Closed(*others[j]))) << others[i]->line << "\n" << others[j]->line;
      }
      // Either within a group box, or clear of it.
      for (const TemplateControl* box : boxes) {
        EXPECT_TRUE(Inside(a, box->rect) || !Overlap(a, box->rect)) << others[i]->line << "\n" << box->line;
      }
    }
  }
}

}  // namespace
