#pragma once
// CSznFuturesPage<T, id>: the design of the wizard's futures pages (First Futures, Second Futures,
// Single Root Futures): a root symbol, a month code and a set of contract years. A page is
// T::kFutures: its controls, help text, the state fields it works on and its variant.
//
// At start the page shows the root and the help, lists 50 years from ten years after the
// current year downward (contracts run past the present), selects the years of the state, fills
// the month box and shows the count of selected rows. The checks store the root and month in
// the state before they look at anything, and empty the page's year list in the state before
// the year checks: a refusal leaves both so. There must be as many contract years as chart
// years; the i-th contract year goes with the i-th chart year.
//
// The first and second sets run the checks at Next, where a root that can't be read lets the
// user go on unchecked. The single root variant runs them at Finish, where such a root refuses
// without a message, selects at start only the rows of its own years, and builds the labels when
// the checks pass.

#include <string>
#include <vector>

#include "dlgkit/Controls.h"
#include "seasonal/SznFlow.h"
#include "seasonal/SznTables.h"
#include "seasonal/SznWzrdPg.h"
#include "xml/StrFormat.h"

namespace orv::seasonal {

struct SznFuturesTraits {
  int help, root, month, years, count;  // control ids
  const char* helpText;
  std::string WizardSeasonState::*rootField;
  int WizardSeasonState::*monthField;
  std::vector<int> WizardSeasonState::*yearsField;
  bool singleRoot;  // checks at Finish; start selection from the page's own years only
};

// Rows of the contract year lists: the current year plus this many, then downward.
inline constexpr int kFuturesYearsAhead = 10;
inline constexpr int kYearListRows = 50;

template <class T, int Id>
class CSznFuturesPage : public CWzrdPg<T, Id> {
 public:
  using CWzrdPg<T, Id>::CWzrdPg;

  void OnCommand(int id, int code) override {
    if (id == Traits().years && code == kLbnSelChange) ShowCount();
  }

  int OnWizardNext() override {
    if (Traits().singleRoot) return CWzrdPg<T, Id>::OnWizardNext();
    if (ReadAndCheck() == Checked::Refused) return kWizardStay;
    return SznFlowNext(Id, this->State());
  }

  int OnWizardBack() override { return SznFlowBack(Id, this->State()); }

  bool OnWizardFinish() override {
    if (!Traits().singleRoot) return CWzrdPg<T, Id>::OnWizardFinish();
    if (ReadAndCheck() != Checked::Passed) return false;
    BuildContractLabels(this->State());
    return true;
  }

 protected:
  bool OnInitPage() override {
    const SznFuturesTraits& t = Traits();
    WizardSeasonState& state = this->State();
    Controls& ctl = this->Ctl();
    this->DDX_Text(t.root, &(state.*t.rootField), false);
    ctl.SetDlgItemTextA(t.help, t.helpText);

    ctl.ListResetContent(t.years);
    const int first = this->Context().CurrentYear() + kFuturesYearsAhead;
    for (int row = 0; row < kYearListRows; ++row) ctl.ListAddString(t.years, StrFormat("%d", first - row), first - row);
    SelectYears();

    ctl.ComboResetContent(t.month);
    for (int month = 0; month < 12; ++month) ctl.ComboAddString(t.month, kMonthNames[month], month);
    this->DDX_ComboData(t.month, &(state.*t.monthField), false);  // a month outside 0-11 shows row 0

    ShowCount();
    return true;
  }

 private:
  enum class Checked { Passed, Refused, RootUnread };

  static const SznFuturesTraits& Traits() { return T::kFutures; }

  void SelectYears() {
    const SznFuturesTraits& t = Traits();
    const WizardSeasonState& state = this->State();
    Controls& ctl = this->Ctl();
    const std::vector<int>& years = state.*t.yearsField;
    if (t.singleRoot) {
      for (int row = 0; row < kYearListRows; ++row) {
        const int year = static_cast<int>(ctl.ListGetItemData(t.years, row));
        for (int wanted : years) {
          if (wanted == year) ctl.ListSetSel(t.years, row, true);
        }
      }
      return;
    }
    if (years.empty() || years.size() != state.SelYearIndexes.size()) {
      // The chart years of the Years page, by their distance from the current year. A kept
      // index that is no row of this list selects nothing.
      const int rows = ctl.ListGetCount(t.years);
      for (int index : state.SelYearIndexes) {
        const int row = index + kFuturesYearsAhead;
        if (row >= 0 && row < rows) ctl.ListSetSel(t.years, row, true);
      }
      return;
    }
    for (int year : years) {
      const std::string text = StrFormat("%d", year);
      for (int row = 0; row < ctl.ListGetCount(t.years); ++row) {
        if (ctl.ListGetText(t.years, row) == text) ctl.ListSetSel(t.years, row, true);
      }
    }
  }

  void ShowCount() {
    const SznFuturesTraits& t = Traits();
    this->Ctl().SetDlgItemTextA(t.count,
                                StrFormat("Total: %d", static_cast<int>(this->Ctl().ListGetSelItems(t.years).size())));
  }

  void Refuse(const std::string& text) { this->Ctl().OrvMessageBox(text, "", 0); }

  Checked ReadAndCheck() {
    const SznFuturesTraits& t = Traits();
    WizardSeasonState& state = this->State();
    Controls& ctl = this->Ctl();
    if (!this->DDX_Text(t.root, &(state.*t.rootField), true)) return Checked::RootUnread;
    this->DDX_ComboData(t.month, &(state.*t.monthField), true);
    if ((state.*t.rootField).empty()) {
      Refuse("Error Empty Root Symbol");
      return Checked::Refused;
    }
    std::vector<int>& years = state.*t.yearsField;
    years.clear();
    const std::vector<int> rows = ctl.ListGetSelItems(t.years);
    if (rows.empty()) {
      Refuse("Must select at least one year");
      return Checked::Refused;
    }
    if (rows.size() != state.SelYears.size()) {
      Refuse(StrFormat("Error must select %d contract years", static_cast<int>(state.SelYears.size())));
      return Checked::Refused;
    }
    for (int row : rows) years.push_back(static_cast<int>(ctl.ListGetItemData(t.years, row)));
    return Checked::Passed;
  }
};

}  // namespace orv::seasonal
