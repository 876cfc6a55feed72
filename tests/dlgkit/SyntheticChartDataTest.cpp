// The synthetic chart that tests, fuzzing and the demo host share: its calendar, its bars and its
// answers through the ChartData seam.

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

TEST(SyntheticChartData, BarsAreTradingDaysWithPricesThatMakeBars) {
  for (const auto& chart : {Chart::Daily(500), Chart::Intraday(10)}) {
    SCOPED_TRACE(chart->IsIntraday());
    std::int32_t kind = -1;
    ASSERT_EQ(chart->GetTimeKind(kind), kStatusOk);
    EXPECT_EQ(kind, chart->IsIntraday() ? 1 : 0);
    EXPECT_EQ(chart->LastPos() + 1, chart->IsIntraday() ? 780 : 500);
    const auto& bars = chart->Bars();
    EXPECT_EQ(bars.back().date, Chart::DayNumber(2024, 6, 28));
    for (std::size_t i = 0; i < bars.size(); ++i) {
      const auto& bar = bars[i];
      EXPECT_TRUE(Chart::IsTradingDay(bar.date)) << i;
      EXPECT_GT(bar.high, std::max(bar.open, bar.close)) << i;
      EXPECT_LT(bar.low, std::min(bar.open, bar.close)) << i;
      EXPECT_GT(bar.low, 0.0) << i;
      if (i == 0) continue;
      const auto& before = bars[i - 1];
      EXPECT_TRUE(bar.date > before.date || bar.seconds > before.seconds) << i;
      if (chart->IsIntraday()) {
        EXPECT_EQ(bar.minutes, bar.seconds / 60) << i;
      } else {
        EXPECT_EQ(bar.seconds, 0) << i;
      }
    }
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

TEST(SyntheticChartData, FailedCallsLeaveOutputsAloneAndEveryCallIsLogged) {
  auto chart = Chart::Daily(10);
  double value = -1;
  EXPECT_EQ(chart->GetValue(4, 0, value), kStatusInvalidArg);   // no such field
  EXPECT_EQ(chart->GetValue(0, 10, value), kStatusInvalidArg);  // no such bar
  std::int32_t date = -1;
  EXPECT_EQ(chart->PosToDateOnly(-1, date), kStatusInvalidArg);
  EXPECT_EQ(value, -1);
  EXPECT_EQ(date, -1);
  chart->OverrideValue(0, 3, 1.8041099e36);
  ASSERT_EQ(chart->GetValue(0, 3, value), kStatusOk);
  EXPECT_EQ(value, 1.8041099e36);
  chart->FailGetValue(true);
  EXPECT_EQ(chart->GetValue(0, 3, value), kStatusFail);
  const std::vector<std::string> calls = {"GetValue(4,0)", "GetValue(0,10)", "PosToDateOnly(-1)", "GetValue(0,3)",
                                          "GetValue(0,3)"};
  EXPECT_EQ(chart->Calls(), calls);
}

}  // namespace
}  // namespace orv
