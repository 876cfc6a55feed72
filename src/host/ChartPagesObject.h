#pragma once
// The ChartPages COM object: IChartPages, its events, and the sheet dispatcher behind it.

#include <windows.h>

// Creates a ChartPages object, plain (outer null) or aggregated (outer given, iid IUnknown).
HRESULT CreateChartPages(IUnknown* outer, REFIID iid, void** object);
