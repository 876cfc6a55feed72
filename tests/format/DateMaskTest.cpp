// The program's own strftime: each conversion with and without the '#' flag, over dates whose
// fields were worked out by hand, and the 256-byte buffer the date object gives it.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

#include "format/DateMask.h"

namespace {

using orv::DateParts;

// year, month, day, hour, minute, second, weekday (0 Sunday), day of year
constexpr DateParts kMonday2009{2009, 7, 6, 15, 4, 5, 1, 187};
constexpr DateParts kSunday2000{2000, 1, 2, 0, 7, 8, 0, 2};
constexpr DateParts kSaturday2000{2000, 1, 1, 0, 0, 0, 6, 1};
constexpr DateParts kMonday2007{2007, 1, 1, 0, 0, 0, 1, 1};
constexpr DateParts kLeapYearEnd{2012, 12, 31, 12, 0, 0, 1, 366};
constexpr DateParts kYear100{100, 1, 1, 0, 0, 0, 5, 1};
constexpr DateParts kTwoDigits{2010, 10, 20, 23, 59, 59, 3, 293};

struct MaskCase {
  const char* mask;
  DateParts parts;
  const char* text;
};

void PrintTo(const MaskCase& c, std::ostream* os) { *os << "\"" << c.mask << "\" \"" << c.text << "\""; }

class Mask : public testing::TestWithParam<MaskCase> {};

TEST_P(Mask, WritesTheFields) {
  const MaskCase& c = GetParam();
  std::string text = "left over";
  EXPECT_TRUE(orv::FormatDateMask(c.mask, c.parts, orv::kDateTextCapacity, text)) << c.mask;
  EXPECT_EQ(text, c.text) << c.mask;
}

INSTANTIATE_TEST_SUITE_P(
    Conversions, Mask,
    testing::Values(
        MaskCase{"%a %A %b %h %B", kMonday2009, "Mon Monday Jul Jul July"},
        MaskCase{"%d %m %y %Y", kMonday2009, "06 07 09 2009"},
        MaskCase{"%H %I %M %S %p", kMonday2009, "15 03 04 05 PM"}, MaskCase{"%j %w %U %W", kMonday2009, "187 1 27 27"},
        MaskCase{"%x|%X|%c", kMonday2009, "07/06/09|15:04:05|07/06/09 15:04:05"}, MaskCase{"%z%Z|", kMonday2009, "|"},
        MaskCase{"", kMonday2009, ""}, MaskCase{"no fields", kMonday2009, "no fields"},
        // '#' drops leading zeros of numbers only
        MaskCase{"%#d %#m %#y %#Y", kMonday2009, "6 7 9 2009"}, MaskCase{"%#H %#I %#M %#S", kMonday2009, "15 3 4 5"},
        MaskCase{"%#m/%#d/%#y %#H:%#M:%#S", kTwoDigits, "10/20/10 23:59:59"},
        MaskCase{"%d %#d %H %#H %I %#I %M %#M %S %#S %p", kSunday2000, "02 2 00 0 12 12 07 7 08 8 AM"},
        MaskCase{"%y %#y %j %#j %w %#w %U %#U %W %#W", kSunday2000, "00 0 002 2 0 0 01 1 00 0"},
        // ... makes %x and %c long, and is ignored by names and markers
        MaskCase{"%#x", kMonday2009, "Monday, July 6, 2009"},
        MaskCase{"%#c", kMonday2009, "Monday, July 6, 2009, 15:04:05"},
        MaskCase{"%#a %#B %#p %#%", kMonday2009, "Mon July PM %"},
        // week numbers at the turn of the year: the first Sunday or Monday starts week 1
        MaskCase{"%U %W %a", kSaturday2000, "00 00 Sat"}, MaskCase{"%U %W %a", kMonday2007, "00 01 Mon"},
        MaskCase{"%j %U %W %I %p", kLeapYearEnd, "366 53 53 12 PM"},
        // the year in full is not padded
        MaskCase{"%Y %y %#y %m/%d", kYear100, "100 00 0 01/01"},
        // what the library doesn't know stands as written
        MaskCase{"100%% %Q %#Q %", kMonday2009, "100% %Q %#Q %"}, MaskCase{"end %#", kMonday2009, "end %#"},
        MaskCase{"%%d", kMonday2009, "%d"}));

TEST(Mask, NamesOfFieldsOutOfRangeAreMarkedNotRead) {
  const DateParts odd{2009, 13, 0, 0, 0, 0, 9, 0};
  std::string text;
  EXPECT_TRUE(orv::FormatDateMask("%b %B %a %A", odd, orv::kDateTextCapacity, text));
  EXPECT_EQ(text, "? ? ? ?");
}

TEST(Mask, NulInTheMaskIsCopied) {
  std::string text;
  EXPECT_TRUE(orv::FormatDateMask(std::string_view("%d\0%m", 5), kMonday2009, orv::kDateTextCapacity, text));
  EXPECT_EQ(text, std::string("06\0"
                              "07",
                              5));
}

// strftime's buffer holds the text and its terminator; a text that doesn't fit gives nothing.
TEST(Mask, TheTextMustFitTheBufferWithItsTerminator) {
  std::string text;
  EXPECT_TRUE(orv::FormatDateMask(std::string(255, 'x'), kMonday2009, 256, text));
  EXPECT_EQ(text.size(), 255u);
  EXPECT_FALSE(orv::FormatDateMask(std::string(256, 'x'), kMonday2009, 256, text));
  EXPECT_EQ(text, "");

  std::string months;
  for (int i = 0; i < 28; ++i) months += "%B";  // "July" four letters each: 112
  EXPECT_TRUE(orv::FormatDateMask(months, kMonday2009, 113, text));
  EXPECT_EQ(text.size(), 112u);
  EXPECT_FALSE(orv::FormatDateMask(months, kMonday2009, 112, text));
  EXPECT_EQ(text, "");
  // a conversion that grows past the end fails as well
  EXPECT_FALSE(orv::FormatDateMask(std::string(250, 'x') + "%#c", kMonday2009, 256, text));
  EXPECT_EQ(text, "");

  EXPECT_FALSE(orv::FormatDateMask("", kMonday2009, 0, text));
  EXPECT_TRUE(orv::FormatDateMask("", kMonday2009, 1, text));
  EXPECT_FALSE(orv::FormatDateMask("x", kMonday2009, 1, text));
}

}  // namespace
