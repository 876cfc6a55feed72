// Any text as the host's document for the line study sheet: the sheet builds its pages (the
// position pages of the trendline family and of the studies with several anchors, the Advanced
// page), gets no chart, a daily or an intraday one (by the text's length), and a user visits
// every tab, edits what is reachable (value, vertices, snap, spin, extend boxes, lock, the
// labels' font, the Advanced page's choice) and presses OK, then Cancel if a page refused.
// Refusals are XmlComError; nothing else may escape, and nothing may crash, hang or leak. Every
// event must be a document the layer reads back, and the host's document stays as it was
// (LsSheetFuzz.h).

#include <cstddef>
#include <cstdint>

#include "LsSheetFuzz.h"
#include "dlgkit/FontInfo.h"

namespace {

using lsfuzz::Reachable;

void PlayUser(orv::FakeControls& c, std::size_t seed) {
  for (int id : {IDC_LS_DAY_VALUE, IDC_LS_INTRA_VALUE}) {
    if (Reachable(c, id)) c.TypeText(id, seed % 3 ? "12.75" : "-1e300");
  }
  constexpr int kSnapBoxes[] = {IDC_LS_DAY_TREND_SNAP, IDC_LS_INTRA_TREND_SNAP, IDC_LS_DAY_HORZ_SNAP,
                                IDC_LS_DAY_LRC_SNAP,   IDC_LS_DAY_VWAP_SNAP,    IDC_LS_DAY_FIBO_SNAP,
                                IDC_LS_INTRA_FIBO_SNAP};
  // Each vertex the page shows, a snap chosen on each (a channel's fourth snap clears its first),
  // and a value typed on the third.
  for (int id : {IDC_LS_VERTEX_1, IDC_LS_VERTEX_2, IDC_LS_VERTEX_3, IDC_LS_VERTEX_0}) {
    if (!Reachable(c, id)) continue;
    c.Click(id);
    for (int box : kSnapBoxes) {
      if (Reachable(c, box) && c.ComboGetCount(box) > 0)
        c.SelectComboItem(box, static_cast<int>((seed + static_cast<std::size_t>(id)) % c.ComboGetCount(box)));
    }
    if (id == IDC_LS_VERTEX_2) {
      for (int value : {IDC_LS_DAY_VALUE, IDC_LS_INTRA_VALUE}) {
        if (Reachable(c, value)) c.TypeText(value, seed % 2 ? "1e36" : "99.5");
      }
    }
  }
  if (Reachable(c, IDC_LS_INTRA_SPIN)) {
    c.ClickSpin(IDC_LS_INTRA_SPIN, 1);
    c.ClickSpin(IDC_LS_INTRA_SPIN, -2);
  }
  for (int id : {IDC_LS_DAY_EXTEND_LEFT, IDC_LS_DAY_EXTEND_RIGHT, IDC_LS_INTRA_EXTEND_LEFT, IDC_LS_INTRA_EXTEND_RIGHT,
                 IDC_LS_PARALLEL_EXTEND_LEFT, IDC_LS_PARALLEL_EXTEND_RIGHT, IDC_LS_POS_LOCK, IDC_LS_ATTACH_CHART}) {
    if (Reachable(c, id)) c.Click(id);
  }
  // The labels' font: chosen on odd seeds (a face that fills the record, a huge height), else cancelled.
  for (int id : {IDC_LS_DAY_FIBO_FONT, IDC_LS_INTRA_FIBO_FONT}) {
    if (!Reachable(c, id)) continue;
    if (seed % 2) {
      orv::LogFont font;
      font.lfHeight = seed % 4 == 1 ? -2147483647 - 1 : 2147483647;
      font.lfWeight = -5;
      font.lfPitchAndFamily = 0xFF;
      for (char& ch : font.lfFaceName) ch = 'W';  // no terminator
      c.AnswerNextFontDialog(font, 0xFFFFFFFFu);
    }
    c.Click(id);
  }
  if (Reachable(c, IDC_LS_LRC_MULTIPLIER)) c.TypeText(IDC_LS_LRC_MULTIPLIER, "x<&>\"");
  if (Reachable(c, IDC_LS_DAY_DATE)) c.PickDateFromCalendar(IDC_LS_DAY_DATE, {2024, 6, 3});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return lsfuzz::RunSheet(data, size,
                          [](orv::FakeControls& c, orv::LineStudyPage*, std::size_t seed) { PlayUser(c, seed); });
}
