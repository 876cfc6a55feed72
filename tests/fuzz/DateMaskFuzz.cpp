// The readers of mask text: the program's strftime and the locale's date picture, over any date.
// Input: 8 bytes of a date (an automation date as a double), 4 bytes of a format id, then the
// mask. Besides not crashing, each reader must keep its promises:
// - text is never longer than the date object's buffer allows;
// - a mask without conversions, and a picture without fields, print as they stand;
// - both formatters answer 0 or 2 and never print nothing;
// - a date the calendar breaks down comes back to the same parts from them.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "format/Calendar.h"
#include "format/DateFormat.h"
#include "format/DateLocale.h"
#include "format/DateMask.h"
#include "format/DateObject.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

template <typename T>
T Take(const std::uint8_t*& data, std::size_t& size, T fallback) {
  if (size < sizeof(T)) return fallback;
  T value;
  std::memcpy(&value, data, sizeof(T));
  data += sizeof(T);
  size -= sizeof(T);
  return value;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const double date = Take<double>(data, size, 40000.5);
  const std::int32_t id = Take<std::int32_t>(data, size, 16);
  const std::string_view maskBytes(reinterpret_cast<const char*>(data), size);
  // The date object takes a C string: the mask ends at its first NUL.
  const std::string mask(maskBytes.substr(0, maskBytes.find('\0')));

  const orv::DateObject object(date);
  const std::string text = object.Format(mask.c_str());
  if (object.GetStatus() == orv::DateObject::Status::Valid) {
    Check(text.size() < orv::kDateTextCapacity);
    if (mask.find('%') == std::string::npos) Check(text == (mask.size() < orv::kDateTextCapacity ? mask : ""));
  } else {
    Check(text == orv::InvalidDateText());
  }

  // The whole bytes, NULs included, against a valid date.
  orv::DateParts parts{2009, 7, 6, 15, 4, 5, 1, 187};
  std::string masked;
  const bool fits = orv::FormatDateMask(maskBytes, parts, orv::kDateTextCapacity, masked);
  Check(fits ? masked.size() < orv::kDateTextCapacity : masked.empty());

  const std::string converted = orv::ConvertDatePicture(mask);
  if (mask.find_first_of("dMyg'%") == std::string::npos) Check(converted == mask);
  object.Format(converted.c_str());

  std::string formatted;
  const int dateResult = FormatDateValue(date, id, formatted);
  Check((dateResult == 0 || dateResult == 2) && !formatted.empty());
  std::int32_t value = 0;
  std::memcpy(&value, &date, sizeof value);
  const int timeResult = FormatTimeValue(value, id, formatted);
  Check((timeResult == 0 || timeResult == 2) && !formatted.empty());

  if (orv::BreakDownDate(date, parts)) {
    double back = 0.0;
    Check(orv::DateFromParts(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second, back));
    orv::DateParts again;
    Check(orv::BreakDownDate(back, again) && again == parts);
  }
  orv::DateToDayNumber(date);
  orv::DateToDayValue(date, orv::ORV_TIME_STD_MS);
  return 0;
}
