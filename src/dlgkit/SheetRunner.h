#pragma once
// The kit's property sheet: pages in order, a caption, OK / Cancel / Apply (or a wizard's Back /
// Next / Finish), run modally. The sheet code (CLsPs, the seasonal wizard) describes its sheet
// in a SheetSetup and hands it to a runner: the platform's PropertySheet on Windows
// (CreatePlatformSheetRunner), or HeadlessSheetRunner (fake/) in tests, which drives the same
// pages in the same order without windows.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "dlgkit/Page.h"
#include "dlgkit/Window.h"

namespace orv {

class WindowOps;

struct SheetPage {
  Page* page = nullptr;  // not owned; may appear more than once (one tab each)
  int dialogId = 0;      // its dialog template in the resource module
};

struct SheetSetup {
  std::string title;  // set with PSM_SETTITLE once the sheet is up; an empty caption stays empty
  std::vector<SheetPage> pages;
  bool wizard = false;
  int startPage = 0;
  // The module holding the pages' templates (an HMODULE); null: the module the runner is in.
  void* resourceModule = nullptr;
  WindowHandle parent = nullptr;  // the window that owns the sheet (the thread's active window)

  // The sheet window exists and its pages are in (PSCB_INITIALIZED): theme it here. The sheet
  // is given its window and the operations on it.
  std::function<void(WindowHandle sheet, WindowOps& ops)> onInitialized;
  // kWmLsPageApply from a page (wParam: its dialog id), seen before anything else the sheet
  // does with messages; the answer is the message's result.
  std::function<std::intptr_t(int dialogId)> onPageApply;
  // Offered the sheet window's own painting messages (WM_ERASEBKGND, WM_CTLCOLOR*, WM_DRAWITEM,
  // WM_MEASUREITEM); never its commands or notifications. True with `result` answers it.
  std::function<bool(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result)>
      onSheetMessage;
};

class SheetRunner {
 public:
  virtual ~SheetRunner() = default;
  // Runs the sheet modally. The result is PropertySheet's: -1 when the sheet could not be shown,
  // 0 when it closed without a change, positive when changes were applied. An exception thrown by
  // a page or a hook ends the run and is rethrown here, after the sheet's windows are gone.
  virtual std::intptr_t Run(const SheetSetup& setup) = 0;
};

// The platform's sheet: PropertySheetA on Windows; natively a runner that cannot show anything
// and answers -1.
std::unique_ptr<SheetRunner> CreatePlatformSheetRunner();

}  // namespace orv
