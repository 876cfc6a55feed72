#pragma once
// The sheet dispatcher: finds the PropertySheet element of a host's document, picks the sheet its
// Name names and runs it modally on the calling thread. It has no state; one process-wide
// instance is made on first use and destroyed by TerminatePage(0).

#include <windows.h>
#include <unknwn.h>

#include "xml/Xml.h"

namespace orv::host {

class CChartPages;

// Results of RunSheet / RunSheet2 (and DoModal / DoModal2).
inline constexpr long kSheetNotFound = 2;  // no PropertySheet, or its Name names no sheet
// Otherwise PropertySheet's own result: 1 closed with a change, 0 without, -1 not shown.

class SheetDispatcher {
 public:
  // Runs the sheet `doc` asks for, owned by `owner` (its StatusEvents go there; null: the sheet
  // fires nothing). What a sheet throws passes through, after the sheet is destroyed.
  long RunSheet(CChartPages* owner, XmlNode doc) const;
  // As RunSheet; the pages of a "LSPs" sheet read chart values from `chartData` (the host's
  // IChartData, declared IUnknown and called without a query; may be null).
  long RunSheet2(CChartPages* owner, XmlNode doc, IUnknown* chartData) const;

 private:
  long Run(CChartPages* owner, XmlNode doc, IUnknown* chartData, bool withChartData) const;
};

// The process-wide dispatcher, made on first use (raises nothing but bad_alloc).
SheetDispatcher& TheSheetDispatcher();
// Destroys it if it exists; the next TheSheetDispatcher() makes a new one.
void DestroySheetDispatcher() noexcept;
// For tests: whether the dispatcher exists now.
bool SheetDispatcherExists() noexcept;

}  // namespace orv::host
