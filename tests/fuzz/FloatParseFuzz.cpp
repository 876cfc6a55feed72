// The edit-field readers take whatever a user types: never a crash, and an accepted number
// is finite and reads the same after being written back as the exchange writes it.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "dlgkit/Controls.h"
#include "dlgkit/FloatParse.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (const auto value = orv::ParseFloatField(text)) {
    if (!std::isfinite(*value)) std::abort();
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.*g", 17, *value);
    const auto again = orv::ParseFloatField(buffer);
    // A value written with 17 digits reads back exactly (a written zero is "0" or "-0").
    if (*value != 0.0 && (!again || *again != *value)) std::abort();
  }
  for (bool isSigned : {false, true}) {
    if (const auto value = orv::ParseDlgItemInt(text, isSigned)) {
      const auto again = orv::ParseDlgItemInt(orv::FormatDlgItemInt(*value, isSigned), isSigned);
      if (!again || *again != *value) std::abort();
    }
  }
  return 0;
}
