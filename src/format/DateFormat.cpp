#include "format/DateFormat.h"

#include <cmath>
#include <limits>

#include "format/Calendar.h"
#include "format/DateLocale.h"
#include "format/DateObject.h"
#include "format/Truncate.h"
#include "xml/StrFormat.h"

namespace {

using orv::DateObject;

constexpr std::int32_t kDateFamilyBits = 240;
constexpr const char* kNoDate = " --- ";
// The masks of 272 and 277, which the time formats share.
constexpr const char* kClockThenDate = "%I:%M%p  %m/%d/%y";
constexpr const char* kDateThenClock = "%m/%d/%y %I:%M%p";

enum class RowKind { Mask, Locale, DayAndDate, Milliseconds24, Milliseconds12 };

struct DateFormatRow {
  std::int32_t id;
  const char* mask;
  const char* dateOnlyMask = nullptr;      // when the fraction is not above 0
  const char* beforeDayOneMask = nullptr;  // when the whole day is below 1
  RowKind kind = RowKind::Mask;
};

constexpr DateFormatRow kDateFormats[] = {
    {16, "%m/%d/%y"},
    {32, "%m-%d-%y"},
    {48, "%d-%b-%y"},
    {64, "%b-%y"},
    {80, "%d/%m/%y"},
    {96, "%d-%m-%y"},
    {112, "%y/%m/%d"},
    {128, "%y-%m-%d"},
    {144, "%#m-%#d-%Y"},
    {192, "%b-%d"},
    {208, "%a %m/%d/%y"},
    {224, nullptr, nullptr, nullptr, RowKind::Locale},
    {241, "%#m-%#d-%Y", nullptr, nullptr, RowKind::DayAndDate},
    {242, "%#m/%#d/%Y"},
    {243, "%#d-%b-%Y"},
    {244, "%B %#d, %Y"},
    {256, "%H:%M"},
    {257, "%H:%M:%S"},
    {258, "%H:%M:%S", nullptr, nullptr, RowKind::Milliseconds24},
    {272, kClockThenDate},
    {273, "%#m/%#d/%y %H:%M", "%#m/%#d/%y", "%H:%M"},
    {274, "%#m/%#d/%y %H:%M:%S", "%#m/%#d/%y", "%H:%M:%S"},
    {275, "%#m/%#d/%Y %H:%M", "%#m/%#d/%Y", "%H:%M"},
    // The host has always shown this form with a literal S for the seconds; kept so.
    {276, "%#m/%#d/%Y %H:%M:%S", "%#m/%#d/%Y", "%H:%M:S"},
    {277, kDateThenClock},
    {278, "%#m/%#d/%y %I:%M:%S%p"},
    {512, "%I:%M %p"},
    {513, "%I:%M:%S %p"},
    {514, "%I:%M:%S", nullptr, nullptr, RowKind::Milliseconds12},
    {768, "%I:%M"},
};

const DateFormatRow* FindDateFormat(std::int32_t id) {
  for (const DateFormatRow& row : kDateFormats)
    if (row.id == id) return &row;
  return nullptr;
}

// The milliseconds that forms 258 and 514 print after the seconds: the time of day in
// milliseconds less its whole hours, minutes and seconds, the rest rounded to the nearest. They
// are worked out apart from the clock text, which is rounded to the second: 0.999 of a day prints
// as 23:58:34 and .600, and a rest of 999.5 or more prints as 1000.
std::int32_t MillisecondsOfDay(double date, double day) {
  double rest = std::fabs(date - day) * 86400000.0;
  rest -= std::trunc(rest / 3600000.0) * 3600000.0;
  rest -= std::trunc(rest / 60000.0) * 60000.0;
  rest -= std::trunc(rest / 1000.0) * 1000.0;
  return orv::ToInt32(std::round(rest));
}

// Seconds since 1 January 1970 as a date of whole minutes. The day count (25567 is 1 January 1970
// as a day number) is at least that, so it always takes the 2 of the day number rule.
double DateFromEpochSeconds(std::int32_t value) {
  const std::int32_t seconds = value < 0 ? 0 : value;
  const std::int32_t dayCount = seconds / 86400 + 25567;
  return orv::DayNumberToDate(dayCount) + (seconds % 86400 / 60) / 1440.0;
}

// Hours on a 12-hour clock, where 0 and 12 are shown as 12.
std::int32_t Hour12(std::int32_t hours) { return hours % 12 == 0 ? 12 : hours % 12; }

}  // namespace

int FormatDateValue(double date, std::int32_t formatId, std::string& text) {
  text.clear();
  const double day = std::trunc(date);
  const bool hasTime = date - day > 0.0;
  if ((formatId & kDateFamilyBits) != 0 && day == 0.0) {
    text = kNoDate;
    return 2;
  }
  const DateObject object(date);
  const DateFormatRow* row = FindDateFormat(formatId);
  if (!row) {
    text = object.Format(day < 1.0 ? "%I:%M %p" : "%m/%d/%y");
    return 2;
  }
  switch (row->kind) {
    case RowKind::Mask: {
      const char* mask = row->mask;
      if (row->beforeDayOneMask && day < 1.0)
        mask = row->beforeDayOneMask;
      else if (row->dateOnlyMask && !hasTime)
        mask = row->dateOnlyMask;
      text = object.Format(mask);
      break;
    }
    case RowKind::Locale:
      text = FormatLocaleDate(date, 0);
      break;
    case RowKind::DayAndDate:
      text = orv::StrFormat("%d (%s)", orv::ToInt32(day), object.Format(row->mask).c_str());
      break;
    case RowKind::Milliseconds24:
    case RowKind::Milliseconds12:
      text = orv::StrFormat("%s.%03d", object.Format(row->mask).c_str(), MillisecondsOfDay(date, day));
      if (row->kind == RowKind::Milliseconds12) text += object.Format(" %p");
      break;
  }
  return 0;
}

std::string FormatDateString(double date, std::int32_t formatId) {
  std::string text;
  FormatDateValue(date, formatId, text);
  return text;
}

int FormatTimeValue(std::int32_t value, std::int32_t formatId, std::string& text) {
  using orv::StrFormat;
  text.clear();
  switch (formatId) {
    case 256:
      text = StrFormat("%d:%02d", value / 60, value % 60);
      return 0;
    case 257: {
      const std::int32_t seconds = value % 86400;
      text = StrFormat("%d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
      return 0;
    }
    case 258: {
      const std::int32_t ms = value % 86400000;
      text = StrFormat("%d:%02d:%02d.%03d", ms / 3600000, ms / 60000 % 60, ms / 1000 % 60, ms % 1000);
      return 0;
    }
    case 272:
      text = DateObject(DateFromEpochSeconds(value)).Format(kClockThenDate);
      return 0;
    case 273:
    case 277:
      text = DateObject(DateFromEpochSeconds(value)).Format(kDateThenClock);
      return 0;
    case 512:
    case 513: {
      const std::int32_t hours = formatId == 512 ? value / 60 : value / 3600;
      const char* marker = hours < 12 ? "AM" : "PM";
      text = formatId == 512 ? StrFormat("%2d:%02d %s", Hour12(hours), value % 60, marker)
                             : StrFormat("%2d:%02d:%02d %s", Hour12(hours), value / 60 % 60, value % 60, marker);
      return 0;
    }
    case 768:
      text = StrFormat("%d:%02d", Hour12(value / 60), value % 60);
      return 0;
    case 769: {
      const std::int32_t seconds = (value < 0 ? 0 : value) % 86400;
      text = orv::CurrentDateLocale().GetTimeFormatNoSeconds(seconds / 3600, seconds / 60 % 60);
      return 0;
    }
    default:
      text = StrFormat("%d:%02d", value / 60, value % 60);
      return 2;
  }
}

std::string FormatLocaleDate(double date, std::uint32_t localeId) {
  std::string picture = orv::CurrentDateLocale().GetShortDatePicture(localeId);
  if (picture.empty()) picture = "M/d/yyyy";
  return DateObject(date).Format(orv::ConvertDatePicture(picture).c_str());
}
