#include <ctime>

#include "dlgkit/Clock.h"

namespace orv {

namespace {
class LocalClock final : public Clock {
 public:
  DateTime Now() const override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (!localtime_r(&now, &local)) return DateTime{1970, 1, 1, 0, 0, 0};
    return DateTime{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                    local.tm_hour,        local.tm_min,     local.tm_sec > 59 ? 59 : local.tm_sec};
  }
};
}  // namespace

const Clock& SystemClock() {
  static const LocalClock clock;
  return clock;
}

}  // namespace orv
