// Any text as the host's document for the line study sheet's line tabs and its graph object line
// page: the sheet builds its pages, and a user visits every tab, ticks and unticks visibility,
// picks styles, weights and colours, types ratios (some of them no number), walks the line list
// and its boxes, and presses OK, then Cancel if a page refused. Refusals are XmlComError; nothing
// else may escape, and nothing may crash, hang or leak. Every event must be a document the layer
// reads back, and the host's document must be as it was.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "../linestudies/LsPageLayouts.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "linestudies/GraphObjLinePg.h"
#include "linestudies/LsPgLineBase.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace {

struct CheckingOwner {
  orv::Status FireStatusEvent(std::int32_t, const std::string& value, std::int32_t, const std::string&, std::int32_t&) {
    XmlNode document = XmlCreateDocument();
    if (!XmlLoadString(document, value)) __builtin_trap();  // the sheet sent markup it can't read
    if (!XmlFindNode(document, "PropertyPage", true)) __builtin_trap();
    ++events;
    return 0;
  }
  int events = 0;
};

bool Reachable(orv::FakeControls& c, int id) {
  return c.HasDlgItem(id) && c.IsDlgItemVisible(id) && c.IsDlgItemEnabled(id);
}

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
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  const std::string before = XmlGetXml(document);
  CheckingOwner owner;
  CLsPs<CheckingOwner> sheet(&owner);
  orv::HeadlessSheetRunner runner;
  lstest::SetLsLayouts(runner);
  runner.SetScript([&](orv::HeadlessSheetRunner& run) {
    for (int tab = 0; tab < run.Sheet().PageCount() && run.Sheet().IsRunning(); ++tab) {
      if (!run.Sheet().SelectPage(tab) && run.Sheet().CurrentPage() != tab) continue;  // kept on a page
      const std::size_t seed = size + static_cast<std::size_t>(tab);
      orv::LineStudyPage* page = sheet.PageOf(run.TabDialogIds()[static_cast<std::size_t>(tab)]);
      if (auto* lineTab = dynamic_cast<CLsPgLineTab*>(page)) PlayLineTab(run.Tab(tab), lineTab, seed);
      if (auto* linePage = dynamic_cast<CLinePgBase*>(page)) PlayLinePage(run.Tab(tab), linePage, seed);
    }
    if (run.Sheet().IsRunning() && !run.Sheet().PressOk()) run.Sheet().PressCancel();
  });
  try {
    sheet.InitFromXml(XmlFindNode(document, "PropertySheet", true));
    const std::intptr_t result = sheet.DoModal(runner);
    if (result != 0 && result != 1) __builtin_trap();
    if (owner.events > static_cast<int>(sheet.TabNames().size())) __builtin_trap();
  } catch (const XmlComError&) {
    // A page refused its element: a documented failure.
  }
  if (XmlGetXml(document) != before) __builtin_trap();  // the host's document is never written
  return 0;
}
