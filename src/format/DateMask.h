#pragma once
// The program's own strftime, over a date broken down by the program's calendar. It knows the
// conversions of the platform's run-time library in the "C" locale, with that library's '#' flag,
// so a mask prints the same on Windows and natively:
//
//   %a %A  weekday, "Mon" / "Monday"          %b %h %B  month, "Jul" / "July"
//   %d     day of month 01-31                 %m        month 01-12
//   %y     year in the century 00-99          %Y        year in full
//   %H     hour 00-23                         %I        hour 01-12
//   %M     minute 00-59                       %S        second 00-59
//   %p     "AM" / "PM"                        %j        day of the year 001-366
//   %w     weekday 0 (Sunday) to 6            %U %W     week of the year 00-53, Sunday / Monday first
//   %x     "%m/%d/%y"                         %X        "%H:%M:%S"
//   %c     "%m/%d/%y %H:%M:%S"                %%        "%"
//   %z %Z  nothing: dates here carry no time zone
//
// '#' after '%' drops the leading zeros of a number (%#d is "6", %#j is "3"), makes %x the long
// date "Monday, July 6, 2009" and %c the long date and time "Monday, July 6, 2009, 15:04:05", and
// is ignored elsewhere. An unknown conversion, and a '%' or "%#" at the end, are copied as they
// stand.

#include <cstddef>
#include <string>
#include <string_view>

#include "format/Calendar.h"

namespace orv {

// The buffer the date object gives strftime: 255 characters and the terminator.
inline constexpr std::size_t kDateTextCapacity = 256;

// Writes `mask` with its conversions replaced by the fields of `parts`. As with strftime, the text
// and its terminator must fit `capacity` bytes: a longer text gives false and an empty `text`.
bool FormatDateMask(std::string_view mask, const DateParts& parts, std::size_t capacity, std::string& text);

}  // namespace orv
