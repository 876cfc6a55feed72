#include "seasonal/SznWzrdPgFut1.h"

using orv::seasonal::WizardSeasonState;

const orv::seasonal::SznFuturesTraits CSznWzrdPgFut1::kFutures = {
    IDC_SZN_FUT1_HELP,
    IDC_SZN_FUT1_ROOT,
    IDC_SZN_FUT1_MONTH,
    IDC_SZN_FUT1_YEARS,
    IDC_SZN_FUT1_COUNT,
    "Futures contracts are identified by symbols comprising    a root symbol and a contract termination date.    "
    "The contract termination date is composed of a month code and termination year    representing the nominal "
    "delivery date of the futures contract.    Futures contracts may trade for several years, and a user may wish    "
    "to view the behavior of a contract any one of the different years    preceding the contract expiration.    "
    "Please select a root symbol, a month code, and a set of contract year    termination codes.",
    &WizardSeasonState::Root1,
    &WizardSeasonState::Month1,
    &WizardSeasonState::Years1,
    false,
};
