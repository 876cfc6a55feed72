#pragma once
// What the date formats ask of the platform: the locale's short date picture, the locale's text
// for a time of day, and the module's text for an invalid date. The portable code asks through
// this seam and never includes <windows.h>:
//   win32/DateLocaleWin32.cpp   GetLocaleInfo, GetTimeFormat, LoadString
//   native/DateLocaleNative.cpp fixed answers of the United States English locale
// Tests put their own in place with ScopedDateLocale.

#include <cstdint>
#include <string>
#include <string_view>

namespace orv {

class DateLocale {
 public:
  virtual ~DateLocale() = default;
  // The short date picture (locale information 31, LOCALE_SSHORTDATE, at most 100 bytes) of
  // `localeId`, or of the user's default locale when it is 0: "M/d/yyyy" in the United States.
  // Empty when the platform has none.
  virtual std::string GetShortDatePicture(std::uint32_t localeId) const = 0;
  // GetTimeFormat of the user's default locale without seconds, at most 25 characters:
  // "2:30 PM" in the United States. Empty when the platform refuses.
  virtual std::string GetTimeFormatNoSeconds(int hour, int minute) const = 0;
  // The module's string resource 55296, the text for an invalid date; empty when it has none.
  virtual std::string LoadInvalidDateText() const = 0;
};

// The platform's answers (see above).
const DateLocale& PlatformDateLocale();

// The platform's, unless a ScopedDateLocale names another for its lifetime.
const DateLocale& CurrentDateLocale();

class ScopedDateLocale {
 public:
  explicit ScopedDateLocale(const DateLocale& locale);
  ~ScopedDateLocale();
  ScopedDateLocale(const ScopedDateLocale&) = delete;
  ScopedDateLocale& operator=(const ScopedDateLocale&) = delete;

 private:
  const DateLocale* previous_;
};

// A locale's date picture ("dd.MM.yyyy", "d MMM yyyy", "d 'de' MMMM 'de' yyyy") as a mask of the
// program's strftime. d, dd, ddd, dddd+ are the day, the day with zero, the weekday's short and
// long name; M to MMMM+ the same for the month; y, yy, yyy+ the year in the century without and
// with zero and in full; g or gg the era "A.D."; text in single quotes is literal ('' is a quote);
// every other character stands as it is ('%' too).
std::string ConvertDatePicture(std::string_view picture);

}  // namespace orv
