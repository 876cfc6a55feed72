#include "dlgkit/fake/HeadlessRunner.h"

#include <stdexcept>

namespace orv {

HeadlessRunner::HeadlessRunner(Mode mode, WindowOps* windowOps) : mode_(mode), windowOps_(windowOps) {}

void HeadlessRunner::AddPage(Page& page, FakeControls& controls, WindowHandle window) {
  if (running_) throw std::logic_error("HeadlessRunner: pages are added before Start");
  pages_.push_back({&page, &controls, window});
}

void HeadlessRunner::SetPageApplyHandler(std::function<std::intptr_t(int)> handler) {
  for (Entry& entry : pages_) entry.controls->SetPageApplyHandler(handler);
}

// A page that throws ends the run with -1, as the Win32 dialog procedure does; the exception
// then reaches the test.
template <class F>
auto HeadlessRunner::Guard(F&& f) -> decltype(f()) {
  try {
    return f();
  } catch (...) {
    End(-1);
    throw;
  }
}

void HeadlessRunner::RequireRunning(const char* action) const {
  if (!running_) throw std::logic_error(std::string("HeadlessRunner: ") + action + " while the sheet is not running");
}

void HeadlessRunner::Start(int startPage) {
  if (running_) throw std::logic_error("HeadlessRunner: started twice");
  running_ = true;
  result_ = 0;
  current_ = -1;
  *wizardButtons_ = kWizBack | kWizNext;
  for (Entry& entry : pages_) {
    entry.controls->AttachPage(entry.page);
    entry.controls->SetWizardButtonsHandler([buttons = wizardButtons_](unsigned flags) { *buttons = flags; });
  }
  if (pages_.empty()) return;
  if (startPage < 0 || startPage >= PageCount()) startPage = 0;
  Guard([&] {
    Activate(startPage, +1);
    return true;
  });
  // The sheet ends its own start by counting no page as changed: a change a page announced
  // while it was being created doesn't turn Apply on.
  for (Entry& entry : pages_) entry.controls->ClearSheetChanged();
}

bool HeadlessRunner::IsCreated(int index) const {
  return index >= 0 && index < PageCount() && pages_[static_cast<std::size_t>(index)].created;
}

bool HeadlessRunner::IsApplyEnabled() const {
  for (const Entry& entry : pages_) {
    if (entry.created && entry.controls->IsSheetChanged()) return true;
  }
  return false;
}

void HeadlessRunner::EnsureCreated(int index) {
  Entry& entry = pages_[static_cast<std::size_t>(index)];
  if (entry.created) return;
  entry.created = true;
  entry.page->OnInitDialog(*entry.controls, entry.window, windowOps_);
}

void HeadlessRunner::Activate(int index, int direction) {
  for (;;) {
    EnsureCreated(index);
    if (pages_[static_cast<std::size_t>(index)].page->OnSetActive()) break;
    // Refused: the next page in the direction of travel is asked. Past either end the sheet
    // stops at the end page and shows it, though it refused.
    if (index + direction < 0 || index + direction >= PageCount()) break;
    index += direction;
  }
  current_ = index;
}

bool HeadlessRunner::ChangePage(int target, int direction) {
  if (target < 0 || target >= PageCount() || target == current_) return false;
  if (current_ >= 0 && !pages_[static_cast<std::size_t>(current_)].page->OnKillActive()) return false;
  const int left = current_;
  Activate(target, direction);
  return current_ != left;
}

bool HeadlessRunner::SelectPage(int index) {
  RequireRunning("SelectPage");
  if (mode_ == Mode::Wizard) throw std::logic_error("HeadlessRunner: a wizard has no tabs");
  // A tab click passes refusing pages over forwards, whichever side the tab is on.
  return Guard([&] { return ChangePage(index, +1); });
}

bool HeadlessRunner::Apply(bool closing) {
  if (current_ >= 0 && !pages_[static_cast<std::size_t>(current_)].page->OnKillActive()) return false;
  for (int i = 0; i < PageCount(); ++i) {
    Entry& entry = pages_[static_cast<std::size_t>(i)];
    if (!entry.created) continue;
    switch (entry.page->OnApply()) {
      case ApplyResult::NoError:
        continue;
      case ApplyResult::Invalid:
        // The refusing page is brought to the top as it is: it hears no activation, and the
        // page that was on top hears nothing more either.
        current_ = i;
        return false;
      case ApplyResult::InvalidNoChangePage:
        return false;
    }
  }
  for (Entry& entry : pages_) entry.controls->ClearSheetChanged();
  if (!closing && current_ >= 0) pages_[static_cast<std::size_t>(current_)].page->OnSetActive();
  return true;
}

bool HeadlessRunner::PressApply() {
  RequireRunning("Apply");
  if (mode_ == Mode::Wizard) throw std::logic_error("HeadlessRunner: a wizard has no Apply button");
  if (!IsApplyEnabled()) return false;
  return Guard([&] { return Apply(false); });
}

bool HeadlessRunner::PressOk() {
  RequireRunning("OK");
  if (mode_ == Mode::Wizard) throw std::logic_error("HeadlessRunner: a wizard has no OK button");
  return Guard([&] {
    if (!Apply(true)) return false;
    End(1);
    return true;
  });
}

bool HeadlessRunner::PressCancel() {
  RequireRunning("Cancel");
  return Guard([&] {
    if (current_ >= 0 && !pages_[static_cast<std::size_t>(current_)].page->OnQueryCancel()) return false;
    for (Entry& entry : pages_) {
      if (entry.created) entry.page->OnReset();
    }
    // Cancel gives 0 even after an Apply: what that Apply sent stays sent all the same.
    End(0);
    return true;
  });
}

bool HeadlessRunner::IsWizardButtonEnabled(unsigned button) const {
  if (mode_ != Mode::Wizard || current_ < 0) return false;
  return (*wizardButtons_ & button) != 0;
}

int HeadlessRunner::IndexOfDialogId(int dialogId) const {
  for (int i = 0; i < PageCount(); ++i) {
    if (pages_[static_cast<std::size_t>(i)].page->DialogId() == dialogId) return i;
  }
  return -1;
}

bool HeadlessRunner::PressNext() {
  RequireRunning("Next");
  if (mode_ != Mode::Wizard) throw std::logic_error("HeadlessRunner: Next needs a wizard");
  if (!IsWizardButtonEnabled(kWizNext)) return false;
  return Guard([&] {
    const int answer = pages_[static_cast<std::size_t>(current_)].page->OnWizardNext();
    if (answer == kWizardStay) return false;
    const int target = answer == kWizardDefault ? current_ + 1 : IndexOfDialogId(answer);
    return ChangePage(target, +1);
  });
}

bool HeadlessRunner::PressBack() {
  RequireRunning("Back");
  if (mode_ != Mode::Wizard) throw std::logic_error("HeadlessRunner: Back needs a wizard");
  if (!IsWizardButtonEnabled(kWizBack)) return false;
  return Guard([&] {
    const int answer = pages_[static_cast<std::size_t>(current_)].page->OnWizardBack();
    if (answer == kWizardStay) return false;
    const int target = answer == kWizardDefault ? current_ - 1 : IndexOfDialogId(answer);
    return ChangePage(target, -1);
  });
}

bool HeadlessRunner::PressFinish() {
  RequireRunning("Finish");
  if (mode_ != Mode::Wizard) throw std::logic_error("HeadlessRunner: Finish needs a wizard");
  if (!IsWizardButtonEnabled(kWizFinish)) return false;
  return Guard([&] {
    if (!pages_[static_cast<std::size_t>(current_)].page->OnWizardFinish()) return false;
    End(1);
    return true;
  });
}

void HeadlessRunner::End(int result) {
  running_ = false;
  result_ = result;
  for (Entry& entry : pages_) entry.controls->AttachPage(nullptr);
}

}  // namespace orv
