#pragma once
// One modal run of the line study sheet on the headless runner, with the pages' templates and a
// strict owner: the events the host would receive, as compact text.

#include <cstdint>
#include <string>
#include <vector>

#include "FakeSheetOwner.h"
#include "LsPageLayouts.h"
#include "LsTestXml.h"
#include "dlgkit/ChartData.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "linestudies/LsPs.h"

namespace lstest {

class SheetRun {
 public:
  SheetRun() { SetLsLayouts(runner); }
  std::intptr_t Run(const std::string& xml, orv::ChartDataRef chart, orv::HeadlessSheetRunner::Script script) {
    sheet.InitFromXml(SheetNode(xml));
    if (chart) sheet.SetChartData(chart);
    runner.SetScript(std::move(script));
    return sheet.DoModal(runner);
  }
  std::vector<std::string> Events() const {
    std::vector<std::string> texts;
    for (const auto& e : owner.events) texts.push_back(Compact(e.value));
    return texts;
  }
  FakeSheetOwner owner;
  CLsPs<FakeSheetOwner> sheet{&owner};
  orv::HeadlessSheetRunner runner;
};

}  // namespace lstest
