// The demo's dialog: a study's settings, run by the kit's dialog host with its theme and data
// exchange, as every page of the component is.
#pragma once

#include "dlgkit/ThemedPage.h"

#include <windows.h>

#include <string>

namespace orv::demo {

struct StudySettings {
  int period = 20;
  double deviations = 2.0;
  int priceField = 3;  // item data of the price field combo: Close
  int method = 0;      // 0 simple, 1 exponential, 2 weighted
  bool showBands = true;
  bool extendRight = false;
  int chart = 0;  // item data of the chart list
};

// One line describing the settings, as the demo prints them after OK.
std::string Describe(const StudySettings& settings);

class CDemoDlg : public ThemedPage<CDemoDlg> {
 public:
  // With a file name, the dialog writes itself there as a PNG once shown, then closes.
  explicit CDemoDlg(std::wstring screenshotPath = {});

  int DialogId() const override;
  bool OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override;
  bool OnInitPage() override;
  bool OnKillActive() override;
  void OnCommand(int id, int code) override;

  const StudySettings& Settings() const { return settings_; }
  HRESULT ScreenshotResult() const { return screenshotResult_; }

 private:
  bool DoDataExchange(bool save);
  void TakeScreenshot();

  StudySettings settings_;
  std::wstring screenshotPath_;
  HRESULT screenshotResult_ = S_OK;
};

}  // namespace orv::demo
