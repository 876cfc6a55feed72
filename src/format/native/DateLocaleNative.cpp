// Natively there is no locale database to ask and no module resources: the answers are those of
// the United States English locale, which the Windows build gives on such a machine.

#include "format/DateLocale.h"
#include "xml/StrFormat.h"

namespace orv {

namespace {
class FixedDateLocale final : public DateLocale {
 public:
  std::string GetShortDatePicture(std::uint32_t) const override { return "M/d/yyyy"; }
  // The locale's time picture without seconds, "h:mm tt".
  std::string GetTimeFormatNoSeconds(int hour, int minute) const override {
    const int hour12 = hour % 12 == 0 ? 12 : hour % 12;
    return StrFormat("%d:%02d %s", hour12, minute, hour < 12 ? "AM" : "PM");
  }
  std::string LoadInvalidDateText() const override { return {}; }
};
}  // namespace

const DateLocale& PlatformDateLocale() {
  static const FixedDateLocale locale;
  return locale;
}

}  // namespace orv
