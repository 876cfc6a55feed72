#pragma once
// Today and now, as the local wall clock gives them. Pages ask a Clock rather than the system,
// so tests run on a fixed day.

#include <compare>

namespace orv {

// A local date and time as the platform's date pickers and SYSTEMTIME carry it.
// month 1-12, day 1-31, hour 0-23, minute and second 0-59.
struct DateTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
  friend auto operator<=>(const DateTime&, const DateTime&) = default;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime Now() const = 0;
  // Now with the time of day cleared.
  DateTime Today() const {
    DateTime t = Now();
    t.hour = t.minute = t.second = 0;
    return t;
  }
};

// The machine's local clock (GetLocalTime on Windows, localtime_r elsewhere).
const Clock& SystemClock();

// A clock that stands still at the time it is given; for tests and reproducible demos.
class FixedClock final : public Clock {
 public:
  explicit FixedClock(DateTime now) : now_(now) {}
  DateTime Now() const override { return now_; }
  void Set(DateTime now) { now_ = now; }

 private:
  DateTime now_;
};

}  // namespace orv
