#pragma once
// The host's IChartData behind the portable ChartData. The host declares the object as IUnknown
// and the pages call it without a query, as the host expects: the pointer is taken to be an
// IChartData (the order of its methods is the contract). Header-only; include it where
// OrvChartDlgs_h.h is available (link orv_idl).

#include <windows.h>

#include <memory>

#include "OrvChartDlgs_h.h"
#include "com/ComPtr.h"
#include "dlgkit/ChartData.h"

namespace orv {

class ChartDataWin32 final : public ChartData {
 public:
  // Holds one reference for its lifetime.
  explicit ChartDataWin32(IUnknown* chartData)
      : data_(ComPtr<IChartData>::Share(static_cast<IChartData*>(static_cast<void*>(chartData)))) {}

  IUnknown* Object() const { return data_.get(); }

  Status GetValue(std::int32_t field, std::int32_t barPos, double& value) override {
    return data_->GetValue(field, barPos, &value);
  }
  Status GetTimeKind(std::int32_t& kind) override {
    long out = kind;
    const HRESULT status = data_->GetTimeKind(&out);
    kind = out;
    return status;
  }
  Status DateToPos(std::int32_t date, std::int32_t time, std::int32_t* exact, std::int32_t& barPos) override {
    long exactOut = exact ? *exact : 0;
    long pos = barPos;
    const HRESULT status = data_->DateToPos(date, time, 0, 0, exact ? &exactOut : nullptr, &pos);
    if (exact) *exact = exactOut;
    barPos = pos;
    return status;
  }
  Status PosToDate(std::int32_t barPos, std::int32_t& date, std::int32_t& time, std::int32_t& seconds) override {
    long d = date, t = time, s = seconds;
    const HRESULT status = data_->PosToDate(barPos, &d, &t, &s, 0, 0);
    date = d;
    time = t;
    seconds = s;
    return status;
  }
  Status PosToDateOnly(std::int32_t barPos, std::int32_t& date) override {
    long d = date;
    const HRESULT status = data_->PosToDateOnly(barPos, &d, 0);
    date = d;
    return status;
  }

 private:
  ComPtr<IChartData> data_;
};

// Null for a null object: the pages then do without chart values.
inline ChartDataRef WrapChartData(IUnknown* chartData) {
  if (!chartData) return nullptr;
  return std::make_shared<ChartDataWin32>(chartData);
}

}  // namespace orv
