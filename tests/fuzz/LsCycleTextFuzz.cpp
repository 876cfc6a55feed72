// Any text as the host's document for the line study sheet, with the cycle finder and text pages in
// mind: the sheet builds its pages, gets no chart, a daily or an intraday one (by the text's
// length), and a user visits every tab, types and steps the period, the value and the
// transparency, moves the bar, clicks the lock, the colour and the font buttons (the font dialog
// answering OK or Cancel) and presses OK, then Cancel if a page refused. Refusals are
// XmlComError; nothing else may escape, and nothing may crash, hang or leak. Every event must be a
// document the layer reads back, and a text page's must carry a transparency of 0 to 255.

#include <cstddef>
#include <cstdint>

#include "LsSheetFuzz.h"

namespace {

using lsfuzz::Reachable;

void PlayUser(orv::FakeControls& c, std::size_t seed) {
  static const char* const kTyped[] = {"12", "251", "-3", "0", "250", "x", ""};
  const char* typed = kTyped[seed % std::size(kTyped)];
  for (int id : {IDC_LS_DAY_CYC_PERIOD, IDC_LS_INTRA_CYC_PERIOD, IDC_LS_TXT_TRANSP}) {
    // The transparency box takes digits only: what else comes, comes pasted.
    if (Reachable(c, id)) c.SetDlgItemTextA(id, typed);
  }
  for (int id : {IDC_LS_DAY_CYC_SPIN, IDC_LS_INTRA_CYC_SPIN, IDC_LS_TXT_TRANSP_SPIN, IDC_LS_INTRA_SPIN}) {
    if (Reachable(c, id)) {
      c.ClickSpin(id, 1);
      c.ClickSpin(id, -2);
    }
  }
  for (int id : {IDC_LS_DAY_VALUE, IDC_LS_INTRA_VALUE}) {
    if (Reachable(c, id)) c.TypeText(id, seed % 2 ? "12.75" : "-1e300");
  }
  for (int id : {IDC_LS_POS_LOCK, IDC_LS_TXT_COLOR, IDC_LS_TXT_FONT}) {
    if (Reachable(c, id)) c.Click(id);
  }
  if (Reachable(c, IDC_LS_DAY_DATE)) c.PickDateFromCalendar(IDC_LS_DAY_DATE, {2024, 6, 3});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The transparency the host receives is an opacity, 0 to 255.
  return lsfuzz::RunSheet(
      data, size, [](orv::FakeControls& c, orv::LineStudyPage*, std::size_t seed) { PlayUser(c, seed); },
      [](XmlNode document) {
        std::int32_t transparency = 0;
        if (XmlGetChildValue(XmlFindNode(document, "CTrendtext", true), "LSTxt_Transparency", transparency) &&
            (transparency < 0 || transparency > 255)) {
          __builtin_trap();
        }
      });
}
