#include "ColorDemoDialog.h"

#include "WindowCapture.h"
#include "resource.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace orv::demo {
namespace {

constexpr UINT WM_DEMO_COLOR_SCREENSHOT = WM_APP + 2;

std::string ColorText(COLORREF color) {
  if (color == kNoColor) return "none";
  char text[16];
  std::snprintf(text, sizeof text, "0x%06lX", static_cast<unsigned long>(color));
  return text;
}

// The two windows as the screen shows them, in one picture over the dialog's background.
HRESULT CaptureTogether(HWND first, HWND second, const std::wstring& path) {
  apps::Bitmap a, b;
  HRESULT hr = apps::CaptureWindow(first, a);
  if (SUCCEEDED(hr)) hr = apps::CaptureWindow(second, b);
  if (FAILED(hr)) return hr;
  RECT ra, rb;
  GetWindowRect(first, &ra);
  GetWindowRect(second, &rb);
  RECT all;
  UnionRect(&all, &ra, &rb);
  apps::Bitmap out;
  out.width = all.right - all.left;
  out.height = all.bottom - all.top;
  out.bgr.assign(static_cast<size_t>(out.Stride()) * out.height, 0x30);
  for (const auto& [bitmap, rect] : {std::pair<const apps::Bitmap&, RECT>{a, ra}, {b, rb}}) {
    const int dx = rect.left - all.left, dy = rect.top - all.top;
    for (int y = 0; y < bitmap.height; ++y)
      std::memcpy(&out.bgr[static_cast<size_t>(y + dy) * out.Stride() + static_cast<size_t>(dx) * 3],
                  &bitmap.bgr[static_cast<size_t>(y) * bitmap.Stride()], static_cast<size_t>(bitmap.width) * 3);
  }
  return apps::WritePng(out, path);
}

}  // namespace

CDemoColorDlg::CDemoColorDlg(std::wstring screenshotPath) : screenshotPath_(std::move(screenshotPath)) {
  line_.m_color = 0x0000FF;
  fill_.m_color = kNoColor;
  fill_.Popup().offerNoColor = true;
}

int CDemoColorDlg::DialogId() const { return IDD_DEMO_COLORS; }

bool CDemoColorDlg::OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) {
  if (message == WM_DEMO_COLOR_SCREENSHOT) {
    TakeScreenshot(static_cast<int>(wParam));
    result = 0;
    return true;
  }
  return ThemedPage::OnAnyMessage(message, wParam, lParam, result);
}

bool CDemoColorDlg::OnInitPage() {
  const HWND window = static_cast<HWND>(Window());
  line_.SubclassWindow(GetDlgItem(window, IDC_LINE_COLOR));
  fill_.SubclassWindow(GetDlgItem(window, IDC_FILL_COLOR));
  if (!screenshotPath_.empty()) PostMessageW(window, WM_DEMO_COLOR_SCREENSHOT, 0, 0);
  return true;
}

std::string CDemoColorDlg::Describe() const {
  return "line " + ColorText(line_.m_color) + ", fill " + ColorText(fill_.m_color);
}

void CDemoColorDlg::TakeScreenshot(int step) {
  const HWND window = static_cast<HWND>(Window());
  if (step == 0) {
    // Shown first, then the line colour's button clicked: the drop-down opens under it.
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
    UpdateWindow(window);
    SendMessageW(GetDlgItem(window, IDC_LINE_COLOR), BM_CLICK, 0, 0);
    PostMessageW(window, WM_DEMO_COLOR_SCREENSHOT, 1, 0);
    return;
  }
  const HWND popup = line_.Popup().Window();
  if (!popup || !IsWindowVisible(popup)) {
    screenshotResult_ = E_FAIL;
  } else {
    RedrawWindow(popup, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    screenshotResult_ = CaptureTogether(window, popup, screenshotPath_);
  }
  EndDialog(window, FAILED(screenshotResult_) ? IDABORT : IDOK);
}

}  // namespace orv::demo
