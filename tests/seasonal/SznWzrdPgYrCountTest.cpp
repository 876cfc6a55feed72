// The year count page: the count it shows, what Next takes and refuses; Back stores nothing.
#include <gtest/gtest.h>

#include <string>

#include "SznPageDriver.h"

namespace {

using szntest::FirstRunState;
using szntest::SznPages;

orv::seasonal::WizardSeasonState CountState(int yearsBack, int formSel) {
  auto state = FirstRunState();
  state.YearEnterMode = 1;
  state.YearsBack = yearsBack;
  state.FormSel = formSel;
  return state;
}

TEST(SznWzrdPgYrCount, ShowsTheYearsBackAsASignedNumber) {
  for (int yearsBack : {5, 1, 99, 250, -1}) {
    SCOPED_TRACE(yearsBack);
    SznPages run(CountState(yearsBack, 0));
    run.Start(IDD_SZN_YRCOUNT);
    EXPECT_EQ(run.Current().Control(IDC_SZN_YRCOUNT_COUNT).text, std::to_string(yearsBack));
  }
}

// A refusal keeps YearsBack and the form as they were; text that is no number only beeps.
TEST(SznWzrdPgYrCount, NextTakesOneToNinetyNineAndTheSingleInstrumentForm) {
  struct Row {
    const char* typed;
    bool goes;
    const char* message;  // under the title "Error"; null: none
    int yearsBack, formSel;
  };
  const Row rows[] = {
      {"1", true, nullptr, 1, 0},
      {"99", true, nullptr, 99, 0},
      {"0042", true, nullptr, 42, 0},
      {"100", false, "100 out of range: [1,99]", 7, 3},
      {"0", false, "0 out of range: [1,99]", 7, 3},
      {"4294967296", false, nullptr, 7, 3},
      {"", false, nullptr, 7, 3},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.typed);
    SznPages run(CountState(7, 3));
    run.Start(IDD_SZN_YRCOUNT);
    orv::FakeControls& c = run.Current();
    c.TypeText(IDC_SZN_YRCOUNT_COUNT, row.typed);
    c.SetFocus(0);
    EXPECT_EQ(run.Wizard().PressNext(), row.goes);
    EXPECT_EQ(run.CurrentDialog(), row.goes ? IDD_SZN_SNGLINST : IDD_SZN_YRCOUNT);
    EXPECT_EQ(run.State().YearsBack, row.yearsBack);
    EXPECT_EQ(run.State().FormSel, row.formSel);
    if (row.goes) {
      EXPECT_TRUE(c.Beeps().empty());
      EXPECT_TRUE(c.MessageBoxes().empty());
      continue;
    }
    EXPECT_EQ(c.Beeps(), std::vector<unsigned>{orv::kBeepSimple});
    EXPECT_EQ(c.GetFocus(), IDC_SZN_YRCOUNT_COUNT);
    if (row.message == nullptr) {
      EXPECT_TRUE(c.MessageBoxes().empty());
    } else {
      ASSERT_EQ(c.MessageBoxes().size(), 1u);
      EXPECT_EQ(c.MessageBoxes()[0].text, row.message);
      EXPECT_EQ(c.MessageBoxes()[0].caption, "Error");
      EXPECT_EQ(c.MessageBoxes()[0].flags, orv::kMbOk);
    }
  }
}

TEST(SznWzrdPgYrCount, BackStoresNothing) {
  SznPages run(CountState(12, 2));
  run.Start(IDD_SZN_YRCOUNT);
  run.Current().TypeText(IDC_SZN_YRCOUNT_COUNT, "30");
  ASSERT_TRUE(run.Wizard().PressBack());
  EXPECT_EQ(run.State().YearsBack, 12);
}

}  // namespace
