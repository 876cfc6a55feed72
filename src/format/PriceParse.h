#pragma once
// ParsePrice: a price as a user types it, read into a whole number of the price code's parts, so
// that a page can hold it as the value the formatter shows (FormatPrice.h). The reader of what
// edits of prices hand back.

#include <cstdint>
#include <string_view>

namespace orv {

// The answers that are no price: text that is no number, and a number past what 64 bits hold.
inline constexpr std::int64_t kPriceNotANumber = 0x7FFFFFFFFFFFFFFD;
inline constexpr std::int64_t kPriceOverflow = 0x7FFFFFFFFFFFFFFE;

// The parts of a whole under a price code: the Denominator column of the code table (codes 0 to
// 29); any other code (best fit, -1 or 100) counts in billionths, as code 23.
std::int64_t PriceCodeScale(std::int32_t code);

// Reads `text` under the price code `code` into value * PriceCodeScale(code), rounded to the
// nearest part (halves away from zero). Accepted, with blanks before and after:
//   [sign] digits ["," three digits]... ["." digits] ["%"]   a decimal; "%" divides by 100
//   [sign] [digits blank] digits "/" digits                   a whole number and a fraction
// A denominator of 0 is no number. Answers kPriceNotANumber for any other text (also empty) and
// kPriceOverflow when the number of parts reaches kPriceNotANumber in size.
std::int64_t ParsePrice(std::string_view text, std::int32_t code);

}  // namespace orv
