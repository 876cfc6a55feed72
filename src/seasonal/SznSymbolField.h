#pragma once
// What the two pages of one symbol share (the single instrument's last page and the cash
// futures spread's middle page): the help text, and the reading of the symbol into Symbol1.

#include "dlgkit/MessageBox.h"
#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {

inline constexpr char kSingleSymbolHelp[] =
    "Enter a single contract symbol.\r\n\r\n   Orvane will split the historical data between different years by "
    "season.";

// Reads the field into state.Symbol1. False when the field couldn't be read (the exchange beeped
// and focused it) or the symbol is empty (then the page's message box says so).
template <class PageT>
bool ReadSingleSymbol(PageT& page, int fieldId, WizardSeasonState& state) {
  if (!page.DDX_Text(fieldId, &state.Symbol1, true)) return false;
  if (!state.Symbol1.empty()) return true;
  page.Ctl().OrvMessageBox("Error Empty Symbol", "", kMbOk);
  return false;
}

}  // namespace orv::seasonal
