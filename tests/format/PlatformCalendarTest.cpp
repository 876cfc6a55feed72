// Windows build only: the program's calendar against the platform's automation date functions,
// over the whole range, and the platform half of the locale seam.

#include <windows.h>
#include <oleauto.h>

#include <gtest/gtest.h>

#include <cstdint>

#include "format/Calendar.h"
#include "format/DateLocale.h"

namespace {

// Every 97th day of the range, each at another second of the day (7919 is prime to 86400).
template <typename Check>
void ForSpreadDates(Check check) {
  for (std::int64_t day = -657434; day <= 2958465; day += 97) {
    const std::int64_t seconds = ((day % 86400 + 86400) * 7919) % 86400;
    check(orv::DateFromDayAndSeconds(day, seconds));
  }
}

TEST(PlatformCalendar, BreaksDownAsVarUdateFromDateAndVariantTimeToSystemTime) {
  ForSpreadDates([](double date) {
    UDATE udate{};
    ASSERT_EQ(::VarUdateFromDate(date, 0, &udate), S_OK) << date;
    SYSTEMTIME system{};
    ASSERT_TRUE(::VariantTimeToSystemTime(date, &system)) << date;
    orv::DateParts parts;
    ASSERT_TRUE(orv::BreakDownDate(date, parts)) << date;
    EXPECT_EQ(parts.dayOfWeek, udate.st.wDayOfWeek) << date;
    for (const SYSTEMTIME& platform : {udate.st, system}) {
      EXPECT_EQ(parts.year, platform.wYear) << date;
      EXPECT_EQ(parts.month, platform.wMonth) << date;
      EXPECT_EQ(parts.day, platform.wDay) << date;
      EXPECT_EQ(parts.hour, platform.wHour) << date;
      EXPECT_EQ(parts.minute, platform.wMinute) << date;
      EXPECT_EQ(parts.second, platform.wSecond) << date;
    }
  });
}

TEST(PlatformCalendar, MakesDatesAsSystemTimeToVariantTime) {
  ForSpreadDates([](double date) {
    orv::DateParts parts;
    ASSERT_TRUE(orv::BreakDownDate(date, parts));
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(parts.year);
    time.wMonth = static_cast<WORD>(parts.month);
    time.wDay = static_cast<WORD>(parts.day);
    time.wHour = static_cast<WORD>(parts.hour);
    time.wMinute = static_cast<WORD>(parts.minute);
    time.wSecond = static_cast<WORD>(parts.second);
    double platform = 0.0;
    ASSERT_TRUE(::SystemTimeToVariantTime(&time, &platform)) << date;
    double ours = 0.0;
    ASSERT_TRUE(orv::DateFromParts(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second, ours));
    EXPECT_NEAR(ours, platform, 1e-8) << date;
  });
}

// The platform rounds the time to the nearest second, and so does the program.
TEST(PlatformCalendar, RoundsToTheNearestSecondAsThePlatform) {
  for (double date :
       {40000.5 + 0.7 / 86400.0, 40000.5 + 0.3 / 86400.0, -1.25 - 0.7 / 86400.0, 40000.0 + 86399.7 / 86400.0}) {
    UDATE platform{};
    ASSERT_EQ(::VarUdateFromDate(date, 0, &platform), S_OK) << date;
    orv::DateParts parts;
    ASSERT_TRUE(orv::BreakDownDate(date, parts));
    EXPECT_EQ(parts.day, platform.st.wDay) << date;
    EXPECT_EQ(parts.hour, platform.st.wHour) << date;
    EXPECT_EQ(parts.minute, platform.st.wMinute) << date;
    EXPECT_EQ(parts.second, platform.st.wSecond) << date;
  }
}

TEST(PlatformDateLocale, AnswersFromTheLocaleAndTheModule) {
  EXPECT_EQ(orv::PlatformDateLocale().GetShortDatePicture(0x0409), "M/d/yyyy");
  EXPECT_FALSE(orv::PlatformDateLocale().GetShortDatePicture(0).empty());
  EXPECT_FALSE(orv::PlatformDateLocale().GetTimeFormatNoSeconds(14, 30).empty());
  // the test program has no string 55296
  EXPECT_EQ(orv::PlatformDateLocale().LoadInvalidDateText(), "");
}

}  // namespace
