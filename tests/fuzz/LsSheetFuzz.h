#pragma once
// What the line study sheet's fuzz targets share: any text as the host's document, the sheet built
// from it, no chart, a daily or an intraday one (by the text's length), a user playing every tab
// (the target's part), then OK, and Cancel if a page refused. Refusals are XmlComError; nothing
// else may escape, and nothing may crash, hang or leak. Every event must be a document the layer
// reads back, there are no more events than tabs, and the host's document is as it was.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "../linestudies/LsPageLayouts.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace lsfuzz {

// A further check of each event's document (the target's own rule).
using EventCheck = std::function<void(XmlNode document)>;
// The user on one tab: its controls, its page object, a seed.
using Player = std::function<void(orv::FakeControls& controls, orv::LineStudyPage* page, std::size_t seed)>;

struct CheckingOwner {
  orv::Status FireStatusEvent(std::int32_t, const std::string& value, std::int32_t, const std::string&, std::int32_t&) {
    XmlNode document = XmlCreateDocument();
    if (!XmlLoadString(document, value)) __builtin_trap();  // the sheet sent markup it can't read
    if (!XmlFindNode(document, "PropertyPage", true)) __builtin_trap();
    if (check) check(document);
    ++events;
    return 0;
  }
  EventCheck check;
  int events = 0;
};

inline bool Reachable(orv::FakeControls& c, int id) {
  return c.HasDlgItem(id) && c.IsDlgItemVisible(id) && c.IsDlgItemEnabled(id);
}

inline int RunSheet(const std::uint8_t* data, std::size_t size, const Player& play, EventCheck check = {}) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  const std::string before = XmlGetXml(document);
  CheckingOwner owner;
  owner.check = std::move(check);
  CLsPs<CheckingOwner> sheet(&owner);
  orv::HeadlessSheetRunner runner;
  lstest::SetLsLayouts(runner);
  runner.SetScript([&](orv::HeadlessSheetRunner& run) {
    for (int tab = 0; tab < run.Sheet().PageCount() && run.Sheet().IsRunning(); ++tab) {
      if (!run.Sheet().SelectPage(tab) && run.Sheet().CurrentPage() != tab) continue;  // kept on a page
      play(run.Tab(tab), sheet.PageOf(run.TabDialogIds()[static_cast<std::size_t>(tab)]),
           size + static_cast<std::size_t>(tab));
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
  if (XmlGetXml(document) != before) __builtin_trap();  // the host's document is never written
  return 0;
}

}  // namespace lsfuzz
