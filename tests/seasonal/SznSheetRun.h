#pragma once
// One modal run of the seasonal wizard on the headless runner: the pages' templates as fake
// controls, a strict owner, a settings store in memory and a clock that stands still, so that
// the document the host receives and the values left in the store can be compared whole.

#include <cstdint>
#include <string>
#include <vector>

#include "SznTemplates.h"
#include "dlgkit/Clock.h"
#include "dlgkit/SettingsStore.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "seasonal/SeasonalRes.h"
#include "seasonal/SznWzrdPs.h"
#include "xml/Xml.h"

namespace szntest {

// The day every run takes as today: the pages' current year is 2026.
inline constexpr orv::DateTime kToday{2026, 11, 24, 10, 30, 0};

// The PropertySheet element of `text`, in a document of its own.
inline XmlNode SheetNode(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, text)) return XmlNode();
  return XmlFindNode(document, "PropertySheet", true);
}

// A sheet runner that lays out every page that has a template.
inline void SetSznLayouts(orv::HeadlessSheetRunner& runner) {
  for (const orv::TemplateDialog& dialog : orv::templates::kDialogs) {
    runner.SetLayout(dialog.id, [&dialog](orv::FakeControls& c) { orv::AddTemplateControls(dialog, c); });
  }
}

class SheetRun {
 public:
  explicit SheetRun(orv::SettingsStore& store) : store_(store) { SetSznLayouts(runner); }

  // The whole request: load, the three sources, the run, and what a finished run writes.
  std::intptr_t Run(const std::string& request, orv::HeadlessSheetRunner::Script script) {
    runner.SetScript(std::move(script));
    return wizard.Run(SheetNode(request), runner);
  }

  // The page on show and its controls.
  int CurrentDialogId() { return runner.TabDialogIds().at(static_cast<std::size_t>(runner.Sheet().CurrentPage())); }
  orv::FakeControls& Current() { return runner.Tab(runner.Sheet().CurrentPage()); }

  std::vector<std::string> Events() const {
    std::vector<std::string> texts;
    for (const auto& e : owner.events) texts.push_back(orv::Compact(e.value));
    return texts;
  }

  orv::FakeSheetOwner owner;
  orv::FixedClock clock{kToday};
  orv::HeadlessSheetRunner runner;

 private:
  orv::SettingsStore& store_;

 public:
  CSznWzrdPs<orv::FakeSheetOwner> wizard{&owner, store_, clock};
};

}  // namespace szntest
