// FormatPrice over any value, format and precision. Input: 8 bytes of the value (a double, NaN
// and infinities included), 4 of the format, 4 of the precision, 4 of a sub-step count. Besides
// not crashing, the formatter must keep its promises:
// - the result is 0 and the text is never longer than kPriceTextMax, nor empty but for format 1
//   (the whole alone: none below 1 with a fraction code);
// - a value of size 1e36 or more is " --- ", whatever the format;
// - the decomposition leaves a code of the table (nothing at all from 1e36 on), its part count
//   below the code's Base, and below its denominator when it has one; the best fit is one of the codes it may give;
// - the sub-tick text answers -1 and leaves the text alone for any sub-step but 2, 4, 8 and 16.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "format/FormatPrice.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

template <typename T>
T Take(const std::uint8_t*& data, std::size_t& size, T fallback) {
  if (size < sizeof(T)) return fallback;
  T value;
  std::memcpy(&value, data, sizeof(T));
  data += sizeof(T);
  size -= sizeof(T);
  return value;
}

bool IsBestFitAnswer(std::int32_t code) { return code >= 0 && code <= 26; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const double value = Take<double>(data, size, 123.5);
  const std::int32_t format = Take<std::int32_t>(data, size, 0);
  const std::int32_t precision = Take<std::int32_t>(data, size, 2);
  const std::int32_t sub = Take<std::int32_t>(data, size, 2);

  std::string text;
  Check(orv::FormatPrice(value, format, precision, text) == 0);
  Check((format == 1 || !text.empty()) && text.size() <= orv::kPriceTextMax);
  if (std::fabs(value) >= 1e36) Check(text == orv::kNoPriceText);

  // Every format of the table over this value and precision, and this format over the codes.
  for (std::int32_t each :
       {0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 4098, 4099, 4100, 4101, 4105, 8193, 8195, 12291}) {
    Check(orv::FormatPrice(value, each, precision, text) == 0);
    Check((each == 1 || !text.empty()) && text.size() <= orv::kPriceTextMax);
  }
  for (std::int32_t code = -1; code <= 30; ++code) {
    Check(orv::FormatPrice(value, format, code, text) == 0);
    Check((format == 1 || !text.empty()) && text.size() <= orv::kPriceTextMax);
  }

  const std::int32_t fit = orv::BestFitCode(value);
  Check(IsBestFitAnswer(fit) && fit != 27);

  std::int32_t code = precision;
  std::int64_t whole = 0;
  std::int32_t numerator = 0;
  std::int32_t denominator = 0;
  std::int16_t digits = 0;
  orv::DecomposePrice(value, code, whole, numerator, denominator, digits);
  if (value >= 1e36) {
    Check(code == precision && whole == 0 && numerator == 0 && denominator == 0 && digits == 0);
  } else {
    // Below the no-data mark the decomposition always leaves a code of the table.
    Check(code >= 0 && code <= 29);
    Check(std::abs(numerator) < orv::PriceCodeRow(code).base || orv::PriceCodeRow(code).base == 1);
    if (denominator >= 1 && numerator >= 0) Check(numerator < denominator);
  }

  std::string subText = "kept";
  const int result = orv::FormatSubTick(value, precision, sub, subText);
  if (sub == 2 || sub == 4 || sub == 8 || sub == 16) {
    Check(result == 0 && !subText.empty() && subText.size() <= orv::kPriceTextMax);
  } else {
    Check(result == -1 && subText == "kept");
  }
  return 0;
}
