#include "seasonal/SznWzrdPgSnglInstMid.h"

#include "seasonal/SznFlow.h"
#include "seasonal/SznSymbolField.h"

using namespace orv::seasonal;

bool CSznWzrdPgSnglInstMid::OnInitPage() {
  DDX_Text(IDC_SZN_SNGLINSTMID_SYMBOL, &State().Symbol1, false);
  Ctl().SetDlgItemTextA(IDC_SZN_SNGLINSTMID_HELP, kSingleSymbolHelp);
  return true;
}

int CSznWzrdPgSnglInstMid::OnWizardNext() {
  if (!ReadSingleSymbol(*this, IDC_SZN_SNGLINSTMID_SYMBOL, State())) return orv::kWizardStay;
  return SznFlowNext(kDialogId, State());
}

int CSznWzrdPgSnglInstMid::OnWizardBack() { return SznFlowBack(kDialogId, State()); }
