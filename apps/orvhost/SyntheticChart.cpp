#include "SyntheticChart.h"

#include <algorithm>
#include <cmath>

namespace orv::host_app {
namespace {

// Days from 1 January 1970 to 1 January 1900 (day number 0).
constexpr int kDayNumberOfUnixEpoch = 25567;

// The proleptic Gregorian calendar in whole days (H. Hinnant's days_from_civil and inverse).
int DaysFromCivil(int y, int m, int d)
{
    y -= m <= 2;
    const int era = (y >= 0 ? y : y - 399) / 400;
    const int yoe = y - era * 400;
    const int doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

void CivilFromDays(int z, int& y, int& m, int& d)
{
    z += 719468;
    const int era = (z >= 0 ? z : z - 146096) / 146097;
    const int doe = z - era * 146097;
    const int yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const int doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const int mp = (5 * doy + 2) / 153;
    d = doy - (153 * mp + 2) / 5 + 1;
    m = mp + (mp < 10 ? 3 : -9);
    y = yoe + era * 400 + (m <= 2);
}

double Cents(double value) { return std::round(value * 100.0) / 100.0; }

// The trading days up to and including `last`, `count` of them, oldest first.
std::vector<int> TradingDaysEndingAt(int last, int count)
{
    std::vector<int> days;
    for (int day = last; static_cast<int>(days.size()) < count; --day) {
        if (IsTradingDay(day)) days.push_back(day);
    }
    std::reverse(days.begin(), days.end());
    return days;
}

} // namespace

int DayNumberFromCivil(int year, int month, int day)
{
    return DaysFromCivil(year, month, day) + kDayNumberOfUnixEpoch;
}

void CivilFromDayNumber(int dayNumber, int& year, int& month, int& day)
{
    CivilFromDays(dayNumber - kDayNumberOfUnixEpoch, year, month, day);
}

int WeekdayOf(int dayNumber)
{
    const int unixDays = dayNumber - kDayNumberOfUnixEpoch;
    return ((unixDays + 4) % 7 + 7) % 7; // 1 January 1970 was a Thursday
}

bool IsTradingDay(int dayNumber)
{
    const int weekday = WeekdayOf(dayNumber);
    if (weekday == 0 || weekday == 6) return false;
    int y = 0, m = 0, d = 0;
    CivilFromDayNumber(dayNumber, y, m, d);
    return !((m == 1 && d == 1) || (m == 7 && d == 4) || (m == 12 && d == 25));
}

SyntheticChart SyntheticChart::Daily()
{
    SyntheticChart chart(false);
    for (const int day : TradingDaysEndingAt(DayNumberFromCivil(2024, 6, 28), 500)) {
        Bar bar;
        bar.date = day;
        chart.bars_.push_back(bar);
    }
    chart.AddPrices();
    return chart;
}

SyntheticChart SyntheticChart::Intraday()
{
    SyntheticChart chart(true);
    constexpr int kOpen = 9 * 3600 + 30 * 60;
    constexpr int kBarSeconds = 300;
    constexpr int kBarsPerSession = (16 * 3600 - kOpen) / kBarSeconds;
    for (const int day : TradingDaysEndingAt(DayNumberFromCivil(2024, 6, 28), 10)) {
        for (int k = 0; k < kBarsPerSession; ++k) {
            Bar bar;
            bar.date = day;
            const int position = static_cast<int>(chart.bars_.size());
            // Stamped at the bar's last trade, a few seconds before its end: the seconds show.
            bar.seconds = kOpen + (k + 1) * kBarSeconds - 1 - (position * 13) % 20;
            bar.minutes = bar.seconds / 60;
            chart.bars_.push_back(bar);
        }
    }
    chart.AddPrices();
    return chart;
}

void SyntheticChart::AddPrices()
{
    double previousClose = 99.5;
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        const double x = static_cast<double>(i);
        Bar& bar = bars_[i];
        bar.close = Cents(100.0 + 8.0 * std::sin(x / 9.0) + 3.0 * std::sin(x / 2.3) + 0.04 * x);
        bar.open = previousClose;
        bar.high = Cents(std::max(bar.open, bar.close) + 0.6 + 0.4 * std::fabs(std::sin(x * 1.7)));
        bar.low = Cents(std::min(bar.open, bar.close) - 0.6 - 0.4 * std::fabs(std::cos(x * 1.3)));
        bar.tick = 1.0 + 100.0 * x + static_cast<double>((i * 37) % 50);
        previousClose = bar.close;
    }
}

const Bar* SyntheticChart::BarAt(int position) const
{
    if (position < 0 || position >= BarCount()) return nullptr;
    return &bars_[static_cast<std::size_t>(position)];
}

bool SyntheticChart::Value(int field, int position, double& value) const
{
    const Bar* bar = BarAt(position);
    if (bar == nullptr) return false;
    switch (field) {
    case 0: value = bar->close; return true;
    case 1: value = bar->high; return true;
    case 2: value = bar->low; return true;
    case 3: value = bar->open; return true;
    case 6: value = bar->tick; return true;
    default: return false;
    }
}

int SyntheticChart::FindBar(int date, int minutes, bool& exact) const
{
    const bool byTime = intraday_ && minutes != 0;
    const auto before = [byTime](const Bar& bar, std::pair<int, int> key) {
        if (bar.date != key.first) return bar.date < key.first;
        return byTime && bar.minutes < key.second;
    };
    const auto it = std::lower_bound(bars_.begin(), bars_.end(), std::pair{date, minutes}, before);
    if (it == bars_.end()) {
        exact = false;
        return -1;
    }
    exact = it->date == date && (!byTime || it->minutes == minutes);
    return static_cast<int>(it - bars_.begin());
}

} // namespace orv::host_app
