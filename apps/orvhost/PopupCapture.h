// Pictures of the windows a dialog opens over itself, the program's message boxes above all:
// while the modal call runs, a thread timer looks for a visible window owned by the open sheet,
// writes it as a PNG and answers it as a user pressing Esc would. Used by --box-screenshot.
#pragma once

#include <windows.h>

#include <string>

namespace orv::host_app {

class PopupCapture {
 public:
  // `path`: where the first window over the sheet goes.
  explicit PopupCapture(std::wstring path);
  PopupCapture(const PopupCapture&) = delete;
  PopupCapture& operator=(const PopupCapture&) = delete;
  ~PopupCapture();

  // Before the modal call. One capture at a time per process.
  bool Start();
  // After the modal call.
  void Stop();

  // True once the picture is written.
  bool Written() const { return written_; }
  // Empty unless writing the picture failed.
  const std::string& Error() const { return error_; }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  void Tick();

  std::wstring path_;
  UINT_PTR timer_ = 0;
  bool written_ = false;
  std::string error_;
};

}  // namespace orv::host_app
