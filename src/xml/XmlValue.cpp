// Text forms of 32-bit values: one writer per kind, one reader for all kinds.

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "xml/StrFormat.h"
#include "xml/Xml.h"

namespace {

bool EqualsIgnoringCase(std::string_view text, std::string_view word) {
  if (text.size() != word.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(text[i])) != word[i]) return false;
  return true;
}

bool IsBlank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

// Scans the text with the format " RGB ( %d, %d, %d )" as scanf does: a blank matches any run of
// white space or none, %d skips white space and takes an optional sign and at least one digit,
// and the scan counts conversions, so a missing ")" or trailing text still gives three.
// Digits beyond 32 bits wrap, as the platform's scanf does; they are not clamped.
int ScanRgb(std::string_view text, std::uint32_t (&values)[3]) {
  std::size_t at = 0;
  auto blanks = [&] {
    while (at < text.size() && IsBlank(text[at])) ++at;
  };
  auto literal = [&](char c) {
    if (at < text.size() && text[at] == c) {
      ++at;
      return true;
    }
    return false;
  };
  auto integer = [&](std::uint32_t& out) {
    blanks();
    bool negative = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) negative = text[at++] == '-';
    if (at >= text.size() || !std::isdigit(static_cast<unsigned char>(text[at]))) return false;
    std::uint32_t value = 0;
    while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])))
      value = value * 10u + static_cast<std::uint32_t>(text[at++] - '0');
    out = negative ? 0u - value : value;
    return true;
  };

  blanks();
  if (!literal('R') || !literal('G') || !literal('B')) return 0;
  blanks();
  if (!literal('(')) return 0;
  blanks();
  if (!integer(values[0])) return 0;
  if (!literal(',')) return 1;
  blanks();
  if (!integer(values[1])) return 1;
  if (!literal(',')) return 2;
  blanks();
  if (!integer(values[2])) return 2;
  return 3;  // " )" that follows changes nothing: scanf has no conversion left to count
}

// Both twins read the same way; `bits` is the 32-bit pattern stored in `out`.
bool ParseBits(std::string_view text, std::uint32_t& bits) {
  if (text.empty()) return false;
  if (EqualsIgnoringCase(text, "true")) {
    bits = 1;
    return true;
  }
  if (EqualsIgnoringCase(text, "false")) {
    bits = 0;
    return true;
  }
  if (text.substr(0, 3) == "RGB") {
    std::uint32_t rgb[3] = {};
    if (ScanRgb(text, rgb) != 3) return false;
    // No clamping, no masking: RGB(300,0,0) is 300, which spills into green.
    bits = rgb[0] | (rgb[1] << 8) | (rgb[2] << 16);
    return true;
  }
  // strtoll with base detection: "0x" is hexadecimal, a leading "0" octal. The value is stored
  // before the tests, so a failed parse leaves the truncated value in `out`.
  const std::string copy(text);  // strtoll needs the terminating NUL
  char* end = nullptr;
  errno = 0;
  const long long value = std::strtoll(copy.c_str(), &end, 0);
  bits = static_cast<std::uint32_t>(value);
  // Fits 32 bits: a signed or an unsigned reading, so "-1" and "0xFFFFFFFF" both pass either twin.
  const bool fits = errno != ERANGE && value >= std::numeric_limits<std::int32_t>::min() &&
                    value <= static_cast<long long>(std::numeric_limits<std::uint32_t>::max());
  return end == copy.c_str() + copy.size() && end != copy.c_str() && fits;
}

std::string FormatBits(std::uint32_t bits, XmlValueKind kind, bool isSigned) {
  switch (kind) {
    case XmlValueKind::Hex:
      return orv::StrFormat("0x%08X", static_cast<unsigned>(bits));
    case XmlValueKind::Color:
      return orv::StrFormat("RGB(%d,%d,%d)", static_cast<int>(bits & 0xFF), static_cast<int>((bits >> 8) & 0xFF),
                            static_cast<int>((bits >> 16) & 0xFF));
    case XmlValueKind::Bool:
      return bits != 0 ? "TRUE" : "FALSE";
    default:
      return isSigned ? orv::StrFormat("%d", static_cast<int>(static_cast<std::int32_t>(bits)))
                      : orv::StrFormat("%u", static_cast<unsigned>(bits));
  }
}

}  // namespace

std::string XmlFormatValue(std::int32_t value, XmlValueKind kind) {
  return FormatBits(static_cast<std::uint32_t>(value), kind, true);
}
std::string XmlFormatValue(std::uint32_t value, XmlValueKind kind) { return FormatBits(value, kind, false); }

bool XmlParseValue(std::string_view text, std::int32_t& out) {
  std::uint32_t bits = static_cast<std::uint32_t>(out);
  const bool parsed = ParseBits(text, bits);
  out = static_cast<std::int32_t>(bits);
  return parsed;
}

bool XmlParseValue(std::string_view text, std::uint32_t& out) { return ParseBits(text, out); }
