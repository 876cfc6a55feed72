#pragma once
// The program's own calendar: automation dates, the host's day numbers and broken-down dates.
//
// An automation date is a double: the whole part counts days from 30 December 1899 (day 0), the
// fraction is the time of day. Before day 0 the whole part counts back and the time of day is the
// fraction's magnitude, so -1.25 is 29 December 1899, 06:00, as the platform reads it. The calendar
// is the proleptic Gregorian one: 1900 is no leap year. The same code runs on every build, so a
// date prints the same on Windows and natively.

#include <cstdint>

namespace orv {

// Which form a date value in XML has; the numbers are the type library's OrvTimeStd.
enum OrvTimeStd : std::int32_t {
  ORV_TIME_STD_ZEL = 0,  // day numbers: 1 January 1900 = 0, 2 added or taken at the conversion
  ORV_TIME_STD_MS = 1,   // already automation dates
};

// A broken-down date with the calendar's own numbers (not strftime's offsets).
struct DateParts {
  int year = 0;       // in full, 100 to 9999
  int month = 0;      // 1-12
  int day = 0;        // 1-31
  int hour = 0;       // 0-23
  int minute = 0;     // 0-59
  int second = 0;     // 0-59
  int dayOfWeek = 0;  // 0 Sunday to 6 Saturday
  int dayOfYear = 0;  // 1-366
  friend bool operator==(const DateParts&, const DateParts&) = default;
};

// The range of dates the platform breaks down: 1 January 100 to 31 December 9999.
inline constexpr double kMinAutomationDate = -657434.0;
inline constexpr double kMaxAutomationDate = 2958465.0;

bool IsLeapYear(int year);
int DaysInMonth(int year, int month);  // 0 for a month outside 1-12

// Whole days from 30 December 1899 to a date, and back. Any year; no range check.
std::int64_t DaysFromCivil(int year, int month, int day);
void CivilFromDays(std::int64_t days, int& year, int& month, int& day);

// Breaks an automation date down, the time rounded to the nearest second as the platform does
// (23:59:59.6 becomes 00:00:00 of the next day). False for a value that is not a number or lies
// outside the range above, also when its last second rounds past 31 December 9999; `parts` is
// then left as it was.
bool BreakDownDate(double date, DateParts& parts);

// The automation date of a calendar day and a time; false (and `date` untouched) when a field is
// out of its range (month 1-12, day within the month, hour 0-23, minute and second 0-59) or the
// day lies outside the range above.
bool DateFromParts(int year, int month, int day, int hour, int minute, int second, double& date);

// The automation date `seconds` (0 to 86400) after the start of whole day `day`, with the sign
// rule for days before 30 December 1899; 86400 seconds is the next day's start.
double DateFromDayAndSeconds(std::int64_t day, std::int64_t seconds);

// Day number <-> automation date: a day number of 1 or more is the date less 2; below 1 the two
// are equal (so day number 0 is 30 December 1899 and serials 1 and 2 both go back to day -1).
double DayNumberToDate(std::int32_t dayNumber);
// The whole part of `date`, truncated; NaN gives 0 and values beyond 32 bits are clamped.
std::int32_t DateToDayNumber(double date);

// The same for a value in either form of OrvTimeStd; any other form counts as ORV_TIME_STD_MS.
double DayValueToDate(std::int32_t value, OrvTimeStd form);
std::int32_t DateToDayValue(double date, OrvTimeStd form);

}  // namespace orv
