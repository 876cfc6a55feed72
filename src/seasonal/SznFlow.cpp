#include "seasonal/SznFlow.h"

#include "dlgkit/Page.h"
#include "seasonal/SeasonalRes.h"

namespace orv::seasonal {

int SznFlowNext(int dialogId, const WizardSeasonState& state) {
  switch (dialogId) {
    case IDD_SZN_SEASON:
      return state.YearEnterMode > 0 ? IDD_SZN_YRCOUNT : IDD_SZN_YEARS;
    case IDD_SZN_YEARS:
      return IDD_SZN_FORM;
    case IDD_SZN_YRCOUNT:
      return IDD_SZN_SNGLINST;
    case IDD_SZN_FORM:
      switch (state.FormSel) {
        case kFormSingleInstrument:
          return IDD_SZN_SNGLINST;
        case kFormSingleRootFutures:
          return IDD_SZN_SNGLROOTFUT;
        case kFormCashSpread:
          return IDD_SZN_CASHSPRD;
        case kFormFuturesSpread:
          return IDD_SZN_FUT1;
        case kFormCashFuturesSpread:
          return IDD_SZN_SNGLINSTMID;
        default:
          // Above 4 lands on the Under Construction page. A form below 0 (no radio checked) is
          // not in the table either; it is taken the same way.
          return IDD_SZN_CONSTR;
      }
    case IDD_SZN_FUT1:
      return IDD_SZN_FUT2;
    case IDD_SZN_FUT2:
      return IDD_SZN_MULT;
    case IDD_SZN_CASHSPRD:
      return IDD_SZN_MULT;
    case IDD_SZN_SNGLINSTMID:
      return IDD_SZN_FUT2;
    default:
      return kWizardDefault;  // the last pages finish; Under Construction keeps the default
  }
}

int SznFlowBack(int dialogId, const WizardSeasonState& state, bool readOk) {
  switch (dialogId) {
    case IDD_SZN_YEARS:
    case IDD_SZN_YRCOUNT:
      return IDD_SZN_SEASON;
    case IDD_SZN_FORM:
      return IDD_SZN_YEARS;
    case IDD_SZN_FUT1:
      return IDD_SZN_FORM;
    case IDD_SZN_FUT2:
      return state.FormSel == kFormCashFuturesSpread ? IDD_SZN_SNGLINSTMID : IDD_SZN_FUT1;
    case IDD_SZN_CASHSPRD:
    case IDD_SZN_SNGLINSTMID:
    case IDD_SZN_SNGLROOTFUT:
      return IDD_SZN_FORM;
    case IDD_SZN_SNGLINST:
      return state.YearEnterMode > 0 ? IDD_SZN_YRCOUNT : IDD_SZN_FORM;
    case IDD_SZN_MULT:
      // Kept as it is: a futures spread goes back past Second Futures to First Futures, and a
      // cash futures spread lands on the Under Construction page.
      if (!readOk) return IDD_SZN_CONSTR;
      if (state.FormSel == kFormCashSpread) return IDD_SZN_CASHSPRD;
      if (state.FormSel == kFormFuturesSpread) return IDD_SZN_FUT1;
      return IDD_SZN_CONSTR;
    default:
      return kWizardDefault;  // Season and Under Construction
  }
}

}  // namespace orv::seasonal
