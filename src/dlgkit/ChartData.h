#pragma once
// The host's chart values, as the line study pages ask for them. On Windows it is the host's
// IChartData (win32/ChartDataWin32.h wraps it); tests give a synthetic chart. A page holds a
// shared reference for as long as it lives; no chart data (null) means a page does without.

#include <cstdint>
#include <memory>

#include "xml/XmlError.h"

namespace orv {

class ChartData {
 public:
  virtual ~ChartData() = default;
  // field: 0 close, 1 high, 2 low, 3 open, 6 the bar's tick number. On failure `value` is unused.
  virtual Status GetValue(std::int32_t field, std::int32_t barPos, double& value) = 0;
  // 1: intraday with seconds.
  virtual Status GetTimeKind(std::int32_t& kind) = 0;
  // time 0 when only the date counts. `exact` may be null; the host clears it when the date
  // falls between bars.
  virtual Status DateToPos(std::int32_t date, std::int32_t time, std::int32_t* exact, std::int32_t& barPos) = 0;
  // Negative status: no such bar.
  virtual Status PosToDate(std::int32_t barPos, std::int32_t& date, std::int32_t& time, std::int32_t& seconds) = 0;
  virtual Status PosToDateOnly(std::int32_t barPos, std::int32_t& date) = 0;
};

using ChartDataRef = std::shared_ptr<ChartData>;

}  // namespace orv
