// Any text as the host's document: the sheet reads it, builds its pages, and a user changes the
// Advanced page where it is the first tab and presses OK (then Cancel, if a page refused). Refusals are XmlComError;
// nothing else may escape, and nothing may crash or leak.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "../linestudies/LsPageLayouts.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "linestudies/LineStudiesRes.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace {

struct CountingOwner {
  orv::Status FireStatusEvent(std::int32_t, const std::string& value, std::int32_t, const std::string&, std::int32_t&) {
    if (value.empty()) __builtin_trap();  // an event always carries a document
    ++events;
    return 0;
  }
  int events = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  CountingOwner owner;
  CLsPs<CountingOwner> sheet(&owner);
  orv::HeadlessSheetRunner runner;
  lstest::SetLsLayouts(runner);  // every built page may be named, in any order
  runner.SetScript([](orv::HeadlessSheetRunner& run) {
    if (run.Sheet().PageCount() > 0 && run.Sheet().CurrentPage() == 0) {
      orv::FakeControls& first = run.Tab(0);
      // The Advanced page's choice, where the first tab is that page.
      if (first.HasDlgItem(IDC_LS_ATTACH_CHART) && first.IsDlgItemVisible(IDC_LS_ATTACH_CHART))
        first.Click(IDC_LS_ATTACH_CHART);
    }
    if (!run.Sheet().PressOk()) run.Sheet().PressCancel();  // a page that refused OK keeps the sheet open
  });
  try {
    sheet.InitFromXml(XmlFindNode(document, "PropertySheet", true));
    const std::intptr_t result = sheet.DoModal(runner);
    if (result != 0 && result != 1) __builtin_trap();
    if (owner.events > static_cast<int>(sheet.TabNames().size())) __builtin_trap();
  } catch (const XmlComError&) {
    // A page refused its element (no PropertySheet above it): a documented failure.
  }
  return 0;
}
