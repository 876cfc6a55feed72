#pragma once
// A locale of the test's choosing, put in place for a scope; it records what it was asked.

#include <cstdint>
#include <string>

#include "format/DateLocale.h"

class FakeDateLocale final : public orv::DateLocale {
 public:
  std::string GetShortDatePicture(std::uint32_t localeId) const override {
    askedLocale = localeId;
    return picture;
  }
  std::string GetTimeFormatNoSeconds(int hour, int minute) const override {
    askedTime = std::to_string(hour) + "h" + std::to_string(minute);
    return timeText;
  }
  std::string LoadInvalidDateText() const override { return invalidText; }

  std::string picture = "dd.MM.yyyy";
  std::string timeText = "time";
  std::string invalidText;
  mutable std::uint32_t askedLocale = 0xFFFFFFFF;
  mutable std::string askedTime;
};
