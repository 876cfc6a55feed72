#include "linestudies/LsPgDayCycfnd.h"

std::int32_t CLsPgDayCycfnd::BarOf(std::int32_t date) {
  std::int32_t position = -1;
  if (chartData_) chartData_->DateToPos(date, 0, nullptr, position);
  return position;
}

// The window opens: period and direction from the points' bars (both -1 without chart data,
// so a period of 0).
void CLsPgDayCycfnd::BeforeControlsLoaded() {
  const std::int32_t first = BarOf(Point(0).lDate);
  DerivePeriod(first, BarOf(Point(1).lDate));
}

void CLsPgDayCycfnd::Save(XmlNode parent) {
  // The end's date first: the start's bar moved by the period; -1 when the chart has no such bar.
  std::int32_t position = 0;
  std::int32_t date = -1;
  if (!chartData_ || !SecondPosition(BarOf(Point(0).lDate), position) ||
      chartData_->PosToDateOnly(position, date) < 0) {
    date = -1;
  }
  Point(1).lDate = date;
  XmlNode wrapper = XmlAddChild(parent, kWrapper);
  CLsPgBase::Save(wrapper);
}
