// Watches one modal property sheet of this thread from outside, through window hooks: when its
// window and its first page are made, how long the page's WM_INITDIALOG takes, when the first
// page starts painting and when nothing of the thread is left to paint. At that moment it
// presses Cancel, so every open ends the same way, whoever made the sheet.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace orv::bench {

// Milliseconds from Begin(); negative for a moment that never came.
struct SheetTimes {
  // With a detailed probe only:
  double sheetCreated = -1;   // the sheet's top-level window is being made
  double pageInitBegin = -1;  // the first page receives WM_INITDIALOG
  double pageInitEnd = -1;    // ... and has answered it
  // Always:
  double firstPaint = -1;  // the first page takes its first WM_PAINT
  double painted = -1;     // after it, the thread has nothing left to paint: Cancel is pressed
  double closed = -1;      // the call that ran the sheet has returned (End())
  bool settled = true;     // false when painting never settled and Cancel was pressed anyway
};

// One moment of an open, for a trace: what happened, when.
struct TraceEvent {
  double at;
  std::string what;
};

struct ProbeState;

class SheetProbe {
 public:
  // Installs the hooks on the calling thread; one probe per thread at a time. Only the hook
  // on the queue is needed to see the paint; `detailed` adds hooks on creation and on every
  // sent message, for the phases and the traces. Those cost each message a little (under Wine
  // a call to the server), so timings without them are the ones to compare.
  explicit SheetProbe(bool detailed);
  ~SheetProbe();
  SheetProbe(const SheetProbe&) = delete;
  SheetProbe& operator=(const SheetProbe&) = delete;

  bool Installed() const;
  // What a trace notes: nothing; every window made, every WM_INITDIALOG sent and every
  // WM_PAINT taken; or those and every other message sent or taken from the queue.
  enum class Tracing { None, Windows, AllMessages };
  // Just before the call that runs a sheet: the clock starts and the times are cleared.
  void Begin(Tracing tracing = Tracing::None);
  // The trace of the last open, after End().
  const std::vector<TraceEvent>& Trace() const { return trace_; }
  // Just after that call returned.
  SheetTimes End();

 private:
  bool detailed_;
  HHOOK getMessage_ = nullptr;
  HHOOK callWndProc_ = nullptr;
  HHOOK callWndProcRet_ = nullptr;
  HHOOK cbt_ = nullptr;
  std::unique_ptr<ProbeState> state_;
  std::vector<TraceEvent> trace_;
};

// The performance counter in milliseconds.
double NowMs();

}  // namespace orv::bench
