// FormatPrice over every format and price code, against texts worked out by hand from the code
// table: decimals rounded at their last digit, binary fractions written as the market's short
// form, the tick, sub-tick and fraction texts, negative values, -0, huge values and the no-data
// mark; then the best fit and the decomposition on their own.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

#include "format/FormatPrice.h"

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

struct PriceCase {
  double value;
  std::int32_t format;
  std::int32_t precision;
  const char* text;
};

void PrintTo(const PriceCase& c, std::ostream* os) {
  *os << c.value << " format " << c.format << " precision " << c.precision << " \"" << c.text << "\"";
}

class Price : public testing::TestWithParam<PriceCase> {};

TEST_P(Price, PrintsTheFormatsText) {
  const PriceCase& c = GetParam();
  std::string text = "left over";
  EXPECT_EQ(orv::FormatPrice(c.value, c.format, c.precision, text), 0);
  EXPECT_EQ(text, c.text) << c.value << " format " << c.format << " precision " << c.precision;
  EXPECT_LE(text.size(), orv::kPriceTextMax);
}

// The no-data mark, at 1e36 in size and beyond, whatever the format.
INSTANTIATE_TEST_SUITE_P(NoData, Price,
                         testing::Values(PriceCase{1e36, 0, 2, " --- "}, PriceCase{-1e36, 0, 2, " --- "},
                                         PriceCase{1e37, 12291, 10, " --- "}, PriceCase{kInf, 2, 0, " --- "},
                                         PriceCase{-kInf, 12, 12, " --- "}, PriceCase{2e36, 4100, 0, " --- "},
                                         // scaled past it by the format itself
                                         PriceCase{1e35, 8195, (2 << 16) | 2, " --- "}, PriceCase{9e35, 0, 90, "0"}));

// Format 0 with the decimal codes: rounded half away from zero at the last digit; a zero is "0".
INSTANTIATE_TEST_SUITE_P(Decimals, Price,
                         testing::Values(PriceCase{123.5, 0, 2, "123.50"}, PriceCase{123.456, 0, 2, "123.46"},
                                         PriceCase{0.125, 0, 2, "0.13"}, PriceCase{-0.125, 0, 2, "-0.13"},
                                         PriceCase{0.999, 0, 2, "1.00"}, PriceCase{0.001, 0, 2, "0"},
                                         PriceCase{0.0, 0, 2, "0"}, PriceCase{-0.0, 0, 2, "0"},
                                         PriceCase{2.5, 0, 0, "3"}, PriceCase{-2.5, 0, 0, "-3"},
                                         PriceCase{1.5, 0, 1, "1.5"}, PriceCase{1.5, 0, 3, "1.500"},
                                         PriceCase{1.5, 0, 4, "1.5000"}, PriceCase{1.5, 0, 5, "1.50000"},
                                         PriceCase{1.5, 0, 6, "1.500000"}, PriceCase{5.0, 0, 7, "5.0000000"},
                                         PriceCase{1.5, 0, 22, "1.50000000"}, PriceCase{1.5, 0, 23, "1.500000000"},
                                         PriceCase{-1234.5, 0, 2, "-1234.50"},
                                         // 100 is four places outside format 0
                                         PriceCase{1.5, 6, 100, "1.5000"}));

// Format 0 with the binary fractions: the part count behind the whole without a point, padded to
// the code's digits, the whole left out below 1.
INSTANTIATE_TEST_SUITE_P(Fractions, Price,
                         testing::Values(PriceCase{3.375, 0, 10, "33"}, PriceCase{3.375, 0, 8, "31"},
                                         PriceCase{3.375, 0, 9, "32"}, PriceCase{3.375, 0, 11, "306"},
                                         PriceCase{100.5, 0, 12, "10016"}, PriceCase{100.015625, 0, 13, "10001"},
                                         PriceCase{1.5, 0, 14, "1064"}, PriceCase{0.5, 0, 15, "128"},
                                         PriceCase{1.5, 0, 27, "1256"}, PriceCase{0.375, 0, 10, "3"},
                                         PriceCase{-0.375, 0, 10, "-3"}, PriceCase{-3.375, 0, 10, "-33"},
                                         PriceCase{12.0, 0, 10, "120"},
                                         // the part count rounds up to a whole: carried into it
                                         PriceCase{3.99, 0, 10, "40"},
                                         // below zero it is not carried: whole -3, part -8
                                         PriceCase{-3.99, 0, 10, "-38"},
                                         // precision 90: hundredths, in eighths
                                         PriceCase{0.3125, 0, 90, "312"}, PriceCase{0.5, 0, 90, "500"}));

// Codes that are neither decimals nor binary fractions, and unknown codes: the rounded whole.
INSTANTIATE_TEST_SUITE_P(WholeCodes, Price,
                         testing::Values(PriceCase{1234.5, 0, 18, "1235"}, PriceCase{2.5, 0, 16, "3"},
                                         PriceCase{2.5, 0, 21, "3"}, PriceCase{2.5, 0, 24, "3"},
                                         PriceCase{2.5, 0, 26, "3"}, PriceCase{2.5, 0, 28, "3"},
                                         PriceCase{-2.5, 0, 29, "-3"}, PriceCase{7.7, 0, 40, "8"},
                                         PriceCase{7.7, 0, -5, "8"}));

// Format 0 with -1 or 100: the decimal text of the best fit's decimal counterpart.
INSTANTIATE_TEST_SUITE_P(BestFit, Price,
                         testing::Values(PriceCase{123.5, 0, -1, "123.5"},
                                         PriceCase{123.50390625, 0, 100, "123.50390625"}, PriceCase{0.1, 0, -1, "0.1"},
                                         PriceCase{1.25, 0, 100, "1.25"}, PriceCase{0.123, 0, -1, "0.123"},
                                         PriceCase{2.0, 0, -1, "2"}, PriceCase{5000.0, 0, -1, "5000.0"},
                                         PriceCase{0.0, 0, -1, "0.0"}, PriceCase{-0.75, 0, 100, "-0.75"},
                                         // elsewhere -1 is the best fit code itself: halves, so "1.1" in format 6
                                         PriceCase{1.5, 6, -1, "1.1"}));

// Format 1 stops after the whole; 5, 6 and 8 group it by threes; 6 and 8 always put the point and
// show a zero with its digits; 9 and 10 are percentages.
INSTANTIATE_TEST_SUITE_P(
    Composed, Price,
    testing::Values(PriceCase{123.456, 1, 2, "123"}, PriceCase{123.996, 1, 2, "124"}, PriceCase{3.375, 1, 10, "3"},
                    PriceCase{-0.5, 1, 2, "-0"}, PriceCase{7.5, 1, 0, "8"},
                    // below one a fraction code leaves the whole out, and format 1 writes nothing else
                    PriceCase{0.375, 1, 10, ""}, PriceCase{-0.375, 1, 10, "-"},
                    PriceCase{1234567.891, 5, 2, "1,234,567.89"}, PriceCase{0.375, 5, 10, "03"},
                    PriceCase{0.0, 5, 2, "0"}, PriceCase{123.0, 5, 2, "123.00"}, PriceCase{0.0, 6, 2, "0.00"},
                    PriceCase{3.375, 6, 10, "3.3"}, PriceCase{1234.5, 6, 0, "1,235"},
                    PriceCase{-1234567.5, 6, 2, "-1,234,567.50"}, PriceCase{1234.5, 8, 2, "1,234.50"},
                    PriceCase{0.0, 8, 10, "0.0"}, PriceCase{0.1234, 9, 2, "12%"}, PriceCase{0.1234, 10, 2, "12.34%"},
                    PriceCase{0.0, 10, 2, "0%"}, PriceCase{0.0, 9, 0, "0%"}, PriceCase{-0.05, 10, 2, "-5.00%"},
                    // unknown formats compose as 0
                    PriceCase{123.5, 4, 2, "123.50"}, PriceCase{3.375, 999, 10, "33"}));

// The decimal texts: 8193 with the code's decimal counterpart, 8195 scaled by its high half.
INSTANTIATE_TEST_SUITE_P(DecimalText, Price,
                         testing::Values(PriceCase{123.456, 8193, 2, "123.46"}, PriceCase{123.456, 8193, 10, "123.456"},
                                         PriceCase{2.5, 8193, 100, "2.5"}, PriceCase{-1.5, 8193, 4, "-1.5000"},
                                         PriceCase{1.0, 8193, 40, "1"}, PriceCase{1.5, 8195, (2 << 16) | 2, "150.00"},
                                         PriceCase{25.0, 8195, static_cast<std::int32_t>(0xFFFF0003u), "2.500"},
                                         PriceCase{0.25, 8195, (1 << 16) | 0xFFFF, "2.5"},
                                         PriceCase{1.5, 8195, 2, "1.50"}));

// The printf forms.
INSTANTIATE_TEST_SUITE_P(Printf, Price,
                         testing::Values(PriceCase{123.5, 2, 2, "123.5"}, PriceCase{1e20, 2, 2, "1e+20"},
                                         PriceCase{-0.0, 2, 2, "0"}, PriceCase{123.5, 11, 2, "1.235E+02"},
                                         PriceCase{-0.00125, 11, 0, "-1.250E-03"}, PriceCase{1.5, 4098, 2, "1.500500"},
                                         PriceCase{150.0, 4099, 2, "1.50"}, PriceCase{-123.9, 4100, 2, "-123"},
                                         PriceCase{1e30, 4100, 2, "-9223372036854775808"},
                                         PriceCase{0.1234, 4101, 2, "12.34%"}, PriceCase{255.9, 4105, 2, "0xff"},
                                         PriceCase{-1.0, 4105, 2, "0xffffffff"},
                                         PriceCase{1e10, 4105, 2, "0x80000000"}));

// 12291: whole, part count and denominator; decimal codes take the denominator of their digits.
INSTANTIATE_TEST_SUITE_P(FractionText, Price,
                         testing::Values(PriceCase{0.375, 12291, 10, "3/8"}, PriceCase{-0.375, 12291, 10, "-3/8"},
                                         PriceCase{3.0, 12291, 10, "3"}, PriceCase{3.375, 12291, 10, "3 3/8"},
                                         PriceCase{-3.375, 12291, 10, "-3 3/8"},
                                         PriceCase{100.5, 12291, 12, "100 16/32"},
                                         PriceCase{1.25, 12291, 2, "1 25/100"}, PriceCase{0.5, 12291, 100, "1/2"},
                                         PriceCase{1234.5, 12291, 18, "1235"}, PriceCase{-0.5, 12291, 0, "-1"},
                                         PriceCase{0.0, 12291, 10, "0"}));

// 3: the tick text.
INSTANTIATE_TEST_SUITE_P(TickText, Price,
                         testing::Values(PriceCase{-0.5, 3, 2, "-0' 50"}, PriceCase{3.375, 3, 10, "3' 3"},
                                         PriceCase{100.5, 3, 12, "100' 16"}, PriceCase{100.03125, 3, 12, "100' 01"},
                                         PriceCase{-100.5, 3, 12, "-100' 16"}, PriceCase{1.25, 3, 2, "1' 25"},
                                         PriceCase{0.25, 3, 10, "0' 2"}, PriceCase{1.5, 3, 14, "1' 064"},
                                         // no denominator: the value truncated
                                         PriceCase{2.5, 3, 0, "2"}, PriceCase{7.7, 3, 20, "7"}));

// 12, 13, 14, 7: the tick and its half, quarter, eighth or sixteenth.
INSTANTIATE_TEST_SUITE_P(
    SubTicks, Price,
    testing::Values(PriceCase{100.5, 12, 12, "100' 16.0"}, PriceCase{100.515625, 12, 12, "100' 16.5"},
                    PriceCase{100.5234375, 13, 12, "100' 16.7"}, PriceCase{100.5234375, 14, 12, "100' 16.6"},
                    PriceCase{100.5234375, 7, 12, "100' 16.12"}, PriceCase{100.5, 7, 12, "100' 16.00"},
                    PriceCase{-100.5, 12, 12, "-100' 16.0"}, PriceCase{-0.5, 12, 12, "-0' 16.0"},
                    PriceCase{3.375, 12, 10, "3' 3.0"}, PriceCase{1.5, 12, 14, "1' 064.0"},
                    PriceCase{100.5, 12, 55, "100' 16.0"}, PriceCase{1.5, 13, 59, "1' 064.0"},
                    PriceCase{1.5, 13, 50, "1' 08.0"}, PriceCase{1.5, 13, 57, "1' 32.0"},
                    // past the last sub-step: the next part, the sub-step 1
                    PriceCase{100.999, 12, 12, "100' 32.0"}));

TEST(PriceSubTick, RefusesOtherSubSteps) {
  for (std::int32_t sub : {0, 1, 3, 5, 32, -2}) {
    std::string text = "kept";
    EXPECT_EQ(orv::FormatSubTick(100.5, 12, sub, text), -1) << sub;
    EXPECT_EQ(text, "kept") << sub;
  }
}

// No format is longer than the header says, at the ends of the range and past every integer.
TEST(PriceLength, StaysWithinTheBound) {
  const double values[] = {-9.999999999999999e35,
                           9.999999999999999e35,
                           -9.2e18,
                           9.3e18,
                           -2.2e9,
                           std::numeric_limits<double>::quiet_NaN(),
                           -1e-300,
                           123.5};
  const std::int32_t formats[] = {0,  1,  2,  3,    5,    6,    7,    8,    9,    10,   11,
                                  12, 13, 14, 4098, 4099, 4100, 4101, 4105, 8193, 8195, 12291};
  const std::int32_t precisions[] = {
      -1, 0, 2, 7, 10, 15, 22, 23, 27, 90, 100, std::numeric_limits<std::int32_t>::min(), 0x7FFF0017, 0x00170017};
  for (double value : values)
    for (std::int32_t format : formats)
      for (std::int32_t precision : precisions) {
        std::string text;
        orv::FormatPrice(value, format, precision, text);
        EXPECT_LE(text.size(), orv::kPriceTextMax) << value << " " << format << " " << precision << " " << text;
      }
}

struct FitCase {
  double value;
  std::int32_t code;
};

void PrintTo(const FitCase& c, std::ostream* os) { *os << c.value << " code " << c.code; }

class BestFit : public testing::TestWithParam<FitCase> {};

TEST_P(BestFit, FindsTheCoarsestCode) {
  EXPECT_EQ(orv::BestFitCode(GetParam().value), GetParam().code) << GetParam().value;
  EXPECT_EQ(orv::BestFitCode(-GetParam().value), GetParam().code) << -GetParam().value;
}

INSTANTIATE_TEST_SUITE_P(Codes, BestFit,
                         testing::Values(FitCase{0.0, 26}, FitCase{1e-20, 26}, FitCase{1e15, 26}, FitCase{0.5, 8},
                                         FitCase{0.25, 9}, FitCase{0.125, 10}, FitCase{0.0625, 11},
                                         FitCase{0.03125, 12}, FitCase{0.015625, 13}, FitCase{0.0078125, 14},
                                         FitCase{0.00390625, 15}, FitCase{123.50390625, 15}, FitCase{101.75, 9},
                                         // 512ths are below the binary search's reach: nine decimals
                                         FitCase{0.001953125, 23}, FitCase{0.1, 1}, FitCase{0.12, 2}, FitCase{0.123, 3},
                                         FitCase{0.1234, 4}, FitCase{0.00001, 5}, FitCase{2.0, 0}, FitCase{20.0, 16},
                                         FitCase{5000.0, 18}, FitCase{1e9, 25},
                                         // within the tolerance of a whole or a half, the whole or the half
                                         FitCase{1.00000000001, 0}, FitCase{0.4999999999999, 8}));

struct DecomposeCase {
  double value;
  std::int32_t code;
  std::int32_t codeAfter;
  std::int64_t whole;
  std::int32_t numerator;
  std::int32_t denominator;
  std::int16_t digits;
};

void PrintTo(const DecomposeCase& c, std::ostream* os) { *os << c.value << " code " << c.code; }

class Decompose : public testing::TestWithParam<DecomposeCase> {};

TEST_P(Decompose, SplitsWholeAndParts) {
  const DecomposeCase& c = GetParam();
  std::int32_t code = c.code;
  std::int64_t whole = 99;
  std::int32_t numerator = 99;
  std::int32_t denominator = 99;
  std::int16_t digits = 99;
  orv::DecomposePrice(c.value, code, whole, numerator, denominator, digits);
  EXPECT_EQ(code, c.codeAfter);
  EXPECT_EQ(whole, c.whole);
  EXPECT_EQ(numerator, c.numerator);
  EXPECT_EQ(denominator, c.denominator);
  EXPECT_EQ(digits, c.digits);
}

INSTANTIATE_TEST_SUITE_P(
    Codes, Decompose,
    testing::Values(DecomposeCase{3.375, 10, 10, 3, 3, 8, 1}, DecomposeCase{123.5, 2, 2, 123, 50, 0, 2},
                    DecomposeCase{1.5, 100, 4, 1, 5000, 0, 4}, DecomposeCase{0.25, -1, 9, 0, 1, 4, 1},
                    DecomposeCase{1234.5, 18, 0, 1235, 0, 0, 0}, DecomposeCase{1e36, 10, 10, 0, 0, 0, 0},
                    DecomposeCase{3.99, 10, 10, 4, 0, 8, 1}, DecomposeCase{5.5, 7, 7, 5, 5000000, 10000000, 7},
                    DecomposeCase{-3.375, 10, 10, -3, -3, 8, 1}, DecomposeCase{1.5, 27, 27, 1, 256, 512, 3}));

}  // namespace
