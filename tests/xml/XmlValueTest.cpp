// Text forms of 32-bit values: the writer per kind and the one reader for all kinds.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "xml/Xml.h"

namespace {

struct ParseCase {
  const char* text;
  bool parsed;
  std::int32_t value;  // what `out` holds afterwards (starting from the sentinel 777)
};

class ParseValue : public testing::TestWithParam<ParseCase> {};

TEST_P(ParseValue, SignedTwinParsesAndStoresAsDescribed) {
  const ParseCase& c = GetParam();
  std::int32_t out = 777;
  EXPECT_EQ(XmlParseValue(c.text, out), c.parsed) << c.text;
  EXPECT_EQ(out, c.value) << c.text;
}

TEST_P(ParseValue, UnsignedTwinReadsTheSameBits) {
  const ParseCase& c = GetParam();
  std::uint32_t out = 777;
  EXPECT_EQ(XmlParseValue(c.text, out), c.parsed) << c.text;
  EXPECT_EQ(out, static_cast<std::uint32_t>(c.value)) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseValue,
    testing::Values(
        // bools in any case
        ParseCase{"TRUE", true, 1}, ParseCase{"True", true, 1}, ParseCase{"tRuE", true, 1}, ParseCase{"false", true, 0},
        ParseCase{"FALSE", true, 0}, ParseCase{"TRUE ", false, 0},
        // numbers with base detection
        ParseCase{"0", true, 0}, ParseCase{"0x10", true, 16}, ParseCase{"0X1f", true, 31}, ParseCase{"010", true, 8},
        ParseCase{"-1", true, -1}, ParseCase{"+7", true, 7}, ParseCase{" 12", true, 12}, ParseCase{"-0x10", true, -16},
        // the value is stored before the tests
        ParseCase{"12abc", false, 12}, ParseCase{"12 ", false, 12}, ParseCase{"09", false, 0},
        ParseCase{"0x", false, 0}, ParseCase{"abc", false, 0}, ParseCase{" ", false, 0},
        ParseCase{"4294967296", false, 0}, ParseCase{"4294967297", false, 1},
        ParseCase{"-2147483649", false, 2147483647},
        ParseCase{"99999999999999999999", false, -1},  // strtoll clamps to its maximum
        // the 32-bit boundaries: either reading of 32 bits fits
        ParseCase{"2147483647", true, 2147483647},
        ParseCase{"2147483648", true, std::numeric_limits<std::int32_t>::min()},
        ParseCase{"-2147483648", true, std::numeric_limits<std::int32_t>::min()}, ParseCase{"4294967295", true, -1},
        ParseCase{"0xFFFFFFFF", true, -1}, ParseCase{"0xFF000000", true, -16777216},
        // colours: the left three characters decide, the scan counts conversions
        ParseCase{"RGB(1,2,3)", true, 197121}, ParseCase{"RGB ( 1, 2, 3 )", true, 197121},
        ParseCase{"RGB(1,\t2,\n3)", true, 197121}, ParseCase{"RGB(1,2,3", true, 197121},
        ParseCase{"RGB(1,2,3)junk", true, 197121}, ParseCase{"RGB(300,0,0)", true, 300},
        ParseCase{"RGB(-1,0,0)", true, -1}, ParseCase{"RGB(0,0,256)", true, 0x1000000},
        ParseCase{" RGB ( 1, 2, 3 )", false, 0},  // number branch
        ParseCase{"RGB(1 ,2,3)", false, 777}, ParseCase{"RGB(1,2)", false, 777}, ParseCase{"RGB", false, 777},
        ParseCase{"rgb(1,2,3)", false, 0}, ParseCase{"RGB(a,2,3)", false, 777},
        // empty text touches nothing
        ParseCase{"", false, 777}));

TEST(ParseValue, TextWithEmbeddedNulIsNotConsumedWhole) {
  std::int32_t out = 5;
  EXPECT_FALSE(XmlParseValue(std::string_view("12\0"
                                              "3",
                                              4),
                             out));
  EXPECT_EQ(out, 12);
}

struct FormatCase {
  std::int32_t value;
  XmlValueKind kind;
  const char* signedText;
  const char* unsignedText;
};

class FormatValue : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatValue, WritesEachKind) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(XmlFormatValue(c.value, c.kind), c.signedText);
  EXPECT_EQ(XmlFormatValue(static_cast<std::uint32_t>(c.value), c.kind), c.unsignedText);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, FormatValue,
    testing::Values(FormatCase{-12, XmlValueKind::Decimal, "-12", "4294967284"},
                    FormatCase{std::numeric_limits<std::int32_t>::min(), XmlValueKind::Decimal, "-2147483648",
                               "2147483648"},
                    FormatCase{-1, XmlValueKind::Hex, "0xFFFFFFFF", "0xFFFFFFFF"},
                    FormatCase{0x00FF00FF, XmlValueKind::Hex, "0x00FF00FF", "0x00FF00FF"},
                    FormatCase{0x00FF8040, XmlValueKind::Color, "RGB(64,128,255)", "RGB(64,128,255)"},
                    FormatCase{static_cast<std::int32_t>(0xFF000000), XmlValueKind::Color, "RGB(0,0,0)", "RGB(0,0,0)"},
                    FormatCase{5, XmlValueKind::Bool, "TRUE", "TRUE"},
                    FormatCase{0, XmlValueKind::Bool, "FALSE", "FALSE"},
                    FormatCase{42, static_cast<XmlValueKind>(1), "42", "42"},
                    FormatCase{42, static_cast<XmlValueKind>(5), "42", "42"},
                    FormatCase{-3, static_cast<XmlValueKind>(-7), "-3", "4294967293"}));

}  // namespace
