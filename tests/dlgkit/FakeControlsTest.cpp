// The in-memory controls against the platform's rules for what a box holds and what a user may
// enter (the sheet's own order of notifications is held to the platform's by the sheet sessions).

#include <gtest/gtest.h>

#include "dlgkit/fake/ControlsFake.h"

namespace {

using orv::FakeControlKind;

constexpr int kEdit = 1200;
constexpr int kCheck = 1201;

// What a box keeps of each state it is given, and where a user's click takes it: the platform's
// rules, which DataExchangeWin32Test checks against real buttons with the same table.
TEST(FakeControls, CheckStatesAreWhatTheBoxCanHold) {
  struct Case {
    bool threeState;
    int set;
    int kept;
    int afterClick;
  };
  const Case cases[] = {
      {false, 0, 0, 1}, {false, 1, 1, 0}, {false, 2, 1, 0}, {false, -1, 1, 0},
      {true, 0, 0, 1},  {true, 1, 1, 2},  {true, 2, 2, 0},  {true, 7, 2, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << (c.threeState ? "three-state" : "two-state") << " set " << c.set);
    orv::FakeControls controls;
    controls.Add(kCheck, FakeControlKind::CheckBox);
    controls.Control(kCheck).threeState = c.threeState;
    EXPECT_TRUE(controls.CheckDlgButton(kCheck, c.set));
    EXPECT_EQ(controls.IsDlgButtonChecked(kCheck), c.kept);
    controls.Click(kCheck);
    EXPECT_EQ(controls.IsDlgButtonChecked(kCheck), c.afterClick);
  }
}

TEST(FakeControls, TextLimitStopsTheUserNotTheProgram) {
  orv::FakeControls controls;
  controls.Add(kEdit, FakeControlKind::Edit).Add(kCheck, FakeControlKind::CheckBox);
  EXPECT_TRUE(controls.LimitDlgItemText(kEdit, 4));
  EXPECT_FALSE(controls.LimitDlgItemText(kCheck, 4)) << "only an edit takes a limit";
  controls.TypeText(kEdit, "123456");
  EXPECT_EQ(controls.GetDlgItemTextA(kEdit, 64), "1234");
  controls.SetDlgItemTextA(kEdit, "abcdef");
  EXPECT_EQ(controls.GetDlgItemTextA(kEdit, 64), "abcdef");
}

}  // namespace
