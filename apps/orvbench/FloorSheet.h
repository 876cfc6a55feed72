// The floor an open of the component's sheets is measured against: the platform's own property
// sheet with one empty page of the line study pages' size (250 x 150 dialog units, 8 point
// "MS Shell Dlg"), from a template built in memory, with OK, Cancel and Apply.
#pragma once

#include <windows.h>

#include <initializer_list>

namespace orv::bench {

// Runs the sheet modally under `parent`; PropertySheet's result.
INT_PTR RunFloorSheet(HWND parent);

// The platform's sheet with the given dialog templates of `module` as its pages, in order, and
// a page procedure that does nothing: what those templates cost with no page code behind them.
INT_PTR RunTemplateSheet(HWND parent, HINSTANCE module, std::initializer_list<int> templateIds);

}  // namespace orv::bench
