#include "seasonal/SznWzrdPgMult.h"

#include "seasonal/SznFlow.h"

namespace {

constexpr const char* kHelpText =
    "Select spread mutlipliers or skip.     To compare items with different units of measure, enter an appropriate "
    "    units conversion may be applied to spreads.     Orvanx applies Multiplier1 to the first column of symbols "
    "and     Multiplier2 to the second column.     Press finish if you do not wish to enter any conversion "
    "multipliers.";

constexpr int kPrecision = 15;

}  // namespace

bool CSznWzrdPgMult::OnInitPage() {
  multiplier1_ = State().Multiplier1;
  multiplier2_ = State().Multiplier2;
  DDX_Float(IDC_SZN_MULT_1, &multiplier1_, false, false, 0.0, 0.0, kPrecision);
  DDX_Float(IDC_SZN_MULT_2, &multiplier2_, false, false, 0.0, 0.0, kPrecision);
  Ctl().SetDlgItemTextA(IDC_SZN_MULT_HELP, kHelpText);
  return true;
}

bool CSznWzrdPgMult::ReadMultipliers() {
  const bool ok = DDX_Float(IDC_SZN_MULT_1, &multiplier1_, true, false, 0.0, 0.0, kPrecision) &&
                  DDX_Float(IDC_SZN_MULT_2, &multiplier2_, true, false, 0.0, 0.0, kPrecision);
  State().Multiplier1 = multiplier1_;
  State().Multiplier2 = multiplier2_;
  return ok;
}

bool CSznWzrdPgMult::OnKillActive() { return ReadMultipliers(); }

int CSznWzrdPgMult::OnWizardBack() {
  const bool readOk = ReadMultipliers();
  return orv::seasonal::SznFlowBack(kDialogId, State(), readOk);
}

bool CSznWzrdPgMult::OnWizardFinish() {
  if (!OnKillActive()) return false;
  orv::seasonal::BuildContractLabels(State());
  return true;
}
