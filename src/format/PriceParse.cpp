#include "format/PriceParse.h"

#include <cmath>
#include <cstddef>
#include <iterator>

namespace orv {

namespace {

constexpr std::int64_t kDenominators[] = {
    1,   10, 100, 1000, 10000, 100000, 1000000, 10000000,  2,          4,        8,         16,         32,  64, 128,
    256, 10, 100, 1000, 10000, 100000, 1000000, 100000000, 1000000000, 10000000, 100000000, 1000000000, 512, 1,  1};

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A run of digits as a long double; false when there is none.
bool Digits(std::string_view text, std::size_t& at, long double& value, int* count = nullptr) {
  const std::size_t start = at;
  while (at < text.size() && IsDigit(text[at])) value = value * 10 + (text[at++] - '0');
  if (count) *count = static_cast<int>(at - start);
  return at > start;
}

// The number the text stands for, as a quotient of whole numbers (exact for the digits a double
// can take, so that halves of a part stay halves); false when it is none.
bool ReadNumber(std::string_view text, long double& numerator, long double& denominator) {
  std::size_t at = 0;
  bool negative = false;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) negative = text[at++] == '-';
  long double whole = 0;
  const bool hasWhole = Digits(text, at, whole);
  denominator = 1;

  // A fraction, with or without a whole number before it.
  if (hasWhole && at < text.size() && (IsBlank(text[at]) || text[at] == '/')) {
    long double part = whole;
    whole = 0;
    if (IsBlank(text[at])) {
      while (at < text.size() && IsBlank(text[at])) ++at;
      whole = part;
      part = 0;
      if (!Digits(text, at, part)) return false;
    }
    if (at >= text.size() || text[at] != '/') return false;
    ++at;
    denominator = 0;
    if (!Digits(text, at, denominator) || at != text.size() || denominator == 0) return false;
    numerator = whole * denominator + part;
    if (negative) numerator = -numerator;
    return true;
  }

  // A decimal: the whole part may be grouped by threes with ",".
  if (hasWhole) {
    while (at < text.size() && text[at] == ',') {
      ++at;
      long double group = 0;
      int groupDigits = 0;
      if (!Digits(text, at, group, &groupDigits) || groupDigits != 3) return false;
      whole = whole * 1000 + group;
    }
  }
  numerator = whole;
  bool hasFraction = false;
  if (at < text.size() && text[at] == '.') {
    ++at;
    while (at < text.size() && IsDigit(text[at])) {
      numerator = numerator * 10 + (text[at++] - '0');
      denominator *= 10;
      hasFraction = true;
    }
  }
  if (!hasWhole && !hasFraction) return false;
  if (at < text.size() && text[at] == '%') {
    ++at;
    denominator *= 100;
  }
  if (at != text.size()) return false;
  if (negative) numerator = -numerator;
  return true;
}

}  // namespace

std::int64_t PriceCodeScale(std::int32_t code) {
  if (code < 0 || code >= static_cast<std::int32_t>(std::size(kDenominators))) return kDenominators[23];
  return kDenominators[code];
}

std::int64_t ParsePrice(std::string_view text, std::int32_t code) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  long double numerator = 0, denominator = 1;
  if (!ReadNumber(text, numerator, denominator)) return kPriceNotANumber;
  const long double parts = std::round(numerator * static_cast<long double>(PriceCodeScale(code)) / denominator);
  // From the first of the answers on, either way, or what isn't finite.
  if (!(std::fabs(parts) < static_cast<long double>(kPriceNotANumber))) return kPriceOverflow;
  return static_cast<std::int64_t>(parts);
}

}  // namespace orv
