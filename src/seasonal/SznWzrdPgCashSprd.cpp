#include "seasonal/SznWzrdPgCashSprd.h"

#include "seasonal/SznFlow.h"

namespace {

constexpr const char* kHelpText =
    "Enter two different contract instruments to    create a cash spread.    Orvane will create the difference of "
    "the two contracts and split the    result by the yearly seasons.";

}  // namespace

bool CSznWzrdPgCashSprd::OnInitPage() {
  DDX_Text(IDC_SZN_CASHSPRD_SYMBOL1, &State().Symbol1, false);
  DDX_Text(IDC_SZN_CASHSPRD_SYMBOL2, &State().Symbol2, false);
  Ctl().SetDlgItemTextA(IDC_SZN_CASHSPRD_HELP, kHelpText);
  return true;
}

int CSznWzrdPgCashSprd::OnWizardNext() {
  if (!DDX_Text(IDC_SZN_CASHSPRD_SYMBOL1, &State().Symbol1, true) ||
      !DDX_Text(IDC_SZN_CASHSPRD_SYMBOL2, &State().Symbol2, true)) {
    return orv::kWizardStay;
  }
  if (State().Symbol1.empty() || State().Symbol2.empty()) {
    Ctl().OrvMessageBox("Error Empty Symbol", "", 0);
    return orv::kWizardStay;
  }
  return orv::seasonal::SznFlowNext(kDialogId, State());
}

int CSznWzrdPgCashSprd::OnWizardBack() { return orv::seasonal::SznFlowBack(kDialogId, State()); }
