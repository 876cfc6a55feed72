#pragma once
// The window procedure put in front of a themed control's own (SetWindowSubclass; the control's
// own procedure stays in the chain behind it). dwRefData is the COrvThemedControl*.

#include <windows.h>
#include <commctrl.h>

namespace orv {

LRESULT CALLBACK ThemedControlSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR subclassId, DWORD_PTR refData);
inline constexpr UINT_PTR kThemedControlSubclassId = 0x4F525643;  // one id for every themed control

}  // namespace orv
