// The window messages, GetWindow and GetWindowLong indices, styles and modes of
// dlgkit/WindowOps.h are the platform's own.
#include <windows.h>
#include <commctrl.h>
#include <olectl.h>

#include "dlgkit/WindowOps.h"

namespace orv {

static_assert(kGwHwndNext == GW_HWNDNEXT);
static_assert(kGwChild == GW_CHILD);
static_assert(kGwlStyle == GWL_STYLE);
static_assert(kBkModeTransparent == TRANSPARENT);

static_assert(kWmEraseBkgnd == WM_ERASEBKGND);
static_assert(kWmDrawItem == WM_DRAWITEM);
static_assert(kWmMeasureItem == WM_MEASUREITEM);
static_assert(kWmDeleteItem == WM_DELETEITEM);
static_assert(kWmVKeyToItem == WM_VKEYTOITEM);
static_assert(kWmCharToItem == WM_CHARTOITEM);
static_assert(kWmCompareItem == WM_COMPAREITEM);
static_assert(kWmNotify == WM_NOTIFY);
static_assert(kWmCommand == WM_COMMAND);
static_assert(kWmHScroll == WM_HSCROLL);
static_assert(kWmVScroll == WM_VSCROLL);
static_assert(kWmCtlColorMsgBox == WM_CTLCOLORMSGBOX);
static_assert(kWmCtlColorEdit == WM_CTLCOLOREDIT);
static_assert(kWmCtlColorListBox == WM_CTLCOLORLISTBOX);
static_assert(kWmCtlColorBtn == WM_CTLCOLORBTN);
static_assert(kWmCtlColorDlg == WM_CTLCOLORDLG);
static_assert(kWmCtlColorScrollBar == WM_CTLCOLORSCROLLBAR);
static_assert(kWmCtlColorStatic == WM_CTLCOLORSTATIC);
static_assert(kWmParentNotify == WM_PARENTNOTIFY);
static_assert(kWmCreate == WM_CREATE);
static_assert(kWmDestroy == WM_DESTROY);

// A reflected notification is the message plus OCM__BASE (WM_USER + 0x1C00).
static_assert(kReflectedMessageBase == OCM__BASE);

static_assert(kLvmGetHeader == LVM_GETHEADER);
static_assert(kLvmSetBkColor == LVM_SETBKCOLOR);
static_assert(kLvmSetTextColor == LVM_SETTEXTCOLOR);
static_assert(kLvmSetTextBkColor == LVM_SETTEXTBKCOLOR);
static_assert(kLbsNotify == LBS_NOTIFY);

}  // namespace orv
