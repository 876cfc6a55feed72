#include "SheetProbe.h"

#include <commctrl.h>

#include <cstdio>
#include <cwchar>
#include <utility>

namespace orv::bench {
namespace {

// Posted to the thread (no window) right after a WM_PAINT is taken from the queue. Posted
// messages come before WM_PAINT, so it arrives as soon as that paint has been dispatched.
constexpr UINT kPaintedMarker = WM_APP + 0x2F1;
// A window that never validates would keep the queue painting for ever: after this many paints
// the sheet is cancelled all the same and the sample is marked unsettled.
constexpr int kMaxPaints = 500;

}  // namespace

struct ProbeState {
  double start = 0;
  SheetTimes times;
  HWND sheet = nullptr;
  HWND firstPage = nullptr;
  int paints = 0;
  bool markerPending = false;
  bool cancelled = false;
  bool tracing = false;
  bool allMessages = false;
  std::vector<TraceEvent> trace;
};

namespace {

// The probe of this thread; the hooks have no user data.
thread_local ProbeState* t_state = nullptr;

double Elapsed(const ProbeState& state) { return NowMs() - state.start; }

std::string ClassName(HWND window) {
  char buffer[64] = {};
  GetClassNameA(window, buffer, sizeof buffer);
  return buffer;
}

void Note(ProbeState& state, HWND window, const char* what) {
  if (!state.tracing) return;
  char text[160];
  std::snprintf(text, sizeof text, "%s %s %p id %d", what, ClassName(window).c_str(), static_cast<void*>(window),
                window != nullptr ? GetDlgCtrlID(window) : 0);
  state.trace.push_back({Elapsed(state), text});
}

bool ClassIs(HWND window, const wchar_t* name) {
  wchar_t buffer[64] = {};
  return GetClassNameW(window, buffer, 64) > 0 && std::wcscmp(buffer, name) == 0;
}

// A page: a child dialog of a top-level dialog (the sheet).
bool IsPage(HWND window) {
  if (window == nullptr || !(GetWindowLongW(window, GWL_STYLE) & WS_CHILD) || !ClassIs(window, L"#32770")) return false;
  HWND root = GetAncestor(window, GA_ROOT);
  return root != nullptr && root != window && ClassIs(root, L"#32770");
}

void PostMarker(ProbeState& state) {
  if (state.markerPending) return;
  state.markerPending = PostThreadMessageW(GetCurrentThreadId(), kPaintedMarker, 0, 0) != FALSE;
}

void Cancel(ProbeState& state, bool settled) {
  state.cancelled = true;
  state.times.painted = Elapsed(state);
  state.times.settled = settled;
  PostMessageW(state.sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
}

void NoteMessage(ProbeState& state, const char* how, HWND window, UINT message) {
  char what[32];
  std::snprintf(what, sizeof what, "%s 0x%04X", how, message);
  Note(state, window, what);
}

LRESULT CALLBACK GetMessageProc(int code, WPARAM wParam, LPARAM lParam) {
  ProbeState* state = t_state;
  if (code == HC_ACTION && wParam == PM_REMOVE && state != nullptr && !state->cancelled) {
    auto* message = reinterpret_cast<MSG*>(lParam);
    if (state->allMessages && message->message != kPaintedMarker && message->message != WM_PAINT)
      NoteMessage(*state, "posted", message->hwnd, message->message);
    if (message->message == WM_PAINT && message->hwnd != nullptr) {
      Note(*state, message->hwnd, "WM_PAINT");
      if (state->times.firstPaint < 0 && IsPage(message->hwnd)) {
        state->times.firstPaint = Elapsed(*state);
        state->sheet = GetAncestor(message->hwnd, GA_ROOT);
      }
      if (state->times.firstPaint >= 0) {
        ++state->paints;
        PostMarker(*state);
      }
    } else if (message->message == kPaintedMarker && message->hwnd == nullptr) {
      state->markerPending = false;
      message->message = WM_NULL;  // nothing else sees it
      const bool paintLeft = (HIWORD(GetQueueStatus(QS_PAINT)) & QS_PAINT) != 0;
      if (!paintLeft)
        Cancel(*state, true);
      else if (state->paints >= kMaxPaints)
        Cancel(*state, false);
    }
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK CallWndProc(int code, WPARAM wParam, LPARAM lParam) {
  ProbeState* state = t_state;
  if (code == HC_ACTION && state != nullptr) {
    const auto* message = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (message->message == WM_INITDIALOG)
      Note(*state, message->hwnd, "WM_INITDIALOG begins");
    else if (state->allMessages)
      NoteMessage(*state, "sent", message->hwnd, message->message);
    if (message->message == WM_INITDIALOG && state->firstPage == nullptr && IsPage(message->hwnd)) {
      state->firstPage = message->hwnd;
      state->times.pageInitBegin = Elapsed(*state);
    }
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK CallWndProcRet(int code, WPARAM wParam, LPARAM lParam) {
  ProbeState* state = t_state;
  if (code == HC_ACTION && state != nullptr) {
    const auto* message = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (message->message == WM_INITDIALOG) Note(*state, message->hwnd, "WM_INITDIALOG ends");
    if (message->message == WM_INITDIALOG && message->hwnd == state->firstPage && state->times.pageInitEnd < 0)
      state->times.pageInitEnd = Elapsed(*state);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK CbtProc(int code, WPARAM wParam, LPARAM lParam) {
  ProbeState* state = t_state;
  if (code == HCBT_CREATEWND && state != nullptr && state->tracing) {
    const auto* create = reinterpret_cast<const CBT_CREATEWNDW*>(lParam);
    char what[96];
    const LPCWSTR name = create->lpcs->lpszClass;
    if (IS_INTRESOURCE(name))
      std::snprintf(what, sizeof what, "create #%u", static_cast<unsigned>(reinterpret_cast<ULONG_PTR>(name)));
    else
      std::snprintf(what, sizeof what, "create %ls", name);
    state->trace.push_back({Elapsed(*state), what});
  }
  if (code == HCBT_CREATEWND && state != nullptr && state->times.sheetCreated < 0) {
    const auto* create = reinterpret_cast<const CBT_CREATEWNDW*>(lParam);
    const LPCWSTR name = create->lpcs->lpszClass;
    // The sheet is a dialog: class atom 32770, not a child.
    const bool dialogClass =
        IS_INTRESOURCE(name) ? reinterpret_cast<ULONG_PTR>(name) == 32770 : std::wcscmp(name, L"#32770") == 0;
    if (dialogClass && !(create->lpcs->style & WS_CHILD)) state->times.sheetCreated = Elapsed(*state);
  }
  (void)wParam;
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

double NowMs() {
  static const double perMs = [] {
    LARGE_INTEGER frequency{};
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(frequency.QuadPart) / 1000.0;
  }();
  LARGE_INTEGER now{};
  QueryPerformanceCounter(&now);
  return static_cast<double>(now.QuadPart) / perMs;
}

SheetProbe::SheetProbe(bool detailed) : detailed_(detailed) {
  const DWORD thread = GetCurrentThreadId();
  getMessage_ = SetWindowsHookExW(WH_GETMESSAGE, &GetMessageProc, nullptr, thread);
  if (!detailed) return;
  callWndProc_ = SetWindowsHookExW(WH_CALLWNDPROC, &CallWndProc, nullptr, thread);
  callWndProcRet_ = SetWindowsHookExW(WH_CALLWNDPROCRET, &CallWndProcRet, nullptr, thread);
  cbt_ = SetWindowsHookExW(WH_CBT, &CbtProc, nullptr, thread);
}

SheetProbe::~SheetProbe() {
  for (HHOOK hook : {getMessage_, callWndProc_, callWndProcRet_, cbt_})
    if (hook != nullptr) UnhookWindowsHookEx(hook);
  t_state = nullptr;
}

bool SheetProbe::Installed() const {
  return getMessage_ != nullptr &&
         (!detailed_ || (callWndProc_ != nullptr && callWndProcRet_ != nullptr && cbt_ != nullptr));
}

void SheetProbe::Begin(Tracing tracing) {
  trace_.clear();
  state_ = std::make_unique<ProbeState>();
  state_->tracing = tracing != Tracing::None;
  state_->allMessages = tracing == Tracing::AllMessages;
  t_state = state_.get();
  state_->start = NowMs();
}

SheetTimes SheetProbe::End() {
  SheetTimes times;
  if (state_) {
    times = state_->times;
    times.closed = Elapsed(*state_);
    if (!state_->cancelled) times.settled = false;
    trace_ = std::move(state_->trace);
    state_.reset();
    t_state = nullptr;
  }
  return times;
}

}  // namespace orv::bench
