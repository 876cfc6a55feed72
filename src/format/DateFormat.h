#pragma once
// Dates and times as the pages show them: two formatters keyed by one numeric format id, which
// comes from the host's XML (axis and data window settings) or from a page's constants.
//
// Ids are coded by family: bits 4 to 7 (mask 240) mark a date form; 256 to 278 are time and
// date-and-time forms, 512 to 514 twelve-hour forms, 768 and 769 the plain and the locale's time.
// An id a formatter doesn't know still prints something, and the result 2 tells the caller so.

#include <cstdint>
#include <string>

// Formats an automation date (day 0 = 30 December 1899, the fraction the time of day).
// Returns 0, or 2 for the no-date mark " --- " and for an unknown id.
//
// A date id (any of the bits in 240) with a whole day of 0 gives " --- ": the host's "no date".
// Otherwise the id's mask below. Where two masks are given, the second is for a date without time
// of day; where a third is given, it is for a whole day below 1. A date outside 1 January 100 to
// 31 December 9999, or not a number, prints InvalidDateText() wherever a mask would print; the
// composed forms keep the rest ("2958466 (Invalid DateTime)" under 241, "Invalid DateTime.000"
// under 258).
//
//    16 "%m/%d/%y"        32 "%m-%d-%y"        48 "%d-%b-%y"       64 "%b-%y"
//    80 "%d/%m/%y"        96 "%d-%m-%y"       112 "%y/%m/%d"      128 "%y-%m-%d"
//   144 "%#m-%#d-%Y"     192 "%b-%d"          208 "%a %m/%d/%y"   224 FormatLocaleDate(date, 0)
//   241 "%d (%s)" of the whole day (truncated; INT32_MIN beyond 32 bits) and the date by "%#m-%#d-%Y"
//   242 "%#m/%#d/%Y"     243 "%#d-%b-%Y"      244 "%B %#d, %Y"
//   256 "%H:%M"          257 "%H:%M:%S"       258 "%H:%M:%S" then ".%03d" milliseconds
//   272 "%I:%M%p  %m/%d/%y" (two blanks)
//   273 "%#m/%#d/%y %H:%M", "%#m/%#d/%y", "%H:%M"
//   274 "%#m/%#d/%y %H:%M:%S", "%#m/%#d/%y", "%H:%M:%S"
//   275 "%#m/%#d/%Y %H:%M", "%#m/%#d/%Y", "%H:%M"
//   276 "%#m/%#d/%Y %H:%M:%S", "%#m/%#d/%Y", "%H:%M:S" (a literal S: the form as the host knows it)
//   277 "%m/%d/%y %I:%M%p"                    278 "%#m/%#d/%y %I:%M:%S%p"
//   512 "%I:%M %p"       513 "%I:%M:%S %p"    514 "%I:%M:%S" then ".%03d" milliseconds, then " %p"
//   768 "%I:%M"
//   unknown: "%I:%M %p" for a whole day below 1, else "%m/%d/%y"; result 2.
//
// The masks break the date down rounded to the nearest second, as the platform does; 258 and 514
// too. Their milliseconds are worked out apart from the mask, from the time of day (before day 0
// the fraction's size): in milliseconds, less whole hours, minutes and seconds, the rest rounded
// to the nearest. The two are not reconciled: 0.999 prints "23:58:34.600" under 258, and a rest
// of 999.5 or more prints as ".1000".
int FormatDateValue(double date, std::int32_t formatId, std::string& text);

// FormatDateValue's text alone.
std::string FormatDateString(double date, std::int32_t formatId);

// Formats a 32-bit time whose unit depends on the id; division truncates, so a negative value
// prints negative fields. Returns 0, or 2 for an unknown id.
//
//   256 minutes            "%d:%02d" of hours and minutes
//   257 seconds mod 86400  "%d:%02d:%02d"
//   258 ms mod 86400000    "%d:%02d:%02d.%03d"
//   272 seconds since 1 January 1970 (below 0 taken as 0), by the date mask of 272, whole minutes
//   273, 277  the same, by the date mask of 277
//   512 minutes            "%2d:%02d %s" on a 12-hour clock (hour 0 is 12), "AM" below 12 hours
//   513 seconds            "%2d:%02d:%02d %s" on the same clock
//   768 minutes            "%d:%02d" on the 12-hour clock, no marker
//   769 seconds since 1970 the time of day (whole minutes) in the user's locale (DateLocale.h)
//   unknown: minutes as 256; result 2.
int FormatTimeValue(std::int32_t value, std::int32_t formatId, std::string& text);

// The date by the short date picture of a locale (the user's default for 0), read through the
// DateLocale seam and turned into a mask by ConvertDatePicture. A locale that gives no picture
// counts as "M/d/yyyy".
std::string FormatLocaleDate(double date, std::uint32_t localeId);
