// The demo's colour dialog: a line's colour and a fill that may be none, chosen with the kit's
// colour buttons, each dropping down the colour grid.
#pragma once

#include "dlgkit/ThemedPage.h"
#include "dlgkit/win32/ColorPickerWin32.h"

#include <windows.h>

#include <string>

namespace orv::demo {

class CDemoColorDlg : public ThemedPage<CDemoColorDlg> {
 public:
  // With a file name, the dialog opens the line colour's drop-down, writes the dialog and the
  // drop-down there as one PNG, then closes.
  explicit CDemoColorDlg(std::wstring screenshotPath = {});

  int DialogId() const override;
  bool OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override;
  bool OnInitPage() override;

  // "line 0x0000FF, fill none" after OK.
  std::string Describe() const;
  HRESULT ScreenshotResult() const { return screenshotResult_; }

 protected:
  // The buttons are attached before the children are themed, so they receive the theme.
  bool InitBeforeTheme() const override { return true; }

 private:
  void TakeScreenshot(int step);

  CWtlColorBtn line_;
  CWtlColorBtn fill_;
  std::wstring screenshotPath_;
  HRESULT screenshotResult_ = S_OK;
};

}  // namespace orv::demo
