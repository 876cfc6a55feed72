#include "seasonal/SznWzrdPgSnglRootFut.h"

using orv::seasonal::WizardSeasonState;

const orv::seasonal::SznFuturesTraits CSznWzrdPgSnglRootFut::kFutures = {
    IDC_SZN_SNGLROOT_HELP,
    IDC_SZN_SNGLROOT_ROOT,
    IDC_SZN_SNGLROOT_MONTH,
    IDC_SZN_SNGLROOT_YEARS,
    IDC_SZN_SNGLROOT_COUNT,
    "Futures contracts are identified by symbols comprising    a root symbol and a contract termination date.    "
    "The contract termination date is composed of a month code and termination year    representing the nominal "
    "delivery date of the futures contract.\r\n    Futures contracts may trade for several years, and a user may "
    "wish    to view the behavior of a contract any one of the different years    preceding the contract "
    "expiration.\r\n    Please select a root symbol, a month code, and a set of contract year    termination codes.",
    &WizardSeasonState::Root1,
    &WizardSeasonState::Month1,
    &WizardSeasonState::Years1,
    true,
};
