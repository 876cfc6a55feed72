#include "format/Calendar.h"
#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {

namespace {

bool Parts(const SeasonDate& date, DateParts& parts) {
  return date.status == kDateValid && BreakDownDate(date.value, parts);
}

}  // namespace

int MonthOf(const SeasonDate& date) {
  DateParts parts;
  return Parts(date, parts) ? parts.month : -1;
}

int YearOf(const SeasonDate& date) {
  DateParts parts;
  return Parts(date, parts) ? parts.year : -1;
}

SeasonDate MakeSeasonDate(int year, int month, int day) {
  SeasonDate date;
  if (!DateFromParts(year, month, day, 0, 0, 0, date.value)) {
    date.value = 0.0;
    date.status = kDateInvalid;
  }
  return date;
}

}  // namespace orv::seasonal
