// Dialog templates as the fakes see them: TemplateFixture.h is generated at build time from
// TemplateFixture.rc, a template with every statement the generator reads. The generated rows say
// what the template declares, and the fake dialog made from them behaves as the platform's would.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "TemplateFixture.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/TemplateLayout.h"

namespace orv {
namespace {

using K = FakeControlKind;

const TemplateDialog& Fixture() {
  const TemplateDialog* dialog = FindTemplate(templates::kDialogs, IDD_FIXTURE);
  if (dialog == nullptr) throw std::logic_error("no fixture template");
  return *dialog;
}

const TemplateControl& Row(int id) {
  for (const TemplateControl& c : Fixture().controls) {
    if (c.id == id) return c;
  }
  throw std::logic_error("no control " + std::to_string(id));
}

TEST(TemplateLayout, TheDialogIsReadWithItsCaptionAndSize) {
  EXPECT_EQ(FindTemplate(templates::kDialogs, 12345), nullptr);
  const TemplateDialog& d = Fixture();
  EXPECT_STREQ(d.caption, "Say \"when\"");
  EXPECT_EQ(d.width, 220);
  EXPECT_EQ(d.height, 160);
  EXPECT_EQ(d.controls.size(), 19u);  // the unnamed static too
  EXPECT_EQ(d.controls[1].id, -1);
  EXPECT_STREQ(d.controls[1].text, "Name:");
}

struct Expected {
  int id;
  const char* keyword;
  FakeControlKind kind;
  const char* text;
  FakeRect rect;
};

TEST(TemplateLayout, EachStatementGivesItsKindTextAndRectangle) {
  const Expected rows[] = {
      {IDC_FIXTURE_BOX, "GROUPBOX", K::GroupBox, "Box", {4, 4, 216, 64}},
      {IDC_FIXTURE_NAME, "EDITTEXT", K::Edit, "", {44, 14, 104, 26}},
      {IDC_FIXTURE_COUNT, "EDITTEXT", K::Edit, "", {110, 14, 150, 26}},  // over two lines
      {IDC_FIXTURE_SHOWN, "AUTOCHECKBOX", K::CheckBox, "Shown, with a comma", {10, 30, 100, 40}},
      {IDC_FIXTURE_MIXED, "AUTO3STATE", K::CheckBox, "Mixed", {110, 30, 160, 40}},
      {IDC_FIXTURE_MIXED_CONTROL, "CONTROL", K::CheckBox, "Mixed too", {10, 44, 70, 54}},
      {IDC_FIXTURE_PLAIN_BOX, "CONTROL", K::CheckBox, "Plain", {110, 44, 160, 54}},
      {IDC_FIXTURE_A, "AUTORADIOBUTTON", K::RadioButton, "A", {10, 70, 40, 80}},
      {IDC_FIXTURE_C, "CONTROL", K::RadioButton, "C", {80, 70, 110, 80}},
      {IDC_FIXTURE_D, "RADIOBUTTON", K::RadioButton, "D", {114, 70, 144, 80}},
      {IDC_FIXTURE_DATE, "CONTROL", K::DatePicker, "", {10, 84, 80, 98}},
      {IDC_FIXTURE_SPIN, "CONTROL", K::UpDown, "", {84, 84, 96, 98}},
      {IDC_FIXTURE_LIST, "LISTBOX", K::ListBox, "", {10, 102, 80, 132}},
      {IDC_FIXTURE_COMBO, "COMBOBOX", K::ComboBox, "", {84, 102, 154, 162}},
      {IDC_FIXTURE_GO, "PUSHBUTTON", K::PushButton, "Go", {160, 140, 210, 154}},
      {IDC_FIXTURE_HIDDEN, "DEFPUSHBUTTON", K::PushButton, "Hidden", {104, 140, 154, 154}},
  };
  for (const Expected& e : rows) {
    SCOPED_TRACE(e.id);
    const TemplateControl& c = Row(e.id);
    EXPECT_STREQ(c.keyword, e.keyword);
    EXPECT_EQ(c.kind, e.kind);
    EXPECT_STREQ(c.text, e.text);
    EXPECT_EQ(c.rect, e.rect);
  }
}

class FixtureDialog : public ::testing::Test {
 protected:
  FixtureDialog() { AddTemplateControls(Fixture(), controls); }
  FakeControls controls;
};

TEST_F(FixtureDialog, HoldsTheControlsWithIdsAsDeclared) {
  int named = 0;
  for (const TemplateControl& t : Fixture().controls) {
    if (t.id == -1) continue;
    ++named;
    SCOPED_TRACE(t.line);
    ASSERT_TRUE(controls.HasDlgItem(t.id));
    const FakeControl& c = controls.Control(t.id);
    EXPECT_EQ(c.kind, t.kind);
    EXPECT_EQ(c.text, t.text);
    EXPECT_EQ(c.rect, t.rect);
    EXPECT_EQ(c.visible, t.visible);
    EXPECT_EQ(c.enabled, t.enabled);
  }
  EXPECT_EQ(named, 18);
  EXPECT_FALSE(controls.HasDlgItem(-1));
}

TEST_F(FixtureDialog, ThreeStateBoxesCycleThroughIndeterminateAndTwoStateBoxesDoNot) {
  struct Case {
    int id;
    int states[4];
  };
  const Case cases[] = {
      {IDC_FIXTURE_MIXED, {kBstChecked, kBstIndeterminate, kBstUnchecked, kBstChecked}},
      {IDC_FIXTURE_MIXED_CONTROL, {kBstChecked, kBstIndeterminate, kBstUnchecked, kBstChecked}},
      {IDC_FIXTURE_SHOWN, {kBstChecked, kBstUnchecked, kBstChecked, kBstUnchecked}},
      {IDC_FIXTURE_PLAIN_BOX, {kBstChecked, kBstUnchecked, kBstChecked, kBstUnchecked}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.id);
    for (int expected : c.states) {
      controls.Click(c.id);
      EXPECT_EQ(controls.IsDlgButtonChecked(c.id), expected);
    }
  }
}

TEST_F(FixtureDialog, RadioButtonsExcludeEachOtherWithinTheirGroupOnly) {
  controls.Click(IDC_FIXTURE_A);
  controls.Click(IDC_FIXTURE_C);
  EXPECT_EQ(controls.IsDlgButtonChecked(IDC_FIXTURE_A), kBstChecked);  // C starts another group
  controls.Click(IDC_FIXTURE_B);
  EXPECT_EQ(controls.IsDlgButtonChecked(IDC_FIXTURE_A), kBstUnchecked);
  EXPECT_EQ(controls.IsDlgButtonChecked(IDC_FIXTURE_C), kBstChecked);
  controls.Click(IDC_FIXTURE_D);  // not automatic: the dialog would check it
  EXPECT_EQ(controls.IsDlgButtonChecked(IDC_FIXTURE_D), kBstUnchecked);
  EXPECT_EQ(controls.IsDlgButtonChecked(IDC_FIXTURE_C), kBstChecked);
}

TEST_F(FixtureDialog, EditsTakeOnlyWhatTheirStylesLetAUserType) {
  EXPECT_THROW(controls.TypeText(IDC_FIXTURE_NAME, "x"), std::logic_error);  // read-only
  controls.TypeText(IDC_FIXTURE_COUNT, "042");
  EXPECT_EQ(controls.Control(IDC_FIXTURE_COUNT).text, "042");
  EXPECT_THROW(controls.TypeText(IDC_FIXTURE_COUNT, "4a"), std::logic_error);  // digits only
  EXPECT_THROW(controls.TypeText(IDC_FIXTURE_COUNT, "-4"), std::logic_error);
  // The program may still set a read-only edit's text.
  controls.SetDlgItemTextA(IDC_FIXTURE_NAME, "shown");
  EXPECT_EQ(controls.Control(IDC_FIXTURE_NAME).text, "shown");
}

TEST_F(FixtureDialog, HiddenAndDisabledControlsCannotBeClicked) {
  EXPECT_THROW(controls.Click(IDC_FIXTURE_HIDDEN), std::logic_error);
  EXPECT_THROW(controls.Click(IDC_FIXTURE_OFF), std::logic_error);
  controls.Click(IDC_FIXTURE_GO);
}

}  // namespace
}  // namespace orv
