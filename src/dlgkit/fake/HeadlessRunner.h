#pragma once
// HeadlessRunner: a property sheet or wizard without windows. It drives Page objects with the
// same operations, in the same order, as the platform's PropertySheet does, so a test can visit
// a tab, type, click and press Apply, OK, Cancel, Back, Next or Finish.
//
// The order it keeps (that of the platform's sheet, as measured against it with the same
// pages and the same user steps):
// - A page is created (OnInitDialog) the first time it is shown, never again.
// - Start: the sheet's own init (SheetSetup::onInitialized) comes first, then the start page is
//   created and activated. A page whose OnSetActive refuses is passed over forwards. Then the
//   sheet counts no page as changed: a SheetChanged() made while a page was created at start
//   leaves Apply off.
// - Changing page: OnKillActive on the current page (a refusal keeps it), then create-if-needed
//   and OnSetActive on the new one. A refusing page is passed over in the direction of travel:
//   forwards for a tab click, whichever side the tab is on; past either end the sheet stops at
//   the end page and shows it, though it refused.
// - Apply: OnKillActive on the current page, then OnApply on every created page in sheet order,
//   stopping at the first refusal: ApplyResult::Invalid brings the refusing page to the top
//   without an OnSetActive, InvalidNoChangePage stays, and neither page hears anything more.
//   After a successful Apply the sheet's changed marks are cleared and the current page gets
//   OnSetActive again. The Apply button is only live after a page said SheetChanged(); pressing
//   it otherwise does nothing.
// - OK: Apply as above (no OnSetActive after it), then the run ends. Cancel: OnQueryCancel on
//   the current page (a refusal keeps the sheet open), then OnReset on every created page, and
//   the run ends.
// - Wizard: Next / Back ask the current page (kWizardStay stays, kWizardDefault goes to the
//   neighbour, a dialog id jumps to that page), then change page as above, passing refusing
//   pages over in the direction of travel. Finish asks OnWizardFinish and ends the run. The
//   wizard starts with Back and Next live; a page that sets the buttons sets them for the
//   wizard, until a page sets them again. A button that isn't live does nothing.
// - The result, as PropertySheet's: 1 when OK or Finish closed the sheet, 0 when Cancel did
//   (also after an Apply), -1 when a page threw: the run ends and the exception reaches the test.

#include <functional>
#include <memory>
#include <vector>

#include "dlgkit/Page.h"
#include "dlgkit/fake/ControlsFake.h"

namespace orv {

class WindowOps;

class HeadlessRunner {
 public:
  enum class Mode { Sheet, Wizard };

  explicit HeadlessRunner(Mode mode = Mode::Sheet, WindowOps* windowOps = nullptr);

  // The pages in sheet order; the test owns pages and controls and keeps them alive.
  // `window` is what OnInitDialog receives as the page's window (a fake window tree node, or null).
  void AddPage(Page& page, FakeControls& controls, WindowHandle window = nullptr);
  // Every page's kWmLsPageApply goes to this handler (the sheet).
  void SetPageApplyHandler(std::function<std::intptr_t(int dialogId)> handler);

  void Start(int startPage = 0);

  bool SelectPage(int index);  // a tab click; sheet mode only. True when the page changed.
  bool PressApply();           // true when every page accepted
  bool PressOk();              // true when the sheet closed
  bool PressCancel();          // true when the sheet closed
  bool PressNext();            // true when the page changed
  bool PressBack();
  bool PressFinish();  // true when the wizard closed

  bool IsRunning() const { return running_; }
  int Result() const { return result_; }
  int CurrentPage() const { return current_; }
  bool IsCreated(int index) const;
  bool IsApplyEnabled() const;
  // A wizard's button (kWizBack, kWizNext, kWizFinish) is live. The buttons are the wizard's,
  // not a page's: they stay as the last page to set them left them, and a wizard starts with
  // Back and Next. A sheet has none.
  bool IsWizardButtonEnabled(unsigned button) const;
  int PageCount() const { return static_cast<int>(pages_.size()); }

 private:
  struct Entry {
    Page* page;
    FakeControls* controls;
    WindowHandle window;
    bool created = false;
  };

  template <class F>
  auto Guard(F&& f) -> decltype(f());
  void RequireRunning(const char* action) const;
  void EnsureCreated(int index);
  void Activate(int index, int direction);
  bool ChangePage(int target, int direction);
  bool Apply(bool closing);
  int IndexOfDialogId(int dialogId) const;
  void End(int result);

  Mode mode_;
  WindowOps* windowOps_;
  std::vector<Entry> pages_;
  int current_ = -1;
  bool running_ = false;
  // Shared with the pages' controls, which may outlive this runner.
  std::shared_ptr<unsigned> wizardButtons_ = std::make_shared<unsigned>(kWizBack | kWizNext);
  int result_ = 0;
};

}  // namespace orv
