// The season page: its lists and texts at start, the dates it stores and the preview it shows as
// the user picks months, and what it keeps when the user comes back.
#include <gtest/gtest.h>

#include <string>

#include "SznPageDriver.h"
#include "format/DateObject.h"
#include "seasonal/SznTables.h"

namespace {

using orv::seasonal::MakeSeasonDate;
using orv::seasonal::SeasonDate;
using szntest::FirstRunState;
using szntest::SznPages;

void ExpectDate(const SeasonDate& date, int year, int month, int day) {
  const SeasonDate expected = MakeSeasonDate(year, month, day);
  EXPECT_EQ(date.status, expected.status);
  EXPECT_EQ(date.value, expected.value) << year << "-" << month << "-" << day;
}

TEST(SznWzrdPgSeason, StartsWithBothMonthListsAndTheYearOfTheSeason) {
  SznPages run(FirstRunState(2000));
  run.State().Start = MakeSeasonDate(2000, 3, 1);
  run.State().End = MakeSeasonDate(2000, 8, 31);
  run.Start(IDD_SZN_SEASON);
  orv::FakeControls& c = run.Current();
  for (int combo : {IDC_SZN_SEASON_START, IDC_SZN_SEASON_END}) {
    ASSERT_EQ(c.ComboGetCount(combo), 12);
    for (int i = 0; i < 12; ++i) {
      EXPECT_EQ(c.ComboGetLBText(combo, i), orv::seasonal::kMonthNames[i]);
      EXPECT_EQ(c.ComboGetItemData(combo, i), i + 1);
    }
  }
  EXPECT_EQ(c.ComboGetCurSel(IDC_SZN_SEASON_START), 2);
  EXPECT_EQ(c.ComboGetCurSel(IDC_SZN_SEASON_END), 7);
  EXPECT_EQ(c.GetFocus(), IDC_SZN_SEASON_START);
  EXPECT_EQ(c.Control(IDC_SZN_SEASON_YEAR).text, "Season (for year 2000)");
  EXPECT_EQ(c.Control(IDC_SZN_SEASON_PREVIEW).text, "Mar/01/2000 - Aug/31/2000");
}

// The dates go to the state at each pick: the start on the 1st, the end on the last day of its
// month (February always the 28th), both in the year of the start. Only the preview moves the
// end into the next year.
TEST(SznWzrdPgSeason, EachPickStoresTheDatesAndShowsThePreview) {
  struct Row {
    int year, startMonth, endMonth;
    int endDay;
    const char* preview;
  };
  const Row rows[] = {
      {2000, 1, 12, 31, "Jan/01/2000 - Dec/31/2000"}, {2000, 11, 2, 28, "Nov/01/2000 - Feb/28/2001"},
      {2004, 2, 2, 28, "Feb/01/2004 - Feb/28/2004"},  {1999, 12, 1, 31, "Dec/01/1999 - Jan/31/2000"},
      {2000, 6, 6, 30, "Jun/01/2000 - Jun/30/2000"},  {2000, 5, 4, 30, "May/01/2000 - Apr/30/2001"},
      {2023, 9, 11, 30, "Sep/01/2023 - Nov/30/2023"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.preview);
    SznPages run(FirstRunState(row.year));
    run.Start(IDD_SZN_SEASON);
    orv::FakeControls& c = run.Current();
    c.SelectComboItem(IDC_SZN_SEASON_START, row.startMonth - 1);
    ExpectDate(run.State().Start, row.year, row.startMonth, 1);
    c.SelectComboItem(IDC_SZN_SEASON_END, row.endMonth - 1);
    ExpectDate(run.State().Start, row.year, row.startMonth, 1);
    ExpectDate(run.State().End, row.year, row.endMonth, row.endDay);
    EXPECT_EQ(c.Control(IDC_SZN_SEASON_PREVIEW).text, row.preview);
    // The year shown is the one the page started with.
    EXPECT_EQ(c.Control(IDC_SZN_SEASON_YEAR).text, "Season (for year " + std::to_string(row.year) + ")");
  }
}

// Becoming active stores the months the lists show: an End of another year or day is brought to
// the year of Start and the end of its month.
TEST(SznWzrdPgSeason, BecomingActiveStoresTheDates) {
  SznPages run(FirstRunState(2000));
  run.State().Start = MakeSeasonDate(2000, 11, 17);
  run.State().End = MakeSeasonDate(2001, 2, 3);
  run.Start(IDD_SZN_SEASON);
  ExpectDate(run.State().Start, 2000, 11, 1);
  ExpectDate(run.State().End, 2000, 2, 28);
  EXPECT_EQ(run.Current().Control(IDC_SZN_SEASON_PREVIEW).text, "Nov/01/2000 - Feb/28/2001");
}

// A Start that is no date has year -1: no month is selected, and the stored dates (month 1, year
// -1) can't be made either.
TEST(SznWzrdPgSeason, AStartThatIsNoDateShowsYearMinusOne) {
  SznPages run(FirstRunState(2000));
  run.State().Start.status = orv::seasonal::kDateInvalid;
  run.Start(IDD_SZN_SEASON);
  orv::FakeControls& c = run.Current();
  EXPECT_EQ(c.Control(IDC_SZN_SEASON_YEAR).text, "Season (for year -1)");
  EXPECT_EQ(c.ComboGetCurSel(IDC_SZN_SEASON_START), -1);
  EXPECT_EQ(run.State().Start.status, orv::seasonal::kDateInvalid);
  EXPECT_EQ(run.State().End.status, orv::seasonal::kDateInvalid);
  const std::string invalid = orv::InvalidDateText();
  EXPECT_EQ(c.Control(IDC_SZN_SEASON_PREVIEW).text, invalid + " - " + invalid);
}
TEST(SznWzrdPgSeason, BackKeepsTheUsersMonthsAndStoresThemAgain) {
  SznPages run(FirstRunState(2000));
  run.Start(IDD_SZN_SEASON);
  run.Current().SelectComboItem(IDC_SZN_SEASON_START, 10);
  run.Current().SelectComboItem(IDC_SZN_SEASON_END, 1);
  ASSERT_TRUE(run.Wizard().PressNext());
  // The state changes behind the page's back; the page stores what its lists show again.
  run.State().End = MakeSeasonDate(2000, 7, 31);
  ASSERT_TRUE(run.Wizard().PressBack());
  ASSERT_EQ(run.CurrentDialog(), IDD_SZN_SEASON);
  orv::FakeControls& c = run.Current();
  EXPECT_EQ(c.ComboGetCurSel(IDC_SZN_SEASON_START), 10);
  EXPECT_EQ(c.ComboGetCurSel(IDC_SZN_SEASON_END), 1);
  ExpectDate(run.State().End, 2000, 2, 28);
  EXPECT_EQ(c.Control(IDC_SZN_SEASON_PREVIEW).text, "Nov/01/2000 - Feb/28/2001");
}

}  // namespace
