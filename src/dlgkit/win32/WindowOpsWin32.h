#pragma once
// The window operations over USER and GDI (HWND, HBRUSH, HDC behind the kit's handles).

#include "dlgkit/WindowOps.h"

namespace orv {

WindowOps& PlatformWindowOps();

}  // namespace orv
