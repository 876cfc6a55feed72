// A small chart of the demo host's own, behind the IChartData it hands to DoModal2: daily bars
// (weekends and a few holidays skipped) or five-minute intraday bars stamped to the second,
// with prices from a fixed formula, so every run and every test sees the same values.
#pragma once

#include <vector>

namespace orv::host_app {

// Day numbers as the host keeps them: 1 January 1900 is 0.
int DayNumberFromCivil(int year, int month, int day);
void CivilFromDayNumber(int dayNumber, int& year, int& month, int& day);
// 0 Sunday ... 6 Saturday.
int WeekdayOf(int dayNumber);
// Weekdays other than New Year's Day, Independence Day and Christmas Day.
bool IsTradingDay(int dayNumber);

struct Bar {
    int date = 0;    // day number
    int minutes = 0; // minutes of the day (0 on a daily chart)
    int seconds = 0; // seconds of the day (0 on a daily chart)
    double open = 0, high = 0, low = 0, close = 0;
    double tick = 0; // running tick counter at the bar's first trade
};

class SyntheticChart {
public:
    // 500 daily bars, the last on Friday 28 June 2024.
    static SyntheticChart Daily();
    // Ten sessions of 78 five-minute bars (09:30 to 16:00), the last session on 28 June 2024.
    static SyntheticChart Intraday();

    bool IsIntraday() const { return intraday_; }
    int BarCount() const { return static_cast<int>(bars_.size()); }
    // Null when there is no bar at that position.
    const Bar* BarAt(int position) const;
    // field: 0 close, 1 high, 2 low, 3 open, 6 tick counter. False for another field or position.
    bool Value(int field, int position, double& value) const;
    // The first bar at or after (date, minutes); minutes 0 means the date alone counts.
    // -1 when every bar is earlier. exact: the bar has that date (and those minutes, when given).
    int FindBar(int date, int minutes, bool& exact) const;

private:
    explicit SyntheticChart(bool intraday) : intraday_(intraday) {}
    void AddPrices();

    bool intraday_;
    std::vector<Bar> bars_;
};

} // namespace orv::host_app
