#include "DemoDialog.h"

#include "WindowCapture.h"
#include "resource.h"

#include <cstdio>
#include <iterator>

namespace orv::demo {
namespace {

constexpr UINT WM_DEMO_SCREENSHOT = WM_APP + 1;

struct Item {
  const char* text;
  int data;
};
constexpr Item kPriceFields[] = {{"Open", 0}, {"High", 1}, {"Low", 2}, {"Close", 3}, {"Typical (H+L+C)/3", 4}};
constexpr Item kCharts[] = {{"ESZ6 - 5 min", 100}, {"ESZ6 - daily", 101},  {"CLF7 - 15 min", 102},
                            {"GCG7 - daily", 103}, {"ZNH7 - 60 min", 104}, {"EUR/USD - 1 min", 105}};
constexpr int kMethodIds[] = {IDC_METHOD_SMA, IDC_METHOD_EMA, IDC_METHOD_WMA};
constexpr const char* kMethodNames[] = {"simple", "exponential", "weighted"};

const char* ItemText(const Item* first, const Item* last, int data) {
  for (; first != last; ++first)
    if (first->data == data) return first->text;
  return "?";
}

}  // namespace

std::string Describe(const StudySettings& s) {
  const int method = s.method >= 0 && s.method < 3 ? s.method : 0;
  char text[256];
  std::snprintf(text, sizeof text, "period=%d deviations=%g field=\"%s\" method=%s bands=%d extend=%d chart=\"%s\"",
                s.period, s.deviations, ItemText(std::begin(kPriceFields), std::end(kPriceFields), s.priceField),
                kMethodNames[method], s.showBands ? 1 : 0, s.extendRight ? 1 : 0,
                ItemText(std::begin(kCharts), std::end(kCharts), s.chart));
  return text;
}

CDemoDlg::CDemoDlg(std::wstring screenshotPath) : screenshotPath_(std::move(screenshotPath)) {}

int CDemoDlg::DialogId() const { return IDD_DEMO; }

bool CDemoDlg::OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) {
  if (message == WM_DEMO_SCREENSHOT) {
    TakeScreenshot();
    result = 0;
    return true;
  }
  return ThemedPage::OnAnyMessage(message, wParam, lParam, result);
}

bool CDemoDlg::OnInitPage() {
  Controls& controls = Ctl();

  for (const Item& item : kPriceFields) controls.ComboAddString(IDC_FIELD, item.text, item.data);
  for (const Item& item : kCharts) controls.ListAddString(IDC_CHARTS, item.text, item.data);
  controls.UpDownSetRange(IDC_PERIOD_SPIN, 1, 500);
  DoDataExchange(false);

  if (!screenshotPath_.empty()) PostMessageW(static_cast<HWND>(Window()), WM_DEMO_SCREENSHOT, 0, 0);
  return true;
}

// OK: the values are read and checked; a refused one keeps the dialog open.
bool CDemoDlg::OnKillActive() { return DoDataExchange(true); }

void CDemoDlg::OnCommand(int id, int code) {
  if (id == IDC_RESET && code == kBnClicked) {
    settings_ = StudySettings{};
    DoDataExchange(false);
  }
}

bool CDemoDlg::DoDataExchange(bool save) {
  Controls& ctl = Ctl();
  if (!DDX_Int(IDC_PERIOD, &settings_.period, true, save) || !DDV_MinMaxInt(IDC_PERIOD, settings_.period, save, 1, 500))
    return false;
  if (!DDX_Float(IDC_DEVIATION, &settings_.deviations, save) ||
      !DDV_MinMaxFloat(IDC_DEVIATION, settings_.deviations, save, 0.0, 10.0))
    return false;
  DDX_ComboData(IDC_FIELD, &settings_.priceField, save);
  DDX_Check(IDC_SHOW_BANDS, &settings_.showBands, save);
  DDX_Check(IDC_EXTEND_RIGHT, &settings_.extendRight, save);
  if (save) {
    for (int i = 0; i < 3; ++i)
      if (ctl.IsDlgButtonChecked(kMethodIds[i]) == kBstChecked) settings_.method = i;
    const int chart = ctl.ListGetCurSel(IDC_CHARTS);
    if (chart >= 0) settings_.chart = static_cast<int>(ctl.ListGetItemData(IDC_CHARTS, chart));
  } else {
    for (int i = 0; i < 3; ++i) ctl.CheckDlgButton(kMethodIds[i], i == settings_.method ? kBstChecked : kBstUnchecked);
    const int chart = ctl.ListFindItemData(IDC_CHARTS, settings_.chart);
    ctl.ListSetCurSel(IDC_CHARTS, chart < 0 ? 0 : chart);
  }
  return true;
}

void CDemoDlg::TakeScreenshot() {
  // A modal dialog is shown only when its loop first goes idle, after this message.
  const HWND window = static_cast<HWND>(Window());
  ShowWindow(window, SW_SHOWNORMAL);
  SetForegroundWindow(window);
  screenshotResult_ = apps::CaptureWindowToPng(window, screenshotPath_);
  EndDialog(window, FAILED(screenshotResult_) ? IDABORT : IDOK);
}

}  // namespace orv::demo
