#include "dlgkit/FloatParse.h"

#include <cmath>
#include <cstdlib>
#include <string>

namespace orv {

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t'; }
}  // namespace

std::optional<double> ParseFloatField(std::string_view text) {
  // strtod needs a terminated string; stop at an embedded NUL as a C string would.
  const std::string owned(text.substr(0, text.find('\0')));
  const char* begin = owned.c_str();
  while (IsBlank(*begin)) ++begin;
  char* end = nullptr;
  const double value = std::strtod(begin, &end);
  // strtod gives 0.0 both for a real zero and for "no number": only a leading digit 0 tells them apart.
  if (value == 0.0 && *begin != '0') return std::nullopt;
  // "inf", "nan" and overflowing exponents are no price or quantity a field can hold.
  if (!std::isfinite(value)) return std::nullopt;
  while (IsBlank(*end)) ++end;
  if (*end != '\0') return std::nullopt;
  return value;
}

}  // namespace orv
