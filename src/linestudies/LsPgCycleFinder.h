#pragma once
// CLsPgCycleFinder<Base>: what a cycle finder adds to a position page (Base: CLsPgDayBase<id> or
// CLsPgIntraBase<id>). A cycle finder marks equal spans of bars from its start: the page edits the
// start and the period, a number of bars; the second control point isn't edited, it follows from
// the period at save. Period and direction are derived from the two points (the Day page when
// its window opens, the Intra page at load) and are not stored.

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>

#include "linestudies/LsPgPosition.h"
#include "linestudies/LsSpinField.h"
#include "xml/Xml.h"

template <class Base>
class CLsPgCycleFinder : public Base {
 public:
  static constexpr const char* kWrapper = "CCycleFinder";
  static constexpr int kMinPeriod = 0;
  static constexpr int kMaxPeriod = 250;

  std::int32_t Period() const { return period_; }
  // 1 when the second point lies at or after the first, 0 when before it.
  std::int32_t Direction() const { return direction_; }
  int PeriodId() const { return periodId_; }
  int PeriodSpinId() const { return spinId_; }

  bool OnInit() override {
    this->Ctl().UpDownSetRange(spinId_, kMinPeriod, kMaxPeriod);
    return Base::OnInit();
  }

  // The position page's controls, then the period box: a whole number, 0 to 250 on save.
  bool ExchangeExtra(bool save, int controlId) override {
    if (!Base::ExchangeExtra(save, controlId)) return false;
    if (!this->Covers(controlId, periodId_)) return true;
    int period = period_;
    // A text that isn't a number beeps, as every number box does.
    if (!this->DDX_Int(periodId_, &period, true, save)) return false;
    if (!save) {
      this->Ctl().UpDownSetPos(spinId_, period);
      return true;
    }
    period_ = period;
    if (period < kMinPeriod || period > kMaxPeriod) {
      this->OnExchangeFailed(periodId_, true);
      return false;
    }
    return true;
  }

  // A period out of range is refused without a sound: the page only stays.
  void OnExchangeFailed(int controlId, bool flag) override {
    if (controlId == periodId_) return;
    Base::OnExchangeFailed(controlId, flag);
  }

  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override {
    if (id == spinId_ && code == orv::kUdnDeltaPos && payload) {
      orv::StepSpinField(this->Ctl(), periodId_, spinId_, static_cast<const orv::UpDownDeltaPos*>(payload)->delta,
                         kMinPeriod, kMaxPeriod, period_);
      result = 1;  // the page has set the box and the up-down itself
      return true;
    }
    return Base::OnNotify(id, code, payload, result);
  }

 protected:
  CLsPgCycleFinder(int periodId, int spinId) : periodId_(periodId), spinId_(spinId) {}

  // Period and direction from the bar positions of the two points.
  void DerivePeriod(std::int32_t firstPos, std::int32_t secondPos) {
    const std::int64_t d = static_cast<std::int64_t>(secondPos) - firstPos;
    period_ = static_cast<std::int32_t>(std::min<std::int64_t>(std::llabs(d), INT32_MAX));
    direction_ = d >= 0 ? 1 : 0;
  }

  // The second point's bar: the first's plus period times direction. A study that ran backwards
  // (direction 0) comes back with its second point on its first. False when the sum leaves the
  // range of a bar position.
  bool SecondPosition(std::int32_t firstPos, std::int32_t& position) const {
    const std::int64_t p = static_cast<std::int64_t>(firstPos) + static_cast<std::int64_t>(period_) * direction_;
    if (p < INT32_MIN || p > INT32_MAX) return false;
    position = static_cast<std::int32_t>(p);
    return true;
  }

  // Typing in the period box is the user's change, like the value and the lock.
  void OnPageCommand(int id, int code) override {
    if (id == periodId_ && code == orv::kEnChange && !this->updating_) this->SetModified(true);
  }

  std::int32_t period_ = 0;
  std::int32_t direction_ = 1;

 private:
  int periodId_;
  int spinId_;
};
