// FormatTimeValue: each id with its unit, the twelve-hour clock at its turns, times since 1970,
// negative and extreme values, and unknown ids.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

#include "FakeDateLocale.h"
#include "format/DateFormat.h"

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
// Friday 13 February 2009, 23:31:30 UTC
constexpr std::int32_t kUnixTime = 1234567890;

struct TimeCase {
  std::int32_t value;
  std::int32_t id;
  const char* text;
  int result;
};

void PrintTo(const TimeCase& c, std::ostream* os) { *os << c.value << " id " << c.id << " \"" << c.text << "\""; }

class TimeValue : public testing::TestWithParam<TimeCase> {};

TEST_P(TimeValue, PrintsTheValueInTheIdsUnit) {
  const TimeCase& c = GetParam();
  std::string text = "left over";
  EXPECT_EQ(FormatTimeValue(c.value, c.id, text), c.result) << c.id << " " << c.value;
  EXPECT_EQ(text, c.text) << c.id << " " << c.value;
}

INSTANTIATE_TEST_SUITE_P(Clock24, TimeValue,
                         testing::Values(TimeCase{0, 256, "0:00", 0}, TimeCase{870, 256, "14:30", 0},
                                         TimeCase{1500, 256, "25:00", 0}, TimeCase{45296, 257, "12:34:56", 0},
                                         TimeCase{86405, 257, "0:00:05", 0}, TimeCase{86399, 257, "23:59:59", 0},
                                         TimeCase{45296789, 258, "12:34:56.789", 0},
                                         TimeCase{86400001, 258, "0:00:00.001", 0},
                                         TimeCase{5, 258, "0:00:00.005", 0}));

// Hours on a 12-hour clock: 0 and 12 are shown as 12; the first field of 512 and 513 is two wide.
INSTANTIATE_TEST_SUITE_P(Clock12, TimeValue,
                         testing::Values(TimeCase{0, 512, "12:00 AM", 0}, TimeCase{59, 512, "12:59 AM", 0},
                                         TimeCase{60, 512, " 1:00 AM", 0}, TimeCase{719, 512, "11:59 AM", 0},
                                         TimeCase{720, 512, "12:00 PM", 0}, TimeCase{870, 512, " 2:30 PM", 0},
                                         TimeCase{1439, 512, "11:59 PM", 0}, TimeCase{0, 513, "12:00:00 AM", 0},
                                         TimeCase{52245, 513, " 2:30:45 PM", 0}, TimeCase{43199, 513, "11:59:59 AM", 0},
                                         TimeCase{0, 768, "12:00", 0}, TimeCase{870, 768, "2:30", 0},
                                         TimeCase{719, 768, "11:59", 0}));

// Seconds since 1970 through the date masks of 272 and 277, to the whole minute.
INSTANTIATE_TEST_SUITE_P(
    SinceEpoch, TimeValue,
    testing::Values(TimeCase{0, 272, "12:00AM  01/01/70", 0}, TimeCase{-5, 272, "12:00AM  01/01/70", 0},
                    TimeCase{kMin, 277, "01/01/70 12:00AM", 0}, TimeCase{59, 272, "12:00AM  01/01/70", 0},
                    TimeCase{kUnixTime, 272, "11:31PM  02/13/09", 0}, TimeCase{kUnixTime, 273, "02/13/09 11:31PM", 0},
                    TimeCase{kUnixTime, 277, "02/13/09 11:31PM", 0},
                    TimeCase{951782400, 277, "02/29/00 12:00AM", 0},  // leap day 2000
                    TimeCase{kMax, 272, "03:14AM  01/19/38", 0}));

// Division truncates, so negative values print negative fields: what it prints is defined, and
// nothing overflows at the ends of the range.
INSTANTIATE_TEST_SUITE_P(Negative, TimeValue,
                         testing::Values(TimeCase{-90, 256, "-1:-30", 0}, TimeCase{-1, 257, "0:00:-1", 0},
                                         TimeCase{-1, 258, "0:00:00.-01", 0}, TimeCase{-60, 512, "-1:00 AM", 0},
                                         TimeCase{kMin, 256, "-35791394:-8", 0}, TimeCase{kMax, 256, "35791394:07", 0},
                                         TimeCase{kMin, 257, "-3:-14:-8", 0}, TimeCase{kMax, 513, " 3:14:07 PM", 0},
                                         TimeCase{kMin, 999, "-35791394:-8", 2}));

// Ids it doesn't know print minutes as 256 does, and say so.
INSTANTIATE_TEST_SUITE_P(UnknownIds, TimeValue,
                         testing::Values(TimeCase{90, 999, "1:30", 2}, TimeCase{90, 16, "1:30", 2},
                                         TimeCase{90, 274, "1:30", 2}, TimeCase{90, 514, "1:30", 2},
                                         TimeCase{90, 0, "1:30", 2}, TimeCase{90, -1, "1:30", 2}));

// 769 asks the user's locale for the time of day in whole minutes; natively the answer is the
// United States', "h:mm tt" (on Windows it is the user's, so these rows are native only).
#if !defined(_WIN32)
INSTANTIATE_TEST_SUITE_P(Locale, TimeValue,
                         testing::Values(TimeCase{0, 769, "12:00 AM", 0}, TimeCase{-1, 769, "12:00 AM", 0},
                                         TimeCase{kUnixTime, 769, "11:31 PM", 0}, TimeCase{43259, 769, "12:00 PM", 0},
                                         TimeCase{86400 + 3600 + 59, 769, "1:00 AM", 0}));
#endif

TEST(TimeValue, TheLocaleFormIsAskedForHourAndMinuteOfTheDay) {
  FakeDateLocale locale;
  orv::ScopedDateLocale scope(locale);
  std::string text;
  EXPECT_EQ(FormatTimeValue(kUnixTime, 769, text), 0);
  EXPECT_EQ(text, "time");
  EXPECT_EQ(locale.askedTime, "23h31");
  locale.timeText = "";  // the platform refused: nothing to show
  EXPECT_EQ(FormatTimeValue(kUnixTime, 769, text), 0);
  EXPECT_EQ(text, "");
}

}  // namespace
