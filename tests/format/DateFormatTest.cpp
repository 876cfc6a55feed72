// FormatDateValue: every id over dates worked out by hand, the no-date mark, the masks for dates
// without time and before day 1, milliseconds, unknown ids and dates the calendar can't hold.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

#include "FakeDateLocale.h"
#include "format/DateFormat.h"

namespace {

constexpr double kSecond = 1.0 / 86400.0;
// Monday 6 July 2009, 15:04:05
constexpr double kAfternoon = 40000.0 + (15 * 3600 + 4 * 60 + 5) * kSecond;
// Wednesday 20 October 2010, no time of day
constexpr double kMidnight = 40471.0;
// Friday 29 December 1899, 06:00: before day 0, so day -1 and the time the fraction's size
constexpr double kBeforeDayZero = -1.25;

struct DateCase {
  double date;
  std::int32_t id;
  const char* text;
  int result;
};

// Readable test names: the date, the id and the text expected.
void PrintTo(const DateCase& c, std::ostream* os) { *os << c.date << " id " << c.id << " \"" << c.text << "\""; }

// The United States' short date for id 224 on every build: on Windows the user's locale answers.
class DateValue : public testing::TestWithParam<DateCase> {
 protected:
  DateValue() { locale_.picture = "M/d/yyyy"; }
  FakeDateLocale locale_;
  orv::ScopedDateLocale scope_{locale_};
};

TEST_P(DateValue, PrintsTheIdsForm) {
  const DateCase& c = GetParam();
  std::string text = "left over";
  EXPECT_EQ(FormatDateValue(c.date, c.id, text), c.result) << c.id << " " << c.date;
  EXPECT_EQ(text, c.text) << c.id << " " << c.date;
  EXPECT_EQ(FormatDateString(c.date, c.id), c.text) << c.id << " " << c.date;
}

INSTANTIATE_TEST_SUITE_P(
    Afternoon, DateValue,
    testing::Values(DateCase{kAfternoon, 16, "07/06/09", 0}, DateCase{kAfternoon, 32, "07-06-09", 0},
                    DateCase{kAfternoon, 48, "06-Jul-09", 0}, DateCase{kAfternoon, 64, "Jul-09", 0},
                    DateCase{kAfternoon, 80, "06/07/09", 0}, DateCase{kAfternoon, 96, "06-07-09", 0},
                    DateCase{kAfternoon, 112, "09/07/06", 0}, DateCase{kAfternoon, 128, "09-07-06", 0},
                    DateCase{kAfternoon, 144, "7-6-2009", 0}, DateCase{kAfternoon, 192, "Jul-06", 0},
                    DateCase{kAfternoon, 208, "Mon 07/06/09", 0}, DateCase{kAfternoon, 224, "7/6/2009", 0},
                    DateCase{kAfternoon, 241, "40000 (7-6-2009)", 0}, DateCase{kAfternoon, 242, "7/6/2009", 0},
                    DateCase{kAfternoon, 243, "6-Jul-2009", 0}, DateCase{kAfternoon, 244, "July 6, 2009", 0},
                    DateCase{kAfternoon, 256, "15:04", 0}, DateCase{kAfternoon, 257, "15:04:05", 0},
                    DateCase{kAfternoon, 258, "15:04:05.000", 0}, DateCase{kAfternoon, 272, "03:04PM  07/06/09", 0},
                    DateCase{kAfternoon, 273, "7/6/09 15:04", 0}, DateCase{kAfternoon, 274, "7/6/09 15:04:05", 0},
                    DateCase{kAfternoon, 275, "7/6/2009 15:04", 0}, DateCase{kAfternoon, 276, "7/6/2009 15:04:05", 0},
                    DateCase{kAfternoon, 277, "07/06/09 03:04PM", 0}, DateCase{kAfternoon, 278, "7/6/09 03:04:05PM", 0},
                    DateCase{kAfternoon, 512, "03:04 PM", 0}, DateCase{kAfternoon, 513, "03:04:05 PM", 0},
                    DateCase{kAfternoon, 514, "03:04:05.000 PM", 0}, DateCase{kAfternoon, 768, "03:04", 0}));

// Two-digit months and days keep their digits under '#'; without a time of day the date-and-time
// forms 273 to 276 print the date alone.
INSTANTIATE_TEST_SUITE_P(
    Midnight, DateValue,
    testing::Values(DateCase{kMidnight, 16, "10/20/10", 0}, DateCase{kMidnight, 48, "20-Oct-10", 0},
                    DateCase{kMidnight, 144, "10-20-2010", 0}, DateCase{kMidnight, 208, "Wed 10/20/10", 0},
                    DateCase{kMidnight, 224, "10/20/2010", 0}, DateCase{kMidnight, 241, "40471 (10-20-2010)", 0},
                    DateCase{kMidnight, 243, "20-Oct-2010", 0}, DateCase{kMidnight, 244, "October 20, 2010", 0},
                    DateCase{kMidnight, 256, "00:00", 0}, DateCase{kMidnight, 258, "00:00:00.000", 0},
                    DateCase{kMidnight, 272, "12:00AM  10/20/10", 0}, DateCase{kMidnight, 273, "10/20/10", 0},
                    DateCase{kMidnight, 274, "10/20/10", 0}, DateCase{kMidnight, 275, "10/20/2010", 0},
                    DateCase{kMidnight, 276, "10/20/2010", 0}, DateCase{kMidnight, 277, "10/20/10 12:00AM", 0},
                    DateCase{kMidnight, 278, "10/20/10 12:00:00AM", 0}, DateCase{kMidnight, 512, "12:00 AM", 0},
                    DateCase{kMidnight, 514, "12:00:00.000 AM", 0}, DateCase{kMidnight, 768, "12:00", 0},
                    // the 1900 boundary: day 1 is 31 December 1899, 1900 has no 29 February
                    DateCase{1.0, 144, "12-31-1899", 0}, DateCase{2.0, 144, "1-1-1900", 0},
                    DateCase{60.0, 144, "2-28-1900", 0}, DateCase{61.0, 144, "3-1-1900", 0},
                    DateCase{36585.0, 243, "29-Feb-2000", 0}, DateCase{36586.0, 243, "1-Mar-2000", 0}));

// A whole day below 1 takes the third mask of 273 to 276; 276's has the literal S the host knows.
INSTANTIATE_TEST_SUITE_P(
    BeforeDayZero, DateValue,
    testing::Values(DateCase{kBeforeDayZero, 16, "12/29/99", 0}, DateCase{kBeforeDayZero, 144, "12-29-1899", 0},
                    DateCase{kBeforeDayZero, 208, "Fri 12/29/99", 0},
                    DateCase{kBeforeDayZero, 241, "-1 (12-29-1899)", 0}, DateCase{kBeforeDayZero, 256, "06:00", 0},
                    DateCase{kBeforeDayZero, 258, "06:00:00.000", 0},
                    DateCase{kBeforeDayZero, 272, "06:00AM  12/29/99", 0}, DateCase{kBeforeDayZero, 273, "06:00", 0},
                    DateCase{kBeforeDayZero, 274, "06:00:00", 0}, DateCase{kBeforeDayZero, 275, "06:00", 0},
                    DateCase{kBeforeDayZero, 276, "06:00:S", 0},
                    DateCase{kBeforeDayZero, 278, "12/29/99 06:00:00AM", 0},
                    DateCase{kBeforeDayZero, 512, "06:00 AM", 0}, DateCase{-657434.0, 242, "1/1/100", 0},
                    DateCase{-657434.5, 257, "12:00:00", 0}));

// The whole day 0, also reached from just below 0, is "no date" for every id with a bit of 240;
// the others print the time.
INSTANTIATE_TEST_SUITE_P(
    DayZero, DateValue,
    testing::Values(DateCase{0.0, 16, " --- ", 2}, DateCase{0.999, 244, " --- ", 2}, DateCase{-0.75, 16, " --- ", 2},
                    DateCase{0.25, 276, " --- ", 2}, DateCase{0.25, 273, " --- ", 2}, DateCase{0.5, 224, " --- ", 2},
                    DateCase{0.5, 241, " --- ", 2}, DateCase{0.5, 272, " --- ", 2}, DateCase{0.5, 256, "12:00", 0},
                    DateCase{-0.75, 256, "18:00", 0}, DateCase{0.5, 257, "12:00:00", 0},
                    DateCase{0.75, 513, "06:00:00 PM", 0}, DateCase{0.0, 768, "12:00", 0},
                    // unknown ids with such a bit too
                    DateCase{0.5, 999, " --- ", 2}, DateCase{0.5, -1, " --- ", 2}, DateCase{0.5, 17, " --- ", 2}));

// Unknown ids print the time below day 1 and the date from day 1 on, and say so with 2.
INSTANTIATE_TEST_SUITE_P(
    UnknownIds, DateValue,
    testing::Values(DateCase{0.5, 1, "12:00 PM", 2}, DateCase{0.0, 0, "12:00 AM", 2},
                    DateCase{kBeforeDayZero, 1, "06:00 AM", 2}, DateCase{0.999, 769, "11:58 PM", 2},
                    DateCase{kAfternoon, 999, "07/06/09", 2}, DateCase{kAfternoon, 769, "07/06/09", 2},
                    DateCase{kAfternoon, 0, "07/06/09", 2}, DateCase{kAfternoon, 279, "07/06/09", 2},
                    DateCase{kAfternoon, -1, "07/06/09", 2},
                    DateCase{kAfternoon, std::numeric_limits<std::int32_t>::min(), "07/06/09", 2}));

// Seconds are rounded to the nearest, under 258 and 514 as under every other id.
INSTANTIATE_TEST_SUITE_P(Fractions, DateValue,
                         testing::Values(DateCase{40000.5 + 0.7 * kSecond, 257, "12:00:01", 0},
                                         DateCase{40000.0 + 86399.6 * kSecond, 16, "07/07/09", 0},
                                         DateCase{40000.0 + 86399.6 * kSecond, 273, "7/7/09 00:00", 0},
                                         DateCase{40000.0 + 86399.4 * kSecond, 274, "7/6/09 23:59:59", 0},
                                         // a time too small to show is still a time: the date-and-time form is kept
                                         DateCase{40000.0 + 1e-9, 273, "7/6/09 00:00", 0}));

// 258 and 514: the clock of the date rounded to the second, then the milliseconds worked out on
// their own from the time of day (less whole hours, minutes and seconds, the rest rounded). The
// two don't agree where the rounding carries, and a rest from 999.5 up prints four digits.
INSTANTIATE_TEST_SUITE_P(
    Milliseconds, DateValue,
    testing::Values(DateCase{0.999, 258, "23:58:34.600", 0}, DateCase{0.999, 514, "11:58:34.600 PM", 0},
                    DateCase{0.999, 257, "23:58:34", 0}, DateCase{40000.5 + 0.7 * kSecond, 258, "12:00:01.700", 0},
                    DateCase{40000.5 + 0.7 * kSecond, 514, "12:00:01.700 PM", 0},
                    DateCase{40000.5 + 0.3 * kSecond, 258, "12:00:00.300", 0},
                    DateCase{40000.5 + 0.0004 * kSecond, 258, "12:00:00.000", 0},
                    DateCase{40000.5 + 0.0006 * kSecond, 258, "12:00:00.001", 0},
                    DateCase{40000.5 + 59.9996 * kSecond, 258, "12:01:00.1000", 0},
                    DateCase{40000.0 + 43199.9996 * kSecond, 514, "12:00:00.1000 PM", 0},
                    DateCase{40000.0 + 43199.6 * kSecond, 514, "12:00:00.600 PM", 0},
                    DateCase{40000.0 + 86399.9996 * kSecond, 258, "00:00:00.1000", 0},
                    DateCase{40000.0 + 86399.5 * kSecond, 514, "12:00:00.500 AM", 0},
                    DateCase{40000.0 + (13 * 3600 + 5 * 60 + 9.25) * kSecond, 514, "01:05:09.250 PM", 0},
                    // before day 0 the time of day is the fraction's size, for both parts
                    DateCase{kBeforeDayZero - 0.123 * kSecond, 258, "06:00:00.123", 0},
                    DateCase{kBeforeDayZero - 0.877 * kSecond, 258, "06:00:01.877", 0},
                    DateCase{-0.75 - 0.5004 * kSecond, 514, "06:00:01.500 PM", 0}));

// Dates outside 1 January 100 to 31 December 9999, and what is no number, print the invalid text
// where a mask prints; 241, 258 and 514 keep the rest of their form around it. The result is as
// for any date.
INSTANTIATE_TEST_SUITE_P(
    Invalid, DateValue,
    testing::Values(DateCase{2958466.0, 16, "Invalid DateTime", 0}, DateCase{-657435.0, 144, "Invalid DateTime", 0},
                    DateCase{2958465.0 + 86399.6 * kSecond, 16, "Invalid DateTime", 0},
                    DateCase{1e300, 224, "Invalid DateTime", 0},
                    DateCase{std::numeric_limits<double>::quiet_NaN(), 16, "Invalid DateTime", 0},
                    DateCase{std::numeric_limits<double>::quiet_NaN(), 1, "Invalid DateTime", 2},
                    DateCase{std::numeric_limits<double>::infinity(), 273, "Invalid DateTime", 0},
                    DateCase{-std::numeric_limits<double>::infinity(), 999, "Invalid DateTime", 2},
                    // 241: the whole day, then the invalid text in its parentheses; a day beyond
                    // 32 bits, or none, converts as the processor does, to INT32_MIN
                    DateCase{2958466.0, 241, "2958466 (Invalid DateTime)", 0},
                    DateCase{-657435.5, 241, "-657435 (Invalid DateTime)", 0},
                    DateCase{1e300, 241, "-2147483648 (Invalid DateTime)", 0},
                    DateCase{std::numeric_limits<double>::quiet_NaN(), 241, "-2147483648 (Invalid DateTime)", 0},
                    // 258 and 514: the milliseconds follow the invalid text, and 514's " %p" of
                    // the invalid date is the invalid text again
                    DateCase{2958466.25 + 0.042 * kSecond, 258, "Invalid DateTime.042", 0},
                    DateCase{2958465.0 + 86399.9996 * kSecond, 258, "Invalid DateTime.1000", 0},
                    DateCase{-657435.75, 258, "Invalid DateTime.000", 0},
                    DateCase{-1e300, 258, "Invalid DateTime.000", 0},
                    DateCase{2958466.5 + 0.25 * kSecond, 514, "Invalid DateTime.250Invalid DateTime", 0},
                    DateCase{1e300, 514, "Invalid DateTime.000Invalid DateTime", 0},
                    DateCase{std::numeric_limits<double>::infinity(), 258, "Invalid DateTime.-2147483648", 0}));

}  // namespace
