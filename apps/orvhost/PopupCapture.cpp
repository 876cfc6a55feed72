#include "PopupCapture.h"

#include "ScriptDriver.h"
#include "WindowCapture.h"
#include "xml/StrFormat.h"

namespace orv::host_app {
namespace {

constexpr UINT kTickMilliseconds = 25;

PopupCapture* g_capture = nullptr;  // the timer callback carries no context

struct OwnedSearch {
  HWND owner;
  HWND found;
};

BOOL CALLBACK FindOwnedProc(HWND window, LPARAM param) {
  auto* search = reinterpret_cast<OwnedSearch*>(param);
  if (IsWindowVisible(window) && GetWindow(window, GW_OWNER) == search->owner) {
    search->found = window;
    return FALSE;
  }
  return TRUE;
}

// The visible window of this thread that `sheet` owns (a message box over it), or null.
HWND FindWindowOwnedBy(HWND sheet) {
  if (sheet == nullptr) return nullptr;
  OwnedSearch search{sheet, nullptr};
  EnumThreadWindows(GetCurrentThreadId(), FindOwnedProc, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

}  // namespace

PopupCapture::PopupCapture(std::wstring path) : path_(std::move(path)) {}

PopupCapture::~PopupCapture() { Stop(); }

bool PopupCapture::Start() {
  if (g_capture != nullptr) return false;
  timer_ = SetTimer(nullptr, 0, kTickMilliseconds, &PopupCapture::OnTimer);
  if (timer_ == 0) return false;
  g_capture = this;
  return true;
}

void PopupCapture::Stop() {
  if (timer_ != 0) KillTimer(nullptr, timer_);
  timer_ = 0;
  if (g_capture == this) g_capture = nullptr;
}

void CALLBACK PopupCapture::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  // No exception leaves a timer callback.
  try {
    if (g_capture != nullptr) g_capture->Tick();
  } catch (...) {
    if (g_capture != nullptr) {
      g_capture->error_ = "unexpected failure while taking the picture";
      g_capture->Stop();
    }
  }
}

void PopupCapture::Tick() {
  // The box runs its own message loop, which dispatches this timer: it is up and shown here.
  const HWND popup = FindWindowOwnedBy(FindThreadSheet());
  if (popup == nullptr) return;
  Stop();  // one picture; the answer below may let the sheet go on at once
  const HRESULT hr = apps::CaptureWindowToPng(popup, path_);
  if (SUCCEEDED(hr))
    written_ = true;
  else
    error_ = StrFormat("cannot write the picture of \"%s\" (0x%08lX)", CaptionOf(popup).c_str(),
                       static_cast<unsigned long>(hr));
  // A user's Esc: the box closes with its cancel answer and the dialog behind goes on.
  PostMessageW(popup, WM_COMMAND, IDCANCEL, 0);
}

}  // namespace orv::host_app
