#include "dlgkit/Controls.h"

#include <climits>
#include <cstdint>

namespace orv {

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t'; }
}  // namespace

std::optional<unsigned> ParseDlgItemInt(std::string_view text, bool isSigned) {
  text = text.substr(0, text.find('\0'));
  std::size_t i = 0;
  while (i < text.size() && IsBlank(text[i])) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || (isSigned && text[i] == '-'))) {
    negative = text[i] == '-';
    ++i;
  }
  const std::size_t digitsBegin = i;
  std::uint64_t magnitude = 0;
  // Stop accumulating past any 32-bit value so a long run of digits can't wrap around.
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    if (magnitude <= UINT_MAX) magnitude = magnitude * 10 + static_cast<unsigned>(text[i] - '0');
  }
  if (i == digitsBegin) return std::nullopt;
  while (i < text.size() && IsBlank(text[i])) ++i;
  if (i != text.size()) return std::nullopt;
  if (!isSigned) {
    if (magnitude > UINT_MAX) return std::nullopt;
    return static_cast<unsigned>(magnitude);
  }
  const std::uint64_t limit = negative ? std::uint64_t{INT_MAX} + 1 : std::uint64_t{INT_MAX};
  if (magnitude > limit) return std::nullopt;
  const std::int64_t value = negative ? -static_cast<std::int64_t>(magnitude) : static_cast<std::int64_t>(magnitude);
  return static_cast<unsigned>(static_cast<int>(value));
}

std::string FormatDlgItemInt(unsigned value, bool isSigned) {
  return isSigned ? std::to_string(static_cast<int>(value)) : std::to_string(value);
}

}  // namespace orv
