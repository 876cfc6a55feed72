// The notification codes, wizard buttons, button ids and apply results of dlgkit/Page.h are the
// platform's own.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include "dlgkit/Page.h"

namespace orv {

static_assert(static_cast<int>(ApplyResult::NoError) == PSNRET_NOERROR);
static_assert(static_cast<int>(ApplyResult::Invalid) == PSNRET_INVALID);
static_assert(static_cast<int>(ApplyResult::InvalidNoChangePage) == PSNRET_INVALID_NOCHANGEPAGE);

static_assert(kWizBack == PSWIZB_BACK);
static_assert(kWizNext == PSWIZB_NEXT);
static_assert(kWizFinish == PSWIZB_FINISH);

static_assert(kBnClicked == BN_CLICKED);
static_assert(kEnChange == EN_CHANGE);
static_assert(kEnKillFocus == EN_KILLFOCUS);
static_assert(kCbnSelChange == CBN_SELCHANGE);
static_assert(kLbnSelChange == LBN_SELCHANGE);
static_assert(kIdOkButton == IDOK);
static_assert(kIdCancelButton == IDCANCEL);

static_assert(kLvnItemChanged == static_cast<int>(LVN_ITEMCHANGED));
static_assert(kUdnDeltaPos == static_cast<int>(UDN_DELTAPOS));
static_assert(kDtnCloseUp == static_cast<int>(DTN_CLOSEUP));
static_assert(kDtnDateTimeChange == static_cast<int>(DTN_DATETIMECHANGE));

}  // namespace orv
