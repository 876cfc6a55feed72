// ParsePrice against hand-worked values: the forms a user types, each price code's parts, the
// rounding to a part, and what is no price.

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>

#include "format/PriceParse.h"

namespace {

struct ParseCase {
  const char* text;
  std::int32_t code;
  std::int64_t parts;
};
void PrintTo(const ParseCase& c, std::ostream* os) { *os << '"' << c.text << "\" code " << c.code; }

class PriceParse : public testing::TestWithParam<ParseCase> {};

TEST_P(PriceParse, Parts) {
  const ParseCase& c = GetParam();
  EXPECT_EQ(orv::ParsePrice(c.text, c.code), c.parts);
}

INSTANTIATE_TEST_SUITE_P(Decimals, PriceParse,
                         testing::Values(ParseCase{"123.5", 2, 12350}, ParseCase{"123.50", 2, 12350},
                                         ParseCase{"-2.25", 2, -225}, ParseCase{"+7", 0, 7}, ParseCase{".5", 1, 5},
                                         ParseCase{"5.", 1, 50}, ParseCase{"  42  ", 0, 42},
                                         ParseCase{"1,234.5", 1, 12345}, ParseCase{"1,234,567", 0, 1234567},
                                         ParseCase{"12.5%", 4, 1250}, ParseCase{"0", 7, 0}, ParseCase{"-0", 3, 0}));

// Halves go away from zero; what is finer than a part is rounded to the nearest.
INSTANTIATE_TEST_SUITE_P(Rounding, PriceParse,
                         testing::Values(ParseCase{"0.125", 2, 13}, ParseCase{"-0.125", 2, -13}, ParseCase{"2.4", 0, 2},
                                         ParseCase{"2.6", 0, 3}, ParseCase{"1.00001", 4, 10000}));

// Binary fractions count in their parts: eighths, thirty-seconds, 512ths.
INSTANTIATE_TEST_SUITE_P(Fractions, PriceParse,
                         testing::Values(ParseCase{"3 3/8", 10, 27}, ParseCase{"123 16/32", 12, 3952},
                                         ParseCase{"-3 3/8", 10, -27}, ParseCase{"3/8", 10, 3}, ParseCase{"1/2", 2, 50},
                                         ParseCase{"123.5", 12, 3952}, ParseCase{"1", 27, 512},
                                         ParseCase{"1", 15, 256}));

// Codes beyond the table, and best fit, count in billionths.
INSTANTIATE_TEST_SUITE_P(OtherCodes, PriceParse,
                         testing::Values(ParseCase{"1.5", -1, 1500000000}, ParseCase{"1.5", 100, 1500000000},
                                         ParseCase{"1", 28, 1}, ParseCase{"1", 21, 1000000},
                                         ParseCase{"1", 23, 1000000000}));

INSTANTIATE_TEST_SUITE_P(
    NoPrice, PriceParse,
    testing::Values(ParseCase{"", 2, orv::kPriceNotANumber}, ParseCase{"  ", 2, orv::kPriceNotANumber},
                    ParseCase{"abc", 2, orv::kPriceNotANumber}, ParseCase{"12abc", 2, orv::kPriceNotANumber},
                    ParseCase{" --- ", 2, orv::kPriceNotANumber}, ParseCase{"1/0", 2, orv::kPriceNotANumber},
                    ParseCase{"3 /8", 10, orv::kPriceNotANumber}, ParseCase{"1,23", 0, orv::kPriceNotANumber},
                    ParseCase{"1.2.3", 2, orv::kPriceNotANumber}, ParseCase{"-", 2, orv::kPriceNotANumber},
                    ParseCase{".", 2, orv::kPriceNotANumber}, ParseCase{"%", 2, orv::kPriceNotANumber},
                    ParseCase{"123'16", 12, orv::kPriceNotANumber}, ParseCase{"1e5", 0, orv::kPriceNotANumber},
                    ParseCase{"9223372036854775807", 0, orv::kPriceOverflow},
                    ParseCase{"-9223372036854775807", 0, orv::kPriceOverflow},
                    ParseCase{"1000000000000", 23, orv::kPriceOverflow}));

}  // namespace
