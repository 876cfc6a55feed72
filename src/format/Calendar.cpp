#include "format/Calendar.h"

#include <cmath>
#include <limits>

namespace orv {

namespace {

// 30 December 1899 counted from 1 March of year 0, the origin of the era arithmetic below.
constexpr std::int64_t kDayZeroFromEraOrigin = 693899;
constexpr std::int64_t kSecondsPerDay = 86400;

// Floor division for the 400-year eras: days before the origin must fall into the era before.
constexpr std::int64_t FloorDiv(std::int64_t a, std::int64_t b) { return (a >= 0 ? a : a - (b - 1)) / b; }

std::int32_t ClampToInt32(double whole) {
  if (std::isnan(whole)) return 0;
  if (whole <= static_cast<double>(std::numeric_limits<std::int32_t>::min()))
    return std::numeric_limits<std::int32_t>::min();
  if (whole >= static_cast<double>(std::numeric_limits<std::int32_t>::max()))
    return std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(whole);
}

}  // namespace

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysInMonth(int year, int month) {
  static constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

// Years are counted from March, so the leap day is the last day of its year and every month
// before it has a fixed offset.
std::int64_t DaysFromCivil(int year, int month, int day) {
  const std::int64_t y = static_cast<std::int64_t>(year) - (month <= 2 ? 1 : 0);
  const std::int64_t era = FloorDiv(y, 400);
  const std::int64_t yearOfEra = y - era * 400;
  const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
  const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * 146097 + dayOfEra - kDayZeroFromEraOrigin;
}

void CivilFromDays(std::int64_t days, int& year, int& month, int& day) {
  const std::int64_t z = days + kDayZeroFromEraOrigin;
  const std::int64_t era = FloorDiv(z, 146097);
  const std::int64_t dayOfEra = z - era * 146097;
  const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
  day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
  month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
  year = static_cast<int>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0));
}

bool BreakDownDate(double date, DateParts& parts) {
  // Written so that NaN fails too.
  if (!(date > kMinAutomationDate - 1.0 && date < kMaxAutomationDate + 1.0)) return false;
  const double whole = std::trunc(date);
  std::int64_t day = static_cast<std::int64_t>(whole);
  std::int64_t seconds = std::llround(std::fabs(date - whole) * kSecondsPerDay);
  if (seconds >= kSecondsPerDay) {
    seconds -= kSecondsPerDay;
    ++day;
  }
  if (day > kMaxAutomationDate) return false;
  DateParts out;
  CivilFromDays(day, out.year, out.month, out.day);
  out.hour = static_cast<int>(seconds / 3600);
  out.minute = static_cast<int>(seconds / 60 % 60);
  out.second = static_cast<int>(seconds % 60);
  // Day 0 was a Saturday.
  out.dayOfWeek = static_cast<int>(((day + 6) % 7 + 7) % 7);
  out.dayOfYear = static_cast<int>(day - DaysFromCivil(out.year, 1, 1) + 1);
  parts = out;
  return true;
}

bool DateFromParts(int year, int month, int day, int hour, int minute, int second, double& date) {
  if (month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month)) return false;
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return false;
  const std::int64_t days = DaysFromCivil(year, month, day);
  if (days < kMinAutomationDate || days > kMaxAutomationDate) return false;
  date = DateFromDayAndSeconds(days, hour * 3600 + minute * 60 + second);
  return true;
}

double DateFromDayAndSeconds(std::int64_t day, std::int64_t seconds) {
  if (seconds >= kSecondsPerDay) {
    seconds -= kSecondsPerDay;
    ++day;
  }
  const double time = static_cast<double>(seconds) / kSecondsPerDay;
  return day >= 0 ? static_cast<double>(day) + time : static_cast<double>(day) - time;
}

double DayNumberToDate(std::int32_t dayNumber) {
  return dayNumber >= 1 ? static_cast<double>(dayNumber) + 2.0 : static_cast<double>(dayNumber);
}

std::int32_t DateToDayNumber(double date) {
  const std::int32_t serial = ClampToInt32(std::trunc(date));
  return serial >= 1 ? serial - 2 : serial;
}

double DayValueToDate(std::int32_t value, OrvTimeStd form) {
  return form == ORV_TIME_STD_ZEL ? DayNumberToDate(value) : static_cast<double>(value);
}

std::int32_t DateToDayValue(double date, OrvTimeStd form) {
  return form == ORV_TIME_STD_ZEL ? DateToDayNumber(date) : ClampToInt32(std::trunc(date));
}

}  // namespace orv
