// The calendar: automation dates, day numbers and broken-down dates, against dates worked out by
// hand and against the plain rules of the Gregorian calendar over the whole range.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <ostream>
#include <limits>

#include "format/Calendar.h"

namespace {

using orv::DateParts;

constexpr double kSecond = 1.0 / 86400.0;

struct BreakDownCase {
  double date;
  DateParts parts;  // year, month, day, hour, minute, second, weekday, day of year
};

void PrintTo(const BreakDownCase& c, std::ostream* os) { *os << c.date; }

class BreakDown : public testing::TestWithParam<BreakDownCase> {};

TEST_P(BreakDown, GivesTheCalendarDateAndTime) {
  const BreakDownCase& c = GetParam();
  DateParts parts;
  ASSERT_TRUE(orv::BreakDownDate(c.date, parts)) << c.date;
  EXPECT_EQ(parts, c.parts) << c.date;
}

INSTANTIATE_TEST_SUITE_P(
    Dates, BreakDown,
    testing::Values(
        BreakDownCase{0.0, {1899, 12, 30, 0, 0, 0, 6, 364}}, BreakDownCase{1.0, {1899, 12, 31, 0, 0, 0, 0, 365}},
        BreakDownCase{2.0, {1900, 1, 1, 0, 0, 0, 1, 1}},
        // 1900 is no leap year: 28 February is followed by 1 March
        BreakDownCase{60.0, {1900, 2, 28, 0, 0, 0, 3, 59}}, BreakDownCase{61.0, {1900, 3, 1, 0, 0, 0, 4, 60}},
        // 2000 is one
        BreakDownCase{36585.75, {2000, 2, 29, 18, 0, 0, 2, 60}},
        BreakDownCase{36891.0, {2000, 12, 31, 0, 0, 0, 0, 366}},
        BreakDownCase{40000.0 + (15 * 3600 + 4 * 60 + 5) * kSecond, {2009, 7, 6, 15, 4, 5, 1, 187}},
        // before day 0 the whole part counts back and the time is the fraction's size
        BreakDownCase{-1.25, {1899, 12, 29, 6, 0, 0, 5, 363}}, BreakDownCase{-0.5, {1899, 12, 30, 12, 0, 0, 6, 364}},
        BreakDownCase{-36522.0, {1800, 1, 1, 0, 0, 0, 3, 1}},
        // the ends of the range
        BreakDownCase{-657434.0, {100, 1, 1, 0, 0, 0, 5, 1}}, BreakDownCase{-657434.999, {100, 1, 1, 23, 58, 34, 5, 1}},
        BreakDownCase{2958465.5, {9999, 12, 31, 12, 0, 0, 5, 365}},
        // to the nearest second, carrying into the next day, month and year
        BreakDownCase{40000.5 + 0.4 * kSecond, {2009, 7, 6, 12, 0, 0, 1, 187}},
        BreakDownCase{40000.5 + 0.6 * kSecond, {2009, 7, 6, 12, 0, 1, 1, 187}},
        BreakDownCase{40000.0 + 86399.6 * kSecond, {2009, 7, 7, 0, 0, 0, 2, 188}},
        BreakDownCase{36891.0 + 86399.6 * kSecond, {2001, 1, 1, 0, 0, 0, 1, 1}},
        BreakDownCase{-1.0 - 86399.6 * kSecond, {1899, 12, 30, 0, 0, 0, 6, 364}}));

TEST(BreakDown, RefusesWhatThePlatformCannotBreakDown) {
  const DateParts untouched{1, 2, 3, 4, 5, 6, 0, 7};
  for (double date :
       {-657435.0, -1e9, 2958466.0, 2958465.0 + 86399.6 * kSecond, 1e300, std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    DateParts parts = untouched;
    EXPECT_FALSE(orv::BreakDownDate(date, parts)) << date;
    EXPECT_EQ(parts, untouched) << date;
  }
}

// Every day of the range follows the one before it by the calendar's rules, and the weekdays and
// days of the year run on: a fault in the era arithmetic shows up as a gap, a repeat or a bad leap day.
TEST(BreakDown, EveryDayOfTheRangeFollowsTheDayBefore) {
  DateParts previous;
  ASSERT_TRUE(orv::BreakDownDate(orv::kMinAutomationDate, previous));
  ASSERT_EQ(previous, (DateParts{100, 1, 1, 0, 0, 0, 5, 1}));
  int leapDays = 0;
  for (std::int64_t day = static_cast<std::int64_t>(orv::kMinAutomationDate) + 1;
       day <= static_cast<std::int64_t>(orv::kMaxAutomationDate); ++day) {
    DateParts parts;
    ASSERT_TRUE(orv::BreakDownDate(static_cast<double>(day), parts)) << day;
    DateParts expected = previous;
    expected.dayOfWeek = (previous.dayOfWeek + 1) % 7;
    if (++expected.day > orv::DaysInMonth(expected.year, expected.month)) {
      expected.day = 1;
      if (++expected.month > 12) {
        expected.month = 1;
        ++expected.year;
      }
    }
    expected.dayOfYear = expected.month == 1 && expected.day == 1 ? 1 : previous.dayOfYear + 1;
    ASSERT_EQ(parts, expected) << day;
    ASSERT_EQ(orv::DaysFromCivil(parts.year, parts.month, parts.day), day);
    if (parts.month == 2 && parts.day == 29) ++leapDays;
    previous = parts;
  }
  EXPECT_EQ(previous, (DateParts{9999, 12, 31, 0, 0, 0, 5, 365}));
  // 100 to 9999: 2475 years divisible by 4, less the 75 centuries not divisible by 400.
  EXPECT_EQ(leapDays, 2400);
}

TEST(Calendar, LeapYearsAndMonthLengths) {
  EXPECT_FALSE(orv::IsLeapYear(1900));
  EXPECT_TRUE(orv::IsLeapYear(2000));
  EXPECT_TRUE(orv::IsLeapYear(2024));
  EXPECT_FALSE(orv::IsLeapYear(2100));
  EXPECT_EQ(orv::DaysInMonth(1900, 2), 28);
  EXPECT_EQ(orv::DaysInMonth(2000, 2), 29);
  EXPECT_EQ(orv::DaysInMonth(2009, 4), 30);
  EXPECT_EQ(orv::DaysInMonth(2009, 12), 31);
  EXPECT_EQ(orv::DaysInMonth(2009, 0), 0);
  EXPECT_EQ(orv::DaysInMonth(2009, 13), 0);
}

struct FromPartsCase {
  int year, month, day, hour, minute, second;
  bool made;
  double date;
};

void PrintTo(const FromPartsCase& c, std::ostream* os) {
  *os << c.year << "-" << c.month << "-" << c.day << " " << c.hour << ":" << c.minute << ":" << c.second;
}

class FromParts : public testing::TestWithParam<FromPartsCase> {};

TEST_P(FromParts, MakesTheDateOrRefuses) {
  const FromPartsCase& c = GetParam();
  double date = 777.0;
  EXPECT_EQ(orv::DateFromParts(c.year, c.month, c.day, c.hour, c.minute, c.second, date), c.made);
  EXPECT_DOUBLE_EQ(date, c.date);
}

INSTANTIATE_TEST_SUITE_P(
    Dates, FromParts,
    testing::Values(
        FromPartsCase{1899, 12, 30, 0, 0, 0, true, 0.0}, FromPartsCase{1900, 1, 1, 0, 0, 0, true, 2.0},
        FromPartsCase{1998, 7, 27, 0, 0, 0, true, 36003.0}, FromPartsCase{2000, 2, 29, 18, 0, 0, true, 36585.75},
        FromPartsCase{1899, 12, 29, 6, 0, 0, true, -1.25}, FromPartsCase{100, 1, 1, 0, 0, 0, true, -657434.0},
        FromPartsCase{9999, 12, 31, 0, 0, 0, true, 2958465.0}, FromPartsCase{1900, 2, 29, 0, 0, 0, false, 777.0},
        FromPartsCase{2009, 4, 31, 0, 0, 0, false, 777.0}, FromPartsCase{2009, 13, 1, 0, 0, 0, false, 777.0},
        FromPartsCase{2009, 0, 1, 0, 0, 0, false, 777.0}, FromPartsCase{2009, 7, 0, 0, 0, 0, false, 777.0},
        FromPartsCase{2009, 7, 6, 24, 0, 0, false, 777.0}, FromPartsCase{2009, 7, 6, 0, 60, 0, false, 777.0},
        FromPartsCase{2009, 7, 6, 0, 0, -1, false, 777.0}, FromPartsCase{99, 12, 31, 0, 0, 0, false, 777.0},
        FromPartsCase{10000, 1, 1, 0, 0, 0, false, 777.0}));

// Day 0 has two spellings (-0.25 and 0.25 are both 06:00 on 30 December 1899); the date made
// from the parts is the positive one, and breaks down to the same parts.
TEST(FromParts, RoundTripsThroughTheBreakDown) {
  for (double date : {-657434.0, -1.75, -0.25, 0.0, 0.999, 2.5, 61.0, 36585.75, 40000.0 + 54245 * kSecond, 2958465.5}) {
    DateParts parts;
    ASSERT_TRUE(orv::BreakDownDate(date, parts));
    double back = 0.0;
    ASSERT_TRUE(orv::DateFromParts(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second, back));
    EXPECT_NEAR(back, date > -1.0 && date < 0.0 ? -date : date, 0.5 * kSecond) << date;
    DateParts again;
    ASSERT_TRUE(orv::BreakDownDate(back, again));
    EXPECT_EQ(again, parts) << date;
  }
}

TEST(DayNumber, OneOrMoreIsTheAutomationDateLessTwo) {
  EXPECT_EQ(orv::DayNumberToDate(36001), 36003.0);  // 27 July 1998
  EXPECT_EQ(orv::DayNumberToDate(1), 3.0);          // 2 January 1900
  EXPECT_EQ(orv::DayNumberToDate(0), 0.0);          // the host's 0 stays 30 December 1899
  EXPECT_EQ(orv::DayNumberToDate(-1), -1.0);
  EXPECT_EQ(orv::DayNumberToDate(-657434), -657434.0);
  EXPECT_EQ(orv::DayNumberToDate(std::numeric_limits<std::int32_t>::max()), 2147483649.0);
  EXPECT_EQ(orv::DayNumberToDate(std::numeric_limits<std::int32_t>::min()), -2147483648.0);

  EXPECT_EQ(orv::DateToDayNumber(36003.75), 36001);
  EXPECT_EQ(orv::DateToDayNumber(3.0), 1);
  EXPECT_EQ(orv::DateToDayNumber(2.0), 0);
  EXPECT_EQ(orv::DateToDayNumber(1.0), -1);  // serials 1 and 2 have no day number of their own
  EXPECT_EQ(orv::DateToDayNumber(0.5), 0);
  EXPECT_EQ(orv::DateToDayNumber(-1.5), -1);
  EXPECT_EQ(orv::DateToDayNumber(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(orv::DateToDayNumber(1e300), std::numeric_limits<std::int32_t>::max() - 2);
  EXPECT_EQ(orv::DateToDayNumber(-1e300), std::numeric_limits<std::int32_t>::min());
}

TEST(DayNumber, EveryDayNumberFromOneOnComesBack) {
  for (std::int32_t day = -700000; day <= 3000000; ++day) {
    if (day == 0) continue;
    ASSERT_EQ(orv::DateToDayNumber(orv::DayNumberToDate(day)), day) << day;
  }
}

TEST(DayNumber, TheTimeStdSaysWhetherToConvert) {
  EXPECT_EQ(orv::DayValueToDate(36001, orv::ORV_TIME_STD_ZEL), 36003.0);
  EXPECT_EQ(orv::DayValueToDate(36001, orv::ORV_TIME_STD_MS), 36001.0);
  EXPECT_EQ(orv::DayValueToDate(-5, orv::ORV_TIME_STD_ZEL), -5.0);
  EXPECT_EQ(orv::DateToDayValue(36003.5, orv::ORV_TIME_STD_ZEL), 36001);
  EXPECT_EQ(orv::DateToDayValue(36003.5, orv::ORV_TIME_STD_MS), 36003);
  EXPECT_EQ(orv::DateToDayValue(-1.5, orv::ORV_TIME_STD_MS), -1);
}

}  // namespace
