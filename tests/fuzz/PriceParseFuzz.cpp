// Any text read as a typed price, under a price code taken from the input's first byte (-1 to 30,
// and 100), and as the Y axis page reads a value edit under that code. The parser answers one of
// its two marks or a count of parts below them in size; a decimal count of parts, written out
// with the code's places, reads back to itself; the page's value is a no-value mark or within
// its limit of parts. Nothing may crash.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "chartpages/AxisProps.h"
#include "chartpages/GenYAxisPpg.h"
#include "format/PriceParse.h"
#include "xml/StrFormat.h"

namespace {

std::int32_t CodeOf(std::uint8_t byte) {
  const int pick = byte % 33;
  return pick == 32 ? 100 : pick - 1;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::int32_t code = CodeOf(data[0]);
  const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);

  const std::int64_t parts = orv::ParsePrice(text, code);
  if (parts != orv::kPriceNotANumber && parts != orv::kPriceOverflow) {
    if (parts >= orv::kPriceNotANumber || parts <= -orv::kPriceNotANumber) __builtin_trap();
    // Decimal codes: the parts as the code's places read back to themselves.
    if (code >= 0 && code <= 7 && parts > -(std::int64_t{1} << 53) && parts < (std::int64_t{1} << 53)) {
      const std::int64_t scale = orv::PriceCodeScale(code);
      const std::int64_t magnitude = parts < 0 ? -parts : parts;
      const std::string written =
          orv::StrFormat("%s%lld.%0*lld", parts < 0 ? "-" : "", static_cast<long long>(magnitude / scale), code,
                         static_cast<long long>(magnitude % scale));
      if (orv::ParsePrice(written, code) != parts) __builtin_trap();
    }
  }

  GenYAxisProps props;
  props.format = code;
  const double value = ReadAxisValueText(text, props);
  const bool tick = text.find('\'') != std::string_view::npos && code >= 8;
  if (!tick && value != 0.0 && value != kNoValueNotANumber && value != kNoValueOutOfRange) {
    if (!(std::fabs(value) * static_cast<double>(orv::PriceCodeScale(code)) <= 1999999999.5)) __builtin_trap();
  }
  return 0;
}
