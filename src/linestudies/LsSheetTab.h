#pragma once
// LsSheetTab: one tab of the line study sheet, standing between the sheet runner and the page
// object it shows. A name that comes twice in the page list puts the same page object in two
// tabs, and each tab gets a window (and controls) of its own; the object holds one set of values.
//
// So that the object never reads one window while the user works in the other, every call a
// tab passes on first points the object at that tab's window and controls. The values live in
// the object, and the windows are views of them: the first window is filled at its init as any
// page's is; a further window is themed here and filled from the object at its own init; and a
// window shown again after the user worked in the other one is reloaded from the object. The
// user can only change the window that is shown, and leaving it saves it into the object, so
// what one tab shows never overwrites what was entered in the other.

#include <cstdint>

#include "dlgkit/OrvDialog.h"
#include "dlgkit/Page.h"
#include "linestudies/LineStudyPage.h"

class LsSheetTab final : public orv::Page, public COrvDialog<LsSheetTab> {
 public:
  // What the tabs of one page object share.
  struct Views {
    LsSheetTab* bound = nullptr;  // the tab whose window the object is pointed at
    LsSheetTab* shown = nullptr;  // the tab whose window holds what the object holds
    bool created = false;         // the object's first window exists
    int depth = 0;                // calls of its tabs under way
  };

  LsSheetTab(orv::LineStudyPage& page, Views& views) : page_(page), views_(views) {}

  int DialogId() const override { return page_.AsPage().DialogId(); }

  bool OnInitDialog(orv::Controls& controls, orv::WindowHandle window, orv::WindowOps* windowOps) override {
    controls_ = &controls;
    window_ = window;
    if (!views_.created) {
      views_.created = true;
      views_.bound = views_.shown = this;
      return page_.AsPage().OnInitDialog(controls, window, windowOps);
    }
    // The object's own theming went to its first window; this one gets the same here.
    AttachWindow(windowOps ? *windowOps : orv::DefaultWindowOps(), window);
    SubclassControls();
    LoadTheme();
    return Drive(true, [&] {
      views_.shown = this;
      return page_.InitFurtherWindow();
    });
  }

  bool OnSetActive() override {
    return Drive(true, [&] {
      if (views_.shown != this) {
        views_.shown = this;
        page_.ReloadWindow();
      }
      return Target().OnSetActive();
    });
  }

  bool OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override {
    return Drive(false, [&] { return Target().OnAnyMessage(message, wParam, lParam, result); });
  }
  bool OnKillActive() override {
    return Drive(true, [&] { return Target().OnKillActive(); });
  }
  orv::ApplyResult OnApply() override {
    return Drive(orv::ApplyResult::NoError, [&] { return Target().OnApply(); });
  }
  void OnReset() override {
    Drive(true, [&] {
      Target().OnReset();
      return true;
    });
  }
  bool OnQueryCancel() override {
    return Drive(true, [&] { return Target().OnQueryCancel(); });
  }
  void OnCommand(int id, int code) override {
    Drive(true, [&] {
      Target().OnCommand(id, code);
      return true;
    });
  }
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override {
    return Drive(false, [&] { return Target().OnNotify(id, code, payload, result); });
  }
  bool OnHelp() override {
    return Drive(false, [&] { return Target().OnHelp(); });
  }
  bool OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                          std::intptr_t& result) override {
    return Drive(false, [&] { return Target().OnUnhandledMessage(message, wParam, lParam, result); });
  }

 private:
  orv::Page& Target() { return page_.AsPage(); }

  void Bind(LsSheetTab* tab) {
    if (views_.bound == tab) return;
    page_.BindWindow(*tab->controls_, tab->window_);
    views_.bound = tab;
  }

  // Runs `call` with the object pointed at this tab's window. A call for the other window that
  // comes while one is being handled (a message sent from inside a handler) points the object
  // back when it is done, so the outer handler goes on with its own window. Before this tab's
  // window exists there is nothing to drive, and the answer is `none`.
  template <class R, class F>
  R Drive(R none, F call) {
    if (!controls_) return none;
    struct Scope {
      LsSheetTab& tab;
      LsSheetTab* outer;  // the tab whose call this one is inside, if any
      ~Scope() {
        --tab.views_.depth;
        if (outer && outer != &tab) tab.Bind(outer);
      }
    } scope{*this, views_.depth > 0 ? views_.bound : nullptr};
    ++views_.depth;
    Bind(this);
    return call();
  }

  orv::LineStudyPage& page_;
  Views& views_;
  orv::Controls* controls_ = nullptr;
  orv::WindowHandle window_ = nullptr;
};
