#pragma once
// The seasonal wizard's twelve pages on the headless wizard (SznPageDriver.h), started from the
// state of a first run.

#include <array>
#include <memory>
#include <stdexcept>
#include <vector>

#include "SznPageDriver.h"
#include "dlgkit/MessageBox.h"

namespace szntest {

using orv::FakeControls;
using orv::seasonal::kSznPages;
using orv::seasonal::WizardSeasonState;

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

// The pages driver in the words of the page tests: the state set before the start, the controls
// of a page by its dialog id.
class WizardRun {
 public:
  // The clock reads 15 June of `currentYear`.
  explicit WizardRun(WizardSeasonState state = FirstRunState(), int currentYear = 2026) : pages_(currentYear) {
    pages_.State() = std::move(state);
  }

  // Starts the wizard on the page of `dialogId`.
  void Start(int dialogId) { pages_.Start(dialogId); }

  orv::HeadlessRunner& Wizard() { return pages_.Wizard(); }
  WizardSeasonState& State() { return pages_.State(); }
  // The controls of the page of `dialogId`.
  FakeControls& Page(int dialogId) { return pages_.Controls(dialogId); }
  // The controls of the page on top.
  FakeControls& Current() { return pages_.Controls(pages_.Current()); }
  int CurrentDialog() const { return pages_.Current(); }

 private:
  SznPages pages_;
};

}  // namespace szntest
