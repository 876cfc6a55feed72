#pragma once
// The base of every dialog and page of the component: a Page whose window is themed by
// COrvDialog and whose values travel by CWinDataExchangeZel. It does, once for all pages, what
// each would otherwise repeat: attach the window, scan the children, load the theme, answer the
// theme's paint messages, reflect notifications to owner-drawn controls, and answer help with
// the book "CHARTX" and the page's dialog id. A page overrides OnInitPage for its own start.

#include <cstdint>

#include "dlgkit/Controls.h"
#include "dlgkit/DataExchange.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/OrvDialog.h"
#include "dlgkit/Page.h"
#include "dlgkit/WindowOps.h"

namespace orv {

inline constexpr const char* kHelpBook = "CHARTX";

template <class T>
class ThemedPage : public Page, public COrvDialog<T>, public CWinDataExchangeZel<T> {
 public:
  ThemedPage() = default;
  explicit ThemedPage(WindowOps& ops) : COrvDialog<T>(ops) {}

  // The page's controls; valid from init until its window is destroyed.
  Controls& Ctl() { return *controls_; }
  WindowHandle Window() const { return window_; }
  // Points Ctl() and Window() at another window made from the page's template, already
  // initialised: a page object that stands in two tabs answers the one whose message it handles.
  void RebindWindow(Controls& controls, WindowHandle window) {
    controls_ = &controls;
    window_ = window;
  }

  bool OnInitDialog(Controls& controls, WindowHandle window, WindowOps* windowOps) final {
    controls_ = &controls;
    window_ = window;
    this->AttachWindow(windowOps ? *windowOps : DefaultWindowOps(), window);
    if (InitBeforeTheme()) {
      const bool result = OnInitPage();
      this->SubclassControls();
      this->LoadTheme();
      return OnThemed(result);
    }
    this->SubclassControls();
    this->LoadTheme();
    return OnInitPage();
  }

  bool OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override {
    return window_ && this->ProcessThemeMessage(window_, message, wParam, lParam, result);
  }

  bool OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                          std::intptr_t& result) override {
    return window_ && this->ReflectNotifications(window_, message, wParam, lParam, result);
  }

  bool OnHelp() override {
    Ctl().ShowHelp(kHelpBook, DialogId());
    return true;
  }

 protected:
  // The page fills its controls here; true lets the platform place the focus.
  virtual bool OnInitPage() { return true; }
  // True for pages whose own start runs before their children are themed (the wizard's pages);
  // by default the children are themed first.
  virtual bool InitBeforeTheme() const { return false; }
  // With InitBeforeTheme: the rest of the page's start, once its children are themed; given and
  // answering what OnInitDialog returns.
  virtual bool OnThemed(bool initResult) { return initResult; }

 private:
  Controls* controls_ = nullptr;
  WindowHandle window_ = nullptr;
};

}  // namespace orv
