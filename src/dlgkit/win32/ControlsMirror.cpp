// The constants of dlgkit/Controls.h are the platform's own.
#include <windows.h>

#include "dlgkit/Controls.h"

namespace orv {

static_assert(kBstUnchecked == BST_UNCHECKED);
static_assert(kBstChecked == BST_CHECKED);
static_assert(kBstIndeterminate == BST_INDETERMINATE);
static_assert(kBeepSimple == 0xFFFFFFFFu);  // MessageBeep's simple beep has no MB_ name
static_assert(kWmLsPageApply > WM_USER && kWmLsPageApply < WM_APP, "a private message of the sheet's pages");

}  // namespace orv
