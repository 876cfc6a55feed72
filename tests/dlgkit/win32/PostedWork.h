#pragma once
// Plays a test's part from inside whatever modal loop runs on this thread (a property sheet's,
// a message box's), without timers: each piece of work is one private message to a message-only
// window, so it runs after everything posted before it (a posted button press, say) and before
// everything posted after it.

#include <windows.h>

#include <deque>
#include <functional>
#include <utility>

namespace orv::test {

class PostedWork {
 public:
  PostedWork() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = &PostedWork::Proc;
    wc.hInstance = ::GetModuleHandleW(nullptr);
    wc.lpszClassName = kClassName;
    ::RegisterClassW(&wc);  // fails harmlessly when a PostedWork registered it before
    window_ = ::CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, wc.hInstance, nullptr);
    ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  ~PostedWork() { ::DestroyWindow(window_); }
  PostedWork(const PostedWork&) = delete;
  PostedWork& operator=(const PostedWork&) = delete;

  void Post(std::function<void()> work) {
    queue_.push_back(std::move(work));
    ::PostMessageW(window_, kRunMessage, 0, 0);
  }
  // Work that was posted but never ran (its loop ended first).
  std::size_t Pending() const { return queue_.size(); }
  // Work threw: it must not unwind through the system's frames, so it is caught and counted.
  bool Failed() const { return failed_; }

 private:
  static constexpr UINT kRunMessage = WM_APP + 0x51;
  static constexpr const wchar_t* kClassName = L"OrvTestPostedWork";

  static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<PostedWork*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != kRunMessage || !self) return ::DefWindowProcW(window, message, wParam, lParam);
    if (self->queue_.empty()) return 0;
    std::function<void()> work = std::move(self->queue_.front());
    self->queue_.pop_front();
    try {
      work();
    } catch (...) {
      self->failed_ = true;
    }
    return 0;
  }

  HWND window_ = nullptr;
  std::deque<std::function<void()>> queue_;
  bool failed_ = false;
};

}  // namespace orv::test
