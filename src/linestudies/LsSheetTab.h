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
    Bind();
    views_.shown = this;
    return page_.InitFurtherWindow();
  }

  bool OnSetActive() override {
    Bind();
    if (views_.shown != this) {
      views_.shown = this;
      page_.ReloadWindow();
    }
    return Target().OnSetActive();
  }

  bool OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override {
    return Bind() && Target().OnAnyMessage(message, wParam, lParam, result);
  }
  bool OnKillActive() override { return Bind() && Target().OnKillActive(); }
  orv::ApplyResult OnApply() override {
    return Bind() ? Target().OnApply() : orv::ApplyResult::NoError;
  }
  void OnReset() override {
    if (Bind()) Target().OnReset();
  }
  bool OnQueryCancel() override { return !Bind() || Target().OnQueryCancel(); }
  void OnCommand(int id, int code) override {
    if (Bind()) Target().OnCommand(id, code);
  }
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override {
    return Bind() && Target().OnNotify(id, code, payload, result);
  }
  bool OnHelp() override { return Bind() && Target().OnHelp(); }
  bool OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                          std::intptr_t& result) override {
    return Bind() && Target().OnUnhandledMessage(message, wParam, lParam, result);
  }

 private:
  orv::Page& Target() { return page_.AsPage(); }

  // Points the object at this tab's window; false before the window exists (nothing to drive).
  bool Bind() {
    if (!controls_) return false;
    if (views_.bound != this) {
      page_.BindWindow(*controls_, window_);
      views_.bound = this;
    }
    return true;
  }

  orv::LineStudyPage& page_;
  Views& views_;
  orv::Controls* controls_ = nullptr;
  orv::WindowHandle window_ = nullptr;
};
