#pragma once
// Subclassing a window of this thread by its window procedure, with the subclass's record kept
// in this thread's memory. The platform's SetWindowSubclass finds its record with GetProp on
// every message, twice (in its procedure and in DefSubclassProc), and under Wine each GetProp is
// a call to the server, tens of microseconds: the windows of a sheet take hundreds of messages
// while it opens. The contract is SetWindowSubclass's: the subclass sees every message first and
// passes on what it doesn't answer with CallOriginalProc; its record goes with the window after
// WM_NCDESTROY, which the subclass sees too. Messages keep the window's character set (a Unicode
// window stays Unicode, an ANSI one ANSI).

#include <windows.h>

namespace orv {

using WindowSubclassProc = LRESULT (*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data);

// Puts `proc` with `data` in front of the window's procedure. False when the window belongs to
// another thread, already has a subclass of this kind, or refuses.
bool SubclassWindowProc(HWND window, WindowSubclassProc proc, void* data);

// The window's procedure from before the subclass, called with the message: what the subclass
// passes a message on to. DefWindowProc for a window without a subclass.
LRESULT CallOriginalProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The data `proc` was given for the window; null when the window has no subclass by `proc`.
void* WindowSubclassData(HWND window, WindowSubclassProc proc);

// Takes `proc`'s subclass off. When a later subclass sits in front of it, it stays in the chain
// as a plain pass-through until the window goes.
void RemoveWindowSubclassProc(HWND window, WindowSubclassProc proc);

}  // namespace orv
