#pragma once
// The seasonal wizard's twelve pages on the headless wizard, in the sheet's order, each with the
// controls its template declares (SznTemplates.h is generated from the .rc files at build time).
// The clock stands still and no host service exists, so the current year is the clock's.

#include <array>
#include <memory>
#include <stdexcept>
#include <vector>

#include "SznTemplates.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/MessageBox.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/HeadlessRunner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "seasonal/SznPageTable.h"

namespace szntest {

using orv::FakeControls;
using orv::seasonal::kSznPages;
using orv::seasonal::WizardSeasonState;

// A host without services: no clock correction, no help.
class NoHostServices final : public orv::HostServices {
 public:
  std::unique_ptr<orv::SettingsService> CreateSettingsService() override { return nullptr; }
  std::unique_ptr<orv::HelpService> CreateHelpService() override { return nullptr; }
};

// What a first run starts from once the wizard has read its sources: the season of `year`,
// years from a list, the first form, the default symbols, roots and months.
inline WizardSeasonState FirstRunState(int year = 2000) {
  WizardSeasonState state;
  state.Start = orv::seasonal::MakeSeasonDate(year, 1, 1);
  state.End = orv::seasonal::MakeSeasonDate(year, 12, 31);
  state.YearEnterMode = 0;
  state.YearsBack = 5;
  state.FormSel = 0;
  state.Root1 = "@C";
  state.Root2 = "@S";
  state.Month1 = state.Month2 = 0;
  state.Symbol1 = "MSFT";
  state.Symbol2 = "INDU.X";
  return state;
}

class WizardRun {
 public:
  // The clock reads 15 June of `currentYear`.
  explicit WizardRun(WizardSeasonState state = FirstRunState(), int currentYear = 2026)
      : clock_(orv::DateTime{currentYear, 6, 15, 12, 0, 0}) {
    context_.state = std::move(state);
    context_.clock = &clock_;
    for (std::size_t i = 0; i < kSznPages.size(); ++i) {
      pages_.push_back(orv::seasonal::MakeSznPage(i, context_));
      if (const orv::TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, kSznPages[i].dialogId))
        orv::AddTemplateControls(*dialog, controls_[i]);
      runner_.AddPage(pages_.back()->AsPage(), controls_[i]);
    }
  }

  // Starts the wizard on the page of `dialogId`.
  void Start(int dialogId) { runner_.Start(IndexOf(dialogId)); }

  orv::HeadlessRunner& Wizard() { return runner_; }
  WizardSeasonState& State() { return context_.state; }
  // The controls of the page of `dialogId`.
  FakeControls& Page(int dialogId) { return controls_[IndexOf(dialogId)]; }
  // The controls of the page on top.
  FakeControls& Current() { return controls_[static_cast<std::size_t>(runner_.CurrentPage())]; }
  int CurrentDialog() const { return kSznPages[static_cast<std::size_t>(runner_.CurrentPage())].dialogId; }

  static std::size_t IndexOf(int dialogId) {
    for (std::size_t i = 0; i < kSznPages.size(); ++i) {
      if (kSznPages[i].dialogId == dialogId) return i;
    }
    throw std::logic_error("no wizard page has this dialog id");
  }

 private:
  NoHostServices services_;
  orv::ScopedHostServices scoped_{services_};
  orv::FixedClock clock_;
  orv::seasonal::SznWzrdContext context_;
  std::vector<std::unique_ptr<orv::seasonal::CPgBase>> pages_;
  std::array<FakeControls, kSznPages.size()> controls_;
  orv::HeadlessRunner runner_{orv::HeadlessRunner::Mode::Wizard};
};

}  // namespace szntest
