#pragma once
// SyntheticChartData: a small chart behind the ChartData seam, for tests, fuzzing and the demo
// host (whose IChartData is a thin COM adapter over it).
// Daily bars skip weekends and three holidays (1 January, 4 July, 25 December); intraday bars
// are five minutes apart from 09:30 to 15:55, stamped 17 seconds into their minute, with a
// running tick counter. Prices come from a fixed formula, so every run sees the same values.
//
// It answers as a host does: failures are negative statuses, outputs of a failed call are left
// alone. Every call is logged, so a test can tell what a page asked, and single values can be
// replaced to play a host's odd answers.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "dlgkit/ChartData.h"

namespace orv {

class SyntheticChartData final : public ChartData {
 public:
  struct Bar {
    std::int32_t date = 0;     // day number (1 January 1900 = 0)
    std::int32_t minutes = 0;  // minutes of the day; 0 on a daily chart
    std::int32_t seconds = 0;  // seconds of the day; 0 on a daily chart
    double open = 0, high = 0, low = 0, close = 0;
    double tick = 0;
  };

  // `count` daily bars, the last on the trading day at or before (year, month, day).
  static std::shared_ptr<SyntheticChartData> Daily(int count = 300, int year = 2024, int month = 6, int day = 28);
  // `sessions` trading days of 78 five-minute bars, the last session on or before the day given.
  static std::shared_ptr<SyntheticChartData> Intraday(int sessions = 3, int year = 2024, int month = 6, int day = 28);

  // The host's day number of a calendar day, and back.
  static std::int32_t DayNumber(int year, int month, int day);
  static void CivilDay(std::int32_t dayNumber, int& year, int& month, int& day);
  // A weekday other than the three holidays.
  static bool IsTradingDay(std::int32_t dayNumber);

  bool IsIntraday() const { return intraday_; }
  const std::vector<Bar>& Bars() const { return bars_; }
  std::int32_t LastPos() const { return static_cast<std::int32_t>(bars_.size()) - 1; }
  // The first bar on that day, or -1.
  std::int32_t PosOfDay(std::int32_t dayNumber) const;

  // Makes GetValue(field, barPos) answer `value` (a host's no-data mark, say) ...
  void OverrideValue(std::int32_t field, std::int32_t barPos, double value) { overrides_[{field, barPos}] = value; }
  // ... or fail for every field and bar.
  void FailGetValue(bool fail) { failGetValue_ = fail; }
  // Every call, as "GetValue(1,12)", "DateToPos(45000,0)" ...
  const std::vector<std::string>& Calls() const { return calls_; }
  void ClearCalls() { calls_.clear(); }

  // ChartData. Fields: 0 close, 1 high, 2 low, 3 open, 6 tick; any other fails.
  Status GetValue(std::int32_t field, std::int32_t barPos, double& value) override;
  // 1 for intraday (with seconds), 0 for daily.
  Status GetTimeKind(std::int32_t& kind) override;
  // The first bar at or after the date (and, on an intraday chart, the time in minutes when not
  // 0); `exact` cleared when that bar is on another day (or at another time). After the last
  // bar: position -1, failure.
  Status DateToPos(std::int32_t date, std::int32_t time, std::int32_t* exact, std::int32_t& barPos) override;
  // time: minutes of the day; seconds: seconds of the day.
  Status PosToDate(std::int32_t barPos, std::int32_t& date, std::int32_t& time, std::int32_t& seconds) override;
  Status PosToDateOnly(std::int32_t barPos, std::int32_t& date) override;

 private:
  explicit SyntheticChartData(bool intraday) : intraday_(intraday) {}
  const Bar* At(std::int32_t barPos) const;
  void AddPrices();

  bool intraday_;
  std::vector<Bar> bars_;
  std::map<std::pair<std::int32_t, std::int32_t>, double> overrides_;
  bool failGetValue_ = false;
  std::vector<std::string> calls_;
};

}  // namespace orv
