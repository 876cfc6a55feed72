#pragma once
// HeadlessSheetRunner: the kit's sheet without windows, for tests. Run() lays out each page's
// fake controls (as its dialog template would), starts a HeadlessRunner over the pages, calls
// the sheet's hooks as the platform sheet does, then plays the test's script. A sheet the script
// left open is cancelled, as a user closing it would.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "dlgkit/SheetRunner.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/HeadlessRunner.h"

namespace orv {

class HeadlessSheetRunner final : public SheetRunner {
 public:
  using Layout = std::function<void(FakeControls&)>;
  using Script = std::function<void(HeadlessSheetRunner&)>;

  explicit HeadlessSheetRunner(WindowOps* windowOps = nullptr) : windowOps_(windowOps) {}

  // The controls of every page with that dialog id.
  void SetLayout(int dialogId, Layout layout) { layouts_[dialogId] = std::move(layout); }
  void SetScript(Script script) { script_ = std::move(script); }

  std::intptr_t Run(const SheetSetup& setup) override;

  // During the script: the sheet, and each tab's controls.
  HeadlessRunner& Sheet();
  FakeControls& Tab(int index);

  // After a run: what the platform sheet would have shown.
  const std::string& Caption() const { return caption_; }
  const std::vector<int>& TabDialogIds() const { return dialogIds_; }
  bool Initialized() const { return initialized_; }
  int Runs() const { return runs_; }

 private:
  WindowOps* windowOps_;
  std::map<int, Layout> layouts_;
  Script script_;
  std::unique_ptr<HeadlessRunner> sheet_;
  std::vector<std::unique_ptr<FakeControls>> tabs_;
  std::string caption_;
  std::vector<int> dialogIds_;
  bool initialized_ = false;
  int runs_ = 0;
};

}  // namespace orv
