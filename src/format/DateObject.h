#pragma once
// The date object: an automation date with a status, and its text through a strftime mask.

#include <cstdint>
#include <string>

#include "format/Calendar.h"

namespace orv {

class DateObject {
 public:
  enum class Status : std::int32_t { Valid = 0, Invalid = 1, Null = 2 };

  // A null date: it formats as the empty text.
  DateObject() = default;
  // Valid when the calendar can break the date down (1 January 100 to 31 December 9999), else
  // invalid: NaN and infinities included.
  explicit DateObject(double date);

  Status GetStatus() const noexcept { return status_; }
  double GetDate() const noexcept { return date_; }
  // The broken-down date; false unless valid.
  bool GetParts(DateParts& parts) const;

  // The text of the date by `mask` (see DateMask.h), at most 255 characters: a longer text is
  // empty, as strftime leaves it. A null object gives "", an invalid one InvalidDateText().
  // A null mask raises XmlComError(kStatusInvalidArg).
  std::string Format(const char* mask) const;

 private:
  double date_ = 0.0;
  Status status_ = Status::Null;
  DateParts parts_;
};

// The module's string resource 55296 when it has one, else "Invalid DateTime".
std::string InvalidDateText();

}  // namespace orv
