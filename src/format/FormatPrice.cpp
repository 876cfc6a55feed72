#include "format/FormatPrice.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "format/Truncate.h"
#include "xml/StrFormat.h"

namespace orv {
namespace {

constexpr double kNoPrice = 1e36;

constexpr PriceCode kPriceCodes[30] = {
    {1, 1, 0},
    {10, 10, 1},
    {100, 100, 2},
    {1000, 1000, 3},
    {10000, 10000, 4},
    {100000, 100000, 5},
    {1000000, 1000000, 6},
    {10000000, 10000000, 7},
    {2, 10, 1},
    {4, 10, 1},
    {8, 10, 1},
    {16, 100, 2},
    {32, 100, 2},
    {64, 100, 2},
    {128, 1000, 3},
    {256, 1000, 3},
    {10, 1, 1},
    {100, 1, 1},
    {1000, 1, 1},
    {10000, 1, 1},
    {100000, 1, 1},
    {1000000, 1, 1},
    {100000000, 100000000, 8},
    {1000000000, 1000000000, 9},
    {10000000, 1, 1},
    {100000000, 1, 1},
    {1000000000, 1, 1},
    {512, 1000, 3},
    {1, 1, 3},
    {1, 1, 4},
};

bool IsBinaryFractionCode(std::int32_t code) { return (code >= 8 && code <= 15) || code == 27; }

// 0 to 7, 22 and 23: the codes the decimal text and the decomposition take as they are.
bool IsPlainDecimalCode(std::int32_t code) { return (code >= 0 && code <= 7) || code == 22 || code == 23; }

// The decimal counterpart of a best fit.
std::int32_t DecimalCounterpart(std::int32_t code) {
  if (IsPlainDecimalCode(code)) return code;
  if (code >= 8 && code <= 14) return code - 7;
  if (code == 15 || code == 27) return 22;
  if (code >= 16 && code <= 21) return 1;
  if (code >= 24 && code <= 26) return 1;
  return 0;
}

// Fixed notation with the digits of the code's decimal counterpart. The one text an axis asks for
// per label, so it is written in one pass: below 1e36 in size it has at most 36 digits before the
// point and 9 after, with a sign (kPriceTextMax), and the buffer holds that with room to spare.
void DecimalText(double value, std::int32_t code, std::string& out) {
  if (value >= kNoPrice || value <= -kNoPrice) {
    out = kNoPriceText;
    return;
  }
  if (!IsPlainDecimalCode(code)) code = DecimalCounterpart(BestFitCode(value));
  char buffer[kPriceTextMax + 16];
  const int length = std::snprintf(buffer, sizeof buffer, "%.*f", static_cast<int>(PriceCodeRow(code).digits), value);
  out.assign(buffer, length > 0 ? std::min<std::size_t>(static_cast<std::size_t>(length), sizeof buffer - 1) : 0);
}

std::uint64_t Magnitude(std::int64_t value) {
  return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

std::string GroupedByThrees(std::uint64_t value) {
  const std::string digits = std::to_string(value);
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i != 0 && (digits.size() - i) % 3 == 0) text += ',';
    text += digits[i];
  }
  return text;
}

// The denominator the tick and fraction texts divide by: the decomposition's, or for the decimal
// codes, which have none, that of the code whose number is the digit count.
std::int32_t TextDenominator(std::int32_t denominator, std::int16_t digits) {
  if (denominator != 0) return denominator;
  if (digits == 0) return 0;
  return PriceCodeRow(digits).denominator;
}

std::string ComposedText(double value, std::int32_t format, std::int32_t precision) {
  if (format == 9 || format == 10) value *= 100.0;
  std::int32_t code = precision;
  std::int64_t whole = 0;
  std::int32_t numerator = 0;
  std::int32_t denominator = 0;
  std::int16_t digits = 0;
  DecomposePrice(value, code, whole, numerator, denominator, digits);

  std::string text;
  if (whole < 0 || (whole == 0 && numerator < 0)) text += '-';
  if (format == 5 || format == 6 || format == 8)
    text += GroupedByThrees(Magnitude(whole));
  else if (!(whole == 0 && numerator != 0 && !IsDecimalPriceCode(code)))
    text += std::to_string(Magnitude(whole));

  const bool withParts = [&] {
    if (code == 0) return false;
    if (format == 9) return false;
    if (whole == 0 && numerator == 0 && format != 2 && format != 6 && format != 8) return false;
    return true;
  }();
  if (format == 1 && code != 0) return text;
  if (withParts) {
    if (IsDecimalPriceCode(code) || format == 6 || format == 8) text += '.';
    text += StrFormat("%0*u", static_cast<int>(digits),
                      static_cast<unsigned>(numerator < 0 ? -static_cast<std::int64_t>(numerator) : numerator));
  }
  if (format == 9 || format == 10) text += '%';
  return text;
}

}  // namespace

const PriceCode& PriceCodeRow(std::int32_t code) {
  if (code < 0) code = 0;
  if (code > 29) code = 29;
  return kPriceCodes[code];
}

bool IsDecimalPriceCode(std::int32_t code) { return IsPlainDecimalCode(code) || code == -1; }

std::int32_t BestFitCode(double value) {
  const double size = std::fabs(value);
  std::uint64_t bits = 0;
  std::memcpy(&bits, &size, sizeof bits);
  const int exponent = static_cast<int>((bits >> 52) & 0x7ff);
  if (exponent < 990 || exponent > 1066) return 26;

  if (exponent >= 1014 && exponent <= 1062) {
    const std::int32_t resolution = exponent <= 1055 ? 15 : 15 - (exponent - 1055);
    double lo = std::round(std::ldexp(1.0, exponent - 1058) * 1e10) / 1e10;
    if (lo < 1e-10) lo = 1e-10;
    if (lo > 0.125) lo = 0.125;
    const double hi = 1.0 - lo;
    const std::int32_t parts = kPriceCodes[resolution].denominator;
    double rest = (size - std::trunc(size)) * parts;
    std::int32_t count = static_cast<std::int32_t>(rest);
    rest -= count;
    if (rest > lo && rest >= hi) ++count;
    if (!(rest > lo && rest < hi) && count != 0 && count != parts) {
      const std::uint32_t shifted = static_cast<std::uint32_t>(count) << (15 - resolution);
      for (int bit = 0; bit < 8; ++bit)
        if (shifted & (1u << bit)) return 15 - bit;
    }
  }

  struct DecimalRow {
    int lastExponent;
    double scale;
    int digits;
  };
  static constexpr DecimalRow kRows[] = {
      {1036, 1e9, 9}, {1039, 1e8, 8}, {1042, 1e7, 7}, {1046, 1e6, 6}, {1049, 1e5, 5},
      {1052, 1e4, 4}, {1056, 1e3, 3}, {1059, 1e2, 2}, {1062, 1e1, 1}, {1066, 1e0, 0},
  };
  const DecimalRow* row = kRows;
  while (exponent > row->lastExponent) ++row;
  const std::int64_t scaled = static_cast<std::int64_t>(size * row->scale + 0.5);
  if (scaled == 0) return 26;
  int zeros = 0;
  for (std::int64_t power = 10; power <= 1000000000000LL && scaled % power == 0; power *= 10) ++zeros;
  int shift = row->digits - zeros;
  if (shift < -9) shift = -9;
  if (shift > 9) shift = 9;
  static constexpr std::int32_t kByShift[] = {26, 25, 24, 21, 20, 19, 18, 17, 16, 0, 1, 2, 3, 4, 5, 6, 7, 22, 23};
  return kByShift[shift + 9];
}

void DecomposePrice(double value, std::int32_t& code, std::int64_t& whole, std::int32_t& numerator,
                    std::int32_t& denominator, std::int16_t& digits) {
  whole = 0;
  numerator = 0;
  denominator = 0;
  digits = 0;
  if (value >= kNoPrice) return;
  if (code == 100) code = 4;
  if (code == -1) code = BestFitCode(value);
  whole = ToInt64(value);
  if (!IsBinaryFractionCode(code) && !IsPlainDecimalCode(code)) {
    whole = ToInt64(std::round(value));
    code = 0;
    return;
  }
  const PriceCode& row = kPriceCodes[code];
  const double truncated = std::trunc(value);
  const double scaled = row.denominator * (value - truncated) + row.base * truncated;
  const std::int64_t count = ToInt64(std::round(scaled));
  numerator = static_cast<std::int32_t>(count % row.base);
  denominator = code > 6 ? row.denominator : 0;
  digits = static_cast<std::int16_t>(row.digits);
  whole = count / row.base;
  if (denominator >= 1 && numerator >= denominator) {
    whole += numerator / denominator;
    numerator %= denominator;
  }
}

int FormatSubTick(double value, std::int32_t code, std::int32_t sub, std::string& out) {
  if (sub != 2 && sub != 4 && sub != 8 && sub != 16) return -1;
  if (code == 50 || code == 51)
    code = 11;
  else if (code >= 54 && code <= 56)
    code = 12;
  else if (code == 57 || code == 58)
    code = 13;
  else if (code == 59)
    code = 14;
  else if (code == 60 || code == 61)
    code = 12;
  const PriceCode& row = PriceCodeRow(code);

  // Wrapping sums: the processor's, where the conversions already gave their indefinite values.
  auto wrapAdd = [](std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
  };
  std::int32_t ticks = ToInt32(value);
  double rest = (value - ticks) * row.denominator;
  if (value < 0) rest = -rest;
  std::int32_t parts = ToInt32(rest);
  rest -= parts;

  const double step = 1.0 / sub;
  std::int32_t index = 0;
  for (std::int32_t i = 1; i <= sub; ++i) {
    if (i * step - step / 2 > rest) {
      index = i;
      break;
    }
  }
  if (index == 0) {
    parts = wrapAdd(parts, 1);
    if (parts > row.denominator) {
      parts = 0;
      ticks = wrapAdd(ticks, value < 0 ? -1 : 1);
    }
    index = 1;
  }

  const char* sign = ticks == 0 && value < 0 ? "-" : "";
  if (sub == 16) {
    out = StrFormat("%s%d' %0*d.%02d", sign, ticks, static_cast<int>(row.digits), parts, index - 1);
  } else {
    const char* letters = sub == 2 ? "05" : sub == 4 ? "0257" : "01234567";
    out = StrFormat("%s%d' %0*d.%c", sign, ticks, static_cast<int>(row.digits), parts, letters[index - 1]);
  }
  return 0;
}

void FormatTickText(double value, std::int32_t code, std::string& out) {
  if (code == 100) code = BestFitCode(value);
  std::int64_t whole = 0;
  std::int32_t numerator = 0;
  std::int32_t denominator = 0;
  std::int16_t digits = 0;
  DecomposePrice(value, code, whole, numerator, denominator, digits);
  denominator = TextDenominator(denominator, digits);
  if (denominator == 0) {
    out = StrFormat("%d", ToInt32(value));
    return;
  }
  int width = static_cast<int>(std::to_string(denominator).size());
  if (code < 8) --width;
  if (whole != 0) {
    if (whole < 0 && numerator < 0) numerator = -numerator;
    out = StrFormat("%lld' %0*d", static_cast<long long>(whole), width, numerator);
  } else if (value >= 0) {
    out = StrFormat("0' %0*d", width, numerator);
  } else {
    out = StrFormat("-0' %0*d", width, numerator < 0 ? -numerator : numerator);
  }
}

void FormatFractionText(double value, std::int32_t code, std::string& out) {
  if (code == 100) code = BestFitCode(value);
  std::int64_t whole = 0;
  std::int32_t numerator = 0;
  std::int32_t denominator = 0;
  std::int16_t digits = 0;
  DecomposePrice(value, code, whole, numerator, denominator, digits);
  if (numerator == 0) {
    out = StrFormat("%lld", static_cast<long long>(whole));
    return;
  }
  denominator = TextDenominator(denominator, digits);
  if (denominator == 0) {
    out.clear();
    return;
  }
  if (whole != 0) {
    if (whole < 0 && numerator < 0) numerator = -numerator;
    out = StrFormat("%lld %d/%d", static_cast<long long>(whole), numerator, denominator);
  } else if (value > 0) {
    out = StrFormat("%d/%d", numerator, denominator);
  } else {
    // The part count in 16 bits, as the host's text has it.
    out = StrFormat("-%d/%d", static_cast<int>(static_cast<std::int16_t>(numerator < 0 ? -numerator : numerator)),
                    denominator);
  }
}

int FormatPrice(double value, std::int32_t format, std::int32_t precision, std::string& out) {
  if (value >= kNoPrice || value <= -kNoPrice) {
    out = kNoPriceText;
    return 0;
  }
  if (precision == 90) {
    value *= 100.0;
    precision = 10;
  }
  if (value == 0) value = 0.0;  // -0 prints as 0

  switch (format) {
    case 12:
      FormatSubTick(value, precision, 2, out);
      break;
    case 13:
      FormatSubTick(value, precision, 4, out);
      break;
    case 14:
      FormatSubTick(value, precision, 8, out);
      break;
    case 7:
      FormatSubTick(value, precision, 16, out);
      break;
    case 8193:
      DecimalText(value, precision, out);
      break;
    case 8195: {
      value *= std::pow(10.0, static_cast<double>(precision >> 16));
      DecimalText(value, static_cast<std::int16_t>(precision & 0xffff), out);
      break;
    }
    case 2:
      out = StrFormat("%g", value);
      break;
    case 3:
      FormatTickText(value, precision, out);
      break;
    case 11:
      out = StrFormat("%.3E", value);
      break;
    case 4098:
      out = StrFormat("%f", value + 0.0005);
      break;
    case 4099:
      out = StrFormat("%.2f", value / 100.0 + 0.0005);
      break;
    case 4100:
      out = StrFormat("%lld", static_cast<long long>(ToInt64(value)));
      break;
    case 4101:
      out = StrFormat("%.2f%%", value * 100.0);
      break;
    case 4105:
      out = StrFormat("0x%x", static_cast<unsigned>(ToInt32(value)));
      break;
    case 12291:
      FormatFractionText(value, precision, out);
      break;
    default:
      if (format == 0 && (precision == 100 || precision == -1))
        DecimalText(value, DecimalCounterpart(BestFitCode(value)), out);
      else
        out = ComposedText(value, format, precision);
      break;
  }
  return 0;
}

}  // namespace orv
