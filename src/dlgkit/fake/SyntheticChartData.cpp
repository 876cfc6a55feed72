#include "dlgkit/fake/SyntheticChartData.h"

#include <algorithm>
#include <cmath>

namespace orv {

namespace {

// Days from 1 March of year 0 of the proleptic Gregorian calendar (the usual civil algorithm).
constexpr std::int64_t DaysFromCivil(int year, int month, int day) {
  year -= month <= 2 ? 1 : 0;
  const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
  const int yearOfEra = static_cast<int>(year - era * 400);
  const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * 146097 + dayOfEra;
}

// 1 January 1900 is day number 0.
constexpr std::int64_t kDayNumberZero = DaysFromCivil(1900, 1, 1);

constexpr int kSessionOpen = 9 * 60 + 30;
constexpr int kBarsPerSession = 78;
constexpr int kBarMinutes = 5;
constexpr int kStampSeconds = 17;

}  // namespace

std::int32_t SyntheticChartData::DayNumber(int year, int month, int day) {
  return static_cast<std::int32_t>(DaysFromCivil(year, month, day) - kDayNumberZero);
}

void SyntheticChartData::CivilDay(std::int32_t dayNumber, int& year, int& month, int& day) {
  const std::int64_t z = dayNumber + kDayNumberZero;
  const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const int dayOfEra = static_cast<int>(z - era * 146097);
  const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const int mp = (5 * dayOfYear + 2) / 153;
  day = dayOfYear - (153 * mp + 2) / 5 + 1;
  month = mp < 10 ? mp + 3 : mp - 9;
  year = static_cast<int>(yearOfEra + era * 400) + (month <= 2);
}

bool SyntheticChartData::IsTradingDay(std::int32_t dayNumber) {
  // Day number 0 (1 January 1900) was a Monday.
  const int weekday = static_cast<int>(((dayNumber % 7) + 7) % 7);  // 0 Monday ... 6 Sunday
  if (weekday >= 5) return false;
  int year = 0, month = 0, day = 0;
  CivilDay(dayNumber, year, month, day);
  return !((month == 1 && day == 1) || (month == 7 && day == 4) || (month == 12 && day == 25));
}

std::shared_ptr<SyntheticChartData> SyntheticChartData::Daily(int count, int year, int month, int day) {
  std::shared_ptr<SyntheticChartData> chart(new SyntheticChartData(false));
  std::vector<std::int32_t> days;
  for (std::int32_t d = DayNumber(year, month, day); static_cast<int>(days.size()) < count; --d) {
    if (IsTradingDay(d)) days.push_back(d);
  }
  std::reverse(days.begin(), days.end());
  for (std::int32_t d : days) chart->bars_.push_back(Bar{d});
  chart->AddPrices();
  return chart;
}

std::shared_ptr<SyntheticChartData> SyntheticChartData::Intraday(int sessions, int year, int month, int day) {
  std::shared_ptr<SyntheticChartData> chart(new SyntheticChartData(true));
  std::vector<std::int32_t> days;
  for (std::int32_t d = DayNumber(year, month, day); static_cast<int>(days.size()) < sessions; --d) {
    if (IsTradingDay(d)) days.push_back(d);
  }
  std::reverse(days.begin(), days.end());
  for (std::int32_t d : days) {
    for (int i = 0; i < kBarsPerSession; ++i) {
      Bar bar{d};
      bar.minutes = kSessionOpen + i * kBarMinutes;
      bar.seconds = bar.minutes * 60 + kStampSeconds;
      chart->bars_.push_back(bar);
    }
  }
  chart->AddPrices();
  return chart;
}

void SyntheticChartData::AddPrices() {
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    Bar& bar = bars_[i];
    const double x = static_cast<double>(i);
    // Whole cents, so the values print exactly.
    bar.close = std::round((100.0 + 10.0 * std::sin(x / 10.0) + x * 0.05) * 100.0) / 100.0;
    bar.open = std::round((bar.close - 0.5 + (i % 3) * 0.25) * 100.0) / 100.0;
    bar.high = std::max(bar.open, bar.close) + 1.25;
    bar.low = std::min(bar.open, bar.close) - 0.75;
    bar.tick = intraday_ ? 100000.0 + x * 37.0 : x;
  }
}

const SyntheticChartData::Bar* SyntheticChartData::At(std::int32_t barPos) const {
  if (barPos < 0 || barPos > LastPos()) return nullptr;
  return &bars_[static_cast<std::size_t>(barPos)];
}

std::int32_t SyntheticChartData::PosOfDay(std::int32_t dayNumber) const {
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    if (bars_[i].date == dayNumber) return static_cast<std::int32_t>(i);
  }
  return -1;
}

Status SyntheticChartData::GetValue(std::int32_t field, std::int32_t barPos, double& value) {
  calls_.push_back("GetValue(" + std::to_string(field) + "," + std::to_string(barPos) + ")");
  if (failGetValue_) return kStatusFail;
  if (auto it = overrides_.find({field, barPos}); it != overrides_.end()) {
    value = it->second;
    return kStatusOk;
  }
  const Bar* bar = At(barPos);
  if (!bar) return kStatusInvalidArg;
  switch (field) {
    case 0:
      value = bar->close;
      return kStatusOk;
    case 1:
      value = bar->high;
      return kStatusOk;
    case 2:
      value = bar->low;
      return kStatusOk;
    case 3:
      value = bar->open;
      return kStatusOk;
    case 6:
      value = bar->tick;
      return kStatusOk;
    default:
      return kStatusInvalidArg;
  }
}

Status SyntheticChartData::GetTimeKind(std::int32_t& kind) {
  calls_.push_back("GetTimeKind");
  kind = intraday_ ? 1 : 0;
  return kStatusOk;
}

Status SyntheticChartData::DateToPos(std::int32_t date, std::int32_t time, std::int32_t* exact, std::int32_t& barPos) {
  calls_.push_back("DateToPos(" + std::to_string(date) + "," + std::to_string(time) + ")");
  // A daily chart has no times: only the date counts there.
  const bool byTime = intraday_ && time != 0;
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    const Bar& bar = bars_[i];
    const bool at = bar.date > date || (bar.date == date && (!byTime || bar.minutes >= time));
    if (!at) continue;
    barPos = static_cast<std::int32_t>(i);
    if (exact && (bar.date != date || (byTime && bar.minutes != time))) *exact = 0;
    return kStatusOk;
  }
  barPos = -1;
  if (exact) *exact = 0;
  return kStatusFail;
}

Status SyntheticChartData::PosToDate(std::int32_t barPos, std::int32_t& date, std::int32_t& time,
                                     std::int32_t& seconds) {
  calls_.push_back("PosToDate(" + std::to_string(barPos) + ")");
  const Bar* bar = At(barPos);
  if (!bar) return kStatusInvalidArg;
  date = bar->date;
  time = bar->minutes;
  seconds = bar->seconds;
  return kStatusOk;
}

Status SyntheticChartData::PosToDateOnly(std::int32_t barPos, std::int32_t& date) {
  calls_.push_back("PosToDateOnly(" + std::to_string(barPos) + ")");
  const Bar* bar = At(barPos);
  if (!bar) return kStatusInvalidArg;
  date = bar->date;
  return kStatusOk;
}

}  // namespace orv
