#include "format/FormatPrice.h"

#include "xml/StrFormat.h"

namespace orv {

// A stand-in until the formatter lands: the no-data mark, else decimals.
int FormatPrice(double value, std::int32_t format, std::int32_t precision, std::string& out) {
  (void)format;
  if (value >= 1e36 || value <= -1e36) {
    out = kNoPriceText;
    return 0;
  }
  out = StrFormat("%.*f", precision < 0 || precision > 15 ? 2 : static_cast<int>(precision), value);
  return 0;
}

}  // namespace orv
