// The wizard pages' dialog templates, as the build reads them from their .rc files: one for each
// page, all of one size, each with its help text at the left, the etched divider, its inputs at
// the right, every control the page works with, and nothing that overlaps, leaves the dialog or
// is obviously too narrow for its text.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "SznTemplates.h"
#include "seasonal/SznPageTable.h"

namespace {

using orv::FakeControlKind;
using orv::FakeRect;
using orv::TemplateControl;
using orv::TemplateDialog;
using Kind = FakeControlKind;

constexpr int kWidth = 317, kHeight = 143;
constexpr FakeRect kHelpRect{7, 7, 127, 136};
constexpr FakeRect kDividerRect{133, 7, 134, 136};
constexpr int kRightLeft = 141, kRightRight = 310;

// What a control must be. `text` null: set at run time (or none).
enum Role { kPlain, kHelp, kMultiSelect, kNumber, kReadOnly, kHidden };
struct Wanted {
  int id;
  Kind kind;
  const char* text = nullptr;
  Role role = kPlain;
};

struct PageControls {
  int dialogId;
  int titleId;  // the static at the top of the right side
  std::vector<Wanted> controls;
};

// The futures pages: root, month, years, the hidden lookup and the count, from `base` (the
// root's label) on.
std::vector<Wanted> Futures(int title, const char* titleText, int help, int base) {
  std::vector<Wanted> wanted = {{title, Kind::Static, titleText}};
  if (help) wanted.push_back({help, Kind::Edit, nullptr, kHelp});
  const std::vector<Wanted> rest = {
      {base, Kind::Static, "Root:"},
      {base + 1, Kind::Edit},
      {base + 2, Kind::Static, "Month:"},
      {base + 3, Kind::ComboBox},
      {base + 4, Kind::Static, "Years:"},
      {base + 5, Kind::ListBox, nullptr, kMultiSelect},
      {base + 6, Kind::PushButton, nullptr, kHidden},
      {base + 7, Kind::Static, "@"},
  };
  wanted.insert(wanted.end(), rest.begin(), rest.end());
  return wanted;
}

std::vector<Wanted> Symbol(int base) {
  return {{base, Kind::Static, "Enter Symbol"},
          {base + 1, Kind::Edit, nullptr, kHelp},
          {base + 2, Kind::Static, "Symbol:"},
          {base + 3, Kind::Edit},
          {base + 4, Kind::PushButton, nullptr, kHidden}};
}

std::vector<PageControls> AllPages() {
  return {
      {IDD_SZN_SEASON,
       IDC_SZN_SEASON_TITLE,
       {{IDC_SZN_SEASON_TITLE, Kind::Static, "Choose Season"},
        {IDC_SZN_SEASON_HELP, Kind::Edit, nullptr, kHelp},
        {IDC_SZN_SEASON_START_LABEL, Kind::Static, "Start:"},
        {IDC_SZN_SEASON_END_LABEL, Kind::Static, "End:"},
        {IDC_SZN_SEASON_START, Kind::ComboBox},
        {IDC_SZN_SEASON_END, Kind::ComboBox},
        {IDC_SZN_SEASON_YEAR, Kind::Static, "Season (for year 2000)"},
        {IDC_SZN_SEASON_PREVIEW, Kind::Edit, nullptr, kReadOnly}}},
      {IDD_SZN_YEARS,
       IDC_SZN_YEARS_TITLE,
       {{IDC_SZN_YEARS_TITLE, Kind::Static, "Choose Years"},
        {IDC_SZN_YEARS_HELP, Kind::Edit, nullptr, kHelp},
        {IDC_SZN_YEARS_LABEL, Kind::Static, "Years:"},
        {IDC_SZN_YEARS_LIST, Kind::ListBox, nullptr, kMultiSelect},
        {IDC_SZN_YEARS_COUNT, Kind::Static, "@"}}},
      {IDD_SZN_YRCOUNT,
       IDC_SZN_YRCOUNT_TITLE,
       {{IDC_SZN_YRCOUNT_TITLE, Kind::Static, "Specify year count"},
        {IDC_SZN_YRCOUNT_HELP, Kind::Edit, nullptr, kHelp},
        {IDC_SZN_YRCOUNT_LABEL, Kind::Static, "Count:"},
        {IDC_SZN_YRCOUNT_COUNT, Kind::Edit, nullptr, kNumber}}},
      {IDD_SZN_FORM,
       IDC_SZN_FORM_TITLE,
       {{IDC_SZN_FORM_TITLE, Kind::Static, "Choose Contract Form:"},
        {IDC_SZN_FORM_HELP, Kind::Edit, nullptr, kHelp},
        {IDC_SZN_FORM_SNGLINST, Kind::RadioButton, "Single Instrument"},
        {IDC_SZN_FORM_SNGLROOTFUT, Kind::RadioButton, "Single Root Futures"},
        {IDC_SZN_FORM_CASHSPRD, Kind::RadioButton, "Cash Spread"},
        {IDC_SZN_FORM_FUTSPRD, Kind::RadioButton, "Futures Spread"},
        {IDC_SZN_FORM_CASHFUTSPRD, Kind::RadioButton, "Cash Futures Spread"}}},
      {IDD_SZN_FUT1, IDC_SZN_FUT1_TITLE,
       Futures(IDC_SZN_FUT1_TITLE, "Select first set of futures contracts", IDC_SZN_FUT1_HELP,
               IDC_SZN_FUT1_ROOT_LABEL)},
      {IDD_SZN_FUT2, IDC_SZN_FUT2_TITLE,
       Futures(IDC_SZN_FUT2_TITLE, "Second set of futures contracts", IDC_SZN_FUT2_HELP, IDC_SZN_FUT2_ROOT_LABEL)},
      {IDD_SZN_CASHSPRD,
       IDC_SZN_CASHSPRD_TITLE,
       {{IDC_SZN_CASHSPRD_TITLE, Kind::Static, "Choose contract symbols"},
        {IDC_SZN_CASHSPRD_HELP, Kind::Edit, nullptr, kHelp},
        {IDC_SZN_CASHSPRD_LABEL1, Kind::Static, "Symbol1:"},
        {IDC_SZN_CASHSPRD_LABEL2, Kind::Static, "Symbol2:"},
        {IDC_SZN_CASHSPRD_SYMBOL1, Kind::Edit},
        {IDC_SZN_CASHSPRD_SYMBOL2, Kind::Edit},
        {IDC_SZN_CASHSPRD_LOOKUP1, Kind::PushButton, nullptr, kHidden},
        {IDC_SZN_CASHSPRD_LOOKUP2, Kind::PushButton, nullptr, kHidden}}},
      {IDD_SZN_SNGLROOTFUT, IDC_SZN_SNGLROOT_TITLE,
       Futures(IDC_SZN_SNGLROOT_TITLE, "Select Futures", IDC_SZN_SNGLROOT_HELP, IDC_SZN_SNGLROOT_ROOT_LABEL)},
      {IDD_SZN_SNGLINST, IDC_SZN_SNGLINST_TITLE, Symbol(IDC_SZN_SNGLINST_TITLE)},
      {IDD_SZN_SNGLINSTMID, IDC_SZN_SNGLINSTMID_TITLE, Symbol(IDC_SZN_SNGLINSTMID_TITLE)},
      {IDD_SZN_MULT,
       IDC_SZN_MULT_TITLE,
       {{IDC_SZN_MULT_TITLE, Kind::Static, "Contract conversion multipliers"},
        {IDC_SZN_MULT_HELP, Kind::Edit, nullptr, kHelp},
        {IDC_SZN_MULT_LABEL1, Kind::Static, "Multiplier1:"},
        {IDC_SZN_MULT_LABEL2, Kind::Static, "Multiplier2:"},
        {IDC_SZN_MULT_1, Kind::Edit},
        {IDC_SZN_MULT_2, Kind::Edit}}},
      {IDD_SZN_CONSTR, IDC_SZN_CONSTR_TITLE, {{IDC_SZN_CONSTR_TITLE, Kind::Static, "Under Construction:"}}},
  };
}

const TemplateControl* FindControl(const TemplateDialog& dialog, int id) {
  for (const TemplateControl& c : dialog.controls) {
    if (c.id == id) return &c;
  }
  return nullptr;
}

// A drop-down list's height in the template is its open list; closed it is one line.
FakeRect Closed(const TemplateControl& c) {
  FakeRect r = c.rect;
  if (c.kind == Kind::ComboBox) r.bottom = r.top + 14;
  return r;
}

bool Overlap(const FakeRect& a, const FakeRect& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST(SznTemplates, EveryPageHasATemplateOfTheWizardsSizeAndCaption) {
  ASSERT_EQ(std::size(orv::templates::kDialogs), orv::seasonal::kSznPages.size());
  for (const auto& page : orv::seasonal::kSznPages) {
    SCOPED_TRACE(page.name);
    const TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, page.dialogId);
    ASSERT_NE(dialog, nullptr);
    EXPECT_STREQ(dialog->caption, page.title);
    EXPECT_EQ(dialog->width, kWidth);
    EXPECT_EQ(dialog->height, kHeight);
  }
}

// Every control a page works with is there, of its kind, with its caption and style. A template
// that holds no control yet is a page still to be laid out; it is passed over here.
TEST(SznTemplates, EveryPageHoldsItsControls) {
  for (const PageControls& page : AllPages()) {
    SCOPED_TRACE(page.dialogId);
    const TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, page.dialogId);
    ASSERT_NE(dialog, nullptr);
    if (dialog->controls.empty()) continue;
    for (const Wanted& w : page.controls) {
      SCOPED_TRACE(w.id);
      const TemplateControl* c = FindControl(*dialog, w.id);
      ASSERT_NE(c, nullptr) << "missing";
      EXPECT_EQ(c->kind, w.kind) << c->line;
      if (w.text) {
        EXPECT_STREQ(c->text, w.text) << c->line;
      }
      EXPECT_EQ(c->visible, w.role != kHidden) << c->line;
      switch (w.role) {
        case kHelp:
          EXPECT_EQ(c->rect, kHelpRect) << c->line;
          EXPECT_TRUE(c->edit.readOnly && c->edit.multiline) << c->line;
          EXPECT_NE(std::strstr(c->line, "WS_VSCROLL"), nullptr) << c->line;
          break;
        case kMultiSelect:
          EXPECT_TRUE(c->multiSelect) << c->line;
          break;
        case kNumber:
          EXPECT_TRUE(c->edit.number) << c->line;
          break;
        case kReadOnly:
          EXPECT_TRUE(c->edit.readOnly) << c->line;
          break;
        case kHidden:
          EXPECT_NE(std::strstr(c->line, "BS_OWNERDRAW"), nullptr) << c->line;
          break;
        case kPlain:
          break;
      }
    }
    // The title stands at the top of the right side.
    const TemplateControl* title = FindControl(*dialog, page.titleId);
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->rect.left, kRightLeft);
    EXPECT_EQ(title->rect.top, 7);
  }
}

// Help at the left, the etched divider, the rest at the right; nothing overlaps or leaves the
// dialog, and captions fit (about 4 dialog units a character, 12 more for a radio).
TEST(SznTemplates, HelpDividerAndInputsKeepTheirSidesAndDontOverlap) {
  for (const TemplateDialog& dialog : orv::templates::kDialogs) {
    SCOPED_TRACE(dialog.id);
    if (dialog.controls.empty()) continue;
    bool divider = false;
    for (const TemplateControl& c : dialog.controls) {
      const FakeRect r = Closed(c);
      EXPECT_GE(r.left, 0) << c.line;
      EXPECT_GE(r.top, 0) << c.line;
      EXPECT_LE(r.right, dialog.width) << c.line;
      EXPECT_LE(r.bottom, dialog.height) << c.line;
      if (c.id == -1 && c.kind == Kind::Static && std::strstr(c.line, "SS_ETCHEDVERT") != nullptr) {
        EXPECT_EQ(r, kDividerRect) << c.line;
        divider = true;
      } else if (!(c.kind == Kind::Edit && c.edit.multiline)) {
        EXPECT_GE(r.left, kRightLeft) << c.line;
        EXPECT_LE(r.right, kRightRight) << c.line;
      }
      if (std::strlen(c.text) > 0) {
        const int needs = static_cast<int>(std::strlen(c.text)) * 4 + (c.kind == Kind::Static ? 0 : 12);
        EXPECT_LE(needs, r.right - r.left) << "too narrow for its text: " << c.line;
      }
    }
    EXPECT_TRUE(divider);
    for (std::size_t i = 0; i < dialog.controls.size(); ++i) {
      for (std::size_t j = i + 1; j < dialog.controls.size(); ++j) {
        EXPECT_FALSE(Overlap(Closed(dialog.controls[i]), Closed(dialog.controls[j]))) << dialog.controls[i].line << "\n"
                                                                                      << dialog.controls[j].line;
      }
    }
  }
}

}  // namespace
