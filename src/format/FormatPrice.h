#pragma once
// FormatPrice: the one formatter of market prices (decimals, fractions, the futures markets' tick
// and sub-tick notations, best fit), shared by every page that shows a price. " --- " is the mark
// for no data: a value of size 1e36 or more.
//
// A price is shown by two numbers: the format (how the text is laid out) and the price code, or
// precision (how fine the value is). The price codes, each a Denominator (parts of a whole), a Base
// (what the part count is carried against) and Digits (digits of the part):
//
//   0..7    1, 10, ... 10000000 parts; Base the same; 0..7 digits: plain decimal places
//   8..15   halves, quarters, ... 256ths: Base 10 (8..10), 100 (11..13), 1000 (14, 15)
//   16..21  10 ... 1000000, Base 1, 1 digit; 24..26 10^7..10^9, Base 1, 1 digit (the best fit's
//           answers for whole numbers ending in zeros; a price made of them is the rounded whole)
//   22, 23  8 and 9 decimal places
//   27      512ths, Base 1000, 3 digits
//   28, 29  1, Base 1, 3 and 4 digits
//   -1, 100 a best fit (BestFitCode); 90: the value in hundredths, shown in eighths
//
// The decimal class is 0 to 7, 22, 23 and -1.
//
// The formats:
//
//   0 and any other not listed  the composed text: sign, whole part, then the part count padded to
//                         the code's digits, behind a "." for decimal codes only; so 3 3/8 in
//                         eighths reads "33". A zero reads "0". Format 0 with precision -1 or 100
//                         is the decimal text of the best fit.
//   1                     the whole part alone (rounded at the code's last digit); nothing at all
//                         for a fraction code below one, where the whole is left out
//   5, 6, 8               the composed text with the whole part grouped by threes with ","; 6 and
//                         8 always put the ".", and show a zero with its digits
//   9                     value * 100, whole part and "%"; 10 value * 100, composed, and "%"
//   7, 12, 13, 14         the tick and a sixteenth, half, quarter or eighth of it: "100' 16.0"
//   3                     the tick text: whole, "' " and the part count: "3' 3"
//   12291 (0x3003)        the fraction text: "3 3/8", "-3/8"
//   8193 (0x2001)         the decimal text: fixed notation with the digits of the code's decimal
//                         counterpart
//   8195 (0x2003)         the decimal text of value * 10^(precision's high 16 bits), with the low
//                         16 bits (signed) as the code
//   2 "%g", 11 "%.3E", 4098 "%f" of value + 0.0005, 4099 "%.2f" of value / 100 + 0.0005,
//   4100 the whole value truncated, 4101 "%.2f%%" of value * 100, 4105 "0x%x" of the value
//   truncated to 32 bits
//
// Conversions of a double to an integer are the processor's (format/Truncate.h): NaN and values
// beyond the integer's range become its lowest value. Text is the same on every build.

#include <cstddef>
#include <cstdint>
#include <string>

namespace orv {

inline constexpr char kNoPriceText[] = " --- ";

// No text FormatPrice gives is longer than this, for any value, format and precision.
inline constexpr std::size_t kPriceTextMax = 47;

// A row of the price code table.
struct PriceCode {
  std::int32_t denominator;
  std::int32_t base;
  std::int32_t digits;
};

// The row of `code`; codes below 0 count as 0 and above 29 as 29.
const PriceCode& PriceCodeRow(std::int32_t code);

// True for 0 to 7, 22, 23 and -1.
bool IsDecimalPriceCode(std::int32_t code);

// The text of `value` under the price code `format` and `precision`; the result is 0.
int FormatPrice(double value, std::int32_t format, std::int32_t precision, std::string& out);

// A price in its whole part and the count of parts of it: with a binary fraction code the count
// sits in the digits below the code's Base (3 3/8 with code 10: whole 3, numerator 3, denominator
// 8, digits 1). `code` may change: 100 becomes 4, -1 the best fit, and a code that is not a
// decimal or binary fraction code becomes 0, with the value rounded to its whole. A value of 1e36
// or more gives zeros. Denominator is 0 for codes 0 to 6.
void DecomposePrice(double value, std::int32_t& code, std::int64_t& whole, std::int32_t& numerator,
                    std::int32_t& denominator, std::int16_t& digits);

// The coarsest code that holds `value`: a binary fraction (8 to 15) where the value is one within
// the tolerance of its size, otherwise the fewest decimal places (0 to 7, 22, 23) or, for whole
// numbers ending in zeros, 16 to 21, 24 to 26. Zero, and sizes below about 2^-33 or from 2^44 on,
// give 26.
std::int32_t BestFitCode(double value);

// The tick and the sub-step of it: "-%d' %0Nd.%c" with N the code's Digits, the letter for the
// step of a half ("05"), a quarter ("0257") or an eighth ("01234567"), and for sixteenths
// "%d' %0Nd.%02d". The "-" is written only for a value between -1 and 0. Answers 0, or -1 with
// `out` untouched when `sub` is not 2, 4, 8 or 16.
int FormatSubTick(double value, std::int32_t code, std::int32_t sub, std::string& out);

// "3' 3": the whole, "' " and the part count padded to the digits of the denominator (one less
// for the decimal codes); "-0' 50" below zero. Without a denominator, the value truncated.
void FormatTickText(double value, std::int32_t code, std::string& out);

// "3 3/8", "3/8", "-3/8", or the whole alone when there are no parts.
void FormatFractionText(double value, std::int32_t code, std::string& out);

}  // namespace orv
