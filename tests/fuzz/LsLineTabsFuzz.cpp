// Any text as the host's document for the line study sheet's line tabs and its graph object line
// page: the sheet builds its pages, and a user visits every tab, ticks and unticks visibility,
// picks styles, weights and colours, types ratios (some of them no number), walks the line list
// and its boxes, and presses OK, then Cancel if a page refused. Refusals are XmlComError; nothing
// else may escape, and nothing may crash, hang or leak. Every event must be a document the layer
// reads back, and the host's document must be as it was.

#include <cstddef>
#include <cstdint>

#include "LsSheetFuzz.h"
#include "linestudies/GraphObjLinePg.h"
#include "linestudies/LsPgLineBase.h"

namespace {

using lsfuzz::Reachable;

void PlayLineTab(orv::FakeControls& c, CLsPgLineTab* tab, std::size_t seed) {
  static const char* const kRatios[] = {"0.618", "abc", "1e308", "-0", "  2  "};
  for (int row = 0; row < 11; ++row) {
    const auto id = [row](int column) { return CLsPgLineTab::RowId(row, column); };
    if (Reachable(c, id(CLsPgLineTab::kVisibleBox)) && (seed + row) % 2) c.Click(id(CLsPgLineTab::kVisibleBox));
    for (int box : {id(CLsPgLineTab::kStyleBox), id(CLsPgLineTab::kWeightBox)}) {
      if (Reachable(c, box) && c.ComboGetCount(box) > 0)
        c.SelectComboItem(box, static_cast<int>((seed + row) % c.ComboGetCount(box)));
    }
    if (Reachable(c, id(CLsPgLineTab::kColorButton)) && tab != nullptr) {
      c.Click(id(CLsPgLineTab::kColorButton));
      tab->SetButtonColor(id(CLsPgLineTab::kColorButton), static_cast<std::uint32_t>(seed * 2654435761u));
    }
    if (Reachable(c, id(CLsPgLineTab::kRatioBox)))
      c.TypeText(id(CLsPgLineTab::kRatioBox), kRatios[(seed + row) % std::size(kRatios)]);
  }
  for (int id : {IDC_LS_FIB_SHOW_LABELS, IDC_LS_FIB_EXTEND, IDC_LS_LINE_PRICE_BOX, IDC_LS_PARALLEL_PRICE_BOX}) {
    if (Reachable(c, id)) c.Click(id);
  }
}

void PlayLinePage(orv::FakeControls& c, CLinePgBase* page, std::size_t seed) {
  const int count = c.ListGetCount(IDC_LINE_PG_LIST);
  for (int i = 0; i < count && i < 8; ++i) {
    c.SelectListItem(IDC_LINE_PG_LIST, (i + static_cast<int>(seed)) % count);
    if (Reachable(c, IDC_LINE_PG_COLOR) && page != nullptr) {
      c.Click(IDC_LINE_PG_COLOR);
      page->SetButtonColor(static_cast<std::uint32_t>(seed + i));
    }
    for (int box : {IDC_LINE_PG_STYLE, IDC_LINE_PG_WEIGHT}) {
      if (Reachable(c, box) && c.ComboGetCount(box) > 0)
        c.SelectComboItem(box, static_cast<int>((seed + i) % c.ComboGetCount(box)));
    }
  }
  for (int id : {IDC_LINE_PG_SHOW_GRID, IDC_LINE_PG_SHOW_PRICE}) {
    if (Reachable(c, id)) c.Click(id);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return lsfuzz::RunSheet(data, size, [](orv::FakeControls& c, orv::LineStudyPage* page, std::size_t seed) {
    if (auto* lineTab = dynamic_cast<CLsPgLineTab*>(page)) PlayLineTab(c, lineTab, seed);
    if (auto* linePage = dynamic_cast<CLinePgBase*>(page)) PlayLinePage(c, linePage, seed);
  });
}
