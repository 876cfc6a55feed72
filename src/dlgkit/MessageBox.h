#pragma once
// OrvMessageBox: the one function through which the program shows a message box.
// Pages reach it through Controls::OrvMessageBox, so tests see every box and none pops up.

#include <string_view>

#include "dlgkit/Window.h"

namespace orv {

// The standard message box flags and results, for portable callers.
inline constexpr unsigned kMbOk = 0x0;
inline constexpr unsigned kMbOkCancel = 0x1;
inline constexpr unsigned kMbYesNoCancel = 0x3;
inline constexpr unsigned kMbYesNo = 0x4;
inline constexpr unsigned kMbIconHand = 0x10;
inline constexpr unsigned kMbIconQuestion = 0x20;
inline constexpr unsigned kMbIconExclamation = 0x30;
inline constexpr unsigned kMbIconAsterisk = 0x40;

inline constexpr int kIdOk = 1;
inline constexpr int kIdCancel = 2;
inline constexpr int kIdYes = 6;
inline constexpr int kIdNo = 7;

}  // namespace orv

// Shows a modal box owned by `owner` (an owner that isn't a visible window counts as none) and
// gives the id of the button pressed. -1 when no box could be shown: natively there is no
// window system, so the native build always gives -1 (callers treat it as "not confirmed").
int OrvMessageBox(orv::WindowHandle owner, std::string_view text, std::string_view caption, unsigned flags);
