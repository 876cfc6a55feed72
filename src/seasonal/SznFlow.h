#pragma once
// Where Next and Back lead from each page of the seasonal wizard, by dialog id: the one copy of
// the wizard's flow. A page runs its checks first and, when they pass, answers what these give:
// a dialog id, kWizardDefault (0: the neighbour in sheet order), never kWizardStay.

#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {

// Next from `dialogId` once its checks passed. The count page's Next sets FormSel to 0 itself.
int SznFlowNext(int dialogId, const WizardSeasonState& state);

// Back from `dialogId`. For the Multipliers page, `readOk` tells whether its two fields read;
// Back from there goes to the Symbols page for a cash spread, to the First Futures page for a
// futures spread, and to the Under Construction page otherwise, and when the reading failed.
int SznFlowBack(int dialogId, const WizardSeasonState& state, bool readOk = true);

}  // namespace orv::seasonal
