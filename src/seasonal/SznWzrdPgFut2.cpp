#include "seasonal/SznWzrdPgFut2.h"

using orv::seasonal::WizardSeasonState;

const orv::seasonal::SznFuturesTraits CSznWzrdPgFut2::kFutures = {
    IDC_SZN_FUT2_HELP,
    IDC_SZN_FUT2_ROOT,
    IDC_SZN_FUT2_MONTH,
    IDC_SZN_FUT2_YEARS,
    IDC_SZN_FUT2_COUNT,
    "Please select a root symbol, a month code, and contract years    to specify the second set of futures "
    "contracts.",
    &WizardSeasonState::Root2,
    &WizardSeasonState::Month2,
    &WizardSeasonState::Years2,
    false,
};
