// The host's own COM objects handed to the component: IChartData over the kit's synthetic chart,
// and the sink that receives StatusEvent. Both are plain single-threaded objects: the
// component calls them on this thread only.
#pragma once

#include <windows.h>
#include <ocidl.h>

#include "OrvChartDlgs_h.h"
#include "com/ComObject.h"
#include "com/ComPtr.h"
#include "dlgkit/fake/SyntheticChartData.h"

#include <cstdio>
#include <memory>
#include <span>
#include <string>

namespace orv::host_app {

// IChartData over the chart, a thin adapter: the chart's statuses (E_INVALIDARG for a position
// without a bar or an unknown field, E_FAIL from DateToPos when every bar is earlier), and
// E_INVALIDARG for a missing out parameter. DateToPos sets `exact` to 1 or 0.
ComPtr<IChartData> MakeChartData(std::shared_ptr<SyntheticChartData> chart);

// The charts orvhost hands over: 500 daily bars, or ten sessions of five-minute bars, the last
// on Friday 28 June 2024.
std::shared_ptr<SyntheticChartData> HostChart(bool intraday);

// pValue with \r, \n, \t and \\ written as escapes and other control characters as \xHH,
// in UTF-8: one event stays one line, and the exact text can be read back.
std::string EscapeEventText(const wchar_t* text, UINT length);

// Prints "StatusEvent: <pValue escaped>" for every StatusEvent and answers plReturn with 0.
class StatusEventPrinter final : public ComObject<StatusEventPrinter, IDispatch> {
 public:
  // Lines go to `out` (stdout in the program), flushed after each: StatusEventPrinter::Make(out).
  explicit StatusEventPrinter(std::FILE* out) : out_(out) {}
  static std::span<const ComInterfaceEntry> Interfaces();

  int EventCount() const { return events_; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO*,
                                   UINT* argError) override;

 private:
  std::FILE* out_;
  int events_ = 0;
};

// One sink connected to a source's connection point for `iid`, disconnected on destruction.
class EventConnection {
 public:
  EventConnection() = default;
  EventConnection(const EventConnection&) = delete;
  EventConnection& operator=(const EventConnection&) = delete;
  ~EventConnection();
  HRESULT Connect(IUnknown* source, REFIID iid, IUnknown* sink);

 private:
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace orv::host_app
