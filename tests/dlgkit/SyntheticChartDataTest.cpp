// The synthetic chart that tests, fuzzing and the demo host share: its calendar, where a date
// falls among its bars, and its answers to calls out of range.

#include <gtest/gtest.h>

#include <cstdint>

#include "dlgkit/fake/SyntheticChartData.h"

namespace orv {
namespace {

using Chart = SyntheticChartData;

TEST(SyntheticChartData, DayNumbersAndTradingDays) {
  struct Day {
    int year, month, day;
    std::int32_t number;
    bool trading;
  };
  const Day days[] = {
      {1900, 1, 1, 0, false},                                    // a Monday, but New Year's Day
      {1900, 1, 2, 1, true},        {1998, 7, 27, 36001, true},  // the control points' default date
      {2000, 2, 29, 36583, true},   {2023, 7, 4, 45109, false},  // Independence Day
      {2023, 12, 25, 45283, false},                              // Christmas, a Monday
      {2023, 12, 26, 45284, true},  {2024, 6, 28, 45469, true},  // a Friday
      {2024, 6, 29, 45470, false},                               // Saturday
      {2024, 6, 30, 45471, false},                               // Sunday
  };
  for (const Day& d : days) {
    SCOPED_TRACE(d.number);
    EXPECT_EQ(Chart::DayNumber(d.year, d.month, d.day), d.number);
    int year = 0, month = 0, day = 0;
    Chart::CivilDay(d.number, year, month, day);
    EXPECT_EQ(year * 10000 + month * 100 + day, d.year * 10000 + d.month * 100 + d.day);
    EXPECT_EQ(Chart::IsTradingDay(d.number), d.trading);
  }
}

struct Find {
  const char* what;
  bool intraday;
  std::int32_t date, time;
  Status status;
  std::int32_t expectedDate, expectedMinutes;  // of the bar found
  std::int32_t exact;                          // 1: left as it was
};

TEST(SyntheticChartData, DateToPosFindsTheFirstBarAtOrAfter) {
  const std::int32_t june24 = Chart::DayNumber(2024, 6, 24), june28 = Chart::DayNumber(2024, 6, 28);
  const Find finds[] = {
      {"a trading day", false, june24, 0, kStatusOk, june24, 0, 1},
      {"a Saturday: Monday", false, Chart::DayNumber(2024, 6, 22), 0, kStatusOk, june24, 0, 0},
      {"a daily chart has no times", false, june24, 600, kStatusOk, june24, 0, 1},
      {"after the last bar", false, Chart::DayNumber(2024, 7, 1), 0, kStatusFail, 0, 0, 0},
      {"a bar's time", true, june28, 9 * 60 + 35, kStatusOk, june28, 9 * 60 + 35, 1},
      {"between bars: the next", true, june28, 9 * 60 + 37, kStatusOk, june28, 9 * 60 + 40, 0},
      {"no time: the day's first", true, june28, 0, kStatusOk, june28, 9 * 60 + 30, 1},
      {"after the session: the next day's first", true, Chart::DayNumber(2024, 6, 27), 17 * 60, kStatusOk, june28,
       9 * 60 + 30, 0},
  };
  for (const Find& f : finds) {
    SCOPED_TRACE(f.what);
    auto chart = f.intraday ? Chart::Intraday(3) : Chart::Daily(50);
    std::int32_t exact = 1, pos = -7;
    EXPECT_EQ(chart->DateToPos(f.date, f.time, &exact, pos), f.status);
    EXPECT_EQ(exact, f.exact);
    if (f.status != kStatusOk) {
      EXPECT_EQ(pos, -1);
      continue;
    }
    std::int32_t date = 0, minutes = 0, seconds = 0;
    ASSERT_EQ(chart->PosToDate(pos, date, minutes, seconds), kStatusOk);
    EXPECT_EQ(date, f.expectedDate);
    EXPECT_EQ(minutes, f.expectedMinutes);
  }
}

TEST(SyntheticChartData, CallsOutOfRangeFailAndLeaveTheOutputsAlone) {
  auto chart = Chart::Daily(10);
  double value = -1;
  EXPECT_EQ(chart->GetValue(4, 0, value), kStatusInvalidArg);   // no such field
  EXPECT_EQ(chart->GetValue(0, 10, value), kStatusInvalidArg);  // no such bar
  std::int32_t date = -1;
  EXPECT_EQ(chart->PosToDateOnly(-1, date), kStatusInvalidArg);
  EXPECT_EQ(value, -1);
  EXPECT_EQ(date, -1);
}

}  // namespace
}  // namespace orv
