#include "seasonal/SznWzrdPgForm.h"

#include "seasonal/SznFlow.h"

using namespace orv::seasonal;

namespace {

constexpr const char* kFormTexts[5] = {
    "Single instruments comprise one historic set of data split among different years.",
    "Single Root Futures are the seasonal difference of futures contracts which share a common root symbol and "
    "month code while differing by contract years.\r\n\r\nExample:\r\nQNG20F\r\nQNG19F\r\nQNG18F",
    "Cash spreads split the seasonal difference between two non-futures contracts over different years.",
    "Futures spreads are the seasonal difference between two groups of futures contracts where those contracts are "
    "adjusted for different contract years.\r\n\r\nExample:\r\nQNG20F-QHO19Z\r\nQNG19F-QHO18Z\r\nQNG18F-QHO17Z",
    "Cash Futures spreads are the seasonal difference between a single non-futures contract and a group of futures "
    "contracts where those contracts are adjusted for different contract years.\r\n\r\nExample:\r\nPCACG00-QCL19Z\r\n"
    "PCACG00-QCL18Z\r\nPCACG00-QCL17Z ",
};

}  // namespace

const char* CSznWzrdPgForm::FormText(int formSel) { return formSel >= 0 && formSel < 5 ? kFormTexts[formSel] : ""; }

bool CSznWzrdPgForm::OnInitPage() {
  const int form = State().FormSel;
  for (int i = 0; i < 5; ++i) Ctl().CheckDlgButton(kFormButtons[i], i == form ? orv::kBstChecked : orv::kBstUnchecked);
  if (form >= 0) Ctl().SetDlgItemTextA(IDC_SZN_FORM_HELP, FormText(form));
  return true;
}

void CSznWzrdPgForm::OnCommand(int id, int code) {
  if (code != orv::kBnClicked) return;
  for (int button : kFormButtons) {
    if (id != button) continue;
    State().FormSel = ReadFormGroup();
    Ctl().SetDlgItemTextA(IDC_SZN_FORM_HELP, FormText(State().FormSel));
    return;
  }
}

int CSznWzrdPgForm::ReadFormGroup() {
  for (int i = 0; i < 5; ++i) {
    if (Ctl().IsDlgButtonChecked(kFormButtons[i]) == orv::kBstChecked) return i;
  }
  return -1;
}

int CSznWzrdPgForm::OnWizardNext() {
  State().FormSel = ReadFormGroup();
  return SznFlowNext(kDialogId, State());
}

int CSznWzrdPgForm::OnWizardBack() { return SznFlowBack(kDialogId, State()); }
