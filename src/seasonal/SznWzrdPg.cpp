#include "seasonal/SznWzrdPg.h"

#include <cstdlib>
#include <string>

#include "format/Calendar.h"
#include "xml/XmlError.h"

namespace orv::seasonal {

namespace {

// The host's clock correction in seconds: its settings service's value "40"; 0 without one.
long long ClockCorrection(HostServices& services) {
  try {
    auto service = services.CreateSettingsService();
    if (!service) return 0;
    std::string value;
    std::int32_t result = 0;
    service->GetValue("Settings", "40", value, result);
    if (result != 0 || value.empty()) return 0;
    char* end = nullptr;
    const long long seconds = std::strtoll(value.c_str(), &end, 10);
    // Not a number: no correction. Beyond a thousand years either way the calendar's arithmetic
    // would overflow; such a correction is taken as none as well.
    if (end == value.c_str() || seconds < -31557600000LL || seconds > 31557600000LL) return 0;
    return seconds;
  } catch (const XmlComError&) {
    return 0;
  }
}

}  // namespace

int CurrentSeasonYear(const Clock& clock, HostServices& services) {
  const DateTime now = clock.Now();
  const long long correction = ClockCorrection(services);
  if (correction == 0) return now.year;
  const std::int64_t seconds = (DaysFromCivil(now.year, now.month, now.day) * 86400LL) + now.hour * 3600LL +
                               now.minute * 60LL + now.second + correction;
  std::int64_t days = seconds / 86400;
  if (seconds % 86400 < 0) --days;
  int year = now.year, month = 0, day = 0;
  CivilFromDays(days, year, month, day);
  return year;
}

}  // namespace orv::seasonal
