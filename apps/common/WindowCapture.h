// Screenshots of the program's own windows, written as PNG through the platform's imaging
// component (WIC). Used by the demo programs' --screenshot option.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orv::apps {

// 24-bit pixels, rows top-down, each row padded to a multiple of 4 bytes (as WIC and DIBs want).
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> bgr;
  UINT Stride() const noexcept { return static_cast<UINT>((width * 3 + 3) & ~3); }
};

// Copies what the screen shows of the window, frame included. The window should be on top
// and painted: the copy is of the screen, which is what the user sees. Parts of the window
// outside the screen are left black.
HRESULT CaptureWindow(HWND window, Bitmap& out);

// Writes the bitmap as a PNG file, replacing the file. COM must be initialised on the thread.
HRESULT WritePng(const Bitmap& bitmap, const std::wstring& path);

// Both of the above; paints the window and its children first.
HRESULT CaptureWindowToPng(HWND window, const std::wstring& path);

}  // namespace orv::apps
