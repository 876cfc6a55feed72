// The platform numbers that dlgkit/ColorPicker.h copies are the platform's own.
#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>

#include "dlgkit/ColorPicker.h"

namespace orv {

static_assert(kColorMenuFlags == (TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD));
static_assert(kChooseColorFlags == (CC_RGBINIT | CC_FULLOPEN));
static_assert(kColorGridStyle == (WS_CHILD | WS_VISIBLE));
static_assert(kColorListExStyle == LVS_EX_FULLROWSELECT);

// CXColorStatic's styles and formats.
static_assert(SS_CENTER == 1 && SS_RIGHT == 2 && SS_CENTERIMAGE == 0x200);
static_assert(DT_CENTER == 1 && DT_RIGHT == 2 && DT_LEFT == 0 && DT_WORDBREAK == 16);
static_assert((DT_SINGLELINE | DT_VCENTER) == 36);

}  // namespace orv
