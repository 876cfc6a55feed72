#include "seasonal/SznWzrdPgYrCount.h"

#include "seasonal/SznFlow.h"

using namespace orv::seasonal;

namespace {

constexpr char kHelp[] =
    "Specify the number of years of history to chart.\r\n\r\n   Orvane will create one chart for every year "
    "beginning always with the most recent year.\r\n\r\n   When a season spans two calendar years (includes "
    "midnight of new-years day),    Orvane begins the season on the starting month year.";

}  // namespace

bool CSznWzrdPgYrCount::OnInitPage() {
  DDX_Int(IDC_SZN_YRCOUNT_COUNT, &State().YearsBack, true, false);
  Ctl().SetDlgItemTextA(IDC_SZN_YRCOUNT_HELP, kHelp);
  return true;
}

int CSznWzrdPgYrCount::OnWizardNext() {
  // Text that is no number only beeps; a number out of range says so.
  int years = 0;
  if (!DDX_Int(IDC_SZN_YRCOUNT_COUNT, &years, true, true)) return orv::kWizardStay;
  if (!DDV_MinMaxInt(IDC_SZN_YRCOUNT_COUNT, years, true, kMinYears, kMaxYears)) return orv::kWizardStay;
  State().YearsBack = years;
  State().FormSel = kFormSingleInstrument;
  return SznFlowNext(kDialogId, State());
}

int CSznWzrdPgYrCount::OnWizardBack() { return SznFlowBack(kDialogId, State()); }
