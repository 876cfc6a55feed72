#pragma once
// The seasonal wizard's page bases.
//
// SznWzrdContext is what every page shares: the wizard state (held by the sheet), the clock and
// the current year. Pages hold almost no state of their own; each reads the state at its start
// and writes it at Next, Back or Finish.
//
// CPgBase is the page as the sheet's page table holds it. CWzrdPg<T, id> is the base of every
// page: its dialog id, its position in the wizard (which buttons it shows), the defaults of the
// wizard operations, help, and the theme of the kit (its children are themed after the page's
// own start has run).

#include <cstdint>

#include "dlgkit/Clock.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/SheetRunner.h"
#include "dlgkit/ThemedPage.h"
#include "seasonal/SeasonalRes.h"
#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {

// Which buttons a page shows: 0 Finish only, 1 Next, 2 Back and Next, 3 Back and Finish.
enum WizardPagePosition : int { kPosFinishOnly = 0, kPosFirst = 1, kPosMiddle = 2, kPosLast = 3 };

// The PSWIZB_* flags of a position; 0 for a position outside 0-3 (then nothing is set).
constexpr unsigned WizardButtonsOf(int position) {
  switch (position) {
    case kPosFinishOnly:
      return kWizFinish;
    case kPosFirst:
      return kWizNext;
    case kPosMiddle:
      return kWizBack | kWizNext;
    case kPosLast:
      return kWizBack | kWizFinish;
    default:
      return 0;
  }
}

// The current year as the pages start from it: the clock's local time moved by the host's clock
// correction (its settings service's value "40" of section "Settings", in seconds; 0 without a
// service or a number).
int CurrentSeasonYear(const Clock& clock, HostServices& services);

struct SznWzrdContext {
  WizardSeasonState state;
  const Clock* clock = &SystemClock();
  // CurrentSeasonYear with the current host.
  int CurrentYear() const { return CurrentSeasonYear(*clock, CurrentHostServices()); }
};

class CPgBase {
 public:
  virtual ~CPgBase() = default;
  // The record the sheet takes for this page.
  virtual SheetPage GetPageRecord() = 0;
  virtual Page& AsPage() = 0;
};

template <class T, int Id>
class CWzrdPg : public CPgBase, public ThemedPage<T> {
 public:
  static constexpr int kDialogId = Id;

  CWzrdPg(SznWzrdContext& context, int position) : context_(context), position_(position) {}

  SheetPage GetPageRecord() override { return {this, Id}; }
  Page& AsPage() override { return *this; }
  int DialogId() const override { return Id; }
  int Position() const { return position_; }

  // Shows the buttons of the page's position (posted to the sheet); always lets the page show.
  bool OnSetActive() override {
    if (const unsigned buttons = WizardButtonsOf(position_); buttons != 0) this->Ctl().SetWizardButtons(buttons);
    return true;
  }
  int OnWizardBack() override { return kWizardDefault; }
  int OnWizardNext() override { return kWizardDefault; }
  // Finish goes through when the page may be left.
  bool OnWizardFinish() override { return this->OnKillActive(); }
  bool OnKillActive() override { return true; }

 protected:
  bool InitBeforeTheme() const override { return true; }
  WizardSeasonState& State() { return context_.state; }
  SznWzrdContext& Context() { return context_; }

 private:
  SznWzrdContext& context_;
  int position_;
};

}  // namespace orv::seasonal
