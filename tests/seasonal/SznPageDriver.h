#pragma once
// The seasonal wizard's pages on the headless wizard, without the sheet: all twelve page objects
// in the order of the page table, each laid out from its dialog template (SznTemplates.h), over
// one wizard state that a test sets up before the start (as reset, or a first run's). The current
// year comes from a fixed clock, and no host is there (no theme, no clock correction).

#include <memory>
#include <span>
#include <vector>

#include "SznTemplates.h"
#include "dlgkit/Clock.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/MessageBox.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/HeadlessRunner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "seasonal/SznPageTable.h"

namespace szntest {

// A host without services.
class NoHost final : public orv::HostServices {
 public:
  std::unique_ptr<orv::SettingsService> CreateSettingsService() override { return nullptr; }
  std::unique_ptr<orv::HelpService> CreateHelpService() override { return nullptr; }
};

// Lays out `dialogId` as its template does, leaving out the control `withoutId` (0: none).
inline void LayOut(int dialogId, orv::FakeControls& controls, int withoutId = 0) {
  const orv::TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, dialogId);
  if (dialog == nullptr) return;
  std::vector<orv::TemplateControl> kept;
  for (const orv::TemplateControl& c : dialog->controls) {
    if (c.id != withoutId) kept.push_back(c);
  }
  orv::TemplateDialog copy = *dialog;
  copy.controls = std::span<const orv::TemplateControl>(kept);
  orv::AddTemplateControls(copy, controls);
}

// What a first run starts from once the wizard has read its sources: the season of `year`,
// years from a list, the first form, the default symbols, roots and months.
inline orv::seasonal::WizardSeasonState FirstRunState(int year = 2000) {
  orv::seasonal::WizardSeasonState state;
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

class SznPages {
 public:
  // The clock's year (15 June) is the current year of the pages; the state is as reset.
  explicit SznPages(int year = 2026) : clock_(orv::DateTime{year, 6, 15, 12, 0, 0}) {
    context_.clock = &clock_;
    context_.state.Reset();
    for (std::size_t i = 0; i < orv::seasonal::kSznPages.size(); ++i) {
      pages_.push_back(orv::seasonal::MakeSznPage(i, context_));
      controls_.push_back(std::make_unique<orv::FakeControls>());
    }
  }
  // The pages over `state`.
  explicit SznPages(orv::seasonal::WizardSeasonState state, int year = 2026) : SznPages(year) {
    context_.state = std::move(state);
  }

  orv::seasonal::WizardSeasonState& State() { return context_.state; }

  // Leaves control `id` out of the page of `dialogId` (call before Start).
  void WithoutControl(int dialogId, int id) { missing_.push_back({dialogId, id}); }

  // Lays the pages out and starts the wizard on the page of `dialogId`.
  void Start(int dialogId) {
    for (std::size_t i = 0; i < pages_.size(); ++i) {
      const int id = orv::seasonal::kSznPages[i].dialogId;
      int without = 0;
      for (const auto& [page, control] : missing_) {
        if (page == id) without = control;
      }
      LayOut(id, *controls_[i], without);
      runner_.AddPage(pages_[i]->AsPage(), *controls_[i]);
    }
    runner_.Start(IndexOf(dialogId));
  }

  orv::HeadlessRunner& Wizard() { return runner_; }
  // The dialog id of the page the wizard shows, and its controls.
  int CurrentDialog() const {
    return orv::seasonal::kSznPages[static_cast<std::size_t>(runner_.CurrentPage())].dialogId;
  }
  orv::FakeControls& Current() { return Controls(CurrentDialog()); }
  orv::FakeControls& Controls(int dialogId) { return *controls_[static_cast<std::size_t>(IndexOf(dialogId))]; }
  orv::Page& PageOf(int dialogId) { return pages_[static_cast<std::size_t>(IndexOf(dialogId))]->AsPage(); }

  static int IndexOf(int dialogId) {
    for (std::size_t i = 0; i < orv::seasonal::kSznPages.size(); ++i) {
      if (orv::seasonal::kSznPages[i].dialogId == dialogId) return static_cast<int>(i);
    }
    return -1;
  }

 private:
  NoHost host_;
  orv::ScopedHostServices scoped_{host_};
  orv::FixedClock clock_;
  orv::seasonal::SznWzrdContext context_;
  std::vector<std::unique_ptr<orv::seasonal::CPgBase>> pages_;
  std::vector<std::unique_ptr<orv::FakeControls>> controls_;
  std::vector<std::pair<int, int>> missing_;
  orv::HeadlessRunner runner_{orv::HeadlessRunner::Mode::Wizard};
};

// The texts of the selected rows of a list box, in list order.
inline std::vector<std::string> SelectedTexts(orv::FakeControls& c, int listId) {
  std::vector<std::string> texts;
  for (int row : c.ListGetSelItems(listId)) texts.push_back(c.ListGetText(listId, row));
  return texts;
}

}  // namespace szntest
