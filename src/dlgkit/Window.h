#pragma once
// A window as the kit sees it: an HWND on Windows, a node of the fake window tree in tests.

namespace orv {
using WindowHandle = void*;
}
