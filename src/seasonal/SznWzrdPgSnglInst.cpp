#include "seasonal/SznWzrdPgSnglInst.h"

#include "seasonal/SznFlow.h"
#include "seasonal/SznSymbolField.h"

using namespace orv::seasonal;

bool CSznWzrdPgSnglInst::OnInitPage() {
  DDX_Text(IDC_SZN_SNGLINST_SYMBOL, &State().Symbol1, false);
  Ctl().SetDlgItemTextA(IDC_SZN_SNGLINST_HELP, kSingleSymbolHelp);
  return true;
}

int CSznWzrdPgSnglInst::OnWizardBack() { return SznFlowBack(kDialogId, State()); }

bool CSznWzrdPgSnglInst::OnWizardFinish() {
  if (!ReadSingleSymbol(*this, IDC_SZN_SNGLINST_SYMBOL, State())) return false;
  BuildContractLabels(State());
  return true;
}
