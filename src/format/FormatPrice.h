#pragma once
// FormatPrice: the one formatter of market prices (decimals, fractions, the futures markets' tick
// and sub-tick notations, best fit), shared by every page that shows a price. " --- " is the mark
// for no data: a value of size 1e36 or more.

#include <cstdint>
#include <string>

namespace orv {

inline constexpr char kNoPriceText[] = " --- ";

// The text of `value` under the price code `format` and `precision`; the result is 0.
int FormatPrice(double value, std::int32_t format, std::int32_t precision, std::string& out);

}  // namespace orv
