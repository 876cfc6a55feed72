#pragma once
// What the pages of a property sheet or wizard hear, and in which order, while a user clicks
// tabs, types and presses the buttons. One table of sessions, written once, runs on the headless
// sheet (SheetSequenceTest.cpp, every build) and on the platform's PropertySheet
// (win32/SheetSequenceWin32Test.cpp, under Wine): the platform's sheet is the reference the
// headless one keeps to.
//
// The log holds what the pages hear ("B init", "B set", "B kill", "B apply", "B reset",
// "B querycancel", "B back", "B next", "B finish", "B help", "B notify <code>", and "B changed"
// when the user typed into it), what the sheet hears ("sheet initialized", "sheet apply B":
// message 1425), and the user's side: before each step, the page on top and the live buttons
// among Apply, Back, Next and Finish ("now B, Apply on"), then the step ("click C", "type",
// "press Apply", "press OK", "press Cancel", "press Next" ...); last, "result N", the sheet's
// result.

#include <cstdint>
#include <memory>
#include <ostream>
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
  bool refuseCancel = false;                      // refuses the first query cancel
  unsigned wizardButtons = 0;  // a wizard page: the buttons it offers when activated (0: leaves them)
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
    if (role_.wizardButtons) controls_->SetWizardButtons(role_.wizardButtons);
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
  int OnWizardBack() override {
    Note("back");
    return kWizardDefault;
  }
  int OnWizardNext() override {
    Note("next");
    return kWizardDefault;
  }
  bool OnWizardFinish() override {
    Note("finish");
    return true;
  }
  bool OnHelp() override {
    Note("help");
    return false;
  }
  bool OnNotify(int, int code, const void*, std::intptr_t&) override {
    log_.push_back(name_ + " notify " + std::to_string(code));
    return false;
  }

 private:
  void Note(const char* what) { log_.push_back(name_ + " " + what); }
  std::string name_;
  int dialogId_;
  PageRole role_;
  seqtest::Log& log_;
  Controls* controls_ = nullptr;
};

enum class Action { ClickTab, Edit, Apply, Ok, Cancel, Back, Next, Finish };
struct Step {
  Action action;
  int tab = -1;  // for ClickTab
};
inline Step Click(int tab) { return {Action::ClickTab, tab}; }
inline constexpr Step kEdit{Action::Edit};  // types into the page on top
inline constexpr Step kApply{Action::Apply};
inline constexpr Step kOk{Action::Ok};
inline constexpr Step kCancel{Action::Cancel};
inline constexpr Step kBack{Action::Back};  // a wizard's buttons
inline constexpr Step kNext{Action::Next};
inline constexpr Step kFinish{Action::Finish};

struct SequenceCase {
  const char* name;
  std::vector<PageRole> pages;  // A, B, C ... in tab order
  int startPage;
  bool wizard;              // Back / Next / Finish instead of tabs, OK and Apply
  std::vector<Step> steps;  // the last one closes the sheet
  Log expected;             // ends with "result N", N being PropertySheet's result
};

// The user's hands on a running sheet.
class SheetDriver {
 public:
  virtual ~SheetDriver() = default;
  virtual int CurrentTab() = 0;
  virtual bool ApplyEnabled() = 0;
  virtual bool WizardButtonEnabled(unsigned button) = 0;  // kWizBack, kWizNext, kWizFinish
  virtual void ClickTab(int index) = 0;
  virtual void TypeIntoCurrentPage() = 0;  // into its edit field
  virtual void PressApply() = 0;           // only a live Apply button can be pressed
  virtual void PressOk() = 0;
  virtual void PressCancel() = 0;
  // A wizard's buttons; only a live button can be pressed.
  virtual void PressBack() = 0;
  virtual void PressNext() = 0;
  virtual void PressFinish() = 0;
};

inline void PlayStep(const Step& step, SheetDriver& driver, Log& log) {
  std::string now = "now " + PageName(driver.CurrentTab());
  if (driver.ApplyEnabled()) now += ", Apply on";
  if (driver.WizardButtonEnabled(kWizBack)) now += ", Back";
  if (driver.WizardButtonEnabled(kWizNext)) now += ", Next";
  if (driver.WizardButtonEnabled(kWizFinish)) now += ", Finish";
  log.push_back(now);
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
    case Action::Back:
      log.push_back("press Back");
      driver.PressBack();
      break;
    case Action::Next:
      log.push_back("press Next");
      driver.PressNext();
      break;
    case Action::Finish:
      log.push_back("press Finish");
      driver.PressFinish();
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
    setup.wizard = c.wizard;
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
// A failing case names itself rather than printing its bytes.
inline void PrintTo(const SequenceCase& c, std::ostream* os) { *os << c.name; }

}  // namespace orv::seqtest
