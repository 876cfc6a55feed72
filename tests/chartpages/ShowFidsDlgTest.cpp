// The field picker on its template's controls with a strict host field service: the pages of 25
// records asked for until one is empty, the groups in the order they first appear, the filter by
// group, the hidden kind, the " <Empty>" row of "All", the group kept in the registry (and "All"
// when it isn't one the host knows), the description of the chosen row, and what OK, a double
// click and Cancel leave.

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "ChartPagesTemplates.h"
#include "chartpages/ShowFidsDlg.h"
#include "dlgkit/FieldRecords.h"
#include "dlgkit/SettingsStore.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/FakeHostServices.h"
#include "dlgkit/fake/TemplateLayout.h"

namespace {

using orv::MakeFieldRecord;

// A picker opened on its template; `group` is the registry's SetColumn (none: not written).
struct Picker {
  Picker(std::vector<std::string> records, const char* group, std::int32_t current = 0, bool service = true)
      : scope(host) {
    host.ExpectNoSettingsService();  // the theme
    if (group) store.WriteString(CShowFidsDlg::kGroupKey, CShowFidsDlg::kGroupValue, group);
    std::unique_ptr<orv::FieldService> fields;
    if (service) {
      host.ExpectFields(std::move(records));
      fields = host.CreateFieldService();
    }
    dialog = std::make_unique<CShowFidsDlg>(current, "given", std::move(fields), &store);
    const orv::TemplateDialog* layout = orv::FindTemplate(orv::templates::kDialogs, IDD_SHOW_FIDS_DLG);
    EXPECT_NE(layout, nullptr);
    if (layout) orv::AddTemplateControls(*layout, controls);
    controls.AttachPage(dialog.get());
    dialog->OnInitDialog(controls, nullptr, nullptr);
  }
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int i = 0; i < controls.ListViewGetItemCount(IDC_SF_FIELDS); ++i)
      rows.push_back(controls.ListViewGetItemText(IDC_SF_FIELDS, i, 0));
    return rows;
  }
  std::vector<std::string> Groups() {
    std::vector<std::string> groups;
    for (int i = 0; i < controls.ListGetCount(IDC_SF_GROUPS); ++i)
      groups.push_back(controls.ListGetText(IDC_SF_GROUPS, i));
    return groups;
  }
  std::string Group() { return controls.ListGetText(IDC_SF_GROUPS, controls.ListGetCurSel(IDC_SF_GROUPS)); }

  orv::FakeHostServices host;
  orv::ScopedHostServices scope;
  orv::MemorySettingsStore store;
  std::unique_ptr<CShowFidsDlg> dialog;
  orv::FakeControls controls;
};

const std::vector<std::string> kFields = {
    MakeFieldRecord(10, 0, "Last", "Frequently Used|Price"),
    MakeFieldRecord(11, 0, "High", "Price"),
    MakeFieldRecord(12, 111, "Hidden", "Frequently Used|Internal"),
    MakeFieldRecord(13, 0, "Volume", "Volume|Frequently Used"),
    MakeFieldRecord(14, 0, "Open Interest", ""),
};

TEST(FieldRecords, ReadBackAsMade) {
  const std::string bytes = MakeFieldRecord(-2, 111, "Net Change", "A||B") + MakeFieldRecord(7, 0, "", "");
  const std::vector<orv::FieldRecord> read = orv::ReadFieldRecords(bytes + "partial");
  ASSERT_EQ(read.size(), 2u);
  EXPECT_EQ(read[0], (orv::FieldRecord{-2, 111, "Net Change", {"A", "", "B"}}));
  EXPECT_EQ(read[1], (orv::FieldRecord{7, 0, "", {""}}));
  EXPECT_EQ(bytes.size(), 2 * orv::kFieldRecordSize);
  EXPECT_EQ(bytes.substr(28, 10), "Net Change");
  EXPECT_EQ(bytes.substr(2204, 4), "A||B");
}

TEST(FieldRecords, TextsEndAtTheirFields) {
  std::string record(orv::kFieldRecordSize, 'x');
  const std::vector<orv::FieldRecord> read = orv::ReadFieldRecords(record);
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(read[0].description.size(), orv::kFieldGroupOffset - orv::kFieldDescriptionOffset);
  EXPECT_EQ(read[0].groups[0].size(), orv::kFieldRecordSize - orv::kFieldGroupOffset);
}

struct FillCase {
  const char* name;
  const char* registry;  // null: no value
  std::vector<std::string> rows;
  const char* group;
};
void PrintTo(const FillCase& c, std::ostream* os) { *os << c.name; }

class ShowFidsDlgFill : public testing::TestWithParam<FillCase> {};

TEST_P(ShowFidsDlgFill, ListsTheGroupsFields) {
  const FillCase& c = GetParam();
  Picker p(kFields, c.registry);
  EXPECT_EQ(p.Rows(), c.rows);
  EXPECT_EQ(p.Group(), c.group);
  // "All" first, then the groups in the order they first appear, hidden records' included.
  EXPECT_EQ(p.Groups(), (std::vector<std::string>{"All", "Frequently Used", "Price", "Internal", "Volume"}));
  EXPECT_EQ(p.controls.Control(IDC_SF_FIELDS).columns, std::vector<std::string>{"Description"});
}

INSTANTIATE_TEST_SUITE_P(
    Groups, ShowFidsDlgFill,
    testing::Values(
        FillCase{"DefaultIsFrequentlyUsed", nullptr, {"Last", "Volume"}, "Frequently Used"},
        FillCase{"RegistryGroup", "Price", {"Last", "High"}, "Price"},
        FillCase{"AllEndsWithEmpty", "All", {"Last", "High", "Volume", "Open Interest", " <Empty>"}, "All"},
        FillCase{"UnknownGroupFallsBackToAll", "Bonds", {"Last", "High", "Volume", "Open Interest", " <Empty>"}, "All"},
        FillCase{"OnlyHiddenFieldsInTheGroup", "Internal", {}, "Internal"}),
    [](const testing::TestParamInfo<FillCase>& info) { return std::string(info.param.name); });

TEST(ShowFidsDlgService, AsksPagesOf25UntilOneIsEmpty) {
  std::vector<std::string> many;
  for (int i = 0; i < 30; ++i)
    many.push_back(MakeFieldRecord(i + 1, 0, "F" + std::to_string(i + 1), "Frequently Used"));
  Picker p(many, nullptr);
  EXPECT_EQ(p.Rows().size(), 30u);
  EXPECT_EQ(p.host.FieldCalls(), (std::vector<orv::FakeHostServices::FieldCall>{
                                     {"Frequently Used", 0}, {"Frequently Used", 25}, {"Frequently Used", 50}}));
}

TEST(ShowFidsDlgService, UnknownGroupAsksAgainForAll) {
  Picker p(kFields, "Bonds");
  EXPECT_EQ(p.host.FieldCalls(),
            (std::vector<orv::FakeHostServices::FieldCall>{{"Bonds", 0}, {"Bonds", 25}, {"All", 0}, {"All", 25}}));
}

TEST(ShowFidsDlgService, NoServiceShowsAnEmptyList) {
  Picker p({}, nullptr, 0, false);
  EXPECT_TRUE(p.Rows().empty());
  EXPECT_EQ(p.Groups(), std::vector<std::string>{"All"});
}

TEST(ShowFidsDlgService, AnotherGroupFillsTheListAgain) {
  Picker p(kFields, nullptr);
  p.controls.SelectListItem(IDC_SF_GROUPS, 4);  // "Volume"
  EXPECT_EQ(p.Rows(), std::vector<std::string>{"Volume"});
  EXPECT_EQ(p.Groups().size(), 5u);
}

TEST(ShowFidsDlgChoice, OpensOnTheCurrentFieldWithItsDescription) {
  Picker p(kFields, nullptr, 13);
  EXPECT_EQ(p.controls.ListViewGetSelectedItem(IDC_SF_FIELDS), 1);
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_SF_DESCRIPTION, 256), "Volume");
}

TEST(ShowFidsDlgChoice, SelectingARowShowsItsDescription) {
  Picker p(kFields, "Price");
  p.controls.ListViewSelectItem(IDC_SF_FIELDS, 1);
  orv::ListViewItemChanged change;
  change.item = 1;
  change.isSelected = true;
  std::intptr_t result = 0;
  p.dialog->OnNotify(IDC_SF_FIELDS, orv::kLvnItemChanged, &change, result);
  EXPECT_EQ(p.controls.GetDlgItemTextA(IDC_SF_DESCRIPTION, 256), "High");
}

struct EndCase {
  const char* name;
  int row;  // selected before the end; -1 none
  int how;  // 1 OK, 2 Cancel, 3 double click
  std::int32_t id;
  const char* text;
};
void PrintTo(const EndCase& c, std::ostream* os) { *os << c.name; }
class ShowFidsDlgEnd : public testing::TestWithParam<EndCase> {};

TEST_P(ShowFidsDlgEnd, LeavesTheField) {
  const EndCase& c = GetParam();
  Picker p(kFields, "All", 99);
  if (c.row >= 0) p.controls.ListViewSelectItem(IDC_SF_FIELDS, c.row);
  std::intptr_t result = 0;
  if (c.how == 1) {
    EXPECT_EQ(p.dialog->OnApply(), orv::ApplyResult::NoError);
  } else if (c.how == 3) {
    EXPECT_TRUE(p.dialog->OnNotify(IDC_SF_FIELDS, CShowFidsDlg::kNmDblClk, nullptr, result));
    EXPECT_EQ(p.dialog->EndedByDoubleClick(), c.row >= 0);
  }
  EXPECT_EQ(p.dialog->FieldId(), c.id);
  EXPECT_EQ(p.dialog->FieldText(), c.text);
}

INSTANTIATE_TEST_SUITE_P(Ends, ShowFidsDlgEnd,
                         testing::Values(EndCase{"OkTakesTheRow", 2, 1, 13, "Volume"},
                                         EndCase{"OkOnEmptyTakesZero", 4, 1, 0, " <Empty>"},
                                         EndCase{"OkWithoutARowKeepsTheGiven", -1, 1, 99, "given"},
                                         EndCase{"DoubleClickTakesTheRow", 1, 3, 11, "High"},
                                         EndCase{"DoubleClickOnNothing", -1, 3, 99, "given"},
                                         EndCase{"CancelKeepsTheGiven", 2, 2, 99, "given"}),
                         [](const testing::TestParamInfo<EndCase>& info) { return std::string(info.param.name); });

}  // namespace
