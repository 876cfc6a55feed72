#include "dlgkit/fake/HeadlessSheetRunner.h"

#include <stdexcept>

#include "dlgkit/WindowOps.h"

namespace orv {

HeadlessRunner& HeadlessSheetRunner::Sheet() {
  if (!sheet_) throw std::logic_error("HeadlessSheetRunner: no sheet is running");
  return *sheet_;
}

FakeControls& HeadlessSheetRunner::Tab(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= tabs_.size())
    throw std::logic_error("HeadlessSheetRunner: no tab " + std::to_string(index));
  return *tabs_[static_cast<std::size_t>(index)];
}

std::intptr_t HeadlessSheetRunner::Run(const SheetSetup& setup) {
  ++runs_;
  caption_.clear();
  dialogIds_.clear();
  initialized_ = false;
  tabs_.clear();
  sheet_ = std::make_unique<HeadlessRunner>(setup.wizard ? HeadlessRunner::Mode::Wizard : HeadlessRunner::Mode::Sheet,
                                            windowOps_);
  for (const SheetPage& entry : setup.pages) {
    auto controls = std::make_unique<FakeControls>();
    if (auto layout = layouts_.find(entry.dialogId); layout != layouts_.end()) layout->second(*controls);
    sheet_->AddPage(*entry.page, *controls);
    tabs_.push_back(std::move(controls));
    dialogIds_.push_back(entry.dialogId);
  }
  if (setup.onPageApply) sheet_->SetPageApplyHandler(setup.onPageApply);

  // As PSCB_INITIALIZED: the pages are in, the caption is set, the sheet themes itself; then the
  // start page is created and shown.
  caption_ = setup.title;
  initialized_ = true;
  if (setup.onInitialized) setup.onInitialized(nullptr, windowOps_ ? *windowOps_ : DefaultWindowOps());
  sheet_->Start(setup.startPage);
  if (script_) script_(*this);
  if (sheet_->IsRunning()) sheet_->PressCancel();
  return sheet_->Result();
}

}  // namespace orv
