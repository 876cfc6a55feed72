#pragma once
// ThemedSheet<T>: the mix-in of a property sheet or wizard that is a themed dialog itself. Once
// the platform's sheet is up, its own children (tabs, buttons) take the host's theme, and its
// painting messages are answered in that theme, as a page's are.

#include <cstdint>
#include <functional>

#include "dlgkit/OrvDialog.h"
#include "dlgkit/SheetRunner.h"

namespace orv {

template <class T>
class ThemedSheet : public COrvDialog<T> {
 protected:
  // Runs `setup` on `runner` with the theme hooks in place; `afterTheme` (may be empty) runs
  // once the sheet is up and themed.
  std::intptr_t RunThemed(SheetRunner& runner, SheetSetup& setup, std::function<void()> afterTheme = {}) {
    setup.onInitialized = [this, afterTheme](WindowHandle window, WindowOps& ops) {
      window_ = window;
      this->AttachWindow(ops, window);
      this->SubclassControls();
      this->LoadTheme();
      if (afterTheme) afterTheme();
    };
    setup.onSheetMessage = [this](unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                                  std::intptr_t& result) {
      if (!window_) return false;
      return this->ProcessThemeMessage(window_, message, wParam, lParam, result) ||
             this->ReflectNotifications(window_, message, wParam, lParam, result);
    };
    // The window is gone when the run returns, also when it throws.
    struct Detach {
      WindowHandle& window;
      ~Detach() { window = nullptr; }
    } detach{window_};
    return runner.Run(setup);
  }

 private:
  WindowHandle window_ = nullptr;
};

}  // namespace orv
