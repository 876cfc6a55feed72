// Any text as the host's document for the line study sheet, with the cycle finder and text pages in
// mind: the sheet builds its pages, gets no chart, a daily or an intraday one (by the text's
// length), and a user visits every tab, types and steps the period, the value and the
// transparency, moves the bar, clicks the lock, the colour and the font buttons (the font dialog
// answering OK or Cancel) and presses OK, then Cancel if a page refused. Refusals are
// XmlComError; nothing else may escape, and nothing may crash, hang or leak. Every event must be a
// document the layer reads back, and a text page's must carry a transparency of 0 to 255.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "../linestudies/LsPageLayouts.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace {

struct CheckingOwner {
  orv::Status FireStatusEvent(std::int32_t, const std::string& value, std::int32_t, const std::string&, std::int32_t&) {
    XmlNode document = XmlCreateDocument();
    if (!XmlLoadString(document, value)) __builtin_trap();  // the sheet sent markup it can't read
    if (!XmlFindNode(document, "PropertyPage", true)) __builtin_trap();
    std::int32_t transparency = 0;
    if (XmlGetChildValue(XmlFindNode(document, "CTrendtext", true), "LSTxt_Transparency", transparency) &&
        (transparency < 0 || transparency > 255)) {
      __builtin_trap();
    }
    ++events;
    return 0;
  }
  int events = 0;
};

bool Reachable(orv::FakeControls& c, int id) {
  return c.HasDlgItem(id) && c.IsDlgItemVisible(id) && c.IsDlgItemEnabled(id);
}

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
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  CheckingOwner owner;
  CLsPs<CheckingOwner> sheet(&owner);
  orv::HeadlessSheetRunner runner;
  lstest::SetLsLayouts(runner);
  runner.SetScript([size](orv::HeadlessSheetRunner& run) {
    for (int tab = 0; tab < run.Sheet().PageCount() && run.Sheet().IsRunning(); ++tab) {
      if (!run.Sheet().SelectPage(tab) && run.Sheet().CurrentPage() != tab) continue;  // kept on a page
      PlayUser(run.Tab(tab), size + static_cast<std::size_t>(tab));
    }
    if (run.Sheet().IsRunning() && !run.Sheet().PressOk()) run.Sheet().PressCancel();
  });
  try {
    sheet.InitFromXml(XmlFindNode(document, "PropertySheet", true));
    switch (size % 3) {
      case 1:
        sheet.SetChartData(orv::SyntheticChartData::Daily(40));
        break;
      case 2:
        sheet.SetChartData(orv::SyntheticChartData::Intraday(1));
        break;
      default:
        break;  // DoModal without chart data
    }
    const std::intptr_t result = sheet.DoModal(runner);
    if (result != 0 && result != 1) __builtin_trap();
    if (owner.events > static_cast<int>(sheet.TabNames().size())) __builtin_trap();
  } catch (const XmlComError&) {
    // A page refused its element: a documented failure.
  }
  return 0;
}
