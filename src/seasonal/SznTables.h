#pragma once
// The tables the wizard's pages share: the month names of the month lists, and the length of
// each month as the season's end takes it.

namespace orv::seasonal {

// The entries of every month list, January first.
inline constexpr const char* kMonthNames[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// Days of month 1 to 12 (index 0 unused). February has 28 days in every year: a season that
// ends in February ends on the 28th in leap years too.
inline constexpr int kDaysInMonth[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

}  // namespace orv::seasonal
