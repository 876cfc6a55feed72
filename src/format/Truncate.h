#pragma once
// Conversions of a double to an integer as the processor makes them: toward zero, and the
// "integer indefinite" (the type's lowest value) for NaN and for values beyond the type. The
// formatters print what the host's code printed, and it converted this way.

#include <cstdint>
#include <limits>

namespace orv {

inline std::int32_t ToInt32(double value) {
  if (!(value > -2147483649.0 && value < 2147483648.0)) return std::numeric_limits<std::int32_t>::min();
  return static_cast<std::int32_t>(value);
}

inline std::int64_t ToInt64(double value) {
  // 2^63 is exact as a double; every double below it and above -2^63 - 1 converts.
  if (!(value >= -9223372036854775808.0 && value < 9223372036854775808.0))
    return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(value);
}

}  // namespace orv
