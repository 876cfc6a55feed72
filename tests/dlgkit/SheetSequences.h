#pragma once
// What the pages of a property sheet hear, and in which order, while a user clicks tabs and
// presses Apply, OK and Cancel. One table of sessions, written once, runs on the headless sheet
// (SheetSequenceTest.cpp, every build) and on the platform's PropertySheet
// (win32/SheetSequenceWin32Test.cpp, under Wine): the platform's sheet is the reference the
// headless one keeps to.
//
// The log holds what the pages hear ("B init", "B set", "B kill", "B apply", "B reset",
// "B querycancel", "B changed": the user typed into it), what the sheet hears ("sheet initialized", "sheet apply B": message 1425),
// and the user's side: before each step, the page on top and the Apply button ("now B, Apply on"),
// then the step ("click C", "type", "press Apply", "press OK", "press Cancel"); last, "result N", the
// sheet's result.

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "SheetSequenceIds.h"
#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"
#include "dlgkit/SheetRunner.h"

namespace orv::seqtest {

using Log = std::vector<std::string>;

// How one page of a session behaves.
struct PageRole {
  bool changesOnInit = false;  // marks the sheet changed (PSM_CHANGED) from its init, not by a user's edit
  int refuseLeave = 0;         // refuses this many kill-actives, then lets the user go
  bool refuseShow = false;     // refuses every activation
  ApplyResult firstApply = ApplyResult::NoError;  // its answer to the first apply; later ones accept
  bool refuseCancel = false;   // refuses the first query cancel
};

inline std::string PageName(int index) { return std::string(1, static_cast<char>('A' + index)); }

// A page that logs every notification it receives and answers as its role says. An accepted
// apply sends the page-apply message to the sheet, as the program's pages do.
class RecordingPage final : public Page {
 public:
  RecordingPage(int index, PageRole role, Log& log)
      : name_(PageName(index)), dialogId_(IDD_SEQ_PAGE_A + index), role_(role), log_(log) {}

  int DialogId() const override { return dialogId_; }
  bool OnInitDialog(Controls& controls, WindowHandle, WindowOps*) override {
    controls_ = &controls;
    Note("init");
    if (role_.changesOnInit) controls.SheetChanged();
    return true;
  }
  bool OnSetActive() override {
    Note("set");
    return !role_.refuseShow;
  }
  bool OnKillActive() override {
    Note("kill");
    if (role_.refuseLeave == 0) return true;
    --role_.refuseLeave;
    return false;
  }
  ApplyResult OnApply() override {
    Note("apply");
    const ApplyResult answer = std::exchange(role_.firstApply, ApplyResult::NoError);
    if (answer == ApplyResult::NoError && controls_) controls_->SendPageApply(dialogId_);
    return answer;
  }
  void OnReset() override { Note("reset"); }
  // The user typed into the page's edit field: the sheet is told, and Apply comes on.
  void OnCommand(int id, int code) override {
    if (id != IDC_SEQ_EDIT || code != kEnChange) return;
    Note("changed");
    controls_->SheetChanged();
  }
  bool OnQueryCancel() override {
    Note("querycancel");
    return !std::exchange(role_.refuseCancel, false);
  }

 private:
  void Note(const char* what) { log_.push_back(name_ + " " + what); }
  std::string name_;
  int dialogId_;
  PageRole role_;
  seqtest::Log& log_;
  Controls* controls_ = nullptr;
};

enum class Action { ClickTab, Edit, Apply, Ok, Cancel };
struct Step {
  Action action;
  int tab = -1;  // for ClickTab
};
inline Step Click(int tab) { return {Action::ClickTab, tab}; }
inline constexpr Step kEdit{Action::Edit};  // types into the page on top
inline constexpr Step kApply{Action::Apply};
inline constexpr Step kOk{Action::Ok};
inline constexpr Step kCancel{Action::Cancel};

struct SequenceCase {
  const char* name;
  std::vector<PageRole> pages;  // A, B, C ... in tab order
  int startPage;
  std::vector<Step> steps;      // the last one closes the sheet
  Log expected;                 // ends with "result N", N being PropertySheet's result
};

// The user's hands on a running sheet.
class SheetDriver {
 public:
  virtual ~SheetDriver() = default;
  virtual int CurrentTab() = 0;
  virtual bool ApplyEnabled() = 0;
  virtual void ClickTab(int index) = 0;
  virtual void TypeIntoCurrentPage() = 0;  // into its edit field
  virtual void PressApply() = 0;  // only a live Apply button can be pressed
  virtual void PressOk() = 0;
  virtual void PressCancel() = 0;
};

inline void PlayStep(const Step& step, SheetDriver& driver, Log& log) {
  log.push_back("now " + PageName(driver.CurrentTab()) + (driver.ApplyEnabled() ? ", Apply on" : ""));
  switch (step.action) {
    case Action::ClickTab:
      log.push_back("click " + PageName(step.tab));
      driver.ClickTab(step.tab);
      break;
    case Action::Edit:
      log.push_back("type");
      driver.TypeIntoCurrentPage();
      break;
    case Action::Apply:
      log.push_back("press Apply");
      driver.PressApply();
      break;
    case Action::Ok:
      log.push_back("press OK");
      driver.PressOk();
      break;
    case Action::Cancel:
      log.push_back("press Cancel");
      driver.PressCancel();
      break;
  }
}

// One session's pages and sheet; the setup's hooks log what the sheet hears.
struct Session {
  explicit Session(const SequenceCase& c) {
    for (std::size_t i = 0; i < c.pages.size(); ++i) {
      pages.push_back(std::make_unique<RecordingPage>(static_cast<int>(i), c.pages[i], log));
      setup.pages.push_back({pages.back().get(), pages.back()->DialogId()});
    }
    setup.title = "Sequence";
    setup.startPage = c.startPage;
    setup.onInitialized = [this](WindowHandle, WindowOps&) { log.push_back("sheet initialized"); };
    setup.onPageApply = [this](int dialogId) {
      log.push_back("sheet apply " + PageName(dialogId - IDD_SEQ_PAGE_A));
      return std::intptr_t{0};
    };
  }
  Log log;
  std::vector<std::unique_ptr<RecordingPage>> pages;
  SheetSetup setup;
};

const std::vector<SequenceCase>& SequenceCases();

inline std::string CaseName(const SequenceCase& c) { return c.name; }

}  // namespace orv::seqtest
