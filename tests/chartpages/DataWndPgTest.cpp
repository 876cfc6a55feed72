// The data window page in its frame on the template's controls: what it shows of the host's
// properties (the check list's rows by bit, the combos, the custom field, the instrument, the
// transparency as a percentage, the inactive flag), what a change and Apply send (exact XML),
// Reset, and the custom field taken from the field picker run over the page.

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "ChartPageHostFake.h"
#include "chartpages/DataWndPg.h"
#include "chartpages/ShowFidsDlg.h"
#include "dlgkit/FieldRecords.h"
#include "dlgkit/fake/FakeHostServices.h"

namespace {

using Page = orv::testing_pages::OpenPage<CDataWndPg>;

const char kFont[] = "<CFontInfo FaceName=\"Tahoma\" PtSize=\"9\" Weight=\"700\"/>";
const char kFontSent[] =
    "<CFontInfo Version=\"3\" FaceName=\"Tahoma\" PtSize=\"9\" Height=\"90000\" Width=\"0\" Weight=\"700\" "
    "Italic=\"0\" Underline=\"0\" PitchAndFamily=\"0\"/>";

std::string Doc(const std::string& more = "") {
  return "<DW_ColorFont>1</DW_ColorFont><DW_OneLine>1</DW_OneLine><DW_VisibleFields>18</DW_VisibleFields>"
         "<DW_FieldOrder>4</DW_FieldOrder><DW_UserFid>22</DW_UserFid><DW_FidDesc>Net Change</DW_FidDesc>"
         "<DW_InstId>1</DW_InstId><DW_Transparency>200</DW_Transparency>" +
         std::string(kFont) + more;
}

struct Sent {
  int colorFont = 1, oneLine = 1;
  unsigned visible = 18;
  int order = 4, fid = 22;
  std::string desc = "Net Change";
  int inst = 1;
  unsigned alpha = 200;
  std::string font = kFontSent;
  std::string Xml() const {
    return "<DataWndPg><DW_ColorFont>" + std::to_string(colorFont) + "</DW_ColorFont><DW_OneLine>" +
           std::to_string(oneLine) + "</DW_OneLine><DW_VisibleFields>" + std::to_string(visible) +
           "</DW_VisibleFields><DW_FieldOrder>" + std::to_string(order) + "</DW_FieldOrder><DW_UserFid>" +
           std::to_string(fid) + "</DW_UserFid><DW_FidDesc>" + desc + "</DW_FidDesc><DW_InstId>" +
           std::to_string(inst) + "</DW_InstId><DW_Transparency>" + std::to_string(alpha) + "</DW_Transparency>" +
           font + "</DataWndPg>";
  }
};

std::vector<bool> Checks(Page& p) {
  std::vector<bool> checks;
  for (int i = 0; i < p.controls.ListViewGetItemCount(IDC_DW_SHOW); ++i)
    checks.push_back(p.controls.ListViewGetCheckState(IDC_DW_SHOW, i));
  return checks;
}

TEST(DataWndPgOpening, FillsTheListAndCombos) {
  Page p(Doc());
  const std::vector<std::string> rows = {
      "Symbols in Parameters Lists", "Date",        "Symbol Charts", "Function Charts", "Line Studies",
      "Data Option Codes",           "Custom Field"};
  ASSERT_EQ(p.controls.ListViewGetItemCount(IDC_DW_SHOW), 7);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(p.controls.ListViewGetItemText(IDC_DW_SHOW, i, 0), rows[i]);
  EXPECT_EQ(p.controls.Control(IDC_DW_SHOW).columns, std::vector<std::string>{"Display Item"});
  EXPECT_EQ(p.controls.Control(IDC_DW_SHOW).listViewExStyle, orv::kLvsExCheckBoxes | orv::kLvsExFullRowSelect);
  const std::vector<std::string> formats = {"One field per line", "All fields on one line"};
  const std::vector<std::string> orders = {
      "La, H, L, O, NC", "O, H, L, La, NC", "La, H, L", "H, L, La", "La, NC", "La", "None"};
  ASSERT_EQ(p.controls.ComboGetCount(IDC_DW_FORMAT), 2);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(p.controls.ComboGetLBText(IDC_DW_FORMAT, i), formats[i]);
  ASSERT_EQ(p.controls.ComboGetCount(IDC_DW_ORDER), 7);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(p.controls.ComboGetLBText(IDC_DW_ORDER, i), orders[i]);
  EXPECT_EQ(p.controls.Control(IDC_DW_TRANSP_SPIN).lower, 0);
  EXPECT_EQ(p.controls.Control(IDC_DW_TRANSP_SPIN).upper, 100);
  EXPECT_EQ(p.connection.scopesAsked, std::vector<std::int32_t>{0});
  // Filling the controls doesn't make the page dirty: the site hears nothing.
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_TRUE(p.connection.statuses.empty());
}

struct ShowCase {
  const char* name;
  std::string properties;
  bool hasHost;
  std::vector<bool> checks;
  int format, order;
  const char* custom;
  bool symbol, description;
  const char* transparency;
  bool formatEnabled;
};
void PrintTo(const ShowCase& c, std::ostream* os) { *os << c.name; }

class DataWndPgShows : public testing::TestWithParam<ShowCase> {};

TEST_P(DataWndPgShows, TheHostsValues) {
  const ShowCase& c = GetParam();
  Page p(c.properties, c.hasHost);
  EXPECT_EQ(Checks(p), c.checks);
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_DW_FORMAT), c.format);
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_DW_ORDER), c.order);
  EXPECT_EQ(p.Text(IDC_DW_CUSTOM), c.custom);
  EXPECT_EQ(p.controls.IsDlgButtonChecked(IDC_DW_INST_SYMBOL) == orv::kBstChecked, c.symbol);
  EXPECT_EQ(p.controls.IsDlgButtonChecked(IDC_DW_INST_DESC) == orv::kBstChecked, c.description);
  EXPECT_EQ(p.Text(IDC_DW_TRANSP), c.transparency);
  EXPECT_EQ(p.controls.UpDownGetPos(IDC_DW_TRANSP_SPIN), std::stoi(c.transparency));
  EXPECT_EQ(p.controls.IsDlgItemEnabled(IDC_DW_FORMAT), c.formatEnabled);
  EXPECT_FALSE(p.frame.IsDirty());
}

const std::vector<bool> k95 = {true, true, true, true, true, false, true};
const std::vector<bool> k18 = {false, true, false, false, true, false, false};

INSTANTIATE_TEST_SUITE_P(
    Loading, DataWndPgShows,
    testing::Values(
        ShowCase{"Document", Doc(), true, k18, 1, 4, "Net Change", false, true, "21", true},
        ShowCase{"NoHostShowsTheDefaults", Doc(), false, k95, 0, 0, "Description", true, false, "50", true},
        ShowCase{"EmptyDocumentKeepsTheDefaults", "", true, k95, 0, 0, "Description", true, false, "50", true},
        ShowCase{"OpaqueShowsZero", "<DW_Transparency>255</DW_Transparency>", true, k95, 0, 0, "Description", true,
                 false, "0", true},
        ShowCase{"ClearShowsHundred", "<DW_Transparency>0</DW_Transparency>", true, k95, 0, 0, "Description", true,
                 false, "100", true},
        ShowCase{"InactiveDisablesTheFormat", "<DW_Inactives>1</DW_Inactives>", true, k95, 0, 0, "Description", true,
                 false, "50", false},
        ShowCase{"HighBitsAreNoRows", "<DW_VisibleFields>4294967168</DW_VisibleFields><DW_InstId>5</DW_InstId>", true,
                 std::vector<bool>(7, false), 0, 0, "Description", false, false, "50", true}),
    [](const testing::TestParamInfo<ShowCase>& info) { return std::string(info.param.name); });

struct ApplyCase {
  const char* name;
  std::string properties;
  void (*change)(Page&);
  std::string sent;
};
void PrintTo(const ApplyCase& c, std::ostream* os) { *os << c.name; }

class DataWndPgApply : public testing::TestWithParam<ApplyCase> {};

TEST_P(DataWndPgApply, SendsTheExactDocument) {
  const ApplyCase& c = GetParam();
  Page p(c.properties);
  p.connection.statuses.clear();
  c.change(p);
  EXPECT_TRUE(p.frame.IsDirty());
  EXPECT_EQ(p.Apply(), c.sent);
  EXPECT_EQ(p.connection.scopesSent, std::vector<std::int32_t>{0});
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_EQ(p.connection.statuses.back(), orv::kPageStatusClean);
}

Sent With(void (*edit)(Sent&)) {
  Sent s;
  edit(s);
  return s;
}

INSTANTIATE_TEST_SUITE_P(
    LoadChangeApply, DataWndPgApply,
    testing::Values(
        ApplyCase{"CheckARow", Doc(), [](Page& p) { p.controls.ClickListViewCheck(IDC_DW_SHOW, 6); },
                  With([](Sent& s) { s.visible = 18 + 64; }).Xml()},
        ApplyCase{"UncheckARow", Doc(), [](Page& p) { p.controls.ClickListViewCheck(IDC_DW_SHOW, 1); },
                  With([](Sent& s) { s.visible = 16; }).Xml()},
        // The bits above the rows travel as they came.
        ApplyCase{"HighBitsKept", Doc("<DW_VisibleFields>130</DW_VisibleFields>"),
                  [](Page& p) { p.controls.ClickListViewCheck(IDC_DW_SHOW, 0); },
                  With([](Sent& s) { s.visible = 18 + 1; }).Xml()},
        ApplyCase{"Format", Doc(), [](Page& p) { p.controls.SelectComboItem(IDC_DW_FORMAT, 0); },
                  With([](Sent& s) { s.oneLine = 0; }).Xml()},
        ApplyCase{"Order", Doc(), [](Page& p) { p.controls.SelectComboItem(IDC_DW_ORDER, 6); },
                  With([](Sent& s) { s.order = 6; }).Xml()},
        ApplyCase{"Instrument", Doc(), [](Page& p) { p.controls.Click(IDC_DW_INST_SYMBOL); },
                  With([](Sent& s) { s.inst = 0; }).Xml()},
        // The percentage shown marks the page dirty; the alpha read is what goes back.
        ApplyCase{"TransparencyTyped", Doc(), [](Page& p) { p.controls.TypeText(IDC_DW_TRANSP, "80"); }, Sent().Xml()},
        // Reset: the defaults of the list, combos, custom field, instrument and colour-font flag;
        // the transparency and the font stay.
        ApplyCase{"Reset", Doc(), [](Page& p) { p.controls.Click(IDC_DW_RESET); }, With([](Sent& s) {
                                                                                     s.colorFont = 0;
                                                                                     s.oneLine = 0;
                                                                                     s.visible = 95;
                                                                                     s.order = 0;
                                                                                     s.fid = 79;
                                                                                     s.desc = "Description";
                                                                                     s.inst = 0;
                                                                                   }).Xml()},
        ApplyCase{"NoFontAtAll", "<DW_UserFid>5</DW_UserFid>", [](Page& p) { p.controls.Click(IDC_DW_INST_DESC); },
                  "<DataWndPg><DW_ColorFont>0</DW_ColorFont><DW_OneLine>0</DW_OneLine><DW_VisibleFields>95</"
                  "DW_VisibleFields><DW_FieldOrder>0</DW_FieldOrder><DW_UserFid>5</DW_UserFid><DW_FidDesc>"
                  "Description</DW_FidDesc><DW_InstId>1</DW_InstId><DW_Transparency>127</DW_Transparency>"
                  "<CFontInfo Version=\"3\" FaceName=\"\" PtSize=\"0\" Height=\"0\" Width=\"0\" Weight=\"0\" "
                  "Italic=\"0\" Underline=\"0\" PitchAndFamily=\"0\"/></DataWndPg>"}),
    [](const testing::TestParamInfo<ApplyCase>& info) { return std::string(info.param.name); });

TEST(DataWndPgApply, InactivesAreNeverWritten) {
  Page p(Doc("<DW_Inactives>1</DW_Inactives>"));
  p.controls.Click(IDC_DW_INST_SYMBOL);
  const std::string sent = p.Apply();
  EXPECT_EQ(sent.find("DW_Inactives"), std::string::npos);
  p.controls.Click(IDC_DW_RESET);
  EXPECT_FALSE(p.controls.IsDlgItemEnabled(IDC_DW_FORMAT));
}

TEST(DataWndPgApply, ResetKeepsTheTransparencyShown) {
  Page p(Doc());
  p.controls.TypeText(IDC_DW_TRANSP, "75");
  p.controls.Click(IDC_DW_RESET);
  EXPECT_EQ(p.Text(IDC_DW_TRANSP), "75");
  EXPECT_EQ(Checks(p), k95);
  EXPECT_EQ(p.Text(IDC_DW_CUSTOM), "Description");
}

TEST(DataWndPgApply, EveryChangeTellsTheSite) {
  Page p(Doc());
  p.connection.statuses.clear();
  p.controls.ClickListViewCheck(IDC_DW_SHOW, 3);
  p.controls.SelectComboItem(IDC_DW_ORDER, 2);
  p.controls.TypeText(IDC_DW_TRANSP, "3");
  EXPECT_EQ(p.connection.statuses, (std::vector<std::uint32_t>(3, orv::kPageStatusDirty)));
}

TEST(DataWndPgApply, CleanPageSendsNothing) {
  Page p(Doc());
  EXPECT_EQ(p.Apply(), "");
}

TEST(DataWndPgApply, WithoutAHostNothingIsSent) {
  Page p(Doc(), false);
  p.controls.Click(IDC_DW_INST_DESC);
  EXPECT_EQ(p.Apply(), "");
  EXPECT_FALSE(p.frame.IsDirty());
}

TEST(DataWndPgApply, KeepsWhatTheWindowShowedWhenItWent) {
  Page p(Doc());
  p.controls.ClickListViewCheck(IDC_DW_SHOW, 6);
  p.frame.WindowClosing();
  EXPECT_EQ(p.Apply(), With([](Sent& s) { s.visible = 18 + 64; }).Xml());
}

// --- the custom field from the picker ---

struct PickCase {
  const char* name;
  int row;  // the row the user selects; -1 none
  bool ok;  // OK, else Cancel
  bool dirty;
  const char* shown;
  std::string sent;
};
void PrintTo(const PickCase& c, std::ostream* os) { *os << c.name; }
class DataWndPgPick : public testing::TestWithParam<PickCase> {};

TEST_P(DataWndPgPick, TakesTheFieldOnOk) {
  const PickCase& c = GetParam();
  Page p(Doc());
  orv::FakeHostServices host;
  orv::ScopedHostServices scope(host);
  host.ExpectNoSettingsService();  // the picker's theme
  host.ExpectFields({orv::MakeFieldRecord(22, 0, "Net Change", "Frequently Used"),
                     orv::MakeFieldRecord(31, 0, "Bid", "Frequently Used|Quote")});
  std::vector<std::string> rows;
  int selectedAtOpen = -2;
  p.controls.SetModalDialogHandler([&](orv::Page& dialog) -> std::intptr_t {
    EXPECT_EQ(dialog.DialogId(), IDD_SHOW_FIDS_DLG);
    auto& picker = dynamic_cast<CShowFidsDlg&>(dialog);
    orv::FakeControls controls;
    orv::AddTemplateControls(*orv::FindTemplate(orv::templates::kDialogs, IDD_SHOW_FIDS_DLG), controls);
    controls.AttachPage(&picker);
    picker.OnInitDialog(controls, nullptr, nullptr);
    for (int i = 0; i < controls.ListViewGetItemCount(IDC_SF_FIELDS); ++i)
      rows.push_back(controls.ListViewGetItemText(IDC_SF_FIELDS, i, 0));
    selectedAtOpen = controls.ListViewGetSelectedItem(IDC_SF_FIELDS);
    if (c.row >= 0) controls.ListViewSelectItem(IDC_SF_FIELDS, c.row);
    if (!c.ok) return orv::kIdCancelButton;
    picker.OnApply();
    return orv::kIdOkButton;
  });
  p.connection.statuses.clear();
  p.controls.Click(IDC_DW_CHANGE);
  EXPECT_TRUE(host.AllExpectationsMet());
  EXPECT_EQ(rows, (std::vector<std::string>{"Net Change", "Bid"}));
  EXPECT_EQ(selectedAtOpen, 0);  // the page's field, 22
  EXPECT_EQ(p.Text(IDC_DW_CUSTOM), c.shown);
  EXPECT_EQ(p.frame.IsDirty(), c.dirty);
  if (c.dirty) EXPECT_EQ(p.Apply(), c.sent);
}

INSTANTIATE_TEST_SUITE_P(Picker, DataWndPgPick,
                         testing::Values(PickCase{"OkTakesTheRow", 1, true, true, "Bid", With([](Sent& s) {
                                                                                           s.fid = 31;
                                                                                           s.desc = "Bid";
                                                                                         }).Xml()},
                                         PickCase{"OkOnTheSameField", 0, true, true, "Net Change", Sent().Xml()},
                                         PickCase{"CancelLeavesIt", 1, false, false, "Net Change", ""}),
                         [](const testing::TestParamInfo<PickCase>& info) { return std::string(info.param.name); });

}  // namespace
