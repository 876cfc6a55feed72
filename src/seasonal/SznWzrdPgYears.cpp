#include "seasonal/SznWzrdPgYears.h"

#include <vector>

#include "dlgkit/MessageBox.h"
#include "seasonal/SznFlow.h"
#include "xml/StrFormat.h"

using namespace orv::seasonal;

namespace {

constexpr char kHelp[] =
    "Select the years to chart.\r\n\r\n   Orvane will create one chart per selected year.\r\n\r\n   When a season "
    "spans two calendar years (includes midnight of new-years day),    Orvane begins the season on the starting "
    "month year.";

}  // namespace

bool CSznWzrdPgYears::OnInitPage() {
  orv::Controls& ctl = Ctl();
  ctl.SetDlgItemTextA(IDC_SZN_YEARS_HELP, kHelp);
  const int year = Context().CurrentYear();
  ctl.ListResetContent(IDC_SZN_YEARS_LIST);
  for (int i = 0; i < kRows; ++i) ctl.ListAddString(IDC_SZN_YEARS_LIST, orv::StrFormat("%d", year - i), year - i);
  const std::vector<int> picks = State().SelYearIndexes.empty() ? std::vector<int>{0, 1, 2} : State().SelYearIndexes;
  // An index that is no row selects nothing (-1 would select them all).
  for (int index : picks) {
    if (index >= 0) ctl.ListSetSel(IDC_SZN_YEARS_LIST, index, true);
  }
  ShowCount();
  return true;
}

void CSznWzrdPgYears::OnCommand(int id, int code) {
  if (id == IDC_SZN_YEARS_LIST && code == orv::kLbnSelChange) ShowCount();
}

void CSznWzrdPgYears::ShowCount() {
  const auto rows = Ctl().ListGetSelItems(IDC_SZN_YEARS_LIST);
  Ctl().SetDlgItemTextA(IDC_SZN_YEARS_COUNT, orv::StrFormat("Total: %d", static_cast<int>(rows.size())));
}

int CSznWzrdPgYears::OnWizardNext() {
  WizardSeasonState& state = State();
  state.SelYears.clear();
  state.SelYearIndexes.clear();
  const std::vector<int> rows = Ctl().ListGetSelItems(IDC_SZN_YEARS_LIST);
  if (rows.empty()) {
    Ctl().OrvMessageBox("Must select at least one year", "", orv::kMbOk);
    return orv::kWizardStay;
  }
  for (int row : rows) {
    state.SelYearIndexes.push_back(row);
    state.SelYears.push_back(static_cast<int>(Ctl().ListGetItemData(IDC_SZN_YEARS_LIST, row)));
  }
  return SznFlowNext(kDialogId, state);
}

int CSznWzrdPgYears::OnWizardBack() { return SznFlowBack(kDialogId, State()); }
