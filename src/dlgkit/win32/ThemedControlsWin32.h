#pragma once
// The window procedure put in front of a themed control's own (a WindowSubclass; the control's
// own procedure stays in the chain behind it). Its data is the COrvThemedControl*.

#include <windows.h>

class COrvThemedControl;

namespace orv {

LRESULT ThemedControlSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data);

// The themed control object that subclasses the window; null when there is none.
COrvThemedControl* ThemedControlOf(HWND window);

}  // namespace orv
