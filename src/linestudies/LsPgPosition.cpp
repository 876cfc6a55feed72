#include "linestudies/LsPgPosition.h"

#include <algorithm>
#include <limits>

#include "dlgkit/MessageBox.h"
#include "format/Calendar.h"
#include "format/DateFormat.h"
#include "xml/StrFormat.h"

namespace {

constexpr std::int32_t kDateMask = 16;   // "%m/%d/%y"
constexpr std::int32_t kTimeMask = 256;  // minutes as "%d:%02d"
constexpr std::int32_t kTickField = 6;
constexpr const char* kNoDataText = " --- ";

}  // namespace

// --- shared ---

bool CLsPgPosition::OnInit() {
  InitPositionControls();
  UpdateControls();
  FillSnapBox();
  SnapToPrice(currentVertex_);
  BeforeControlsLoaded();
  return LoadControls();
}

void CLsPgPosition::UpdateControls() {
  // The lock box is hidden in every template; only a study that has a lock shows it.
  if (hasPosLock_) Ctl().ShowDlgItem(IDC_LS_POS_LOCK, true);
  if (hideVertexButtons_) {
    for (int id = kFirstVertexButton; id <= kLastHiddenVertexButton; ++id) {
      if (!Ctl().HasDlgItem(id)) continue;
      Ctl().ShowDlgItem(id, false);
      Ctl().EnableDlgItem(id, false);
    }
  }
  if (bestFitRule_ && snapId_) {
    // A line fitted from its first vertex decides the second one's place itself.
    Ctl().EnableDlgItem(snapId_, !(currentVertex_ == 1 && Point(0).lSnap == kSnapBestFit));
  }
}

void CLsPgPosition::ReloadWindow() {
  UpdateControls();
  LoadControls();
}

bool CLsPgPosition::LoadControls() {
  updating_ = true;
  if (Exchange(false, -1) && ExchangeExtra(false, -1)) {
    updating_ = false;
    return true;
  }
  return false;
}

void CLsPgPosition::FillSnapBox() {
  if (!snapId_) return;
  Ctl().ComboResetContent(snapId_);
  for (const SnapEntry& entry : snapEntries_) Ctl().ComboAddString(snapId_, entry.text, entry.code);
}

void CLsPgPosition::SnapToPrice(int vertex) {
  if (!chartData_) return;
  CXYCoord& point = Point(vertex);
  if (point.lSnap < 0) return;
  const std::int32_t position = SnapPosition(point);
  if (position < 0) return;
  double value = kLsNoDataValue;
  if (chartData_->GetValue(point.lSnap, position, value) < 0) value = kLsNoDataValue;
  // The no-data mark and anything of its size leaves the typed price alone.
  if (value < kLsNoDataLimit && value > -kLsNoDataLimit) point.yValue = value;
}

void CLsPgPosition::SetModified(bool flag) {
  if (updating_) return;
  if (flag) {
    Ctl().SheetChanged();
  } else {
    Ctl().SheetUnchanged();
  }
  SetDirty(flag);
}

void CLsPgPosition::OnVertexChange(int index) {
  if (index == currentVertex_) return;
  if (dirty_) {
    // Keep what was typed for the vertex being left.
    updating_ = true;
    if (Exchange(true, -1)) ExchangeExtra(true, -1);
  }
  currentVertex_ = index;
  // A failure leaves updating set: the user's next changes don't count until a later success.
  LoadControls();
  UpdateControls();
}

bool CLsPgPosition::ValidatePage() {
  updating_ = true;
  if (!Exchange(true, -1)) return false;
  if (!ExchangeExtra(true, -1)) return false;
  updating_ = false;
  return true;
}

orv::ApplyResult CLsPgPosition::OnApply() {
  if (dirty_) OnBeforeApply();
  // The sheet reads the page while it is still dirty, then the page is clean.
  if (dirty_) Ctl().SendPageApply(DialogId());
  dirty_ = false;
  valueEdited_ = false;
  return orv::ApplyResult::NoError;
}

void CLsPgPosition::OnCommand(int id, int code) {
  if (valueId_ && id == valueId_) {
    if (code == orv::kEnChange && !updating_) {
      SetModified(true);
      valueEdited_ = true;
    }
  } else if (id >= kFirstVertexButton && id <= kLastVertexButton) {
    if (code == orv::kBnClicked) OnVertexChange(id - kFirstVertexButton);
  } else if (snapId_ && id == snapId_) {
    if (code != orv::kCbnSelChange) return;
    if (!updating_) SetModified(true);
    updating_ = true;
    if (Exchange(true, snapId_) && ExchangeExtra(true, snapId_)) updating_ = false;
    OnSnapChanged();
  } else if (id == IDC_LS_POS_LOCK) {
    if (code == orv::kBnClicked && !updating_) SetModified(true);
  } else {
    OnPageCommand(id, code);
  }
}

bool CLsPgPosition::OnNotify(int id, int code, const void* payload, std::intptr_t& result) {
  // The calendar closing is a change; so is a date typed in the field, which would otherwise be
  // saved on leaving but never sent.
  if (id == IDC_LS_DAY_DATE && (code == orv::kDtnCloseUp || code == orv::kDtnDateTimeChange)) {
    if (!updating_) SetModified(true);
    return true;
  }
  return false;
}

bool CLsPgPosition::ExchangeValue(bool save, int controlId) {
  if (!valueId_ || !Covers(controlId, valueId_)) return true;
  return DDX_Float(valueId_, &Point(currentVertex_).yValue, save);
}

void CLsPgPosition::ExchangeLock(bool save, int controlId) {
  // A template without the box leaves the lock as the host gave it.
  if (!Covers(controlId, IDC_LS_POS_LOCK) || !Ctl().HasDlgItem(IDC_LS_POS_LOCK)) return;
  DDX_Check(IDC_LS_POS_LOCK, &posLock_, save);
}

void CLsPgPosition::LoadVertexRadios() {
  for (int id = kFirstVertexButton; id <= kLastVertexButton; ++id) {
    Ctl().CheckDlgButton(id, id - kFirstVertexButton == currentVertex_ ? orv::kBstChecked : orv::kBstUnchecked);
  }
}

bool CLsPgPosition::ExchangeSnap(bool save, int controlId) {
  if (!snapId_) return true;
  if (currentVertex_ < 0 || static_cast<std::size_t>(currentVertex_) > points_.size()) return true;
  CXYCoord& point = Point(currentVertex_);
  int row = SnapRowOf(point.lSnap);
  if (Covers(controlId, snapId_)) {
    if (!save) {
      Ctl().ComboSetCurSel(snapId_, row);
      return true;
    }
    row = Ctl().ComboGetCurSel(snapId_);
  } else if (!save) {
    return true;
  }
  // No choice in the box (a code the page doesn't offer): the host's code is kept.
  if (row >= 0 && static_cast<std::size_t>(row) < snapEntries_.size())
    point.lSnap = snapEntries_[static_cast<std::size_t>(row)].code;
  return true;
}

void CLsPgPosition::ExchangeCheckField(int boxId, std::int32_t& field, bool save, int controlId) {
  if (!boxId || !Covers(controlId, boxId)) return;
  if (save) {
    field = Ctl().IsDlgButtonChecked(boxId);
    return;
  }
  if (field < 0 || field > 2) field = 0;
  Ctl().CheckDlgButton(boxId, field);
}

void CLsPgPosition::ExchangeTextField(int boxId, std::string& field, std::size_t bufferSize, bool save, int controlId) {
  if (!boxId || !Covers(controlId, boxId) || !Ctl().HasDlgItem(boxId)) return;
  if (save) {
    field = Ctl().GetDlgItemTextA(boxId, bufferSize);
  } else {
    // The box shows what reading it back gives, no more: a longer text from the host would be
    // shown whole and sent cut. The field keeps the host's text until the box is read.
    Ctl().SetDlgItemTextA(boxId, std::string_view(field).substr(0, bufferSize ? bufferSize - 1 : 0));
  }
}

void CLsPgPosition::ValuesSaved() {
  OnValuesSaved();
  OnBeforeApply();
}

// --- Day ---

bool CLsPgDayPosition::Exchange(bool save, int controlId) {
  if (!save) valueEdited_ = false;
  if (!ExchangeValue(save, controlId)) return false;
  if (!ExchangeDate(save, controlId)) return false;
  ExchangeLock(save, controlId);
  if (save) ValuesSaved();
  return true;
}

bool CLsPgDayPosition::ExchangeDate(bool save, int controlId) {
  if (!Covers(controlId, IDC_LS_DAY_DATE)) return true;
  if (!Ctl().HasDlgItem(IDC_LS_DAY_DATE) || !Ctl().IsDlgItemEnabled(IDC_LS_DAY_DATE)) return true;
  CXYCoord& point = Point(currentVertex_);
  if (!save) {
    // A day the calendar can't hold leaves the picker as it is; saving then takes the picker's date.
    orv::DateParts parts;
    if (orv::BreakDownDate(orv::DayNumberToDate(point.lDate), parts)) {
      Ctl().DateTimeSetSystemTime(IDC_LS_DAY_DATE, orv::DateTime{parts.year, parts.month, parts.day, 0, 0, 0});
    }
    return true;
  }
  const auto picked = Ctl().DateTimeGetSystemTime(IDC_LS_DAY_DATE);
  if (!picked) return false;
  double serial = 0.0;
  if (!orv::DateFromParts(picked->year, picked->month, picked->day, 0, 0, 0, serial)) return false;
  point.lDate = orv::DateToDayNumber(serial);
  return true;
}

bool CLsPgDayPosition::ExchangeExtra(bool save, int controlId) {
  if (!save) {
    LoadVertexRadios();
    return true;
  }
  if (Ctl().IsDlgItemEnabled(IDC_LS_DAY_DATE) && Covers(controlId, IDC_LS_DAY_DATE) &&
      !DateOk(Point(currentVertex_).lDate, save)) {
    OnExchangeFailed(IDC_LS_DAY_DATE, true);
    return false;
  }
  return true;
}

bool CLsPgDayPosition::DateOk(std::int32_t date, bool save) {
  if (!save) return true;
  if (!chartData_) return false;
  std::int32_t exact = 1;
  std::int32_t position = -1;
  chartData_->DateToPos(date, 0, &exact, position);
  return position >= 0 && exact == 1;
}

void CLsPgDayPosition::OnExchangeFailed(int controlId, bool flag) {
  if (controlId == IDC_LS_DAY_DATE) {
    if (!flag) return;
    const std::string date = FormatDateString(orv::DayNumberToDate(Point(currentVertex_).lDate), kDateMask);
    Ctl().OrvMessageBox(orv::StrFormat(kHolidayText, date.c_str()), "Error", orv::kMbOk | orv::kMbIconExclamation);
    Ctl().SetFocus(IDC_LS_DAY_DATE);
    return;
  }
  Ctl().MessageBeep(orv::kBeepSimple);
  Ctl().SetFocus(controlId);
}

std::int32_t CLsPgDayPosition::SnapPosition(const CXYCoord& point) {
  std::int32_t position = -1;
  chartData_->DateToPos(point.lDate, 0, nullptr, position);
  return position;
}

// --- Intra ---

bool CLsPgIntraPosition::OnNotify(int id, int code, const void* payload, std::intptr_t& result) {
  if (id == IDC_LS_INTRA_SPIN && code == orv::kUdnDeltaPos && payload) {
    OnSpin(static_cast<const orv::UpDownDeltaPos*>(payload)->delta);
    result = 1;  // the page has set the spin's position itself
    return true;
  }
  return CLsPgPosition::OnNotify(id, code, payload, result);
}

void CLsPgIntraPosition::InitPositionControls() { Ctl().UpDownSetRange(IDC_LS_INTRA_SPIN, 0, maxPos_); }

bool CLsPgIntraPosition::Exchange(bool save, int controlId) {
  CXYCoord& point = Point(currentVertex_);
  if (!save) {
    valueEdited_ = false;
    UpdatePosText(false);
    Ctl().SetDlgItemTextA(IDC_LS_INTRA_DATE, point.dateText);
    Ctl().SetDlgItemTextA(IDC_LS_INTRA_TIME, point.timeText);
    Ctl().SetDlgItemTextA(IDC_LS_INTRA_TICK, point.tickText);
    Ctl().UpDownSetPos(IDC_LS_INTRA_SPIN, point.xPos);
    LoadVertexRadios();
  }
  if (!ExchangeValue(save, controlId)) return false;
  ExchangeLock(save, controlId);
  if (save) ValuesSaved();
  return true;
}

std::int32_t CLsPgIntraPosition::GetTimeKind() {
  std::int32_t kind = 2;
  if (!chartData_ || chartData_->GetTimeKind(kind) < 0) return 2;
  return kind;
}

void CLsPgIntraPosition::UpdatePosText(bool save) {
  CXYCoord& point = Point(currentVertex_);
  if (!chartData_) {
    point.tickText = kNoDataText;
    return;
  }
  std::int32_t date = point.lDate, time = point.lTime, seconds = point.lSec;
  if (chartData_->PosToDate(point.xPos, date, time, seconds) >= 0) {
    point.lDate = date;
    point.lTime = time;
    point.lSec = seconds;
    point.dateText = FormatDateString(orv::DayNumberToDate(point.lDate), kDateMask);
    if (GetTimeKind() == 1) {
      const std::int32_t hours = point.lSec / 3600;
      const std::int32_t minutes = (point.lSec - hours * 3600) / 60;
      point.timeText = orv::StrFormat(" %02d:%02d:%02d", hours, minutes, point.lSec % 60);
    } else {
      FormatTimeValue(point.lTime, kTimeMask, point.timeText);
    }
  }
  // The bar's tick number; the no-data mark, or a value no tick can have, shows as no data.
  double tick = kLsNoDataValue;
  if (chartData_->GetValue(kTickField, point.xPos, tick) < 0) tick = kLsNoDataValue;
  if (tick >= 0.0 && tick <= static_cast<double>(std::numeric_limits<std::uint32_t>::max())) {
    point.tick = static_cast<std::uint32_t>(tick);
    point.tickText = orv::FormatDlgItemInt(point.tick, false);
  } else {
    point.tick = 0;
    point.tickText = kNoDataText;
  }
}

void CLsPgIntraPosition::OnSpin(int delta) {
  updating_ = true;
  if (Exchange(true, -1) && ExchangeExtra(true, -1)) updating_ = false;
  CXYCoord& point = Point(currentVertex_);
  // Past the last bar stays on the last; never before bar 1.
  std::int64_t position = static_cast<std::int64_t>(point.xPos) + delta;
  if (position > maxPos_) position = maxPos_;
  if (position < 1) position = 1;
  point.xPos = static_cast<std::int32_t>(position);
  LoadControls();
  if (!updating_) SetModified(true);
}
